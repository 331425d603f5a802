#include "frontends/view/act_pump.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace qvzj::view {
namespace {

class Pump : public ::testing::Test {
 protected:
  Pump() {
    form_.SetLoaded(true);
    pump_ = std::make_unique<ActPump>(
        form_, PumpHooks{[this](auto step) { posted_.push_back(std::move(step)); },
                         [this](ui::Control& control) { Note("commit " + control.Name()); },
                         [this](ui::Control& control) { Note("refresh " + control.Name()); },
                         [this] { Note("focus"); }});
  }
  void Note(const std::string& what) { notes_.push_back(what); }
  void RunPosted() {
    for (const auto& step : std::exchange(posted_, {})) step();
  }

  ui::Form form_{"frm"};
  ui::TextBox box_{form_, "txt"};
  ui::Grid grid_{form_, "Grid1"};
  std::vector<std::string> notes_;
  std::vector<std::function<void()>> posted_;
  std::unique_ptr<ActPump> pump_;
};

using Notes = std::vector<std::string>;

TEST_F(Pump, ShowsWhatWasPutOffOnceWhenTheOutermostActEnds) {
  EXPECT_TRUE(pump_->Act([&] {
    pump_->PutOff(grid_);
    return pump_->Act([&] {
      pump_->PutOff(grid_);
      return true;
    });
  }));
  EXPECT_EQ(notes_, (Notes{"refresh Grid1", "focus"}));
}

TEST_F(Pump, ShowsItsStateWhileAnActWaitsInABox) {
  pump_->Act([&] {
    pump_->PutOff(grid_);
    pump_->PutOff(grid_);
    EXPECT_EQ(posted_.size(), 1U);
    RunPosted();
    EXPECT_EQ(notes_, (Notes{"refresh Grid1", "focus"}));
    return true;
  });
}

TEST_F(Pump, HasTheFocusedEditorHandOverBeforeAnActButNotInsideOne) {
  form_.UserFocus(box_);
  pump_->Act([&] { return pump_->Act([] { return true; }); });
  EXPECT_EQ(notes_, (Notes{"commit txt", "focus"}));
}

TEST_F(Pump, EndsQuietlyWhenTheActDestroysIt) {
  EXPECT_FALSE(pump_->Act([&] {
    pump_->PutOff(grid_);
    pump_.reset();
    return true;
  }));
  RunPosted();
  EXPECT_EQ(notes_, Notes{});
}

TEST_F(Pump, DoesNothingOnceTheFormHasGone) {
  pump_->PutOff(grid_);
  pump_->Detach();
  RunPosted();
  EXPECT_FALSE(pump_->Act([] {
    ADD_FAILURE();
    return true;
  }));
  EXPECT_EQ(notes_, Notes{});
}

}  // namespace
}  // namespace qvzj::view
