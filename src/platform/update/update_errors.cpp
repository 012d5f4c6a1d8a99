#include "platform/update/update_errors.h"

#include "base/message.h"

#include <algorithm>
#include <array>
#include <utility>

namespace klarvik {
namespace {

struct CodePair {
  QNetworkReply::NetworkError error;
  std::int64_t code;
};
/// What is not listed is `url_code::unknown`.
constexpr auto codes = std::to_array<CodePair>({
    {QNetworkReply::ConnectionRefusedError, url_code::cannotConnect},
    {QNetworkReply::RemoteHostClosedError, url_code::connectionLost},
    {QNetworkReply::HostNotFoundError, url_code::hostNotFound},
    {QNetworkReply::TimeoutError, url_code::timedOut},
    {QNetworkReply::OperationCanceledError, url_code::cancelled},
    {QNetworkReply::SslHandshakeFailedError, url_code::secureConnectionFailed},
    {QNetworkReply::TemporaryNetworkFailureError, url_code::notConnected},
    {QNetworkReply::NetworkSessionFailedError, url_code::notConnected},
    {QNetworkReply::TooManyRedirectsError, url_code::tooManyRedirects},
    {QNetworkReply::ProxyConnectionRefusedError, url_code::cannotConnect},
    {QNetworkReply::ProxyConnectionClosedError, url_code::connectionLost},
    {QNetworkReply::ProxyNotFoundError, url_code::hostNotFound},
    {QNetworkReply::ProxyTimeoutError, url_code::timedOut},
    {QNetworkReply::ProxyAuthenticationRequiredError, url_code::authenticationRequired},
    {QNetworkReply::ContentAccessDenied, url_code::noPermission},
    {QNetworkReply::ContentOperationNotPermittedError, url_code::noPermission},
    {QNetworkReply::ContentNotFoundError, url_code::fileNotFound},
    {QNetworkReply::AuthenticationRequiredError, url_code::authenticationRequired},
    {QNetworkReply::ContentGoneError, url_code::notAvailable},
    {QNetworkReply::ProtocolUnknownError, url_code::badAddress},
    {QNetworkReply::ProtocolInvalidOperationError, url_code::badResponse},
    {QNetworkReply::UnknownContentError, url_code::badResponse},
    {QNetworkReply::ProtocolFailure, url_code::badResponse},
    {QNetworkReply::InternalServerError, url_code::badResponse},
    {QNetworkReply::OperationNotImplementedError, url_code::badResponse},
    {QNetworkReply::ServiceUnavailableError, url_code::badResponse},
    {QNetworkReply::UnknownServerError, url_code::badResponse},
});

}  // namespace

bool isSecure(const QUrl& url) {
  return url.isValid() && url.scheme() == u"https" && !url.host().isEmpty();
}

std::int64_t urlCode(QNetworkReply::NetworkError error, bool hasNetwork) {
  const auto found = std::ranges::find(codes, error, &CodePair::error);
  const std::int64_t code = found != codes.end() ? found->code : url_code::unknown;
  const bool hidesWhatIsMissing = code == url_code::hostNotFound || code == url_code::unknown;
  return hidesWhatIsMissing && !hasNetwork ? url_code::notConnected : code;
}

UpdaterError urlError(std::int64_t code, Message description) {
  return {urlErrorDomain, code, std::move(description)};
}

UpdaterError wrapped(std::int64_t code, Message description, UpdaterError cause) {
  return {updaterErrorDomain, code, std::move(description),
          std::make_shared<const UpdaterError>(std::move(cause))};
}

UpdaterError notAcceptable(Message description) {
  return {updaterErrorDomain, updater_code::updateNotAcceptable, std::move(description)};
}

}  // namespace klarvik
