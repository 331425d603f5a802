#include "suite/users/user_rights.h"

#include <gtest/gtest.h>

#include "suite/users/password.h"
#include "tests/suite/users/rights_folder.h"

namespace qvzj::users {
namespace {

using test::RightsFolder;
using Kind = TryResult::Kind;
constexpr auto kCreate = RightsDatabase::Missing::Create;
constexpr auto kFail = RightsDatabase::Missing::Fail;

TEST(Password, HashesWithArgon2idAndASaltOfItsOwn) {
  const std::string hash = HashPassword("秘密");
  EXPECT_EQ(hash.rfind("$argon2id$", 0), 0u);
  EXPECT_NE(hash, HashPassword("秘密"));
  EXPECT_TRUE(VerifyPassword(hash, "秘密"));
  EXPECT_FALSE(VerifyPassword(hash, "秘"));
}

TEST(Password, BelongsToNoTextThatIsNoHash) {
  EXPECT_FALSE(VerifyPassword("", ""));
  EXPECT_FALSE(VerifyPassword("secret", "secret"));
}

TEST(Rights, LogInAUserWithTheRightPassword) {
  RightsFolder folder;
  RightsDatabase rights(folder.File(), kCreate);
  rights.Add("wang", "secret", "101");
  rights.SetModel("wang", "11111111111");
  const TryResult result = rights.Try("wang", "secret", 1000);
  ASSERT_EQ(result.kind, Kind::Ok);
  EXPECT_EQ(result.user.name, "wang");
  EXPECT_EQ(result.user.power, "101" + std::string(347, '0'));
  EXPECT_EQ(result.user.model, "11111111111");
}

TEST(Rights, HandBackTheStoredSpellingOfAName) {
  RightsFolder folder;
  RightsDatabase rights(folder.File(), kCreate);
  rights.Add("Wang", "secret", "");
  EXPECT_EQ(rights.Try("wANG", "secret", 1000).user.name, "Wang");
}

TEST(Rights, RefuseAWrongPasswordAnUnknownAndADisabledUser) {
  RightsFolder folder;
  RightsDatabase rights(folder.File(), kCreate);
  rights.Add("wang", "secret", "");
  EXPECT_EQ(rights.Try("wang", "Secret", 1000).kind, Kind::Wrong);
  EXPECT_EQ(rights.Try("nobody", "", 1000).kind, Kind::Wrong);
  rights.SetDisabled("wang", true);
  EXPECT_EQ(rights.Try("wang", "secret", 1000).kind, Kind::Wrong);
}

TEST(Rights, StoreNoPasswordInTheFile) {
  RightsFolder folder;
  RightsDatabase rights(folder.File(), kCreate);
  rights.Add("wang", "a-very-secret-word", "");
  rights.Try("wang", "another-secret-word", 1000);
  EXPECT_FALSE(folder.AnyFileHolds("very-secret"));
  EXPECT_FALSE(folder.AnyFileHolds("another-secret"));
  EXPECT_TRUE(folder.AnyFileHolds("$argon2id$"));
}

TEST(Delay, GrowsAfterTwoWrongTriesUpToFiveMinutes) {
  EXPECT_EQ(DelayAfter(0), 0);
  EXPECT_EQ(DelayAfter(2), 0);
  EXPECT_EQ(DelayAfter(3), 1);
  EXPECT_EQ(DelayAfter(4), 2);
  EXPECT_EQ(DelayAfter(8), 32);
  EXPECT_EQ(DelayAfter(12), 300);
  EXPECT_EQ(DelayAfter(1000000), 300);
}

// Five wrong tries, each after its delay; the last at the answered time.
int64_t GuessFiveTimes(RightsDatabase& rights) {
  int64_t now = 1000;
  for (int32_t i = 0; i < 5; ++i) {
    now += DelayAfter(i);
    EXPECT_EQ(rights.Try("wang", "wrong", now).kind, Kind::Wrong) << i;
  }
  return now;
}

TEST(Delay, RefusesEvenTheRightPasswordTooSoon) {
  RightsFolder folder;
  RightsDatabase rights(folder.File(), kCreate);
  rights.Add("wang", "secret", "");
  const int64_t now = GuessFiveTimes(rights);
  const TryResult early = rights.Try("wang", "secret", now + 1);
  EXPECT_EQ(early.kind, Kind::TooSoon);
  EXPECT_EQ(early.wait_seconds, 3);
  EXPECT_EQ(rights.Try("wang", "secret", now + 4).kind, Kind::Ok);
}

TEST(Delay, DoesNotGrowByTriesThatWereTooSoon) {
  RightsFolder folder;
  RightsDatabase rights(folder.File(), kCreate);
  rights.Add("wang", "secret", "");
  const int64_t now = GuessFiveTimes(rights);
  for (int i = 0; i < 20; ++i) rights.Try("wang", "wrong", now);
  EXPECT_EQ(rights.Try("wang", "secret", now + 4).kind, Kind::Ok);
}

TEST(Delay, SurvivesARestart) {
  RightsFolder folder;
  int64_t now = 0;
  {
    RightsDatabase rights(folder.File(), kCreate);
    rights.Add("wang", "secret", "");
    now = GuessFiveTimes(rights);
  }
  RightsDatabase again(folder.File(), kFail);
  EXPECT_EQ(again.Try("wang", "secret", now + 1).kind, Kind::TooSoon);
}

TEST(Delay, CountsTheTriesOfTwoProgramsTogether) {
  RightsFolder folder;
  RightsDatabase one(folder.File(), kCreate);
  one.Add("wang", "secret", "");
  RightsDatabase other(folder.File(), kFail);
  EXPECT_EQ(one.Try("wang", "wrong", 1000).kind, Kind::Wrong);
  EXPECT_EQ(other.Try("wang", "wrong", 1000).kind, Kind::Wrong);
  EXPECT_EQ(one.Try("wang", "wrong", 1000).kind, Kind::Wrong);
  EXPECT_EQ(other.Try("wang", "secret", 1000).kind, Kind::TooSoon);
}

TEST(Delay, ConcernsOnlyTheNameThatWasTried) {
  RightsFolder folder;
  RightsDatabase rights(folder.File(), kCreate);
  rights.Add("wang", "secret", "");
  rights.Add("li", "secret", "");
  const int64_t now = GuessFiveTimes(rights);
  EXPECT_EQ(rights.Try("li", "secret", now).kind, Kind::Ok);
  EXPECT_EQ(rights.Try("WANG", "secret", now).kind, Kind::TooSoon);
}

TEST(Delay, HoldsForNamesThatDoNotExistAsWell) {
  RightsFolder folder;
  RightsDatabase rights(folder.File(), kCreate);
  const int64_t now = GuessFiveTimes(rights);
  EXPECT_EQ(rights.Try("wang", "x", now).kind, Kind::TooSoon);
}

TEST(Delay, EndsWithTheRightPassword) {
  RightsFolder folder;
  RightsDatabase rights(folder.File(), kCreate);
  rights.Add("wang", "secret", "");
  const int64_t now = GuessFiveTimes(rights) + 4;
  rights.Try("wang", "secret", now);
  EXPECT_EQ(rights.Try("wang", "wrong", now).kind, Kind::Wrong);
  EXPECT_EQ(rights.Try("wang", "secret", now).kind, Kind::Ok);
}

TEST(Delay, EndsWithANewPassword) {
  RightsFolder folder;
  RightsDatabase rights(folder.File(), kCreate);
  rights.Add("wang", "secret", "");
  const int64_t now = GuessFiveTimes(rights);
  rights.SetPassword("wang", "fresh");
  EXPECT_EQ(rights.Try("wang", "fresh", now).kind, Kind::Ok);
  EXPECT_EQ(rights.Try("wang", "secret", now).kind, Kind::Wrong);
}

TEST(Delay, IsNoLongerWhenTheClockWasSetBack) {
  RightsFolder folder;
  RightsDatabase rights(folder.File(), kCreate);
  rights.Add("wang", "secret", "");
  const int64_t now = GuessFiveTimes(rights);
  EXPECT_EQ(rights.Try("wang", "secret", now - 3600).wait_seconds, 4);
}

TEST(Rights, KeepNamesUniqueWithoutRegardToCase) {
  RightsFolder folder;
  RightsDatabase rights(folder.File(), kCreate);
  rights.Add("wang", "secret", "");
  EXPECT_THROW(rights.Add("WANG", "other", ""), RightsError);
  EXPECT_EQ(rights.Users().size(), 1u);
}

TEST(Rights, RefuseNamesThatTheTablesCannotHold) {
  RightsFolder folder;
  RightsDatabase rights(folder.File(), kCreate);
  EXPECT_THROW(rights.Add("", "x", ""), RightsError);
  EXPECT_THROW(rights.Add(" wang", "x", ""), RightsError);
  EXPECT_THROW(rights.Add("O'Neil", "x", ""), RightsError);
  EXPECT_THROW(rights.Add("王王王王王王王王王王王", "x", ""), RightsError);
  EXPECT_NO_THROW(rights.Add("王王王王王王王王王王", "x", ""));
}

TEST(Rights, RefuseAnEmptyPasswordAndRightsThatAreNoDigits) {
  RightsFolder folder;
  RightsDatabase rights(folder.File(), kCreate);
  EXPECT_THROW(rights.Add("wang", "", "1"), RightsError);
  EXPECT_THROW(rights.Add("wang", "x", "1a"), RightsError);
  EXPECT_TRUE(rights.Users().empty());
}

TEST(Rights, SayWhenAUserIsNotThere) {
  RightsFolder folder;
  RightsDatabase rights(folder.File(), kCreate);
  EXPECT_THROW(rights.SetPassword("wang", "x"), RightsError);
  EXPECT_THROW(rights.SetPower("wang", "1"), RightsError);
  EXPECT_THROW(rights.Remove("wang"), RightsError);
}

TEST(Rights, KeepTheUnitAndTheExemptUser) {
  RightsFolder folder;
  RightsDatabase rights(folder.File(), kCreate);
  EXPECT_EQ(rights.Unit(), "");
  rights.SetUnit("总公司");
  rights.SetExempt("boss");
  EXPECT_EQ(rights.Unit(), "总公司");
  EXPECT_EQ(rights.Exempt(), "boss");
}

TEST(Rights, RecordOpenedFunctionsInOrder) {
  RightsFolder folder;
  RightsDatabase rights(folder.File(), kCreate);
  rights.Record("wang", "mnuCard客户资料");
  rights.Record("li", "it's");
  const auto record = rights.Record();
  ASSERT_EQ(record.size(), 2u);
  EXPECT_EQ(record[0].user, "wang");
  EXPECT_EQ(record[0].function, "mnuCard客户资料");
  EXPECT_EQ(record[0].time.size(), std::string("2024-03-15 10:11:12").size());
  EXPECT_EQ(record[1].function, "it's");
}

TEST(Rights, TakeBothKindsOfSlash) {
  RightsFolder folder;
  { RightsDatabase rights(folder.Path() + "/qvSet.mdb", kCreate); }
  EXPECT_NO_THROW(RightsDatabase(folder.Path() + "\\qvSet.mdb", kFail));
}

TEST(Rights, FailWhenTheFileIsMissingOrNoDatabase) {
  RightsFolder folder;
  EXPECT_THROW(RightsDatabase(folder.File(), kFail), DataError);
  folder.Write("qvSet.mdb", std::string(4096, 'x'));
  EXPECT_THROW(RightsDatabase(folder.File(), kFail), DataError);
}

}  // namespace
}  // namespace qvzj::users
