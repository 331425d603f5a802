#include "services/ids.h"

#include <charconv>

#include "platform/basic/errors.h"

namespace qvzj {
namespace {

bool IsId(const basic::Column& values, size_t row) {
  // Whatever kind the column is, its text is what a statement gets.
  const std::string text = values.Text(row);
  int32_t id = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), id);
  return fault == std::errc() && end == text.data() + text.size();
}

}  // namespace

void RequireIds(const basic::Column& values, const std::string& column) {
  if (values.GetKind() == basic::Column::Kind::Integer) return;
  for (size_t row = 0; row < values.Size(); ++row) {
    if (values.IsNull(row) || IsId(values, row)) continue;
    throw Error("数据有误：" + column + " 应为数字，现为“" + values.Text(row) +
                "”。未执行任何操作，请检查数据！");
  }
}

}  // namespace qvzj
