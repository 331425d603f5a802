#include "platform/data/store.h"

#include "platform/basic/text.h"

namespace qvzj::data {
namespace {

int64_t WholeNumber(Store& store, const std::string& sql) {
  return static_cast<int64_t>(store.Native(sql).Number(0));
}

}  // namespace

Transaction::Transaction(Store& store) : store_(store) { store_.Begin(); }

Transaction::~Transaction() {
  writers_.clear();
  if (open_) store_.Rollback();
}

RowWriter& Transaction::Into(std::string_view table, const std::vector<std::string_view>& columns) {
  return *writers_.emplace_back(store_.Writer(table, columns));
}

void Transaction::Flush() {
  for (const auto& writer : writers_) writer->Flush();
}

void Transaction::Commit() {
  Flush();
  writers_.clear();
  store_.Commit();
  open_ = false;
}

std::string InsertStatement(std::string_view table, const std::vector<std::string_view>& columns,
                            size_t rows) {
  std::string text = "insert into " + std::string(table) + " (";
  std::string places;
  for (const std::string_view column : columns) {
    if (!places.empty()) text += ',';
    text += column;
    places += places.empty() ? "(?" : ",?";
  }
  text += ") values ";
  places += ')';
  for (size_t row = 0; row < rows; ++row) {
    if (row > 0) text += ',';
    text += places;
  }
  return text;
}

int64_t CountOf(Store& store, const std::string& table) {
  return WholeNumber(store, "select count(*) from " + table);
}

bool HasTable(Store& store, const std::string& table) {
  const std::string name = "'" + basic::Lower(table) + "'";
  switch (store.Speaks()) {
    case Engine::PostgreSql:
      return WholeNumber(store, "select count(to_regclass(" + name + "))") > 0;
    case Engine::TransactSql:
      return WholeNumber(store, "select count(object_id(" + name + "))") > 0;
    case Engine::Sqlite:
      break;
  }
  return WholeNumber(
             store,
             "select count(*) from sqlite_master where type='table' and lower(name)=" + name) > 0;
}

}  // namespace qvzj::data
