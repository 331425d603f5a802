#include "frontends/view/view_plan.h"

#include <gtest/gtest.h>

#include <set>

namespace qvzj::view {
namespace {

class Plan : public ::testing::Test {
 protected:
  Plan() { hidden_.SetVisible(false); }

  ui::Form form_{"frm"};
  ui::Frame panel_{form_, "panel"};
  ui::Button first_{form_, "first", -1, &panel_};
  ui::Button second_{form_, "second", -1, &panel_};
  ui::Button third_{form_, "third", -1, &panel_};
  ui::Frame hidden_{form_, "hidden"};
  ui::Button inside_{form_, "inside", -1, &hidden_};
  ui::Tabs tabs_{form_, "tabs", 2};
  ui::Button front_{form_, "front", -1, &tabs_, 0};
  ui::Button back_{form_, "back", -1, &tabs_, 1};
  ui::MenuItem menu_{form_, "menu"};
  ui::MenuItem entry_{form_, "entry", 0, &menu_};
  ui::MenuItem line_{form_, "entry", 1, &menu_};
  ui::MenuItem gone_{form_, "entry", 2, &menu_};
};

TEST_F(Plan, MakesOnlyWhatCanBeSeen) {
  EXPECT_EQ(SeenControls(form_),
            (std::vector<ui::Control*>{&panel_, &first_, &second_, &third_, &tabs_, &front_}));
}

TEST_F(Plan, LooksForMoreWhenAPanelOrATabPageComesUp) {
  EXPECT_FALSE(MayShowMore(hidden_, ui::Aspect::Visible));
  hidden_.SetVisible(true);
  EXPECT_TRUE(MayShowMore(hidden_, ui::Aspect::Visible));
  EXPECT_TRUE(MayShowMore(tabs_, ui::Aspect::Tabs));
  EXPECT_FALSE(MayShowMore(tabs_, ui::Aspect::Caption));
}

TEST_F(Plan, StacksNeighboursInTheFormsOrder) {
  const std::set<const ui::Control*> made{&panel_, &third_, &front_};
  const auto is_made = [&](const ui::Control& control) { return made.contains(&control); };
  EXPECT_EQ(StackedUnder(form_, first_, is_made), &third_);
  EXPECT_EQ(StackedUnder(form_, third_, is_made), nullptr);
  EXPECT_EQ(StackedUnder(form_, back_, is_made), nullptr) << "the other page is no neighbour";
}

TEST_F(Plan, ListsTheEntriesOfAMenuThatAreShown) {
  line_.SetCaption("-");
  gone_.SetVisible(false);
  EXPECT_EQ(MenuEntries(form_, menu_), (std::vector<ui::Control*>{&entry_, &line_}));
  EXPECT_TRUE(IsSeparator(line_));
  EXPECT_FALSE(IsSeparator(entry_));
}

}  // namespace
}  // namespace qvzj::view
