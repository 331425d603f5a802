#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>

#include "forms/frmList.h"
#include "services/connect.h"
#include "services/context.h"
#include "tests/support/world.h"

// Every way in which a host can end a control, or have it ended under it. What these tests look for
// shows under the sanitizers first.
namespace qvzj {
namespace {

using test::World;

/// A world whose control the host can destroy at any time.
class ControlLife : public testing::Test {
 protected:
  ControlLife() {
    world_.Sql(
        "insert into cards(fID,CompCode,compname,fType0) values(1,'K1','东方公司',0),"
        "(2,'K2','华星公司',0);"
        "insert into tAccounts(fID,CompCode,compname) values(1,'A1','现金');"
        "insert into tAccountDetail(fID,fDate,fAcntNo,fCompID,fType1,fType2,fMoneyA,fMoneyCode)"
        " values(1,'2024-03-01','PZ1',2,0,0,100,'RMB');");
  }

  frmZj& Open(int16_t show_mode = 0) {
    control_->refresh(0, show_mode);
    return *control_->Form();
  }
  void Destroy() { control_.reset(); }
  /// What the host does while the next box is open.
  void InTheNextBox(const std::function<void()>& act) {
    QueuedBoxes& boxes = world_.headless.boxes;
    boxes.on_box = [&boxes, act](const ShownBox&) {
      const auto once = act;
      boxes.on_box = {};  // and with it this closure
      once();
    };
  }
  void ExpectNothingLeft() {
    EXPECT_TRUE(world_.headless.presenter.Open().empty());
    EXPECT_EQ(Shared().cnData, nullptr);
    EXPECT_TRUE(world_.headless.boxes.TakeErrors().empty());
  }

