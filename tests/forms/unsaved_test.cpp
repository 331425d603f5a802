#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "services/context.h"
#include "tests/support/world.h"

// Nothing that was typed and not saved is lost without a question: every editor of the form against
// every way out of it.
namespace qvzj::test {
namespace {

/// What can be under way on the form.
enum class Work { NewEntry, ChangedEntry, NewRecord, ChangedRecord, Detail };
constexpr std::array kWorks = {Work::NewEntry, Work::ChangedEntry, Work::NewRecord,
                               Work::ChangedRecord, Work::Detail};

/// What becomes of it on a way out.
enum class Fate { Stays, Asks };
constexpr Fate S = Fate::Stays;
constexpr Fate A = Fate::Asks;

/// Three customers, the first two with entries, and the form open on the first customer.
class Desk {
 public:
  Desk() {
    world.Sql(
        "insert into cards (fID,CompCode,compname,fType0,detail) values"
        " (1,'C001','甲公司',0,'老客户'),(2,'C002','乙公司',0,NULL),(3,'C003','丙公司',0,NULL);"
        "insert into tAccounts (fID,CompCode,compname) values (1,'0001','现金');"
        "insert into Moneys (MoneyCode,MoneyRate,MoneyType) values ('RMB',1,9);");
    for (const char* row : {"1,'N1'", "1,'N2'", "2,'N3'"}) {
      world.Sql(
          "insert into tAccountDetail (fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,"
          "fBrief,fInvID,fOrderID,fUser,fDoneman,fChecker,fID2,fMoneyCode,fMoneyRate) values "
          "('2024-03-01'," +
          std::string(row).substr(0, 1) + ",0,1," + std::string(row).substr(2) +
          ",0,100,0,'摘要','','','admin','','',0,'RMB',1);");
    }
    world.Open(0);
    form().UserResize(15000, 10000, ui::WindowState::Normal);
  }

  frmZj& form() { return world.Form(); }

  void Open(Work work) {
    switch (work) {
      case Work::NewEntry:
        form().UserClick(form().cmdAction(kActionNew));
        return;
      case Work::ChangedEntry:
        form().UserClick(form().cmdAction(kActionChange));
        return;
      case Work::NewRecord:
        form().UserClick(form().mnuKhManage(1));
        return;
      case Work::ChangedRecord:
        form().UserClick(form().mnuKhManage(2));
        return;
      case Work::Detail:
        form().UserClick(form().cmdKhMemo);
        return;
    }
  }
  ui::TextBox& Field(Work work) {
    switch (work) {
      case Work::NewEntry:
      case Work::ChangedEntry:
        return form().txtAcnt2(6);
      case Work::NewRecord:
      case Work::ChangedRecord:
        return form().txtAcnt(2);
      default:
        return form().txtKhMemo;
    }
  }
  void TypeInto(Work work) { world.Type(Field(work), "键入的"); }
  /// Does what was typed still stand there for the user to see?
  bool Stands(Work work) {
    return (work != Work::Detail || form().fraKhMemo.Visible()) && Field(work).Text() == "键入的";
  }

