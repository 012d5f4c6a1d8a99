#include "platform/update/update_errors.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

TEST(UpdateErrors, SayInTheCodesOfTheUrlDomainWhatQtReports) {
  EXPECT_EQ(urlCode(QNetworkReply::TimeoutError, true), -1001);
  EXPECT_EQ(urlCode(QNetworkReply::HostNotFoundError, true), -1003);
  EXPECT_EQ(urlCode(QNetworkReply::ConnectionRefusedError, true), -1004);
  EXPECT_EQ(urlCode(QNetworkReply::RemoteHostClosedError, true), -1005);
  EXPECT_EQ(urlCode(QNetworkReply::TooManyRedirectsError, true), -1007);
  EXPECT_EQ(urlCode(QNetworkReply::ContentGoneError, true), -1008);
  EXPECT_EQ(urlCode(QNetworkReply::TemporaryNetworkFailureError, true), -1009);
  EXPECT_EQ(urlCode(QNetworkReply::InternalServerError, true), -1011);
  EXPECT_EQ(urlCode(QNetworkReply::ServiceUnavailableError, true), -1011);
  EXPECT_EQ(urlCode(QNetworkReply::ContentNotFoundError, true), -1100);
  EXPECT_EQ(urlCode(QNetworkReply::SslHandshakeFailedError, true), -1200);
  EXPECT_EQ(urlCode(QNetworkReply::UnknownNetworkError, true), -1);
}

TEST(UpdateErrors, WithoutANetworkAHostThatIsNotFoundMeansNoConnection) {
  EXPECT_EQ(urlCode(QNetworkReply::HostNotFoundError, false), -1009);
  EXPECT_EQ(urlCode(QNetworkReply::UnknownNetworkError, false), -1009);
  EXPECT_EQ(urlCode(QNetworkReply::ContentNotFoundError, false), -1100);
}

TEST(UpdateErrors, OnlyHttpsIsSecure) {
  EXPECT_TRUE(isSecure(QUrl("https://example.com/feed.xml")));
  EXPECT_TRUE(isSecure(QUrl("HTTPS://example.com")));
  for (const char* const address : {"", "http://example.com", "https:", "https:///x", "ftp://a/b",
                                    "file:///x", "//example.com/x"}) {
    EXPECT_FALSE(isSecure(QUrl(address))) << address;
  }
}

}  // namespace
}  // namespace klarvik
