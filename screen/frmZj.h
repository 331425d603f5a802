#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/data/row_texts.h"
#include "platform/ui/array.h"
#include "platform/ui/form.h"
#include "platform/ui/grid.h"
#include "platform/ui/widgets.h"

namespace qvzj {

/// Modes of the main form: which register is open. The value is the `fType1` of the ledger entries
/// that go with it.
inline constexpr int16_t kCustomers = 0;  ///< table `cards`
inline constexpr int16_t kAccounts = 1;   ///< table `tAccounts`

/// Armed actions of the entry editor, as kept in the tag of `cmdAcntSave`.
inline constexpr int kActionView = 0;
inline constexpr int kActionNew = 1;
inline constexpr int kActionChange = 2;
inline constexpr int kActionDelete = 3;
inline constexpr int kActionCheck = 4;

/// The main screen: every control under its own name, and the few values the form itself keeps.
/// It holds no behaviour; the operations live in ledger/, register/ and forms/ and take the form.
struct frmZj : ui::Form {
  frmZj();

  // Public members, defined in forms/.
  /// Run mode of the screen: 0 customers, anything else money accounts.
  int16_t State() const;
  /// Sets the run mode: 9 becomes 0 and searches the customer that the host named, 10 becomes 0,
  /// 11 becomes 1.
  void State(int16_t run_mode);
  /// Fills the staff lists from `Employees` (source 0) or `tRsBasic` (any other).
  void getListJBR(int16_t source);
  /// Fills the money-account list.
  void getListAcnt();
  /// Template of a numbering series, "" when none is in force.
  std::string _getInvSet(int16_t series);
  /// Prints `grid` through the suite's print component.
  void gotoPrint(ui::Grid& grid, const std::string& title, const std::string& report,
                 const std::string& extra);

  // Form-level values.
  int16_t runMode = kCustomers;     ///< run mode that State set; chooses the numbering series
  int16_t mode = kCustomers;        ///< mode flag: kCustomers, otherwise kAccounts
  std::string title;                ///< application title that the form was opened under
  std::string numberTemplate;       ///< voucher template, upper-cased by its first use
  std::string registerCondition;    ///< set by the register search, "" until then
  int currentAction = kActionView;  ///< index of the action button pressed last
  int16_t printKind = 0;            ///< 1 ledger, 0 register
  /// What the ledger grid holds, as it was loaded; the controls that chose it may say something
  /// else by now. Empty while nothing is loaded.
  struct LedgerShown {
    std::string source;   ///< the tables of its statement
    std::string where;    ///< the condition of its statement, "" for none
    std::string subject;  ///< record, period and filters for a reader, "" for the whole ledger
  } ledgerShown;
  /// The entry that was loaded into the editor, column by column as the texts of a statement: what
  /// the editor showed of it, and what the row really holds. A field that still shows what it
  /// showed is written back as the row holds it. Empty for a new entry.
  std::vector<std::string> entryShown;
  std::vector<std::string> entryStored;
  /// What the rows in the database held when they were shown, field by field: the entry's in the
  /// editor (empty for a new entry), the current record's, and that record's detail. A save reads
  /// them again and writes nothing over what somebody else has changed meanwhile.
  data::RowTexts entryRow;
  data::RowTexts recordRow;
  data::RowTexts detailRow;
  std::string proposedNumber;  ///< voucher number last proposed for a new entry, "" for none
  /// What the entry editor, the record page and the detail text held when nothing was typed into
  /// them since they were shown, reset or saved; what differs from it is unsaved.
  std::vector<std::string> entryAtRest;
  std::vector<std::string> recordAtRest;
  std::string detailAtRest;

  // Left: order, register, record page, search.
  ui::Frame fraOrder{*this, "fraOrder"};
  ui::Label lblKhOrder{*this, "lblKhOrder", -1, &fraOrder};
  ui::ComboBox cboKhOrder{*this, "cboKhOrder", -1, &fraOrder};
  ui::Label lblKhTotal{*this, "lblKhTotal", -1, &fraOrder};
  ui::Button cmdManage{*this, "cmdManage", -1, &fraOrder};
  ui::Button cmdKhMemo{*this, "cmdKhMemo", -1, &fraOrder};
  ui::Button cmdKhPrint{*this, "cmdKhPrint", -1, &fraOrder};
  ui::Label lblKhName{*this, "lblKhName"};  ///< current record: name; id in its tag

  ui::Tabs SSTab1{*this, "SSTab1", 3};
  ui::Grid Grid1{*this, "Grid1", -1, &SSTab1, 0};
  ui::Array<ui::Label> lblAcnt{*this, "lblAcnt", 0, 10, &SSTab1, 1};  ///< tag: column name
  ui::Array<ui::TextBox> txtAcnt{*this, "txtAcnt", 0, 10, &SSTab1, 1};
  ui::Frame fraKhType{*this, "fraKhType", -1, &SSTab1, 1};
  ui::Array<ui::OptionButton> optKhType{*this, "optKhType", 0, 3, &fraKhType};
  ui::Button cmdKhSave{*this, "cmdKhSave", -1, &SSTab1, 1};  ///< tag: armed register action
  ui::Button cmdKhCancel{*this, "cmdKhCancel", -1, &SSTab1, 1};
  ui::Frame fraSeekKh{*this, "fraSeekKh", -1, &SSTab1, 2};
  ui::Array<ui::CheckBox> chkSeek{*this, "chkSeek", 0, 6, &fraSeekKh};  ///< tag: column name
  ui::Array<ui::TextBox> txtSeek{*this, "txtSeek", 0, 6, &fraSeekKh};
  ui::Array<ui::OptionButton> optSeek{*this, "optSeek", 0, 3, &fraSeekKh};
  ui::CheckBox chkSeek2{*this, "chkSeek2", -1, &fraSeekKh};
  ui::Button cmdKhSeek{*this, "cmdKhSeek", -1, &fraSeekKh};
  ui::TextBox txtSeekMsg{*this, "txtSeekMsg", -1, &SSTab1, 2};

