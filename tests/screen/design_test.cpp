#include "screen/design.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "screen/frmZj.h"
#include "screen/keys.h"

namespace qvzj {
namespace {

TEST(Design, OpensOnTheSingleRecordWithAllFiltersOff) {
  frmZj form;
  EXPECT_TRUE(form.OptSelect(2).Selected());
  EXPECT_TRUE(form.chkVerify(0).Ticked());
  EXPECT_TRUE(form.chkVerify(1).Ticked());
  EXPECT_FALSE(form.chkSeek2.Ticked());
  EXPECT_EQ(form.cboHb2.ListIndex(), -1);
  for (int i = 0; i <= 2; ++i) {
    EXPECT_FALSE(form.chkID(i).Ticked());
    EXPECT_FALSE(form.chkUser(i).Ticked());
  }
  EXPECT_FALSE(form.chkDate(0).Ticked());
  EXPECT_FALSE(form.chkDate(1).Ticked());
  EXPECT_FALSE(form.chkBrief.Ticked());
  for (int i = 0; i <= 6; ++i) EXPECT_FALSE(form.chkSeek(i).Ticked());
  EXPECT_TRUE(form.optSeek(0).Selected());
  EXPECT_EQ(form.SSTab1.Tab(), 0);
  EXPECT_EQ(form.SSTab2.Tab(), 0);
}

TEST(Design, HidesThePanelsThatAnActionOpens) {
  frmZj form;
  EXPECT_FALSE(form.picAcnt.Visible());
  EXPECT_FALSE(form.fraKhMemo.Visible());
  EXPECT_FALSE(form.cmdKhSave.Visible());
  EXPECT_FALSE(form.cmdKhCancel.Visible());
  EXPECT_FALSE(form.cmdSave.Enabled());
}

TEST(Design, KeepsNothingCurrentInTheTags) {
  frmZj form;
  EXPECT_EQ(form.lblKhName.Tag(), "0");
  EXPECT_EQ(form.chkAcntInit.Tag(), "0");
  EXPECT_EQ(form.cmdAcntSave.Tag(), "0");
  EXPECT_EQ(form.cboAcntName.Tag(), "0");
}

TEST(Design, TagsEachFieldsLabelWithItsColumn) {
  frmZj form;
  const std::vector<std::string> record = {"CompCode", "compname", "name",     "fBank",
                                           "fAcntID",  "others",   "province", "cityname",
                                           "postcode", "telphone", "fax"};
  for (int i = 0; i <= 10; ++i) EXPECT_EQ(form.lblAcnt(i).Tag(), record[static_cast<size_t>(i)]);
  const std::vector<std::string> search = {"CompCode", "compname", "name",    "province",
                                           "cityname", "postcode", "telphone"};
  for (int i = 0; i <= 6; ++i) EXPECT_EQ(form.chkSeek(i).Tag(), search[static_cast<size_t>(i)]);
  const std::vector<std::string> entry = {"fBrief", "fInvID", "fOrderID", "fUser"};
  for (int i = 6; i <= 9; ++i) {
    EXPECT_EQ(form.lblAcnt2(i).Tag(), entry[static_cast<size_t>(i - 6)]);
  }
}

TEST(Design, LimitsTheRecordPageToTheColumnsLengths) {
  frmZj form;
  const std::vector<int16_t> bytes = {20, 0, 20, 50, 30, 50, 20, 20, 10, 40, 40};
  for (int i = 0; i <= 10; ++i) {
    EXPECT_EQ(form.txtAcnt(i).MaxLength(), bytes[static_cast<size_t>(i)]) << i;
    EXPECT_TRUE(form.txtAcnt(i).Locked());
  }
}

TEST(Design, LeadsThroughTheEntryInTheOrderOfKeying) {
  frmZj form;
  const std::vector<ui::Control*> order = {
      &form.dtpAcntDate, &form.txtAcnt2(1),  &form.txtAcnt2(2), &form.optType2(1),
      &form.optType2(2), &form.txtAcnt2(3),  &form.txtAcnt2(4), &form.cboHb,
      &form.txtHbRate,   &form.chkAcntName,  &form.cboAcntName, &form.txtAcnt2(6),
      &form.txtAcnt2(7), &form.txtAcnt2(8),  &form.txtAcnt2(9), &form.cboDoneMan,
      &form.cmdAcntSave, &form.cmdAcntCancel};
  EXPECT_TRUE(std::is_sorted(order.begin(), order.end(), [](ui::Control* a, ui::Control* b) {
    return a->TabIndex() < b->TabIndex();
  }));
}

TEST(Design, GivesEveryControlThatTakesTheFocusItsOwnPlaceInTheTabOrder) {
  frmZj form;
  std::vector<int> places;
  for (const ui::Control* control : form.Controls()) {
    switch (control->GetKind()) {
      case ui::Kind::Label:
      case ui::Kind::Frame:
      case ui::Kind::Menu:
        break;
      default:
        places.push_back(control->TabIndex());
    }
  }
  std::sort(places.begin(), places.end());
  EXPECT_EQ(std::adjacent_find(places.begin(), places.end()), places.end());
}

TEST(ResetForm, TakesBackWhatWorkHasChanged) {
  frmZj form;
  form.lblKhName.SetTag("17");
  form.registerCondition = "1=1";
  form.picAcnt.SetVisible(true);
  form.fraKhMemo.SetVisible(true);
  form.SSTab1.SetTab(2);
  form.OptSelect(0).Select();
  form.chkVerify(0).SetValue(0);
  form.txtAcnt(3).SetLocked(false);
  form.txtAcnt(3).SetText("银行");
  ResetForm(form);
  EXPECT_EQ(form.lblKhName.Tag(), "0");
  EXPECT_EQ(form.registerCondition, "");
  EXPECT_FALSE(form.picAcnt.Visible());
  EXPECT_FALSE(form.fraKhMemo.Visible());
  EXPECT_EQ(form.SSTab1.Tab(), 0);
  EXPECT_TRUE(form.OptSelect(2).Selected());
  EXPECT_TRUE(form.chkVerify(0).Ticked());
  EXPECT_TRUE(form.txtAcnt(3).Locked());
  EXPECT_EQ(form.txtAcnt(3).Text(), "");
}

TEST(EnterToTab, LetsEveryOtherKeyPass) {
  frmZj form;
  int key = 'a';
  EXPECT_FALSE(EnterToTab(form, key));
  EXPECT_EQ(key, 'a');
  key = ui::kKeyEnter;
  EXPECT_TRUE(EnterToTab(form, key));
  EXPECT_EQ(key, 0);
}

}  // namespace
}  // namespace qvzj