  World world;
};

struct WayOut {
  const char* name;
  std::function<void(Desk&)> go;
  std::array<Fate, kWorks.size()> fate;  ///< of each work in the order of kWorks
};

void GoToRow(ui::Form& form, ui::Grid& grid, int32_t column, int32_t row) {
  form.UserCell(grid, column, row);
}

/// The list of the register comes to the front, as the user must have it to walk there.
void ToList(Desk& desk) { desk.form().UserTab(desk.form().SSTab1, 0); }

void Escape(Desk& desk, Work work) {
  // The field was left since, so that Esc has nothing to restore.
  desk.form().UserFocus(desk.form().Grid2);
  desk.form().UserFocus(desk.Field(work));
  desk.form().UserKey(ui::Key::Named(ui::Key::Name::Escape));
}

const std::vector<WayOut>& WaysOut() {
  static const std::vector<WayOut> kWays = {
      //                        new entry, changed, new record, changed, detail
      {"a row of the ledger",
       [](Desk& d) { GoToRow(d.form(), d.form().Grid2, 1, 2); },
       {S, A, S, S, S}},
      {"a column of the ledger",
       [](Desk& d) { GoToRow(d.form(), d.form().Grid2, 4, 1); },
       {S, S, S, S, S}},
      {"a double click in the ledger",
       [](Desk& d) { d.form().UserCellDoubleClick(d.form().Grid2, 1, 1); },
       {A, A, S, S, S}},
      {"a row of the register",
       [](Desk& d) {
         ToList(d);
         GoToRow(d.form(), d.form().Grid1, 2, 2);
       },
       {S, S, S, A, A}},
      {"a column of the register",
       [](Desk& d) {
         ToList(d);
         GoToRow(d.form(), d.form().Grid1, 5, 1);
       },
       {S, S, S, S, S}},
      {"a header of the register",
       [](Desk& d) {
         ToList(d);
         d.form().UserHeader(d.form().Grid1, 2);
       },
       {S, S, S, S, S}},
      {"a header of the ledger",
       [](Desk& d) { d.form().UserHeader(d.form().Grid2, 2); },
       {S, S, S, S, S}},
      {"refresh", [](Desk& d) { d.form().UserClick(d.form().cmdAcntRefresh); }, {S, S, S, A, A}},
      {"another order",
       [](Desk& d) { d.form().UserChoose(d.form().cboKhOrder, 1); },
       {S, S, S, A, A}},
      {"another currency",
       [](Desk& d) { d.form().UserChoose(d.form().cboHb2, 0); },
       {S, S, S, A, A}},
      {"a search",
       [](Desk& d) {
         d.form().UserTab(d.form().SSTab1, 2);
         d.form().UserClick(d.form().cmdKhSeek);
       },
       {S, S, S, A, A}},
      {"all records", [](Desk& d) { d.form().UserClick(d.form().OptSelect(0)); }, {S, S, S, S, S}},
      {"the list page", ToList, {S, S, S, S, S}},
      {"the record page", [](Desk& d) { d.form().UserTab(d.form().SSTab1, 1); }, {S, S, S, S, S}},
      {"the search page", [](Desk& d) { d.form().UserTab(d.form().SSTab1, 2); }, {S, S, S, S, S}},
      {"the payable tab", [](Desk& d) { d.form().UserTab(d.form().SSTab2, 2); }, {S, S, S, S, S}},
      {"view",
       [](Desk& d) { d.form().UserClick(d.form().cmdAction(kActionView)); },
       {A, A, S, S, S}},
      {"new", [](Desk& d) { d.form().UserClick(d.form().cmdAction(kActionNew)); }, {A, A, S, S, S}},
      {"change",
       [](Desk& d) { d.form().UserClick(d.form().cmdAction(kActionChange)); },
       {A, A, S, S, S}},
      {"delete",
       [](Desk& d) { d.form().UserClick(d.form().cmdAction(kActionDelete)); },
       {A, A, S, S, S}},
      {"check",
       [](Desk& d) { d.form().UserClick(d.form().cmdAction(kActionCheck)); },
       {A, A, S, S, S}},
      {"add a record",
       [](Desk& d) { d.form().UserClick(d.form().mnuKhManage(1)); },
       {S, S, A, A, S}},
      {"change the record",
       [](Desk& d) { d.form().UserClick(d.form().mnuKhManage(2)); },
       {S, S, A, A, S}},
      {"delete the record",
       [](Desk& d) { d.form().UserClick(d.form().mnuKhManage(3)); },
       {S, S, A, A, S}},
      {"the detail button",
       [](Desk& d) { d.form().UserClick(d.form().cmdKhMemo); },
       {S, S, S, S, A}},
      {"exit", [](Desk& d) { d.form().UserClick(d.form().cmdExit); }, {A, A, A, A, A}},
      {"the title's close button",
       [](Desk& d) { d.form().UserClick(d.form().cmdTitleClose); },
       {A, A, A, A, A}},
      {"the window's close button", [](Desk& d) { d.form().UserClose(); }, {A, A, A, A, A}},
      {"the host turns to the other register",
       [](Desk& d) { d.world.control.refresh(1, 0); },
       {A, A, A, A, A}},
      {"the host names a customer",
       [](Desk& d) {
         d.world.control.setMyTaskID(2);
         d.world.control.setMyName("乙公司");
         d.world.control.refresh(9, 0);
       },
       {S, S, S, A, A}},
      {"the host shows the form again",
       [](Desk& d) { d.world.control.refresh(0, 0); },
       {S, S, S, S, S}},
  };
  return kWays;
}

std::string Case(const WayOut& way, Work work) {
  return std::string(way.name) + " / work " + std::to_string(static_cast<int>(work));
}

TEST(Unsaved, NothingIsAskedWhereNothingWasTyped) {
  for (const WayOut& way : WaysOut()) {
    for (const Work work : kWorks) {
      SCOPED_TRACE(Case(way, work));
      Desk desk;
      desk.Open(work);
      desk.world.Messages();
      way.go(desk);
      EXPECT_TRUE(desk.world.Messages().empty());
      EXPECT_TRUE(desk.world.headless.boxes.TakeErrors().empty());
    }
  }
}

TEST(Unsaved, IsKeptOrAskedForOnEveryWayOut) {
  for (const WayOut& way : WaysOut()) {
    for (size_t i = 0; i < kWorks.size(); ++i) {
      const Work work = kWorks[i];
      SCOPED_TRACE(Case(way, work));
      Desk desk;
      desk.Open(work);
      desk.TypeInto(work);
      desk.world.Messages();
      if (way.fate[i] == A) desk.world.Answer("cancel");
      way.go(desk);
      ASSERT_NE(desk.world.control.Form(), nullptr);
      EXPECT_TRUE(desk.Stands(work));
      EXPECT_EQ(desk.world.Messages().size(), way.fate[i] == A ? 1u : 0u);
      EXPECT_TRUE(desk.world.headless.boxes.TakeErrors().empty());
    }
  }
}

TEST(Unsaved, IsGivenUpWhenTheUserAgrees) {
  for (const WayOut& way : WaysOut()) {
    for (size_t i = 0; i < kWorks.size(); ++i) {
      if (way.fate[i] != A) continue;
      const Work work = kWorks[i];
      SCOPED_TRACE(Case(way, work));
      Desk desk;
      desk.Open(work);
      desk.TypeInto(work);
      desk.world.Messages();
      desk.world.Answer("ok");
      way.go(desk);
      EXPECT_EQ(desk.world.Messages().size(), 1u);
      const bool open = desk.world.control.Form() != nullptr;
      EXPECT_FALSE(open && desk.Stands(work));
      EXPECT_TRUE(desk.world.headless.boxes.TakeErrors().empty());
    }
  }
}

TEST(Unsaved, IsAskedForUnderTheTitleOfTheOpenForm) {
  Desk desk;
  desk.Open(Work::NewEntry);
  desk.TypeInto(Work::NewEntry);
  desk.world.headless.boxes.TakeShown();
  desk.world.Answer("cancel");
  desk.world.control.refresh(1, 0);
  EXPECT_EQ(desk.world.headless.boxes.TakeShown().at(0).title, "客户往来帐管理系统");
  EXPECT_EQ(Shared().Title, "客户往来帐管理系统");
  desk.world.Answer("ok");
  desk.world.control.refresh(1, 0);
  EXPECT_EQ(Shared().Title, "资金帐户管理系统");
  EXPECT_EQ(desk.form().mode, kAccounts);
}

TEST(Unsaved, KeepsATypedHandlerWhenTheHostFillsTheStaffListAnew) {
  Desk desk;
  desk.Open(Work::NewEntry);
  desk.world.Type(desk.form().cboDoneMan, "新来的");
  desk.form().getListJBR(0);
  EXPECT_EQ(desk.form().cboDoneMan.Text(), "新来的");
}

TEST(Unsaved, IsAskedForByEscThatHasNothingElseToDo) {
  for (const Work work : kWorks) {
    SCOPED_TRACE(static_cast<int>(work));
    Desk desk;
    desk.Open(work);
    desk.TypeInto(work);
    desk.world.Messages();
    desk.world.Answer("cancel");
    Escape(desk, work);
    EXPECT_TRUE(desk.Stands(work));
    EXPECT_EQ(desk.world.Messages().size(), 1u);
    EXPECT_EQ(desk.form().Focused(), &desk.Field(work));
    desk.world.Answer("ok");
    Escape(desk, work);
    EXPECT_FALSE(desk.Stands(work));
    EXPECT_EQ(desk.world.Messages().size(), 1u);
  }
}

}  // namespace
}  // namespace qvzj::test
