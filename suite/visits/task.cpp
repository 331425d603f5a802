#include "suite/visits/task.h"

#include <optional>
#include <string>

#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include "platform/surroundings.h"
#include "suite/dialogues/texts.h"

namespace qvzj::visits {
namespace {

std::string Title(const TaskCall& call) {
  return dialogues::InLanguage(call.language, "联系记录", "聯繫記錄") + " - " + call.customer_name;
}

std::string Prompt(const TaskCall& call, const std::vector<Visit>& visits) {
  std::string prompt;
  for (size_t i = 0; i < visits.size(); ++i) {
    prompt += std::to_string(i + 1) + ". " + basic::FormatIso(visits[i].date) + " " +
              visits[i].user + ": " + visits[i].text + "\n";
  }
  return prompt + dialogues::InLanguage(call.language, "+内容 新增; 序号=内容 修改; -序号 删除",
                                        "+內容 新增; 序號=內容 修改; -序號 刪除");
}

// The record that a number of the list means; null when there is none.
const Visit* Numbered(const std::vector<Visit>& visits, const std::string& number) {
  if (!basic::IsNumeric(number)) return nullptr;
  const double place = basic::Val(number);
  if (place < 1 || place > static_cast<double>(visits.size())) return nullptr;
  return &visits[static_cast<size_t>(place) - 1];
}

bool Confirmed(const TaskCall& call) {
  return Around().boxes->Show(
             dialogues::InLanguage(call.language, "删除该联系记录吗?", "刪除該聯繫記錄嗎?"),
             box::kQuestionOkCancel, Title(call)) == Answer::Ok;
}

// Carries one answer out; false when it means nothing.
bool CarryOut(const TaskCall& call, VisitRecords& records, const std::vector<Visit>& visits,
              const std::string& answer) {
  if (answer.front() == '+') {
    const std::string text = basic::Trim(answer.substr(1));
    if (!text.empty()) records.Add(call.date, text);
    return !text.empty();
  }
  if (answer.front() == '-') {
    const Visit* visit = Numbered(visits, answer.substr(1));
    if (visit && Confirmed(call)) records.Remove(visit->id);
    return visit != nullptr;
  }
  const size_t sign = answer.find('=');
  if (sign == std::string::npos) return false;
  const Visit* visit = Numbered(visits, answer.substr(0, sign));
  const std::string text = basic::Trim(answer.substr(sign + 1));
  if (!visit || text.empty()) return false;
  records.Change(visit->id, visit->date, text);
  return true;
}

}  // namespace

void SuiteTask::Open(const TaskCall& call) {
  if (form_ && form_->Loaded()) form_->Unload();
  form_ = std::make_unique<frmTask>(call);
  form_->SetLoaded(true);
  Around().presenter->Show(*form_, true);
}

void BoxTask::Open(const TaskCall& call) {
  VisitRecords records(call);
  while (true) {
    const std::vector<Visit> visits = records.List();
    const std::optional<std::string> answer =
        Around().boxes->Input(Prompt(call, visits), Title(call), "");
    if (!answer || basic::Trim(*answer).empty()) return;
    if (!CarryOut(call, records, visits, basic::Trim(*answer))) {
      Around().boxes->Show(dialogues::InLanguage(call.language, "输入有误!", "輸入有誤!"),
                           box::kExclamation, Title(call));
    }
  }
}

}  // namespace qvzj::visits
