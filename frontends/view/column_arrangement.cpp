#include "frontends/view/column_arrangement.h"

#include <algorithm>
#include <numeric>

#include "platform/ui/form.h"

namespace qvzj::view {
namespace {

std::vector<int> NaturalOrder(size_t count) {
  std::vector<int> order(count);
  std::iota(order.begin(), order.end(), 0);
  return order;
}

bool IsPermutation(std::vector<int> order) {
  std::sort(order.begin(), order.end());
  return order == NaturalOrder(order.size());
}

std::string WidthsName(const std::string& grid) { return "columns/" + grid + "/widths"; }
std::string OrderName(const std::string& grid) { return "columns/" + grid + "/order"; }

}  // namespace

std::optional<ColumnLayout> KeptColumns(const NumberStore& store, const std::string& grid,
                                        size_t count) {
  ColumnLayout layout{store.Numbers(WidthsName(grid)), store.Numbers(OrderName(grid))};
  if (layout.widths.size() != count || layout.order.size() != count ||
      !IsPermutation(layout.order)) {
    return std::nullopt;
  }
  return layout;
}

void KeepColumns(NumberStore& store, const std::string& grid, const ColumnLayout& layout) {
  store.KeepNumbers(WidthsName(grid), layout.widths);
  store.KeepNumbers(OrderName(grid), layout.order);
}

void ForgetColumns(NumberStore& store, const std::string& grid) {
  store.Forget(WidthsName(grid));
  store.Forget(OrderName(grid));
}

std::string KeptName(const ui::Grid& grid) {
  std::string name = grid.GetForm().Name() + "." + grid.FullName();
  if (grid.offers.columns) name += "." + grid.offers.columns();
  return name;
}

std::optional<ColumnLayout> ColumnArrangement::Design(const std::vector<int>& widths) {
  const std::string name = KeptName(grid_);
  if (widths == designed_ && name == shown_) return std::nullopt;
  designed_ = widths;
  shown_ = name;
  std::optional<ColumnLayout> kept;
  if (store_ != nullptr) kept = KeptColumns(*store_, shown_, widths.size());
  if (!kept) return Designed();
  for (size_t i = 0; i < widths.size(); ++i) {
    if (kept->widths[i] <= 0) kept->widths[i] = widths[i];
  }
  return kept;
}

ColumnLayout ColumnArrangement::Designed() const {
  return {designed_, NaturalOrder(designed_.size())};
}

ColumnLayout ColumnArrangement::Reset() {
  if (store_ != nullptr) ForgetColumns(*store_, shown_);
  return Designed();
}

void ColumnArrangement::Keep(ColumnLayout shown) {
  if (store_ == nullptr || shown.widths.size() != designed_.size()) return;
  for (size_t i = 0; i < designed_.size(); ++i) {
    if (shown.widths[i] == designed_[i]) shown.widths[i] = 0;
  }
  KeepColumns(*store_, shown_, shown);
}

std::vector<int32_t> VisibleColumns(const ui::Grid& grid, const std::vector<int>& order) {
  std::vector<int32_t> columns;
  for (int at : order) {
    if (!grid.ColumnHidden(at + 1)) columns.push_back(at + 1);
  }
  return columns;
}

int32_t NeighbourColumn(const ui::Grid& grid, const std::vector<int>& order, int step) {
  const auto active = std::find(order.begin(), order.end(), grid.ActiveColumn() - 1);
  if (grid.ActiveRow() < 1 || active == order.end()) return 0;
  const auto count = static_cast<int>(order.size());
  for (int at = static_cast<int>(active - order.begin()) + step; at >= 0 && at < count;
       at += step) {
    const int32_t column = order[static_cast<size_t>(at)] + 1;
    if (!grid.ColumnHidden(column)) return column;
  }
  return 0;
}

}  // namespace qvzj::view
