#include "frontends/qt/column_keeper.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTableView>
#include <numeric>

#include "frontends/qt/layout_store.h"

namespace qvzj::qt {

ColumnKeeper::ColumnKeeper(QTableView& table, std::function<QString()> name, LayoutStore* store)
    : table_(table), name_(std::move(name)), store_(store) {
  QHeaderView* header = table_.horizontalHeader();
  connect(header, &QHeaderView::sectionResized, this, [this] { Keep(); });
  connect(header, &QHeaderView::sectionMoved, this, [this] { Keep(); });
}

void ColumnKeeper::Design(const std::vector<int>& widths) {
  const QString name = name_();
  if (widths == designed_ && name == shown_) return;
  const QScopedValueRollback<bool> echo(showing_, true);
  designed_ = widths;
  shown_ = name;
  const std::optional<ColumnLayout> kept =
      store_ == nullptr ? std::nullopt : store_->Columns(shown_, widths.size());
  for (size_t i = 0; i < widths.size(); ++i) {
    const int own = kept ? kept->widths[i] : 0;
    table_.setColumnWidth(static_cast<int>(i), own > 0 ? own : widths[i]);
  }
  ShowOrder(kept ? kept->order : NaturalOrder());
}

std::vector<int> ColumnKeeper::NaturalOrder() const {
  std::vector<int> order(designed_.size());
  std::iota(order.begin(), order.end(), 0);
  return order;
}

void ColumnKeeper::ShowOrder(const std::vector<int>& order) {
  QHeaderView* header = table_.horizontalHeader();
  for (int place = 0; place < static_cast<int>(order.size()); ++place) {
    header->moveSection(header->visualIndex(order[static_cast<size_t>(place)]), place);
  }
}

void ColumnKeeper::Reset() {
  const QScopedValueRollback<bool> echo(showing_, true);
  if (store_ != nullptr) store_->ForgetColumns(shown_);
  ShowOrder(NaturalOrder());
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
  store_->KeepColumns(shown_, layout);
}

}  // namespace qvzj::qt
