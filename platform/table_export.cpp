#include "platform/table_export.h"

#include "platform/ui/grid.h"

namespace qvzj {

std::vector<int32_t> ColumnsOf(const ExportRequest& request) {
  if (!request.columns.empty()) return request.columns;
  std::vector<int32_t> columns;
  for (int32_t column = 1; column <= request.grid->ColumnCount(); ++column) {
    if (!request.grid->ColumnHidden(column)) columns.push_back(column);
  }
  return columns;
}

}  // namespace qvzj
