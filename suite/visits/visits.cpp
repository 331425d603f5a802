#include "suite/visits/visits.h"

#include "platform/basic/errors.h"
#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include "platform/surroundings.h"

namespace qvzj::visits {
namespace {

std::string Quoted(const std::string& text) { return "'" + basic::Replace(text, "'", "''") + "'"; }

}  // namespace

VisitRecords::VisitRecords(const TaskCall& call)
    : connection_(Around().statement_watcher),
      customer_(std::to_string(call.customer_id)),
      user_(call.user_name),
      date_quote_(call.access.sql_data == 0 ? "#" : "'") {
  const DataAccess& access = call.access;
  const bool opened = Around().connections->OpenConnection(
      basic::ToByte(access.sql_data), connection_, access.user_path, access.password,
      access.user_id, access.default_database);
  if (!opened) throw DataError("The data of the visit records cannot be opened.");
}

std::string VisitRecords::Literal(basic::Date date) const {
  return date_quote_ + basic::FormatMonthDayYear(date) + date_quote_;
}

std::string VisitRecords::Only(int32_t id) const {
  return " where fID=" + std::to_string(id) + " and taskID=" + customer_ + " and fType=1";
}

std::vector<Visit> VisitRecords::List() {
  data::Recordset rows =
      connection_.Open("select fID,fDate,fUser,fBrief from tTaskList where taskID=" + customer_ +
                       " and fType=1 order by fDate desc,fID desc");
  std::vector<Visit> visits;
  for (; !rows.Eof(); rows.MoveNext()) {
    visits.push_back({basic::ToInt32(rows.Number(0)),
                      basic::ParseIso(rows.Text(1)).value_or(basic::Date{}), rows.Text(2),
                      rows.Text(3)});
  }
  return visits;
}

int32_t VisitRecords::Add(basic::Date date, const std::string& text) {
  connection_.Execute("insert into tTaskList (taskID,fType,fDate,fUser,fBrief) values (" +
                      customer_ + ",1," + Literal(date) + "," + Quoted(user_) + "," + Quoted(text) +
                      ")");
  // The newest of this user's own: another user may have added one in between.
  data::Recordset id = connection_.Open("select max(fID) from tTaskList where taskID=" + customer_ +
                                        " and fType=1 and fUser=" + Quoted(user_));
  return basic::ToInt32(id.Number(0));
}

void VisitRecords::Change(int32_t id, basic::Date date, const std::string& text) {
  connection_.Execute("update tTaskList set fDate=" + Literal(date) + ",fBrief=" + Quoted(text) +
                      Only(id));
}

void VisitRecords::Remove(int32_t id) { connection_.Execute("delete from tTaskList" + Only(id)); }

}  // namespace qvzj::visits
