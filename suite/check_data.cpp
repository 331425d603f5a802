#include "suite/check_data.h"

#include <sstream>

#include "adapters/sqlite/sqlite_session.h"

namespace qvzj {
namespace {

/// A fault that a statement finds: each row's first column is its text.
struct Search {
  FaultKind kind;
  const char* sql;
};

/// Beginning of every report on an entry `b`.
#define QV_ENTRY "'entry ' || b.fID || ' (' || coalesce(b.fAcntNo,'') || ')'"

constexpr Search kSearches[] = {
    {FaultKind::Kind,
     "select " QV_ENTRY " || ': its fType1 is ' || coalesce(b.fType1,'null') from tAccountDetail b"
     " where b.fType1 is null or b.fType1 not in (0,1,9) order by b.fID"},
    {FaultKind::Orphan,
     "select " QV_ENTRY " || ': there is no customer ' || coalesce(b.fCompID,'null')"
     " from tAccountDetail b left join cards a on a.fID=b.fCompID"
     " where b.fType1 in (0,9) and a.fID is null order by b.fID"},
    {FaultKind::Orphan,
     "select " QV_ENTRY " || ': there is no money account ' || coalesce(b.fCompID,'null')"
     " from tAccountDetail b left join tAccounts a on a.fID=b.fCompID"
     " where b.fType1=1 and a.fID is null order by b.fID"},
    {FaultKind::Amount,
     "select " QV_ENTRY " || ': fMoneyA is ' || coalesce(b.fMoneyA,'null') || ', fMoneyB is ' ||"
     " coalesce(b.fMoneyB,'null') from tAccountDetail b where typeof(b.fMoneyA) not in"
     " ('integer','real') or typeof(b.fMoneyB) not in ('integer','real') order by b.fID"},
    {FaultKind::Checker,
     "select " QV_ENTRY
     " || ': its fChecker is null' from tAccountDetail b where b.fChecker is null order by b.fID"},
    {FaultKind::Date,
     "select " QV_ENTRY " || ': its date is ' || coalesce(b.fDate,'null') from tAccountDetail b"
     " where coalesce(date(b.fDate),'')<>coalesce(substr(b.fDate,1,10),'null') order by b.fID"},
    {FaultKind::Link,
     "select " QV_ENTRY " || ': it is linked to the money account ' || b.fID2 ||"
     " ', which is not there' from tAccountDetail b left join tAccounts a on a.fID=b.fID2"
     " where b.fType1 in (0,9) and b.fID2<>0 and a.fID is null order by b.fID"},
    {FaultKind::Counter,
     "select " QV_ENTRY " || ': its customer entry ' || b.fID2 || ' is not there'"
     " from tAccountDetail b left join tAccountDetail k on k.fID=b.fID2 and k.fType1 in (0,9)"
     " where b.fType1=1 and b.fID2<>0 and k.fID is null order by b.fID"},
    {FaultKind::Counter,
     "select * from (select " QV_ENTRY " || ' and its customer entry ' || k.fID || ' differ:' ||"
     " case when coalesce(k.fChecker,'')='' then ' the customer entry is not checked' else '' end "
     "||"
     " case when k.fID2 is not b.fCompID then ' money account' else '' end ||"
     " case when k.fMoneyB is not b.fMoneyB then ' amount' else '' end ||"
     " case when k.fType2 is not b.fType2 then ' direction' else '' end ||"
     " case when k.fDate is not b.fDate then ' date' else '' end ||"
     " case when k.fAcntNo is not b.fAcntNo then ' voucher number' else '' end ||"
     " case when k.fMoneyCode is not b.fMoneyCode then ' currency' else '' end ||"
     " case when k.fMoneyRate is not b.fMoneyRate then ' rate' else '' end as text"
     " from tAccountDetail b join tAccountDetail k on k.fID=b.fID2 and k.fType1 in (0,9)"
     " where b.fType1=1 and b.fID2<>0 order by b.fID) where text not like '%differ:'"},
    {FaultKind::Counter,
     "select 'entry ' || b.fID2 || ' has ' || count(*) || ' counter-entries: ' ||"
     " group_concat(b.fID,', ') from tAccountDetail b where b.fType1=1 and b.fID2<>0"
     " group by b.fID2 having count(*)>1 order by b.fID2"},
    {FaultKind::Counter,
     "select " QV_ENTRY " || ': it is checked and linked to the money account ' || b.fID2 ||"
     " ', and has no counter-entry there' from tAccountDetail b where b.fType1=0 and"
     " b.fChecker<>'' and b.fID2<>0 and b.fMoneyB<>0 and b.fID not in"
     " (select c.fID2 from tAccountDetail c where c.fType1=1 and c.fID2<>0) order by b.fID"},
    {FaultKind::DuplicateNumber,
     "select 'voucher number ' || b.fAcntNo || ' (fType1 ' || b.fType1 || ') is borne by ' ||"
     " count(*) || ' entries: ' || group_concat(b.fID,', ') from tAccountDetail b"
     " where b.fAcntNo<>'' and not (b.fType1=1 and coalesce(b.fID2,0)<>0)"
     " group by b.fType1,b.fAcntNo having count(*)>1 order by b.fAcntNo"},
};

#undef QV_ENTRY

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

int64_t CheckData(SqliteSession& session, const std::function<void(const Fault&)>& report) {
  int64_t count = 0;
  const auto found = [&](FaultKind kind, const std::string& text) {
    ++count;
    report({kind, text});
  };
  std::istringstream damage(session.CheckIntegrity());
  for (std::string line; std::getline(damage, line);) found(FaultKind::File, line);
  for (const Search& search : kSearches) {
    SqliteStatement statement = session.Prepare(search.sql);
    while (statement.Step()) found(search.kind, statement.Text(0));
  }
  return count;
}

}  // namespace qvzj
