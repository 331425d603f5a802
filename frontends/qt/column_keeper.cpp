#include "frontends/qt/column_keeper.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTableView>
#include <numeric>

#include "frontends/qt/layout_store.h"

namespace qvzj::qt {

ColumnKeeper::ColumnKeeper(QTableView& table, QString grid, LayoutStore* store)
    : table_(table), grid_(std::move(grid)), store_(store) {
  QHeaderView* header = table_.horizontalHeader();
  connect(header, &QHeaderView::sectionResized, this, [this] { Keep(); });
  connect(header, &QHeaderView::sectionMoved, this, [this] { Keep(); });
}

void ColumnKeeper::Design(const std::vector<int>& widths) {
  if (widths == designed_) return;
  const QScopedValueRollback<bool> echo(showing_, true);
  designed_ = widths;
  const std::optional<ColumnLayout> kept =
      store_ == nullptr ? std::nullopt : store_->Columns(grid_, widths.size());
  for (size_t i = 0; i < widths.size(); ++i) {
    const int own = kept ? kept->widths[i] : 0;
    table_.setColumnWidth(static_cast<int>(i), own > 0 ? own : widths[i]);
  }
  if (kept) ShowOrder(kept->order);
}

void ColumnKeeper::ShowOrder(const std::vector<int>& order) {
  QHeaderView* header = table_.horizontalHeader();
  for (int place = 0; place < static_cast<int>(order.size()); ++place) {
    header->moveSection(header->visualIndex(order[static_cast<size_t>(place)]), place);
  }
}

void ColumnKeeper::Reset() {
  const QScopedValueRollback<bool> echo(showing_, true);
  if (store_ != nullptr) store_->ForgetColumns(grid_);
  std::vector<int> natural(designed_.size());
  std::iota(natural.begin(), natural.end(), 0);
  ShowOrder(natural);
  for (size_t i = 0; i < designed_.size(); ++i) {
    table_.setColumnWidth(static_cast<int>(i), designed_[i]);
  }
}

void ColumnKeeper::Keep() {
  const auto count = static_cast<int>(designed_.size());
  QHeaderView* header = table_.horizontalHeader();
  if (showing_ || store_ == nullptr || header->count() != count) return;
  ColumnLayout layout;
  for (int i = 0; i < count; ++i) {
    const int width = table_.isColumnHidden(i) ? 0 : table_.columnWidth(i);
    layout.widths.push_back(width == designed_[static_cast<size_t>(i)] ? 0 : width);
    layout.order.push_back(header->logicalIndex(i));
  }
  store_->KeepColumns(grid_, layout);
}

}  // namespace qvzj::qt
