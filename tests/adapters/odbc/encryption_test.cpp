#include <gtest/gtest.h>

#include <filesystem>

#include "platform/basic/errors.h"
#include "tests/adapters/odbc/server.h"

namespace qvzj::test {
namespace {

/// A server that offers encryption, shared by the tests of this file.
PrivatePostgres& Encrypting() {
  static PrivatePostgres server({"ssl=on"});
  return server;
}

class Encryption : public testing::Test {
 protected:
  void SetUp() override {
    QV_NEEDS_SERVER();
    if (!std::filesystem::exists("/usr/bin/openssl")) GTEST_SKIP() << "openssl is not installed";
  }
  static store::ServerLogin Login(const PrivatePostgres& server) {
    return {server.Address(), PrivatePostgres::kUser, PrivatePostgres::kPassword, "postgres"};
  }
  /// "true" or "false" as the connection is encrypted, or why there is none.
  static std::string Encrypted(const store::ServerLogin& login,
                               const store::ConnectionOptions& options) {
    try {
      return store::OpenServer(login, options)
          ->Native("select ssl::text from pg_stat_ssl where pid=pg_backend_pid()")
          .Text(0);
    } catch (const DataError& error) {
      return error.what();
    }
  }
  /// A whole connection string to a server that says `words` of its own.
  static store::ServerLogin Whole(const PrivatePostgres& server, const std::string& words) {
    const std::string address = server.Address();
    return {"DRIVER={PostgreSQL Unicode};SERVER=127.0.0.1;PORT=" +
                address.substr(address.find(':') + 1) + ";" + words,
            PrivatePostgres::kUser, PrivatePostgres::kPassword, "postgres"};
  }

  store::ConnectionOptions options_;
};

/// Ways to say in a connection string that no encryption is needed; to a driver a word that it
/// does not know is one of them.
constexpr const char* kWeak[] = {
    "SSLmode=disable",
    "SSLmode=allow;SSLmode=disable",
    "SSLmode=require;SSLmode=disable",
    "SSLmode=require;CA=d",
    "SSLmode={require}",
    "SSLmode=Require",
    "sslmode = disable",
};

TEST_F(Encryption, IsUsedWhereTheServerOffersIt) {
  EXPECT_EQ(Encrypted(Login(Encrypting()), options_), "true");
  EXPECT_EQ(Encrypted(Login(Server()), options_), "false");
}

TEST_F(Encryption, IsHeldToWhereItIsRequiredWhateverAConnectionStringSays) {
  options_.server.require_tls = true;
  EXPECT_EQ(Encrypted(Login(Encrypting()), options_), "true");
  for (const char* words : kWeak) {
    EXPECT_EQ(Encrypted(Whole(Encrypting(), words), options_), "true") << words;
    const std::string said = Encrypted(Whole(Server(), words), options_);
    EXPECT_NE(said.find("does not support SSL"), std::string::npos) << words << ": " << said;
  }
}

TEST_F(Encryption, IsHeldToAgainstTheOptionsThatAConnectionStringHandsOn) {
  options_.server.require_tls = true;
  const std::string said = Encrypted(Whole(Server(), "pqopt={sslmode=disable}"), options_);
  EXPECT_NE(said.find("sslmode parameter in pqopt"), std::string::npos) << said;
}

TEST_F(Encryption, IsTakenFromAServerWhoseCertificateComesFromTheRootThatIsGiven) {
  options_.server.root_certificate = Encrypting().RootCertificate().string();
  EXPECT_EQ(Encrypted(Login(Encrypting()), options_), "true");
  EXPECT_EQ(Encrypted(Whole(Encrypting(), "SSLmode=disable"), options_), "true");
  EXPECT_NE(Encrypted(Login(Server()), options_), "false");
}

TEST_F(Encryption, IsNotTakenFromAServerOfAnotherRoot) {
  PrivatePostgres other({"ssl=on"});
  options_.server.root_certificate = other.RootCertificate().string();
  const std::string said = Encrypted(Login(Encrypting()), options_);
  EXPECT_NE(said.find("certificate verify failed"), std::string::npos) << said;
  EXPECT_EQ(Encrypted(Login(other), options_), "true");
}

TEST_F(Encryption, IsNotTakenWithoutTheRootThatIsAskedFor) {
  options_.server.root_certificate = "/nowhere/root.crt";
  const std::string said = Encrypted(Login(Encrypting()), options_);
  EXPECT_NE(said.find("/nowhere/root.crt"), std::string::npos) << said;
}

TEST_F(Encryption, AsksForTheServersNameInItsCertificateUnlessAConnectionStringLeavesItOut) {
  options_.server.root_certificate = Encrypting().RootCertificate().string();
  store::ServerLogin login = Login(Encrypting());
  login.address = "localhost" + login.address.substr(login.address.find(':'));
  const std::string said = Encrypted(login, options_);
  EXPECT_NE(said.find("does not match host name"), std::string::npos) << said;
  login.address = "DRIVER={PostgreSQL Unicode};SERVER=localhost;PORT=" +
                  login.address.substr(login.address.find(':') + 1) + ";SSLmode=verify-ca";
  EXPECT_EQ(Encrypted(login, options_), "true");
}

}  // namespace
}  // namespace qvzj::test
