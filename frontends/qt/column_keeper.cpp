#include "frontends/qt/column_keeper.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTableView>

namespace qvzj::qt {

ColumnKeeper::ColumnKeeper(QTableView& table, const ui::Grid& grid, view::NumberStore* store)
    : table_(table), arrangement_(grid, store) {
  QHeaderView* header = table_.horizontalHeader();
  connect(header, &QHeaderView::sectionResized, this, [this] { Keep(); });
  connect(header, &QHeaderView::sectionMoved, this, [this] { Keep(); });
}

void ColumnKeeper::Design(const std::vector<int>& widths) {
  if (const auto layout = arrangement_.Design(widths)) Show(*layout);
}

void ColumnKeeper::Reset() { Show(arrangement_.Reset()); }

void ColumnKeeper::Show(const view::ColumnLayout& layout) {
  const QScopedValueRollback<bool> echo(showing_, true);
  QHeaderView* header = table_.horizontalHeader();
  for (int i = 0; i < static_cast<int>(layout.widths.size()); ++i) {
    table_.setColumnWidth(i, layout.widths[static_cast<size_t>(i)]);
    header->moveSection(header->visualIndex(layout.order[static_cast<size_t>(i)]), i);
  }
}

std::vector<int> ColumnKeeper::Order() const {
  const QHeaderView* header = table_.horizontalHeader();
  std::vector<int> order;
  for (int place = 0; place < header->count(); ++place) {
    order.push_back(header->logicalIndex(place));
  }
  return order;
}

void ColumnKeeper::Keep() {
  if (showing_) return;
  view::ColumnLayout layout{{}, Order()};
  for (int i = 0; i < table_.horizontalHeader()->count(); ++i) {
    layout.widths.push_back(table_.isColumnHidden(i) ? 0 : table_.columnWidth(i));
  }
  arrangement_.Keep(layout);
}

}  // namespace qvzj::qt
