// SPDX-License-Identifier: GPL-2.0-or-later

// Transfers by https.
#include "update/http_transfer_fixture.h"

#include <QFile>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>

namespace quorvin::test {
namespace {

QByteArray certificateFile(const char* name) {
  QFile file(QStringLiteral(QUORVIN_TEST_CERTIFICATES "/") + QLatin1String(name));
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error(std::string("no certificate ") + name);
  return file.readAll();
}

/// Trusts the tests' authority as long as the object lives.
class TrustedAuthority {
 public:
  TrustedAuthority() : before_(QSslConfiguration::defaultConfiguration()) {
    QSslConfiguration trusting = before_;
    trusting.addCaCertificate(QSslCertificate(certificateFile("authority.pem")));
    QSslConfiguration::setDefaultConfiguration(trusting);
  }
  ~TrustedAuthority() { QSslConfiguration::setDefaultConfiguration(before_); }
  TrustedAuthority(const TrustedAuthority&) = delete;
  TrustedAuthority& operator=(const TrustedAuthority&) = delete;

 private:
  QSslConfiguration before_;
};

std::unique_ptr<QTcpServer> secureServer(const char* certificate) {
  auto server = std::make_unique<QSslServer>();
  QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
  configuration.setLocalCertificate(QSslCertificate(certificateFile(certificate)));
  configuration.setPrivateKey(QSslKey(certificateFile("server.key"), QSsl::Rsa));
  server->setSslConfiguration(configuration);
  return server;
}

class HttpSecureTransfer : public HttpTransferTest {
 protected:
  Outcome getSecurely(const char* certificate, const QByteArray& answer) {
    ScriptedWebServer server({sends(answer)}, secureServer(certificate));
    HttpNetworkTransfer transfer;
    const Outcome outcome =
        HttpTransferTest::get(transfer, QUrl(u"https://"_qs + server.host() + u"/main.zip"_qs));
    requests_ = server.requests.size();
    return outcome;
  }

  std::size_t requests_ = 0;
};

TEST_F(HttpSecureTransfer, RefusesACertificateThatAServerSignedForItself) {
  const Outcome outcome = getSecurely("self-signed.pem", goodAnswer("body"));
  EXPECT_EQ(outcome.fault, 57);
  EXPECT_EQ(outcome.body, QByteArray());
  EXPECT_EQ(requests_, 0U);
}

TEST_F(HttpSecureTransfer, RefusesACertificateOfAnUnknownAuthority) {
  EXPECT_EQ(getSecurely("server.pem", goodAnswer("body")).fault, 57);
  EXPECT_EQ(requests_, 0U);
}

TEST_F(HttpSecureTransfer, TakesACertificateOfATrustedAuthority) {
  const TrustedAuthority trusted;
  const Outcome outcome = getSecurely("server.pem", goodAnswer("body"));
  EXPECT_EQ(outcome.fault, 0);
  EXPECT_EQ(outcome.body, QByteArray("body"));
  EXPECT_EQ(requests_, 1U);
}

TEST_F(HttpSecureTransfer, RefusesATrustedCertificateOfAnotherHost) {
  const TrustedAuthority trusted;
  ScriptedWebServer server({sends(goodAnswer("body"))}, secureServer("server.pem"));
  HttpNetworkTransfer transfer;
  QUrl address(u"https://"_qs + server.host() + u"/main.zip"_qs);
  address.setHost(u"localhost"_qs);
  EXPECT_EQ(HttpTransferTest::get(transfer, address).fault, 57);
  EXPECT_EQ(server.requests.size(), 0U);
}

TEST_F(HttpSecureTransfer, DoesNotFollowARedirectToLessSafety) {
  const TrustedAuthority trusted;
  ScriptedWebServer plain({sends(goodAnswer("body"))});
  const Outcome outcome = getSecurely("server.pem", redirectTo(plain.address().toEncoded()));
  EXPECT_EQ(outcome.fault, 70);
  EXPECT_EQ(plain.requests.size(), 0U);
}

TEST_F(HttpSecureTransfer, FollowsARedirectToMoreSafety) {
  const TrustedAuthority trusted;
  ScriptedWebServer secure({sends(goodAnswer("body"))}, secureServer("server.pem"));
  EXPECT_EQ(get({sends(redirectTo("https://" + secure.host().toLatin1() + "/main.zip"))}).body,
            QByteArray("body"));
}

}  // namespace
}  // namespace quorvin::test
