// Data files that hold what the module would never write: wrong types, absurd values, ids that are
// no numbers, columns that are gone. The module opens them or says why not, and no act takes more
// rows than the one it is about.

#include <algorithm>
#include <filesystem>

#include "platform/basic/errors.h"
#include "platform/basic/number.h"
#include "suite/check/check_data.h"
#include "suite/copy/copy.h"
#include "suite/store/schema.h"
#include "tests/endurance/script_stage.h"
#include "tests/fuzz/fuzz.h"
#include "tests/fuzz/mangle.h"
#include "tests/support/temporary_folder.h"

namespace qvzj::fuzz {
namespace {

constexpr const char* kTables[] = {"cards",     "tAccounts", "tAccountDetail", "Moneys",
                                   "Employees", "tSysFunc",  "tJXC_InvSet"};
constexpr const char* kLedgerColumns[] = {
    "fDate",  "fType1",   "fType2", "fAcntNo",  "fInit",    "fMoneyA",    "fMoneyB",   "fBrief",
    "fInvID", "fOrderID", "fUser",  "fDoneman", "fChecker", "fMoneyCode", "fMoneyRate"};
constexpr const char* kLedgerIds[] = {"fID", "fCompID", "fID2"};
constexpr const char* kRegisterColumns[] = {"fID",  "fID",      "CompCode", "compname",
                                            "name", "province", "fType0",   "detail"};
constexpr const char* kIds[] = {"'2 or 1=1'",
                                "'2 or 1=1'",
                                "'3 or fID>0'",
                                "'2 or 1=1'",
                                "'1) or (1=1'",
                                "'x'",
                                "'1.5'",
                                "1.5",
                                "''",
                                "null",
                                "'-1'",
                                "-1",
                                "0",
                                "1e300",
                                "'1e3'",
                                "9223372036854775807",
                                "2147483648",
                                "'0x10'",
                                "' 1'",
                                "x'31'"};

// Pieces of what a user does, in a register and in its ledger; N stands for a row.
constexpr const char* kWork[] = {
    "click OptSelect(0)|cell Grid2 1 N|click cmdAction(3)|click cmdAcntSave",
    "click OptSelect(0)|cell Grid2 1 N|click cmdAction(4)|click cmdAcntSave|answer ok ok|click "
    "cmdAcntSave",
    "click OptSelect(0)|cell Grid2 1 N|click cmdAction(2)|type txtAcnt2(6) \"z\"|click cmdAcntSave",
    "click OptSelect(0)|cell Grid2 1 N|click cmdAction(4)|choose cboAcntName 0|click cmdAcntSave",
    "cell Grid1 1 N|click cmdAction(1)|type txtAcnt2(4) \"1\"|click cmdAcntSave|click "
    "cmdAcntCancel",
    "tab SSTab1 0|cell Grid1 1 N|click mnuKhManage(3)|click cmdKhSave|click cmdKhCancel",
    "tab SSTab1 0|cell Grid1 1 N|click mnuKhManage(2)|type txtAcnt(2) \"z\"|click cmdKhSave",
    "click mnuKhManage(1)|type txtAcnt(0) \"Z\"|type txtAcnt(1) \"Z\"|click cmdKhSave",
    "tab SSTab1 0|cell Grid1 1 N|click cmdKhMemo|type txtKhMemo \"z\"|click cmdSave|click "
    "cmdCancel",
    "click cmdPrint|click cmdKhPrint|click mnuKhContact",
    "choose cboKhOrder 1|choose cboHb2 0|choose cboHb2 -1|choose cboKhOrder 0",
    "tab SSTab2 1|tab SSTab2 2|click cmdAcntRefresh|tab SSTab2 0",
    "tab SSTab1 2|click cmdKhSeek|click OptSelect(1)|click OptSelect(2)",
    "header Grid1 1|header Grid1 13|header Grid2 1|header Grid2 4|header Grid2 17",
    "click chkSeek2|click cmdAcntRefresh|click chkSeek2",
    "refresh 0 0",
    "refresh 1 0",
    "close|refresh 9 0",
    "list 0|click frmList.cmdLogOK"};

std::string Quoted(const std::string& text) {
  std::string quoted = "'";
  for (const char c : text) {
    if (c == '\0') continue;
    quoted += c == '\'' ? "''" : std::string(1, c);
  }
  return quoted + "'";
}

std::string Value(Dice& dice) {
  switch (dice.Below(6)) {
    case 0:
      return "null";
    case 1:
      return "x'00ff41'";
    case 2:
    case 3:
      return NastyNumber(dice);
    default:
      return Quoted(NastyText(dice));
  }
}

constexpr int kPieces = 20;  // of work in a round

class Crafted {
 public:
  Crafted(Dice& dice, SqliteSession& data) : dice_(dice), data_(data) {}

