#include "tests/support/world.h"

#include <gtest/gtest.h>

#include "platform/basic/text.h"
#include "services/context.h"
#include "suite/store/schema.h"

namespace qvzj::test {
namespace fs = std::filesystem;

World::World() {
  ResetShared();
  headless.Install(connections);
  headless.clock.Set(basic::Date::FromYmd(2024, 3, 15));
  SqliteOptions options;
  options.create = true;
  native_ = OpenSqlite(DataFile().string(), options);
  store::CreateSchema(*native_);
  control.InitProperties();
  control.setUserPath(folder.Path().string());
  control.setMyModel("11111111111");
  control.setUserName("admin");
  control.setZgName("admin");
}

World::~World() {
  if (frmZj* form = control.Form()) form->Close();
  ResetShared();
  Around() = {};
}

fs::path World::DataFile() const { return folder.Path() / store::kDataFile; }

void World::Sql(std::string_view statements) { native_->NativeScript(statements); }

std::vector<std::vector<std::string>> World::Rows(const std::string& query) {
  data::Recordset set = native_->Native(query);
  std::vector<std::vector<std::string>> rows;
  for (; !set.Eof(); set.MoveNext()) {
    std::vector<std::string> row;
    for (int field = 0; field < set.FieldCount(); ++field) {
      row.push_back(set.IsNull(field) ? "NULL" : set.Text(field));
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

std::string World::One(const std::string& query) {
  data::Recordset set = native_->Native(query);
  return set.Eof() ? std::string() : set.Text(0);
}

frmZj& World::Open(int16_t run_mode) {
  control.refresh(run_mode, 0);
  if (!control.Form()) {
    std::string said;
    for (const ShownBox& box : headless.boxes.Shown()) said += "\n" + box.text;
    for (const std::string& error : headless.boxes.TakeErrors()) said += "\n" + error;
    throw std::runtime_error("the main form did not open:" + said);
  }
  return *control.Form();
}

std::vector<std::string> World::Row(const ui::Grid& grid, int32_t row) const {
  std::vector<std::string> texts;
  for (int32_t column = 1; column <= grid.ColumnCount(); ++column) {
    texts.push_back(grid.CellText(column, row));
  }
  return texts;
}

std::vector<std::string> World::ColumnTexts(const ui::Grid& grid, int32_t column) const {
  std::vector<std::string> texts;
  for (int32_t row = 1; row <= grid.RowCount(); ++row) {
    texts.push_back(grid.CellText(column, row));
  }
  return texts;
}

bool World::Type(ui::Control& box, std::string_view text) {
  ui::Form& form = box.GetForm();
  if (!form.UserFocus(box) || form.Focused() != &box) return false;
  form.UserSelect(
      box, 0,
      basic::Len(dynamic_cast<ui::TextBox*>(&box) ? static_cast<ui::TextBox&>(box).Text()
                                                  : static_cast<ui::ComboBox&>(box).Text()));
  if (text.empty()) return form.UserKey(ui::Key::Named(ui::Key::Name::Delete));
  for (char32_t code : basic::CodePoints(text)) form.UserKey(ui::Key::Character(code));
  return true;
}

std::vector<std::string> World::Messages() {
  std::vector<std::string> texts;
  for (ShownBox& box : headless.boxes.TakeShown()) texts.push_back(std::move(box.text));
  return texts;
}

std::vector<std::string> World::Statements() {
  std::vector<std::string> texts;
  for (RanStatement& statement : headless.statements) texts.push_back(std::move(statement.text));
  headless.statements.clear();
  return texts;
}

}  // namespace qvzj::test