  World world_;
  std::unique_ptr<qvJxc_Zj> control_ = std::make_unique<qvJxc_Zj>();
};

TEST_F(ControlLife, EndsWhileTheFormIsModal) {
  world_.headless.presenter.run_modal = [this](ui::Form&) { Destroy(); };
  control_->refresh(0, 1);
  ExpectNothingLeft();
}

TEST_F(ControlLife, EndsInAnActOfTheModalForm) {
  world_.headless.presenter.run_modal = [this](ui::Form& form) {
    auto& main = static_cast<frmZj&>(form);
    main.cmdPrint.onClick = [this] { Destroy(); };
    main.UserClick(main.cmdPrint);
  };
  control_->refresh(0, 1);
  ExpectNothingLeft();
}

TEST_F(ControlLife, EndsInAnEventOfTheForm) {
  frmZj& form = Open();
  form.cmdAcntRefresh.onClick = [this] { Destroy(); };
  EXPECT_TRUE(form.UserClick(form.cmdAcntRefresh));
  ExpectNothingLeft();
}

TEST_F(ControlLife, EndsInTheEventThatClosesTheForm) {
  frmZj& form = Open();
  const auto unload = form.onUnload;
  form.onUnload = [this, unload] {
    unload();
    Destroy();
  };
  EXPECT_TRUE(form.UserClick(form.cmdExit));
  ExpectNothingLeft();
}

TEST_F(ControlLife, EndsWhileAQuestionIsOpenWhichThenDoesNothing) {
  frmZj& form = Open();
  form.UserClick(form.mnuKhManage(3));
  InTheNextBox([this] { Destroy(); });
  world_.Answer("ok");
  form.UserClick(form.cmdKhSave);
  ExpectNothingLeft();
  EXPECT_EQ(world_.One("select count(*) from cards"), "2");
}

TEST_F(ControlLife, EndsWhileAQuestionIsOpenAndAnotherControlIsOpenedThere) {
  frmZj& form = Open();
  form.UserClick(form.mnuKhManage(3));
  InTheNextBox([this] {
    Destroy();
    world_.Open(1);
  });
  world_.Answer("ok");
  form.UserClick(form.cmdKhSave);
  EXPECT_EQ(world_.One("select count(*) from cards"), "2");
  EXPECT_EQ(world_.Form().mode, kAccounts);
  EXPECT_EQ(Data().State(), 1);
}

TEST_F(ControlLife, EndsWhileAnErrorIsReported) {
  frmZj& form = Open();
  world_.Sql("drop table cards;");
  world_.headless.boxes.on_error = [this](const std::string&) { Destroy(); };
  EXPECT_FALSE(form.UserClick(form.cmdAcntRefresh));
  EXPECT_TRUE(world_.headless.presenter.Open().empty());
  EXPECT_EQ(world_.headless.boxes.TakeErrors().size(), 1u);
}

TEST_F(ControlLife, EndsWhileItRefusesToOpen) {
  world_.control.setMyModel("");
  InTheNextBox([this] { Destroy(); });
  control_->refresh(0, 0);
  ExpectNothingLeft();
}

TEST_F(ControlLife, EndsInTheLoginThatOpeningAsksFor) {
  struct Login : UserComponent {
    void Run(UserCall& call) override {
      call.user_name = "clerk";
      act();
    }
    std::function<void()> act;
  } login;
  login.act = [this] { Destroy(); };
  world_.headless.user.inner = &login;
  world_.control.setUserName("");
  world_.control.setZgName("boss");
  control_->refresh(0, 0);
  ExpectNothingLeft();
}

TEST_F(ControlLife, OpensOnceWhenTheLoginOfAnOpeningOpensItAgain) {
  struct Login : UserComponent {
    void Run(UserCall& call) override {
      call.user_name = "clerk";
      control->refresh(1, 0);
    }
    qvJxc_Zj* control = nullptr;
  } login;
  login.control = control_.get();
  world_.headless.user.inner = &login;
  world_.control.setUserName("");
  world_.control.setZgName("boss");
  control_->refresh(0, 0);
  ASSERT_NE(control_->Form(), nullptr);
  EXPECT_EQ(control_->Form()->mode, kCustomers);
  EXPECT_EQ(world_.headless.presenter.Open().size(), 1u);
}

TEST_F(ControlLife, EndsWhileItsRecordsArePrinted) {
  struct Printer : PrintComponent {
    void Print(const PrintJob&) override { act(); }
    std::function<void()> act;
  } printer;
  printer.act = [this] { Destroy(); };
  frmZj& form = Open();
  world_.headless.print.inner = &printer;
  EXPECT_TRUE(form.UserClick(form.cmdKhPrint));
  ExpectNothingLeft();
}

TEST_F(ControlLife, EndsWhileTheFormTurnsToTheOtherRegister) {
  Open();
  world_.Sql("drop table tAccounts;");
  world_.headless.boxes.on_error = [this](const std::string&) { Destroy(); };
  control_->refresh(1, 0);
  EXPECT_TRUE(world_.headless.presenter.Open().empty());
}

TEST_F(ControlLife, EndsWhileAPickListIsOpen) {
  Open();
  frmList list;
  list.Load();
  world_.headless.presenter.Show(list, false);
  Destroy();
  EXPECT_TRUE(list.UserClick(list.cmdLogOK));
  EXPECT_TRUE(world_.headless.presenter.Open().empty());
}

TEST_F(ControlLife, GoesOnAfterItsFormWasClosedAndOpenedAgain) {
  Open().UserClose();
  EXPECT_EQ(control_->Form(), nullptr);
  frmZj& form = Open();
  EXPECT_TRUE(form.UserClick(form.cmdAcntRefresh));
  EXPECT_TRUE(world_.headless.boxes.TakeErrors().empty());
}

TEST_F(ControlLife, EndsBesideAnotherControlThatThenSaysThatTheDataIsClosed) {
  frmZj& other = world_.Open(0);
  Open();
  Destroy();
  ASSERT_EQ(world_.control.Form(), &other);
  EXPECT_FALSE(other.UserClick(other.cmdAcntRefresh));
  const auto boxes = world_.headless.boxes.TakeShownAndErrors();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_NE(boxes[0].detail.find("数据库连接已关闭"), std::string::npos);
  world_.control.refresh(0, 0);
  EXPECT_TRUE(other.UserClick(other.cmdAcntRefresh));
}

TEST_F(ControlLife, SaysAtTheEndThatTheDataFileWasReplaced) {
  frmZj& form = Open();
  std::filesystem::rename(world_.DataFile(), world_.DataFile().string() + ".away");
  form.UserClose();
  const auto boxes = world_.headless.boxes.TakeShownAndErrors();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_NE(boxes[0].detail.find("核对最近的帐目"), std::string::npos);
  EXPECT_EQ(Shared().cnData, nullptr);
}

TEST_F(ControlLife, SaysNothingAnyMoreWhenTheHostTakesItDown) {
  Open();
  std::filesystem::rename(world_.DataFile(), world_.DataFile().string() + ".away");
  Destroy();
  ExpectNothingLeft();
}

TEST_F(ControlLife, StoresNothingInAFileThatTookThePlaceOfTheOpenOne) {
  frmZj& form = Open();
  const std::string backup = world_.DataFile().string() + ".backup";
  std::filesystem::copy_file(world_.DataFile(), backup);
  std::filesystem::rename(backup, world_.DataFile());
  form.UserClick(form.mnuKhManage(3));
  world_.Answer("ok");
  EXPECT_FALSE(form.UserClick(form.cmdKhSave));
  const auto errors = world_.headless.boxes.TakeErrors();
  ASSERT_EQ(errors.size(), 1u);
  EXPECT_EQ(errors[0].find("打开的数据文件已被替换、移动或删除"), 0u);
}

}  // namespace
}  // namespace qvzj