  void Craft() {
    if (dice_.Chance(40)) FreeIds();
    // Among few rows a strange one is met more often.
    if (dice_.Chance(60)) Run("delete from tAccountDetail where rowid>4");
    for (uint32_t changes = 1 + dice_.Below(12); changes > 0; --changes) Change();
    if (dice_.Chance(10)) {
      // Sums that no number of cents holds.
      Run("update tAccountDetail set fMoneyA=" + NastyNumber(dice_) +
          ",fMoneyB=" + NastyNumber(dice_));
    }
    if (dice_.Chance(10)) {
      Run(std::string("alter table ") + dice_.Pick(kTables) + " rename to elsewhere");
    }
    if (dice_.Chance(10)) {
      Run(std::string("alter table tAccountDetail drop column ") + dice_.Pick(kLedgerColumns));
    }
  }

 private:
  /// Copies of the tables whose ids may be anything.
  void FreeIds() {
    for (const char* name : {"cards", "tAccounts", "tAccountDetail"}) {
      const std::string table = name;
      Run("create table crafted as select * from " + table);
      Run("drop table " + table);
      Run("alter table crafted rename to " + table);
    }
  }

  void Change() {
    const std::string row = " where rowid=" + std::to_string(1 + dice_.Below(5));
    if (dice_.Chance(40)) {
      Run(std::string("update tAccountDetail set ") + dice_.Pick(kLedgerIds) + "=" +
          dice_.Pick(kIds) + row);
    } else if (dice_.Chance(60)) {
      Run(std::string("update tAccountDetail set ") + dice_.Pick(kLedgerColumns) + "=" +
          Value(dice_) + row);
    } else {
      const std::string column = dice_.Pick(kRegisterColumns);
      Run(std::string("update ") + (dice_.Chance(60) ? "cards" : "tAccounts") + " set " + column +
          "=" + (column == "fID" ? dice_.Pick(kIds) : Value(dice_)) + row);
    }
  }

  /// What the engine will not have is left as it is.
  void Run(const std::string& statement) {
    Tell(statement);
    try {
      data_.Native(statement);
    } catch (const DataError&) {
    }
  }

  Dice& dice_;
  SqliteSession& data_;
};

class Round {
 public:
  Round(Dice& dice, const std::string& fixture)
      : dice_(dice),
        file_((folder_.Path() / store::kDataFile).string()),
        data_(endurance::MakeData(file_, fixture)) {}

  void Play() {
    Crafted(dice_, *data_).Craft();
    CheckAndCopy();
    stage_.emplace(folder_.Path().string());
    PlayLine("refresh " + std::to_string(dice_.Below(2)) + " 0");
    for (int i = 0; i < kPieces; ++i) PlayWork(dice_.Pick(kWork));
  }

 private:
  void PlayWork(std::string_view work) {
    while (!work.empty()) {
      const size_t end = std::min(work.find('|'), work.size());
      std::string line(work.substr(0, end));
      if (line.ends_with(" N"))
        line.replace(line.size() - 1, 1, std::to_string(1 + dice_.Below(5)));
      work.remove_prefix(std::min(end + 1, work.size()));
      stage_->headless.boxes.ClearQueue();
      stage_->Play("answer ok ok");
      PlayLine(line);
    }
  }

  /// The tools refuse what they cannot use, and say so.
  void CheckAndCopy() {
    try {
      check::CheckData(*data_, [](const check::Fault&) {});
    } catch (const Error&) {
    }
    SqliteOptions options;
    options.create = true;
    const auto target = OpenSqlite((folder_.Path() / "copy.db").string(), options);
    store::CreateSchema(*target);
    copy::Options options_of_copy;
    options_of_copy.source_name = "crafted";
    try {
      copy::CopyData(*data_, *target, options_of_copy, {});
    } catch (const Error&) {
    }
  }

  /// The first field of a query's first row; 0 where the table is not there.
  int64_t Count(const std::string& query) {
    try {
      return static_cast<int64_t>(basic::Val(endurance::Lines(*data_, query).at(0)));
    } catch (const DataError&) {
      return 0;
    }
  }

  int64_t Records() {
    return Count("select count(*) from cards") + Count("select count(*) from tAccounts");
  }
  int64_t Entries() { return Count("select count(*) from tAccountDetail"); }
  /// Entries that go with one customer entry when it is unchecked.
  int64_t CounterEntries() {
    return Count(
        "select max(n) from (select count(*) n from tAccountDetail where fType1=1 group by fID2)");
  }

  /// No act takes away more than one record, or one entry, or the counter-entries of one entry.
  void PlayLine(const std::string& line) {
    Tell(line);
    const int64_t records = Records();
    const int64_t entries = Entries();
    const int64_t most = std::max<int64_t>(CounterEntries(), 1);
    stage_->Play(line);
    const int64_t records_gone = records - Records();
    const int64_t entries_gone = entries - Entries();
    if (records_gone <= 1 && entries_gone <= most) return;
    throw Fault("\"" + line + "\" took away " + std::to_string(records_gone) + " records and " +
                std::to_string(entries_gone) + " entries");
  }

  Dice& dice_;
  test::TemporaryFolder folder_;
  std::string file_;
  std::unique_ptr<SqliteSession> data_;
  std::optional<endurance::ScriptStage> stage_;
};

}  // namespace
}  // namespace qvzj::fuzz

int main(int argc, char** argv) {
  return qvzj::fuzz::Main(argc, argv, {80, [](qvzj::fuzz::Dice& dice, const auto& files) {
                                         qvzj::fuzz::Round(dice, files.at(0)).Play();
                                       }});
}
