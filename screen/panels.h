#pragma once

#include <cstdint>

/// What lies inside the form's panels. Bounds of a control are in twips from the outer top left
/// corner of its container; a frame keeps its topmost line for its caption, a tab strip its
/// topmost kTabStrip for the tabs.
namespace qvzj {

struct frmZj;

inline constexpr int32_t kGap = 60;        ///< between neighbours, and around the form
inline constexpr int32_t kTabStrip = 420;  ///< height of a strip of tabs
inline constexpr int32_t kField = 330;     ///< height of a one-line field and of its label
inline constexpr int32_t kButton = 390;    ///< height of a button
inline constexpr int32_t kRow = 390;       ///< from one line of fields to the next

// Heights that the panels need for their contents.
inline constexpr int32_t kOrderHeight = 1035;
inline constexpr int32_t kEditorHeight = 2580;
inline constexpr int32_t kTotalHeight = 1035;
inline constexpr int32_t kFilterHeight = 1785;

/// Each arranges a panel's contents within the panel's present size.
void ArrangeOrder(frmZj& form);
void ArrangeRecordPage(frmZj& form);
void ArrangeSearchPage(frmZj& form);
void ArrangeEntryPanel(frmZj& form);
void ArrangeTotals(frmZj& form);
void ArrangeFilter(frmZj& form);
void ArrangeDetail(frmZj& form);

}  // namespace qvzj
