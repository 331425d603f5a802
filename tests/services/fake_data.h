#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "frontends/headless/headless.h"
#include "platform/basic/errors.h"
#include "services/context.h"

namespace qvzj::test {

/// A field of an answer; null where empty.
using Field = std::optional<std::string>;

/// What a statement answers: field names and rows of texts.
struct FakeAnswer {
  std::vector<std::string> names = {"f0"};
  std::vector<std::vector<Field>> rows;
};

inline data::Recordset MakeRecordset(const FakeAnswer& answer) {
  std::vector<basic::Column> columns(answer.names.size());
  for (const auto& row : answer.rows) {
    for (size_t i = 0; i < columns.size(); ++i) {
      if (row[i]) {
        columns[i].AppendText(*row[i]);
      } else {
        columns[i].AppendNull();
      }
    }
  }
  return data::Recordset(answer.names, std::move(columns));
}

/// The engine behind a fake connection: answers by a function and records what it was asked.
struct FakeEngine {
  std::function<FakeAnswer(const std::string& statement)> answer;
  std::vector<std::string> statements;

  /// Answers every statement with one row of one field.
  void AnswerValue(Field value) {
    answer = [value](const std::string&) { return FakeAnswer{{"f0"}, {{value}}}; };
  }
  /// Refuses every statement.
  void Fail() {
    answer = [](const std::string&) -> FakeAnswer { throw DataError("no such table"); };
  }
};

class FakeSession : public data::Session {
 public:
  explicit FakeSession(FakeEngine& engine) : engine_(engine) {}
  void Execute(std::string_view statement) override { Query(statement); }
  data::Recordset Query(std::string_view statement) override {
    engine_.statements.emplace_back(statement);
    return MakeRecordset(engine_.answer ? engine_.answer(std::string(statement)) : FakeAnswer{});
  }

 private:
  FakeEngine& engine_;
};

/// What the connection component was asked to open.
struct OpenRequest {
  int kind;
  std::string path, password, user_id, default_database;
};

class FakeConnections : public data::ConnectionComponent {
 public:
  explicit FakeConnections(FakeEngine& engine) : engine_(engine) {}
  bool OpenConnection(uint8_t kind, data::Connection& connection, const std::string& path,
                      const std::string& password, const std::string& user_id,
                      const std::string& default_database) override {
    requests.push_back({kind, path, password, user_id, default_database});
    if (attach) connection.Attach(std::make_unique<FakeSession>(engine_));
    return answer;
  }

  bool answer = true;
  bool attach = true;
  std::vector<OpenRequest> requests;

 private:
  FakeEngine& engine_;
};

/// Headless surroundings over a fake engine, with fresh shared values.
struct FakeWorld {
  FakeWorld() {
    ResetShared();
    headless.Install(connections);
  }
  ~FakeWorld() {
    ResetShared();
    Around() = {};
  }
  FakeWorld(const FakeWorld&) = delete;
  FakeWorld& operator=(const FakeWorld&) = delete;

  /// The texts of the boxes shown since the last call.
  std::vector<std::string> Messages() {
    std::vector<std::string> texts;
    for (const ShownBox& box : headless.boxes.TakeShown()) texts.push_back(box.text);
    return texts;
  }

  Headless headless;
  FakeEngine engine;
  FakeConnections connections{engine};
};

}  // namespace qvzj::test
