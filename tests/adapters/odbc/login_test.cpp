#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <string_view>
#include <vector>

#include "platform/basic/errors.h"
#include "platform/basic/text.h"
#include "tests/adapters/odbc/server.h"

namespace qvzj::test {
namespace {

std::string Doubled(const std::string& text, const char* quote) {
  return quote + basic::Replace(text, quote, std::string(quote) + quote) + quote;
}

/// Characters that somebody could type: every printable one of ASCII, those that mean something to
/// a driver or a server more often, and some beyond.
std::string AnyText(std::mt19937& dice) {
  constexpr std::string_view kSigns = ";{}=[]()%+'\"\\@:,/?& #!*$|";
  constexpr const char* kBeyond[] = {"库", "é", "ß", "𠀀", "“", "　"};
  std::string text;
  for (auto length = 1 + dice() % 12; length > 0; --length) {
    const auto kind = dice() % 8;
    if (kind < 4) {
      text += kSigns[dice() % kSigns.size()];
    } else if (kind < 7) {
      text += static_cast<char>(' ' + static_cast<char>(dice() % ('~' - ' ' + 1)));
    } else {
      text += kBeyond[dice() % std::size(kBeyond)];
    }
  }
  return text;
}

/// How often a property is tried: the number of a variable, else the usual one.
int Rounds(const char* variable, int usual) {
  const char* const set = std::getenv(variable);
  return set ? std::atoi(set) : usual;
}

/// One user and one database that change their names at every turn.
class Logins : public testing::Test {
 protected:
  void SetUp() override {
    QV_NEEDS_SERVER();
    database_ = Server().MakeBareDatabase();
    Server().Run("postgres", "create role " + Doubled(user_, "\"") + " login");
  }
  void TearDown() override {
    if (!database_.empty()) Server().Run("postgres", "drop role " + Doubled(user_, "\""));
  }
  /// Names user and database anew and answers "" when they can be worked with, else what was said.
  std::string Try(const std::string& user, const std::string& password,
                  const std::string& database) {
    std::vector<std::string> changes;
    if (user != user_) {
      changes.push_back("alter role " + Doubled(user_, "\"") + " rename to " + Doubled(user, "\""));
    }
    changes.push_back("alter role " + Doubled(user, "\"") + " password " + Doubled(password, "'"));
    if (database != database_) {
      changes.push_back("alter database " + Doubled(database_, "\"") + " rename to " +
                        Doubled(database, "\""));
    }
    Server().RunAll("postgres", changes);
    user_ = user;
    database_ = database;
    return Said({Server().Address(), user, password, database});
  }
  static std::string Said(const store::ServerLogin& login) {
    try {
      auto names = store::OpenServer(login, {})->Native("select current_user, current_database()");
      return names.Text(0) + "|" + names.Text(1);
    } catch (const DataError& error) {
      return error.what();
    }
  }

  std::string user_ = "somebody";
  std::string database_;
};

TEST_F(Logins, TakeEverySignInNamesAndPasswords) {
  for (char sign = ' '; sign <= '~'; ++sign) {
    const std::string one(1, sign);
    const std::string name = one + "a" + one;
    EXPECT_EQ(Try(name, one, name), name + "|" + name);
  }
}

TEST_F(Logins, TakeAnyTextInNamesAndPasswords) {
  const int seed = Rounds("QV_LOGIN_SEED", 20240229);
  std::mt19937 dice(static_cast<uint32_t>(seed));
  for (int round = 0; round < Rounds("QV_LOGIN_ROUNDS", 60); ++round) {
    const std::string user = AnyText(dice);
    const std::string password = AnyText(dice);
    const std::string database = AnyText(dice);
    EXPECT_EQ(Try(user, password, database), user + "|" + database)
        << "seed " << seed << ", round " << round << ", password " << password;
  }
}

TEST_F(Logins, TakeThemInAWholeConnectionStringToo) {
  ASSERT_EQ(Try("a;b {c}", "50%41+;x}", "d=e;{f"), "a;b {c}|d=e;{f");
  const std::string address = Server().Address();
  const std::string whole = "DRIVER={PostgreSQL Unicode};Server = 127.0.0.1;Port=" +
                            address.substr(address.find(':') + 1) +
                            ";UID={a;b {c}}};PWD = {50%41+;x}}};Database={d=e;{f}";
  EXPECT_EQ(Said({whole, "", "", ""}), "a;b {c}|d=e;{f");
}

}  // namespace
}  // namespace qvzj::test
