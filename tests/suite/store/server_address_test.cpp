#include "suite/store/server_address.h"

#include <gtest/gtest.h>

#include "platform/basic/errors.h"
#include "platform/data/details.h"

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
  EXPECT_NE(Text("[::1]:5433").find("SERVER=::1;PORT=5433;"), std::string::npos)
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

std::string Login(const ServerLogin& login) { return ConnectionString(login, {}); }

TEST(ServerAddress, GivesANameAsItStandsBecauseTheDriverKeepsTheBraces) {
  EXPECT_NE(Login({"h", "a b,c@d", "", "x(1)+%41"}).find("DATABASE=x(1)+%41;UID=a b,c@d;"),
            std::string::npos);
  EXPECT_NE(Login({"Server=h;UID={a,b};Servername={::1}", "", "", ""})
                .find("Server=h;UID=a,b;Servername=::1;"),
            std::string::npos);
}

TEST(ServerAddress, HandsANameThatWouldEndAValueOnToTheClientLibrary) {
  const std::string text = Login({"h", "a;'b", "", " {é}"});
  EXPECT_NE(text.find("pqopt={postgresql:///?dbname=%20%7B%C3%A9%7D&user=a%3B%27b};"),
            std::string::npos)
      << text;
  EXPECT_EQ(text.find("UID="), std::string::npos) << text;
  EXPECT_EQ(text.find("DATABASE="), std::string::npos) << text;
}

TEST(ServerAddress, AddsToTheOptionsThatAWholeConnectionStringHandsOn) {
  EXPECT_NE(Login({"Server=h;pqopt={application_name='x}}'}", "a;'\\b", "", ""})
                .find("pqopt={application_name='x}}' user='a;\\'\\\\b'};"),
            std::string::npos);
  EXPECT_NE(Login({"Server=h;pqopt=postgres://?port=1", "a;b", "", ""})
                .find("pqopt={postgres://?port=1&user=a%3Bb};"),
            std::string::npos);
}

TEST(ServerAddress, RefusesANameThatADataSourceCannotTake) {
  ServerOptions options;
  options.is_data_source = [](const std::string&) { return true; };
  EXPECT_THROW(ConnectionString({"Books", "a;b", "", ""}, options), DataError);
  EXPECT_THROW(ConnectionString({"DSN=Books", "", "", "a;b"}, {}), DataError);
}

TEST(ServerAddress, BracesAPasswordThatTheDriverWouldDecode) {
  for (const char* password : {"50%41", "a+b", "a;b"}) {
    const std::string braced = "PWD={" + std::string(password) + "};";
    EXPECT_NE(Login({"h", "u", password, ""}).find(braced), std::string::npos) << password;
  }
  EXPECT_NE(Login({"Server=h;PWD = a+b", "u", "", ""}).find("PWD={a+b};"), std::string::npos);
}

TEST(ServerAddress, LetsNoRepeatedOrShortenedWordWeakenTheEncryptionThatIsRequired) {
  ServerOptions options;
  options.require_tls = true;
  for (const char* said :
       {"SSLmode=allow;SSLmode=disable", "SSLmode=require;SSLmode=disable", "sslmode = disable",
        "SSLMODE=Require;CA=d", "PWD={SSLmode=verify-full;};SSLmode={disable}", "CA=p"}) {
    const std::string text = Text(std::string(said) + ";Server=s", options);
    EXPECT_NE(text.find(";SSLmode=require;"), std::string::npos) << text;
    size_t found = 0;
    for (const data::Detail& detail : data::DetailsIn(text)) {
      if (detail.Is("SSLmode") || detail.Is("CA")) ++found;
    }
    EXPECT_EQ(found, 1U) << text;
  }
  EXPECT_NE(Text("SSLmode=disable;CA=vf;Server=s", options).find("SSLmode=verify-full;"),
            std::string::npos);
}

TEST(ServerAddress, WritesTheWayOfEncryptionAsTheDriverReadsIt) {
  EXPECT_NE(Text("Server=s;SSLMODE={Require}").find(";SSLmode=require;"), std::string::npos);
  EXPECT_NE(Text("Server=s;ca=vc").find(";SSLmode=verify-ca;"), std::string::npos);
}

TEST(ServerAddress, LooksForNoEncryptionWithinBraces) {
  const std::string text = Text("Server=s;PWD={x;SSLmode=disable}");
  EXPECT_NE(text.find("PWD={x;SSLmode=disable};"), std::string::npos) << text;
  EXPECT_NE(text.find(";SSLmode=prefer;"), std::string::npos) << text;
}

TEST(ServerAddress, AsksForACertificateOfTheRootThatIsGiven) {
  ServerOptions options;
  options.root_certificate = "/etc/root;1.crt";
  const std::string text = Text("h", options);
  EXPECT_NE(text.find(";SSLmode=verify-full;"), std::string::npos) << text;
  EXPECT_NE(text.find(";pqopt={postgresql:///?sslrootcert=%2Fetc%2Froot%3B1%2Ecrt};"),
            std::string::npos)
      << text;
  EXPECT_NE(Text("Server=s;SSLmode=require", options).find(";SSLmode=verify-full;"),
            std::string::npos);
  EXPECT_NE(Text("Server=s;SSLmode=verify-ca", options).find(";SSLmode=verify-ca;"),
            std::string::npos);
  options.kind = ServerKind::TransactSql;
  EXPECT_THROW(Text("h", options), DataError);
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

}  // namespace
}  // namespace qvzj::store
