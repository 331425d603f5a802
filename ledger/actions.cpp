#include "ledger/actions.h"

#include "ledger/entry.h"
#include "platform/basic/number.h"
#include "screen/current.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"
#include "services/context.h"
#include "services/messages.h"
#include "services/query.h"

namespace qvzj {
namespace {

constexpr const char* kTwoLines = "\r\n\r\n";
constexpr const char* kColon = ": ";
constexpr const char* kCounterMark = "挂入-";
constexpr int16_t kCounterMarkBytes = 5;

bool Confirm(const std::string& question, int style) {
  return Message(question, style) == Answer::Ok;
}

double Value(const std::string& text) { return basic::Val(text); }

// Does the shown entry hang on a warehouse document? Customer entries without an amount due do
// not.
bool HasDocument(const frmZj& form) {
  if (form.txtAcnt2(EntryBox::InvID).Text().empty()) return false;
  const bool customer_entry = form.mode == kCustomers || form.mode == 9;
  return !customer_entry || Value(form.txtAcnt2(EntryBox::MoneyA).Text()) != 0;
}

bool DocumentChecked(const frmZj& form) {
  const std::string condition =
      "fInvNo=" + Quoted(form.txtAcnt2(EntryBox::InvID).Text()) +
      (Shared().SQLData != 0 ? " And (not fInvSHR is null) And fInvSHR<>''"
                             : " And '' & fInvSHR<>''");
  return CountRows("tJXC_CkDj01", condition) > 0 || CountRows("tJXC_CkDj_Bak01", condition) > 0;
}

std::string CheckerStatement(const frmZj& form, const std::string& checker) {
  return "Update tAccountDetail Set fChecker=" + Quoted(checker) +
         " Where fID=" + ShownEntryId(form);
}

// The money account's side of the shown customer entry: the amount received or paid.
EntryTexts CounterEntry(const frmZj& form) {
  using enum EntryColumn;
  const EntryTexts exact = EntryToWrite(form);
  EntryTexts counter = EntryInEditor(form);
  const auto room =
      static_cast<int16_t>(form.txtAcnt2(EntryBox::Brief).MaxLength() - kCounterMarkBytes);
  counter[CompID] = LinkedAccountId(form);
  counter[Type1] = "1";
  counter[Init] = "0";
  counter[MoneyA] = "0";
  counter[MoneyB] = exact[MoneyB];
  counter[Brief] =
      Quoted(kCounterMark + FitLength(form.txtAcnt2(EntryBox::Record).Text(), room, ""));
  counter[ID2] = ShownEntryId(form);
  counter[MoneyRate] = exact[MoneyRate];
  return counter;
}

// The account is chosen only now, with the check, and not the entry's own yet?
bool LinkIsNew(const frmZj& form) {
  constexpr auto kLink = static_cast<size_t>(EntryColumn::ID2);
  return form.entryShown.empty() || form.entryShown[kLink] != LinkedAccountId(form);
}

std::string LinkStatement(const frmZj& form) {
  return "Update tAccountDetail Set fID2=" + LinkedAccountId(form) +
         " Where fID=" + ShownEntryId(form);
}

// An account chosen with the check becomes the entry's own: unchecking would not know of the
// counter-entry otherwise. That runs first, so that no counter-entry is ever without the link.
Commit CheckWithCounterEntry(const frmZj& form, const std::string& check) {
  Commit commit{{}, kColon, true};
  if (LinkIsNew(form)) commit.statements.push_back(LinkStatement(form));
  commit.statements.push_back(check);
  commit.statements.push_back(InsertStatement(CounterEntry(form)));
  return commit;
}

std::optional<Commit> PrepareChecking(frmZj& form) {
  if (!NoQuote(Shared().UserName)) return std::nullopt;
  const std::string check = CheckerStatement(form, Shared().UserName);
  const bool linked = form.mode == kCustomers && Value(LinkedAccountId(form)) != 0;
  if (!linked) return Commit{{check}, kColon};
  if (Value(form.txtAcnt2(EntryBox::MoneyB).Text()) == 0) {
    Message("本帐目凭证未有“实收/实付”金额，无须关联帐户的进出帐操作！", box::kInformation);
    return Commit{{check}, kColon};
  }
  if (!EntryTextsFit(form) || !NoQuote(form.txtAcnt2(EntryBox::Record).Text())) return std::nullopt;
  return CheckWithCounterEntry(form, check);
}

bool CounterEntryChecked(const std::string& id) {
  return CountRows("tAccountDetail", "fType1=1 and fID2=" + id + " And fChecker<>''") > 0;
}

std::optional<Commit> PrepareUnchecking(frmZj& form) {
  if (!Confirm("帐目已经审核。是否反审核，取消“审核”标志 ？", box::kExclamationOkCancel)) {
    return std::nullopt;
  }
  const std::string uncheck = CheckerStatement(form, "");
  const bool linked = form.mode == kCustomers && Value(LinkedAccountId(form)) > 0;
  if (!linked) return Commit{{uncheck}, kColon};
  const std::string& id = ShownEntryId(form);
  const std::string& link = form.chkAcntName.Caption();
  if (CounterEntryChecked(id)) {
    Message("该往来帐目的关联[" + link + "]也已经审核，必须先“反审核”关联帐户 !" + kTwoLines +
                "操作取消！",
            box::kExclamation);
    return std::nullopt;
  }
  const bool has_counter_entry = form.chkAcntName.Ticked() && form.cboAcntName.ListIndex() >= 0 &&
                                 Value(form.txtAcnt2(EntryBox::MoneyB).Text()) != 0;
  if (has_counter_entry &&
      !Confirm("注意：系统将删除关联的" + link + "凭证，确定？", box::kQuestionOkCancel)) {
    return std::nullopt;
  }
  return Commit{{uncheck, "Delete from tAccountDetail Where fType1=1 and fID2=" + id}, kColon};
}

}  // namespace

bool EntryTextsFit(const frmZj& form) {
  for (int i :
       {EntryBox::Number, EntryBox::Brief, EntryBox::InvID, EntryBox::OrderID, EntryBox::User}) {
    if (!NoQuote(form.txtAcnt2(i).Text())) return false;
  }
  return NoQuote(form.cboDoneMan.Text()) && NoQuote(form.cboHb.Text()) &&
         NoQuote(form.lblSHR.Caption());
}

std::optional<Commit> PrepareDelete(frmZj& form) {
  const std::string& document = form.txtAcnt2(EntryBox::InvID).Text();
  const bool has_document = HasDocument(form);
  if (has_document && !NoQuote(document)) return std::nullopt;
  if (has_document && DocumentChecked(form)) {
    Message("该相关单号（" + document + "）已经审核，不可删除。操作取消！" + kTwoLines +
                "请在【仓库管理】中，反审核<相关单号>，系统自动删除本帐目凭证！",
            box::kExclamation);
    return std::nullopt;
  }
  if (!Confirm("是否删除" + form.lblAcnt2(EntryBox::Number).Caption() + "（" +
                   form.txtAcnt2(EntryBox::Number).Text() + "） ？",
               box::kQuestionOkCancel)) {
    return std::nullopt;
  }
  return Commit{{"Delete from tAccountDetail Where fID=" + ShownEntryId(form)}, kColon};
}

std::optional<Commit> PrepareCheck(frmZj& form) {
  return form.lblSHR.Caption().empty() ? PrepareChecking(form) : PrepareUnchecking(form);
}

}  // namespace qvzj
