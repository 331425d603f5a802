#pragma once

#include <cstdint>
#include <string>

#include "platform/components.h"
#include "platform/ui/form.h"
#include "platform/ui/grid.h"
#include "platform/ui/widgets.h"
#include "suite/visits/visits.h"

namespace qvzj::visits {

/// The window of a customer's visit records: the list, and below it the one that is being keyed or
/// changed. A text that was changed is never lost silently: leaving it asks first.
struct frmTask : ui::Form {
  /// Opens and lists the records. Throws DataError when the data cannot be opened.
  explicit frmTask(const TaskCall& call);

  ui::Grid Grid1{*this, "Grid1"};  ///< id (hidden), date, user, text
  ui::Label lblDate{*this, "lblDate"};
  ui::DatePicker dtpDate{*this, "dtpDate"};
  ui::Label lblBrief{*this, "lblBrief"};
  ui::TextBox txtBrief{*this, "txtBrief"};
  ui::Button cmdNew{*this, "cmdNew"};
  ui::Button cmdSave{*this, "cmdSave"};
  ui::Button cmdDelete{*this, "cmdDelete"};
  ui::Button cmdExit{*this, "cmdExit"};

 private:
  void WriteCaptions(const TaskCall& call);
  void Place();
  void Connect();
  /// Lists the records anew and shows the one of that id, or the first.
  void Refill(int32_t id);
  /// Shows a row of the grid below; row 0 is a new record.
  void ShowRow(int32_t row);
  /// Asks with OK and Cancel; true for OK.
  bool Asks(const char* simplified, const char* traditional) const;
  /// May the shown record be left? Asks when it was changed.
  bool MayLeave();
  void Save();
  void Delete();

  int16_t language_;
  basic::Date today_;
  VisitRecords records_;
  int32_t shown_ = 0;  ///< id of the record shown below, 0 for a new one
  bool changed_ = false;
};

}  // namespace qvzj::visits
