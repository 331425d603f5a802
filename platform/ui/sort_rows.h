#pragma once

#include <cstdint>

#include "platform/basic/buffer.h"
#include "platform/basic/column.h"

namespace qvzj::ui {

class TextOrder;

/// Permutes `rows` (0-based places in `column`, each once) into the order of their values; equal
/// values keep their order, empty ones (null, empty text) come last whichever way the others go.
/// Texts order by `order`, null: by their bytes.
void SortRows(const basic::Column& column, bool descending, const TextOrder* order,
              basic::Buffer<uint32_t>& rows);

}  // namespace qvzj::ui
