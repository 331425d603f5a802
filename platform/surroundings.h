#pragma once

#include "platform/basic/text_order.h"
#include "platform/boxes.h"
#include "platform/components.h"
#include "platform/data/connection.h"
#include "platform/services.h"
#include "platform/table_export.h"

namespace qvzj {

/// Everything the module asks of what surrounds it. The program that loads the component fills it
/// once before the first call; a test may replace it between two. Pointers are not owned and must
/// outlive the component; `print`, `task`, `user`, `exporter` and `text_order[…]` may be null where
/// a program has none, and the function that needs them then says so.
struct Surroundings {
  Boxes* boxes = nullptr;
  Settings* settings = nullptr;
  Clipboard* clipboard = nullptr;
  Clock* clock = nullptr;
  AnsiCodec* ansi = nullptr;
  Files* files = nullptr;
  Presenter* presenter = nullptr;
  data::ConnectionComponent* connections = nullptr;
  PrintComponent* print = nullptr;
  UserComponent* user = nullptr;
  TaskComponent* task = nullptr;
  TableExporter* exporter = nullptr;
  const basic::TextOrder* text_order[2] = {nullptr, nullptr};  ///< by language: pinyin, stroke
  data::StatementWatcher statement_watcher;
};

/// The surroundings in force.
Surroundings& Around();

}  // namespace qvzj
