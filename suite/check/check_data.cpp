#include "suite/check/check_data.h"

#include <sstream>

#include "platform/basic/errors.h"
#include "platform/basic/text.h"
#include "platform/data/store.h"

namespace qvzj::check {
namespace {

/// A fault that a statement finds: each row's first column is its text. In the statement
/// {text X} is X as a text and "null" for null, {key X} a text compared without ASCII case,
/// {low X} the lowest text X of a group by its bytes, {list X} the numbers X of a group, {no number
/// X} and {no date X} are true where X is none.
struct Search {
  FaultKind kind;
  const char* sql;
};

/// Beginning of every report on an entry `b`.
#define QV_ENTRY "'entry ' || b.fID || ' (' || coalesce(b.fAcntNo,'') || ')'"

constexpr Search kSearches[] = {
    {FaultKind::Kind,
     "select " QV_ENTRY " || ': its fType1 is ' || {text b.fType1} from tAccountDetail b"
     " where b.fType1 is null or b.fType1 not in (0,1,9) order by b.fID"},
    {FaultKind::Orphan, "select " QV_ENTRY " || ': there is no customer ' || {text b.fCompID}"
                        " from tAccountDetail b left join cards a on a.fID=b.fCompID"
                        " where b.fType1 in (0,9) and a.fID is null order by b.fID"},
    {FaultKind::Orphan, "select " QV_ENTRY " || ': there is no money account ' || {text b.fCompID}"
                        " from tAccountDetail b left join tAccounts a on a.fID=b.fCompID"
                        " where b.fType1=1 and a.fID is null order by b.fID"},
    {FaultKind::Amount,
     "select " QV_ENTRY " || ': fMoneyA is ' || {text b.fMoneyA} || ', fMoneyB is ' ||"
     " {text b.fMoneyB} from tAccountDetail b where {no number b.fMoneyA} or"
     " {no number b.fMoneyB} order by b.fID"},
    {FaultKind::Checker,
     "select " QV_ENTRY
     " || ': its fChecker is null' from tAccountDetail b where b.fChecker is null order by b.fID"},
    {FaultKind::Date,
     "select " QV_ENTRY " || ': its date is ' || {text b.fDate} from tAccountDetail b"
     " where {no date b.fDate} order by b.fID"},
    {FaultKind::Link,
     "select " QV_ENTRY " || ': it is linked to the money account ' || b.fID2 ||"
     " ', which is not there' from tAccountDetail b left join tAccounts a on a.fID=b.fID2"
     " where b.fType1 in (0,9) and b.fID2<>0 and a.fID is null order by b.fID"},
    {FaultKind::Counter,
     "select " QV_ENTRY " || ': its customer entry ' || b.fID2 || ' is not there'"
     " from tAccountDetail b left join tAccountDetail k on k.fID=b.fID2 and k.fType1 in (0,9)"
     " where b.fType1=1 and b.fID2<>0 and k.fID is null order by b.fID"},
    {FaultKind::Counter,
     "select fault from (select b.fID, " QV_ENTRY
     " || ' and its customer entry ' || k.fID || ' differ:' as beginning, " QV_ENTRY
     " || ' and its customer entry ' || k.fID || ' differ:' ||"
     " case when coalesce(k.fChecker,'')='' then ' the customer entry is not checked' else '' end "
     "||"
     " case when k.fID2 is distinct from b.fCompID then ' money account' else '' end ||"
     " case when k.fMoneyB is distinct from b.fMoneyB then ' amount' else '' end ||"
     " case when k.fType2 is distinct from b.fType2 then ' direction' else '' end ||"
     " case when k.fDate is distinct from b.fDate then ' date' else '' end ||"
     " case when {key k.fAcntNo} is distinct from {key b.fAcntNo} then ' voucher number' else '' "
     "end ||"
     " case when {key k.fMoneyCode} is distinct from {key b.fMoneyCode} then ' currency' else '' "
     "end ||"
     " case when k.fMoneyRate is distinct from b.fMoneyRate then ' rate' else '' end as fault"
     " from tAccountDetail b join tAccountDetail k on k.fID=b.fID2 and k.fType1 in (0,9)"
     " where b.fType1=1 and b.fID2<>0) f where fault<>beginning order by fID"},
    {FaultKind::Counter,
     "select 'entry ' || b.fID2 || ' has ' || count(*) || ' counter-entries: ' || {list b.fID}"
     " from tAccountDetail b where b.fType1=1 and b.fID2<>0"
     " group by b.fID2 having count(*)>1 order by b.fID2"},
    {FaultKind::Counter,
     "select " QV_ENTRY " || ': it is checked and linked to the money account ' || b.fID2 ||"
     " ', and has no counter-entry there' from tAccountDetail b where b.fType1=0 and"
     " b.fChecker<>'' and b.fID2<>0 and b.fMoneyB<>0 and not exists"
     " (select 1 from tAccountDetail c where c.fType1=1 and c.fID2=b.fID) order by b.fID"},
    {FaultKind::DuplicateNumber,
     "select 'voucher number ' || {low b.fAcntNo} || ' (fType1 ' || b.fType1 || ') is borne by ' ||"
     " count(*) || ' entries: ' || {list b.fID} from tAccountDetail b"
     " where b.fAcntNo<>'' and not (b.fType1=1 and coalesce(b.fID2,0)<>0)"
     " group by b.fType1,{key b.fAcntNo} having count(*)>1 order by {key b.fAcntNo},b.fType1"},
};

#undef QV_ENTRY

/// How an engine says what the statements leave open; X is the column.
struct Wording {
  const char* mark;
  const char* sqlite;
  const char* postgres;
};
constexpr Wording kWordings[] = {
    {"{text ", "coalesce(X,'null')", "coalesce(cast(X as text),'null')"},
    {"{key ", "X", "lower(X collate \"C\")"},
    {"{low ", "min(X collate binary)", "min(X collate \"C\")"},
    {"{list ", "group_concat(X,', ')", "string_agg(cast(X as text),', ' order by X)"},
    {"{no number ", "typeof(X) not in ('integer','real')",
     "(X is null or cast(X as text) in ('NaN','Infinity','-Infinity'))"},
    {"{no date ", "coalesce(date(X),'')<>coalesce(substr(X,1,10),'null')",
     "(X is null or not isfinite(X))"},
};

std::string Worded(std::string sql, bool postgres) {
  for (const Wording& wording : kWordings) {
    for (size_t at; (at = sql.find(wording.mark)) != std::string::npos;) {
      const size_t end = sql.find('}', at);
      const size_t begin = at + std::string_view(wording.mark).size();
      const std::string column = sql.substr(begin, end - begin);
      const char* words = postgres ? wording.postgres : wording.sqlite;
      sql.replace(at, end - at + 1, basic::Replace(words, "X", column));
    }
  }
  return sql;
}

}  // namespace

const char* NameOf(FaultKind kind) {
  switch (kind) {
    case FaultKind::File:
      return "damaged file";
    case FaultKind::Kind:
      return "no ledger";
    case FaultKind::Orphan:
      return "orphan";
    case FaultKind::Amount:
      return "amount";
    case FaultKind::Checker:
      return "checker";
    case FaultKind::Date:
      return "date";
    case FaultKind::Link:
      return "link";
    case FaultKind::Counter:
      return "counter-entry";
    case FaultKind::DuplicateNumber:
      return "duplicate number";
  }
  return "";
}

int64_t CheckData(data::Store& store, const std::function<void(const Fault&)>& report) {
  if (store.Speaks() == data::Engine::TransactSql) {
    throw DataError("Data is checked on SQLite and on PostgreSQL only");
  }
  int64_t count = 0;
  const auto found = [&](FaultKind kind, const std::string& text) {
    ++count;
    report({kind, text});
  };
  std::istringstream damage(store.CheckIntegrity());
  for (std::string line; std::getline(damage, line);) found(FaultKind::File, line);
  const bool postgres = store.Speaks() == data::Engine::PostgreSql;
  for (const Search& search : kSearches) {
    data::Recordset faults = store.Native(Worded(search.sql, postgres));
    for (; !faults.Eof(); faults.MoveNext()) found(search.kind, faults.Text(0));
  }
  return count;
}

}  // namespace qvzj::check
