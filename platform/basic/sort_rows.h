#pragma once

#include <cstdint>

#include "platform/basic/buffer.h"
#include "platform/basic/column.h"
#include "platform/basic/text_order.h"

namespace qvzj::basic {

/// Permutes `rows` (0-based places in `column`, each once) into the order of their values; equal
/// values keep their order, empty ones (null, empty text) come last whichever way the others go.
/// Texts order by `order`, null: by their bytes.
void SortRows(const Column& column, bool descending, const TextOrder* order,
              Buffer<uint32_t>& rows);

}  // namespace qvzj::basic
