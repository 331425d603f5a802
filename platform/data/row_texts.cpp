#include "platform/data/row_texts.h"

#include "platform/data/recordset.h"

namespace qvzj::data {

RowTexts TextsOfRow(const Recordset& rows) {
  RowTexts texts;
  for (int field = 0; field < rows.FieldCount() && !rows.Eof(); ++field) {
    texts.push_back(rows.IsNull(field) ? std::nullopt : std::optional(rows.Text(field)));
  }
  return texts;
}

}  // namespace qvzj::data