  // Right: action buttons, entry editor, ledger.
  ui::Array<ui::Button> cmdAction{*this, "cmdAction", 0, 4};
  ui::Button cmdPrint{*this, "cmdPrint"};
  ui::Button cmdExit{*this, "cmdExit"};
  ui::Button cmdTitleClose{*this, "cmdTitleClose"};

  ui::Frame picAcnt{*this, "picAcnt"};
  ui::Label lblAcntTitle{*this, "lblAcntTitle", -1, &picAcnt};
  ui::Array<ui::Label> lblAcnt2{*this, "lblAcnt2", 0, 11, &picAcnt};  ///< tag 6..9: column name
  ui::Label lblNumberUse{*this, "lblNumberUse", -1, &picAcnt};  ///< who else bears a typed number
  ui::DatePicker dtpAcntDate{*this, "dtpAcntDate", -1, &picAcnt};
  ui::Array<ui::TextBox> txtAcnt2{*this, "txtAcnt2", 1, 9, &picAcnt};
  ui::Frame fraType2{*this, "fraType2", -1, &picAcnt};
  ui::Array<ui::OptionButton> optType2{*this, "optType2", 1, 2, &fraType2};
  ui::CheckBox chkAcntInit{*this, "chkAcntInit", -1, &picAcnt};  ///< tag: fID of the entry shown
  ui::ComboBox cboDoneMan{*this, "cboDoneMan", -1, &picAcnt};
  ui::Label lblHb{*this, "lblHb", -1, &picAcnt};
  ui::ComboBox cboHb{*this, "cboHb", -1, &picAcnt};
  ui::Label lblHbRate{*this, "lblHbRate", -1, &picAcnt};
  ui::TextBox txtHbRate{*this, "txtHbRate", -1, &picAcnt};
  ui::CheckBox chkAcntName{*this, "chkAcntName", -1, &picAcnt};
  ui::ComboBox cboAcntName{*this, "cboAcntName", -1, &picAcnt};  ///< tag: id of the account
  ui::Frame fraSHR{*this, "fraSHR", -1, &picAcnt};               ///< around the checker's name
  ui::Label lblSHR{*this, "lblSHR", -1, &picAcnt};
  ui::Button cmdAcntSave{*this, "cmdAcntSave", -1, &picAcnt};      ///< tag: armed action
  ui::Button cmdAcntCancel{*this, "cmdAcntCancel", -1, &picAcnt};  ///< tag: entry's reference

  ui::Tabs SSTab2{*this, "SSTab2", 3};
  ui::Grid Grid2{*this, "Grid2"};
  ui::Frame fraTotal{*this, "fraTotal"};
  ui::Array<ui::Label> lblTotal{*this, "lblTotal", 0, 5, &fraTotal};
  ui::Array<ui::TextBox> txtTotal{*this, "txtTotal", 0, 5, &fraTotal};
  ui::Label lblHb2{*this, "lblHb2", -1, &fraTotal};
  ui::ComboBox cboHb2{*this, "cboHb2", -1, &fraTotal};

  ui::Frame fraFilter{*this, "fraFilter"};
  ui::Array<ui::OptionButton> OptSelect{*this, "OptSelect", 0, 2, &fraFilter};
  ui::Array<ui::CheckBox> chkDate{*this, "chkDate", 0, 1, &fraFilter};
  ui::Array<ui::DatePicker> dtpDate{*this, "dtpDate", 0, 1, &fraFilter};
  ui::Array<ui::CheckBox> chkVerify{*this, "chkVerify", 0, 1, &fraFilter};
  ui::Array<ui::CheckBox> chkID{*this, "chkID", 0, 2, &fraFilter};
  ui::Array<ui::TextBox> txtID{*this, "txtID", 0, 2, &fraFilter};
  ui::CheckBox chkBrief{*this, "chkBrief", -1, &fraFilter};
  ui::TextBox txtBrief{*this, "txtBrief", -1, &fraFilter};
  ui::Array<ui::CheckBox> chkUser{*this, "chkUser", 0, 2, &fraFilter};
  ui::Array<ui::TextBox> txtUser{*this, "txtUser", 0, 2, &fraFilter};
  ui::Button cmdAcntRefresh{*this, "cmdAcntRefresh", -1, &fraFilter};

  // Below the ledger: detail text of the current record.
  ui::Frame fraKhMemo{*this, "fraKhMemo"};
  ui::Label lblKhMemo{*this, "lblKhMemo", -1, &fraKhMemo};
  ui::TextBox txtKhMemo{*this, "txtKhMemo", -1, &fraKhMemo};
  ui::Button cmdSave{*this, "cmdSave", -1, &fraKhMemo};
  ui::Button cmdCancel{*this, "cmdCancel", -1, &fraKhMemo};

  ui::MenuItem mnuKh{*this, "mnuKh"};
  ui::Array<ui::MenuItem> mnuKhManage{*this, "mnuKhManage", 1, 3, &mnuKh};
  ui::MenuItem mnuSep1{*this, "mnuSep1", -1, &mnuKh};
  ui::MenuItem mnuKhContact{*this, "mnuKhContact", -1, &mnuKh};

 private:
  /// Puts every control into its designed state: captions, tags, limits, tab order.
  void Design();
};

}  // namespace qvzj
