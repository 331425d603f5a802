#include "frontends/view/grid_menu.h"

namespace qvzj::view {

std::vector<GridMenuEntry> GridMenu(const ui::Grid& grid, bool exports, const Texts& texts) {
  const bool filled = grid.RowCount() > 0;
  const ui::Control* print = grid.offers.print;
  std::vector<GridMenuEntry> menu{{GridAct::CopyRows, texts.copy_rows, "Ctrl+C", filled, false},
                                  {GridAct::Find, texts.find, "Ctrl+F", filled, false},
                                  {GridAct::FindAgain, texts.find_next, "F3", filled, false}};
  if (exports) menu.push_back({GridAct::Export, texts.export_grid, {}, filled, true});
  if (print != nullptr) {
    menu.push_back({GridAct::Print, texts.print, {}, filled && print->Usable(), !exports});
  }
  menu.push_back({GridAct::ResetColumns, texts.reset_columns, {}, true, true});
  return menu;
}

}  // namespace qvzj::view
