#pragma once

#include <cstdint>

#include "platform/ui/form.h"
#include "platform/ui/widgets.h"

namespace qvzj {

/// A small modal dialog that picks one staff member. The choice is the shared value `myName`
/// after it has closed.
struct frmList : ui::Form {
  frmList();

  /// The caller's kind number; above 3 a cancel clears an earlier choice. Set before Load.
  void Kind(int16_t kind) { kind_ = kind; }
  /// Captions the dialog and lists the staff.
  void Load();

  ui::Label lblList{*this, "lblList"};
  ui::ListBox List1{*this, "List1"};
  ui::Button cmdLogOK{*this, "cmdLogOK"};
  ui::Button cmdCancel{*this, "cmdCancel"};

 private:
  int16_t kind_ = 0;
};

}  // namespace qvzj
