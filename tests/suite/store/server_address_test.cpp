#include "suite/store/server_address.h"

#include <gtest/gtest.h>

namespace qvzj::store {
namespace {

constexpr const char* kPostgresHabits =
    "SSLmode=prefer;UseDeclareFetch=1;Fetch=4096;KeepaliveTime=30;KeepaliveInterval=10;";

std::string Text(const std::string& address, const ServerOptions& options = {}) {
  return ConnectionString({address, "clerk", "pw", "suite"}, options);
}

ServerOptions TransactSql() {
  ServerOptions options;
  options.kind = ServerKind::TransactSql;
  return options;
}

TEST(ServerAddress, NamesAHostAlone) {
  EXPECT_EQ(Text("db.firm.cn"), std::string("DRIVER={PostgreSQL Unicode};SERVER=db.firm.cn;"
                                            "DATABASE=suite;UID=clerk;PWD=pw;") +
                                    kPostgresHabits);
}

TEST(ServerAddress, NamesAHostWithItsPort) {
  EXPECT_EQ(Text("10.0.0.5:5433"), std::string("DRIVER={PostgreSQL Unicode};SERVER=10.0.0.5;"
                                               "PORT=5433;DATABASE=suite;UID=clerk;PWD=pw;") +
                                       kPostgresHabits);
  EXPECT_NE(Text("[::1]:5433").find("SERVER={::1};PORT=5433;"), std::string::npos)
      << Text("[::1]:5433");
}

TEST(ServerAddress, NamesAnInstanceOfAHost) {
  EXPECT_EQ(Text("server\\sales", TransactSql()),
            "DRIVER={ODBC Driver 18 for SQL Server};SERVER=server\\sales;DATABASE=suite;"
            "UID=clerk;PWD=pw;Encrypt=optional;");
  EXPECT_NE(Text("server:1444", TransactSql()).find("SERVER={server,1444};"), std::string::npos);
}

TEST(ServerAddress, NamesADataSourceOfTheMachine) {
  ServerOptions options;
  options.is_data_source = [](const std::string& name) { return name == "Books"; };
  EXPECT_EQ(Text("Books", options),
            std::string("DSN=Books;DATABASE=suite;UID=clerk;PWD=pw;") + kPostgresHabits);
}

TEST(ServerAddress, KeepsWhatAWholeConnectionStringSays) {
  EXPECT_EQ(Text("Driver=/opt/x.so;Server=s;uid=other;SSLmode=verify-full"),
            "Driver=/opt/x.so;Server=s;uid=other;SSLmode=verify-full;DATABASE=suite;PWD=pw;"
            "UseDeclareFetch=1;Fetch=4096;KeepaliveTime=30;KeepaliveInterval=10;");
}

TEST(ServerAddress, KnowsTheOtherNamesOfUserPasswordAndDatabase) {
  EXPECT_EQ(Text("Server=s;Username=me;Password=mine;db=books"),
            std::string("Server=s;Username=me;Password=mine;db=books;") + kPostgresHabits);
}

TEST(ServerAddress, LeavesOutWhatIsNotGiven) {
  EXPECT_EQ(ConnectionString({"h", "", "", ""}, {}),
            std::string("DRIVER={PostgreSQL Unicode};SERVER=h;") + kPostgresHabits);
}

TEST(ServerAddress, QuotesWhatWouldEndAValue) {
  EXPECT_NE(ConnectionString({"h", "", "a;b}c", ""}, {}).find("PWD={a;b}}c};"), std::string::npos);
}

TEST(ServerAddress, RequiresEncryptionWhereAsked) {
  ServerOptions options;
  options.require_tls = true;
  EXPECT_NE(Text("h", options).find("SSLmode=require;"), std::string::npos);
  options.kind = ServerKind::TransactSql;
  EXPECT_NE(Text("h", options).find("Encrypt=yes;"), std::string::npos);
}

TEST(ServerAddress, LetsNoWholeConnectionStringWeakenTheEncryptionThatIsRequired) {
  ServerOptions options;
  options.require_tls = true;
  for (const char* said : {"prefer", "disable", "{allow}"}) {
    const std::string text = Text(std::string("sslMODE=") + said + ";Server=s", options);
    EXPECT_TRUE(text.starts_with("Server=s;DATABASE=suite;")) << text;
    EXPECT_NE(text.find("SSLmode=require;"), std::string::npos) << text;
  }
  EXPECT_NE(Text("SSLmode=verify-full;Server=s", options).find("SSLmode=verify-full;"),
            std::string::npos);
  options.kind = ServerKind::TransactSql;
  EXPECT_NE(Text("Server=s;Encrypt=no", options).find("Server=s;DATABASE"), std::string::npos);
  EXPECT_NE(Text("Server=s;Encrypt=no", options).find("Encrypt=yes;"), std::string::npos);
  EXPECT_NE(Text("Server=s;Encrypt=strict", options).find("Encrypt=strict;"), std::string::npos);
}

using Passwords = std::vector<std::string>;

TEST(PasswordsIn, ReadsPlainAndBracedValues) {
  EXPECT_EQ(PasswordsIn("DRIVER={a;b};Pwd=word;UID=u"), Passwords{"word"});
  EXPECT_EQ(PasswordsIn("PWD={a;b}}c=};UID=u"), Passwords{"a;b}c="});
  EXPECT_EQ(PasswordsIn("UID=u;PWD=last"), Passwords{"last"});
  EXPECT_EQ(PasswordsIn("UID=u;PWD={open"), Passwords{"open"});
  EXPECT_EQ(PasswordsIn("db.example:5432"), Passwords{});
}

TEST(PasswordsIn, ReadsEitherNameAsOftenAsItIsThere) {
  EXPECT_EQ(PasswordsIn("Password=a;PWD=b;password={c;d}"), (Passwords{"b", "a", "c;d"}));
}

TEST(PasswordsIn, ReadsBackWhatAConnectionStringWasMadeOf) {
  for (const std::string password : {"geheim;{1}", "}}", "plain", "a=b"}) {
    EXPECT_EQ(PasswordsIn(ConnectionString({"host", "u", password, "d"}, {})), Passwords{password});
  }
}

}  // namespace
}  // namespace qvzj::store
