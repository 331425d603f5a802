#include "suite/visits/task.h"

#include <gtest/gtest.h>

#include "adapters/sqlite/sqlite_session.h"
#include "frontends/headless/headless.h"
#include "platform/basic/errors.h"
#include "suite/store/connections.h"
#include "suite/store/schema.h"
#include "tests/suite/users/rights_folder.h"

namespace qvzj::visits {
namespace {

using basic::Date;

/// A data folder with visit records of customer 7 and headless surroundings.
struct TaskWorld {
  TaskWorld() {
    headless.Install(connections);
    SqliteOptions options;
    options.create = true;
    native = OpenSqlite(folder.Path() + "/" + store::kDataFile, options);
    store::CreateSchema(*native);
    native->NativeScript(
        "insert into tTaskList(fID,taskID,fType,fDate,fUser,fBrief) values"
        "(1,7,1,'2024-03-01','li','送样品'),(2,7,1,'2024-03-10','wang','报价'),"
        "(3,8,1,'2024-03-11','li','other customer'),(4,7,2,'2024-03-12','li','no visit');");
    call.access.user_path = folder.Path();
    call.user_name = "wang";
    call.date = Date::FromYmd(2024, 3, 15);
    call.customer_name = "华星公司";
    call.customer_id = 7;
  }
  ~TaskWorld() { Around() = {}; }
  TaskWorld(const TaskWorld&) = delete;
  TaskWorld& operator=(const TaskWorld&) = delete;

  // The customer's records as "id date user text", oldest id first.
  std::vector<std::string> Records() {
    std::vector<std::string> records;
    data::Recordset rows = native->Native(
        "select fID||' '||fDate||' '||fUser||' '||fBrief from tTaskList where taskID=7 and "
        "fType=1 order by fID");
    for (; !rows.Eof(); rows.MoveNext()) records.push_back(rows.Text(0));
    return records;
  }
  void Answer(const std::string& text) { headless.boxes.Queue({text, true}); }
  void Choose(const std::string& word) { headless.boxes.Queue({word, false}); }
  // What the window's user does while it is shown.
  void InWindow(const std::function<void(frmTask&)>& act) {
    headless.presenter.run_modal = [act](ui::Form& form) { act(dynamic_cast<frmTask&>(form)); };
    task.Open(call);
  }
  static void Type(frmTask& form, const std::string& text) {
    form.UserFocus(form.txtBrief);
    form.UserSelect(form.txtBrief, 0, 1000);
    form.UserInsert(form.txtBrief, text);
  }

