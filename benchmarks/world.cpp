#include "benchmarks/world.h"

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sqlite3.h>

#include <iostream>
#include <stdexcept>

#include "adapters/sqlite/sqlite_session.h"
#include "services/context.h"
#include "suite/demo/demo.h"
#include "suite/store/schema.h"

namespace qvzj::bench {
namespace fs = std::filesystem;
namespace {

std::unique_ptr<SqliteSession> Open(const fs::path& folder, bool create) {
  SqliteOptions options;
  options.create = create;
  return OpenSqlite((folder / store::kDataFile).string(), options);
}

/// Makes every entry a customer's, so that the ledger shown has as many rows as the table, and
/// gives the customer "Bench" its share.
void ShareOut(SqliteSession& session, int32_t customers, int32_t entries) {
  const std::string id = session.Native("select max(fID)+1 from cards").Text(0);
  const int32_t step = std::max(entries / 1000, 1);
  session.NativeScript(
      "update tAccountDetail set fType1=0,fCompID=1+fID*7919%" + std::to_string(customers) +
      " where fType1=1;"
      "insert into cards (fID,CompCode,compname,fType0) values (" +
      id + ",'ZZZZ','" + kBenchCustomer + "',0);" + "update tAccountDetail set fCompID=" + id +
      " where fID%" + std::to_string(step) + "=0;");
}

}  // namespace

fs::path DataFolder(int32_t customers, int32_t entries) {
  const fs::path folder = fs::path(QV_BENCH_DATA) / (std::to_string(customers) + "-customers-" +
                                                     std::to_string(entries) + "-entries");
  if (fs::exists(folder)) return folder;
  std::cerr << "Making " << folder << std::endl;
  const fs::path unfinished = folder.string() + ".unfinished";
  fs::remove_all(unfinished);
  fs::create_directories(unfinished);
  {
    const auto session = Open(unfinished, true);
    store::CreateSchema(*session);
    demo_data::Options options;
    options.customers = customers;
    options.entries = entries;
    demo_data::MakeData(*session, options, {});
    ShareOut(*session, customers, entries);
    session->NativeScript("pragma wal_checkpoint(truncate)");
  }
  fs::rename(unfinished, folder);
  return folder;
}

Engine::Engine(const fs::path& folder) : session_(Open(folder, false)) {}

std::string Engine::Translate(std::string_view statement) const {
  return session_->Translate(statement).text;
}

void Engine::Step(const std::string& sql) {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(session_->Handle(), sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
    throw std::runtime_error(sqlite3_errmsg(session_->Handle()));
  }
  const int columns = sqlite3_column_count(statement);
  while (sqlite3_step(statement) == SQLITE_ROW) {
    for (int i = 0; i < columns; ++i) {
      switch (sqlite3_column_type(statement, i)) {
        case SQLITE_INTEGER:
          benchmark::DoNotOptimize(sqlite3_column_int64(statement, i));
          break;
        case SQLITE_FLOAT:
          benchmark::DoNotOptimize(sqlite3_column_double(statement, i));
          break;
        case SQLITE_NULL:
          break;
        default:
          benchmark::DoNotOptimize(sqlite3_column_text(statement, i));
      }
    }
  }
  sqlite3_finalize(statement);
}

void AllowEverything(qvJxc_Zj& control, const std::string& folder) {
  control.InitProperties();
  control.setUserPath(folder);
  control.setMyModel("11111111111");
  control.setUserName("admin");
  control.setZgName("admin");
}

World::World(int32_t customers, int32_t entries) : engine(DataFolder(customers, entries)) {
  ResetShared();
  headless_.Install(connections_);
  // Programs that run a statement a million times must not keep them all.
  Around().statement_watcher = [this](data::StatementKind, std::string_view statement) {
    ran_.emplace_back(statement);
    if (ran_.size() > 20) ran_.pop_front();
  };
  headless_.clock.Set(basic::Date::FromYmd(2025, 12, 31));
  AllowEverything(control_, DataFolder(customers, entries).string());
  control_.refresh(0, 0);
  if (!control_.Form()) throw std::runtime_error("the main form did not open");
}

World::~World() {
  Form().UserClose();
  ResetShared();
  Around() = {};
}

std::string World::Translated(std::string_view start) const {
  for (auto statement = ran_.rbegin(); statement != ran_.rend(); ++statement) {
    if (statement->starts_with(start)) return engine.Translate(*statement);
  }
  throw std::runtime_error("no statement that begins with " + std::string(start));
}

size_t HeapBytes() {
  malloc_trim(0);
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

}  // namespace qvzj::bench
