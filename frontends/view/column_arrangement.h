#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/ui/grid.h"

/// What a user arranges of a grid's columns for himself. The form knows nothing of it.
namespace qvzj::view {

/// How the columns of a grid stand. Columns are 0-based here, as in what is kept.
struct ColumnLayout {
  std::vector<int> widths;  ///< pixels at 96 dpi, by column; 0 = as designed
  std::vector<int> order;   ///< columns from left to right
};

/// Where a window keeps numbers under names, per user.
class NumberStore {
 public:
  virtual ~NumberStore() = default;
  /// Empty when nothing is kept.
  virtual std::vector<int> Numbers(const std::string& name) const = 0;
  virtual void KeepNumbers(const std::string& name, const std::vector<int>& numbers) = 0;
  virtual void Forget(const std::string& name) = 0;
};

/// What is kept for a grid; empty when the user has arranged nothing, or for a grid of another
/// number of columns.
std::optional<ColumnLayout> KeptColumns(const NumberStore& store, const std::string& grid,
                                        size_t count);
void KeepColumns(NumberStore& store, const std::string& grid, const ColumnLayout& layout);
void ForgetColumns(NumberStore& store, const std::string& grid);

/// Under which the columns of a grid are kept: the form, the grid, and what its columns stand for.
std::string KeptName(const ui::Grid& grid);

/// Keeps the widths and the order that a user gives to a grid's columns, and puts them back the
/// next time. What was never touched stays as the form designed it.
class ColumnArrangement {
 public:
  /// `store` may be null: then nothing is kept.
  ColumnArrangement(const ui::Grid& grid, NumberStore* store) : grid_(grid), store_(store) {}

  /// The form designs the columns with these widths (pixels): answers how they are to be shown, no
  /// width being 0; empty when they are shown that way already.
  std::optional<ColumnLayout> Design(const std::vector<int>& widths);
  /// Forgets the user's arrangement; answers the designed one.
  ColumnLayout Reset();
  /// The user arranged the columns like this; the width of a hidden one is 0.
  void Keep(ColumnLayout shown);

 private:
  ColumnLayout Designed() const;

  const ui::Grid& grid_;
  NumberStore* store_;
  std::string shown_;  // the name that the columns are shown for
  std::vector<int> designed_;
};

/// The visible columns of a grid (1-based) in an order of all columns (0-based).
std::vector<int32_t> VisibleColumns(const ui::Grid& grid, const std::vector<int>& order);
/// The visible column (1-based) beside the active one in the order, to the left (-1) or right (1);
/// 0 at the end, or when no row is active.
int32_t NeighbourColumn(const ui::Grid& grid, const std::vector<int>& order, int step);

}  // namespace qvzj::view