  test::RightsFolder folder;
  Headless headless;
  store::SuiteConnections connections;
  std::unique_ptr<SqliteSession> native;
  SuiteTask task;
  BoxTask boxes;
  TaskCall call;
};

const std::vector<std::string> kBefore = {"1 2024-03-01 li 送样品", "2 2024-03-10 wang 报价"};

TEST(TaskBoxes, ListTheCustomersVisitsNewestFirst) {
  TaskWorld world;
  world.Choose("cancel");
  world.boxes.Open(world.call);
  ASSERT_EQ(world.headless.boxes.Shown().size(), 1u);
  EXPECT_EQ(world.headless.boxes.Shown()[0].title, "联系记录 - 华星公司");
  EXPECT_EQ(world.headless.boxes.Shown()[0].text,
            "1. 2024-03-10 wang: 报价\n2. 2024-03-01 li: 送样品\n"
            "+内容 新增; 序号=内容 修改; -序号 删除");
}

TEST(TaskBoxes, AddAVisitOfToday) {
  TaskWorld world;
  world.Answer("+ 电话'回访'");
  world.Answer("");
  world.boxes.Open(world.call);
  ASSERT_EQ(world.Records().size(), 3u);
  EXPECT_EQ(world.Records()[2], "5 2024-03-15 wang 电话'回访'");
}

TEST(TaskBoxes, ChangeTheNumberedVisit) {
  TaskWorld world;
  world.Answer("2=送样品两件");
  world.Answer("");
  world.boxes.Open(world.call);
  EXPECT_EQ(world.Records()[0], "1 2024-03-01 li 送样品两件");
}

TEST(TaskBoxes, DeleteTheNumberedVisitAfterAQuestion) {
  TaskWorld world;
  world.Answer("-2");
  world.Choose("cancel");
  world.Answer("-2");
  world.Choose("ok");
  world.Answer("");
  world.boxes.Open(world.call);
  EXPECT_EQ(world.Records(), std::vector<std::string>{kBefore[1]});
}

TEST(TaskBoxes, RefuseWhatTheyDoNotUnderstand) {
  TaskWorld world;
  for (const char* text : {"hello", "0=x", "3=x", "-9", "+", "1=", ""}) world.Answer(text);
  world.boxes.Open(world.call);
  EXPECT_EQ(world.Records(), kBefore);
  int refusals = 0;
  for (const ShownBox& box : world.headless.boxes.Shown()) refusals += box.text == "输入有误!";
  EXPECT_EQ(refusals, 6);
}

TEST(TaskWindow, ListsTheCustomersVisitsAndShowsTheNewest) {
  TaskWorld world;
  world.InWindow([&](frmTask& form) {
    EXPECT_EQ(form.Caption(), "联系记录 - 华星公司");
    ASSERT_EQ(form.Grid1.RowCount(), 2);
    EXPECT_EQ(form.Grid1.CellText(4, 1), "报价");
    EXPECT_EQ(form.txtBrief.Text(), "报价");
    EXPECT_EQ(form.dtpDate.Value(), Date::FromYmd(2024, 3, 10));
  });
}

TEST(TaskWindow, StartsOnTheNewestVisitOrReadyToWriteTheFirst) {
  TaskWorld world;
  world.InWindow([](frmTask& form) { EXPECT_EQ(form.Focused(), &form.Grid1); });
  world.native->NativeScript("delete from tTaskList;");
  world.InWindow([](frmTask& form) { EXPECT_EQ(form.Focused(), &form.txtBrief); });
}

TEST(TaskWindow, ShowsTheRowThatTheUserMovesTo) {
  TaskWorld world;
  world.InWindow([&](frmTask& form) {
    form.UserCell(form.Grid1, 2, 2);
    EXPECT_EQ(form.txtBrief.Text(), "送样品");
  });
}

TEST(TaskWindow, AddsAVisit) {
  TaskWorld world;
  world.InWindow([&](frmTask& form) {
    form.UserClick(form.cmdNew);
    EXPECT_EQ(form.dtpDate.Value(), world.call.date);
    EXPECT_FALSE(form.cmdDelete.Enabled());
    world.Type(form, "催款");
    form.UserClick(form.cmdSave);
    EXPECT_EQ(form.Grid1.RowCount(), 3);
    EXPECT_EQ(form.txtBrief.Text(), "催款");
  });
  EXPECT_EQ(world.Records()[2], "5 2024-03-15 wang 催款");
}

TEST(TaskWindow, ChangesTheShownVisit) {
  TaskWorld world;
  world.InWindow([&](frmTask& form) {
    form.UserCell(form.Grid1, 2, 2);
    form.UserDate(form.dtpDate, Date::FromYmd(2024, 3, 2));
    world.Type(form, "送样品三件");
    form.UserClick(form.cmdSave);
    EXPECT_EQ(form.Grid1.ActiveRow(), 2);
  });
  EXPECT_EQ(world.Records()[0], "1 2024-03-02 li 送样品三件");
}

TEST(TaskWindow, DeletesTheShownVisitAfterAQuestion) {
  TaskWorld world;
  world.Choose("cancel");
  world.Choose("ok");
  world.InWindow([&](frmTask& form) {
    form.UserClick(form.cmdDelete);
    EXPECT_EQ(form.Grid1.RowCount(), 2);
    form.UserClick(form.cmdDelete);
    EXPECT_EQ(form.Grid1.RowCount(), 1);
  });
  EXPECT_EQ(world.Records(), std::vector<std::string>{kBefore[0]});
}

TEST(TaskWindow, RefusesAnEmptyText) {
  TaskWorld world;
  world.InWindow([&](frmTask& form) {
    form.UserClick(form.cmdNew);
    form.UserClick(form.cmdSave);
    EXPECT_EQ(form.Focused(), &form.txtBrief);
  });
  EXPECT_EQ(world.Records(), kBefore);
  EXPECT_EQ(world.headless.boxes.Shown()[0].text, "请输入联系内容!");
}

TEST(TaskWindow, AsksBeforeAChangedTextIsLeft) {
  TaskWorld world;
  world.Choose("cancel");
  world.Choose("ok");
  world.InWindow([&](frmTask& form) {
    world.Type(form, "改了一半");
    form.UserCell(form.Grid1, 2, 2);
    EXPECT_EQ(form.Grid1.ActiveRow(), 1);
    EXPECT_EQ(form.txtBrief.Text(), "改了一半");
    form.UserCell(form.Grid1, 2, 2);
    EXPECT_EQ(form.txtBrief.Text(), "送样品");
  });
  EXPECT_EQ(world.Records(), kBefore);
}

TEST(TaskWindow, OffersToSaveAChangedTextWhenTheWindowIsClosed) {
  TaskWorld world;
  world.Choose("ok");
  world.InWindow([&](frmTask& form) {
    world.Type(form, "报价两次");
    form.UserClose();
  });
  EXPECT_EQ(world.Records()[1], "2 2024-03-10 wang 报价两次");
  EXPECT_TRUE(world.headless.presenter.Open().empty());
}

TEST(TaskWindow, ClosesByItsButtonWithoutAQuestionWhenNothingChanged) {
  TaskWorld world;
  world.InWindow([&](frmTask& form) { form.UserClick(form.cmdExit); });
  EXPECT_TRUE(world.headless.presenter.Open().empty());
  EXPECT_TRUE(world.headless.boxes.Shown().empty());
}

TEST(TaskWindow, FailsLoudlyWithoutData) {
  TaskWorld world;
  world.call.access.user_path = "/nowhere";
  EXPECT_THROW(world.task.Open(world.call), DataError);
}

}  // namespace
}  // namespace qvzj::visits
