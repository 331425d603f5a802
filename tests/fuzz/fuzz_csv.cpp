// CSV files with a valid header and broken rows. Each row is taken whole or refused with its line;
// what was taken is data that the check of the data and the module itself have nothing against.

#include <algorithm>

#include "platform/basic/errors.h"
#include "platform/basic/text.h"
#include "suite/check/check_data.h"
#include "suite/import/import.h"
#include "tests/fuzz/fuzz.h"
#include "tests/fuzz/mangle.h"
#include "tests/support/world.h"

namespace qvzj::fuzz {
namespace {

constexpr const char* kHeaders[] = {
    "CompCode,compname,name,fBank,fAcntID,others,province,cityname,postcode,telphone,fax,fType0,"
    "detail",
    "CompCode,compname,name,fBank,fAcntID,others,province,cityname,postcode,telphone,fax,fType0,"
    "detail",
    "CompCode,compname,fDate,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,fBrief,fInvID,fOrderID,fUser,"
    "fDoneman,fChecker,fMoneyCode,fMoneyRate"};
constexpr const char* kRows[] = {
    "K1,甲公司,王五,工行,0200,老客户,北京,北京,100020,010-1,010-2,1,\"一\n二\"",
    "K2,现金,出纳,现金,1,,,,,,,,",
    "C1,,2024-03-01,1,PZ1,0,100.5,20,货款,CK1,DD1,admin,张三,,RMB,1"};

std::string Row(Dice& dice, imports::Kind kind, uint32_t number) {
  std::string row = kRows[static_cast<size_t>(kind)];
  if (dice.Chance(70)) {
    // Another field in place of one that is there.
    std::string fields;
    const uint32_t broken = dice.Below(16);
    uint32_t field = 0;
    for (const char c : row + ",") {
      if (c != ',') {
        if (field != broken) fields += c;
        continue;
      }
      if (field == broken) fields += dice.Chance(30) ? NastyNumber(dice) : NastyText(dice);
      fields += ',';
      ++field;
    }
    fields.pop_back();
    row = fields;
  }
  if (dice.Chance(30)) row = Mangle(dice, row);
  // Most records have a code of their own, else the first one would refuse the rest.
  if (kind != imports::Kind::Entries && dice.Chance(70)) {
    row.insert(std::min<size_t>(1, row.size()), std::to_string(number));
  }
  return row + (dice.Chance(90) ? "\n" : "\r\n");
}

std::string File(Dice& dice, imports::Kind kind) {
  std::string text = kHeaders[static_cast<size_t>(kind)];
  text += "\n";
  const bool broken_bytes = dice.Chance(20);  // which refuse the whole file
  for (uint32_t number = 1 + dice.Below(30); number > 0; --number) {
    const std::string row = Row(dice, kind, number);
    if (broken_bytes || basic::IsUtf8(row)) text += row;
  }
  return text;
}

imports::Options SomeOptions(Dice& dice) {
  imports::Options options;
  options.kind = static_cast<imports::Kind>(dice.Below(3));
  options.ledger = static_cast<int16_t>(dice.Below(2));
  options.dates = static_cast<imports::DateOrder>(dice.Below(3));
  options.once = dice.Chance(30);
  options.add_currencies = dice.Chance(30);
  options.dry_run = dice.Chance(10);
  return options;
}

const char* TableOf(imports::Kind kind) {
  if (kind == imports::Kind::Entries) return "tAccountDetail";
  return kind == imports::Kind::Accounts ? "tAccounts" : "cards";
}

void Require(bool holds, const std::string& what) {
  if (!holds) throw Fault(what);
}

class Round {
 public:
  explicit Round(Dice& dice) : dice_(dice), options_(SomeOptions(dice)) {
    world_.Sql(
        "insert into cards (fID,CompCode,compname,fType0) values (1,'C1','甲公司',0);"
        "insert into tAccounts (fID,CompCode,compname) values (1,'C1','现金');"
        "insert into Moneys (MoneyCode,MoneyRate,MoneyType) values ('RMB',1,9);");
  }

  void Play() {
    const std::string text = File(dice_, options_.kind);
    Tell(text);
    const int64_t before = Rows();
    const std::optional<imports::Report> report = Import(text);
    // A file that cannot be understood as a whole leaves nothing behind.
    const int64_t written = report && !options_.dry_run ? report->written : 0;
    Require(Rows() - before == written, "rows written and counted differ");
    CheckRows();
    ShowRows();
  }

 private:
  /// Nothing where the file is refused as a whole.
  std::optional<imports::Report> Import(const std::string& text) {
    int64_t refusals = 0;
    const auto refused = [&](const imports::Refusal& refusal) {
      ++refusals;
      Require(refusal.line > 1 && !refusal.reason.empty(), "a refusal without line or reason");
    };
    try {
      imports::Report report = imports::ImportCsv(*store_, text, options_, refused, {});
      Require(report.refused == refusals, "refusals counted and told differ");
      Require(report.rows == report.written + report.passed_over + report.refused,
              "rows that were neither taken nor refused");
      return report;
    } catch (const Error& error) {
      Tell(std::string("refused: ") + error.what());
      return std::nullopt;
    }
  }

  int64_t Rows() {
    return std::stoll(world_.One(std::string("select count(*) from ") + TableOf(options_.kind)));
  }

  /// Nothing but numbers that are borne twice may be wrong with imported data.
  void CheckRows() {
    check::CheckData(*store_, [](const check::Fault& fault) {
      if (fault.kind == check::FaultKind::DuplicateNumber) return;
      throw Fault(std::string("imported: ") + check::NameOf(fault.kind) + ": " + fault.text);
    });
  }

  /// Opens both registers and lists both ledgers.
  void ShowRows() {
    for (const int16_t mode : {int16_t{0}, int16_t{1}}) {
      frmZj& form = world_.Open(mode);
      form.UserClick(form.OptSelect(0));
      const std::string entries =
          world_.One("select count(*) from tAccountDetail where fType1=" + std::to_string(mode));
      const auto errors = world_.headless.boxes.TakeErrors();
      Require(errors.empty(), "shown: " + (errors.empty() ? "" : errors[0]));
      Require(std::to_string(form.Grid2.RowCount()) == entries, "entries that are not listed");
    }
  }

  Dice& dice_;
  imports::Options options_;
  test::World world_;
  std::unique_ptr<SqliteSession> store_ = OpenSqlite(world_.DataFile().string(), {});
};

}  // namespace
}  // namespace qvzj::fuzz

int main(int argc, char** argv) {
  return qvzj::fuzz::Main(argc, argv, {150, [](qvzj::fuzz::Dice& dice, const auto&) {
                                         qvzj::fuzz::Round(dice).Play();
                                       }});
}
