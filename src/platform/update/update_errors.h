#pragma once

#include <QNetworkReply>
#include <QUrl>
#include <cstdint>
#include <string>

#include "base/message.h"
#include "platform/updater.h"

namespace klarvik {

/// What the network's codes mean in `urlErrorDomain`.
namespace url_code {
inline constexpr std::int64_t unknown = -1;
inline constexpr std::int64_t cancelled = -999;
inline constexpr std::int64_t badAddress = -1000;
inline constexpr std::int64_t timedOut = -1001;
inline constexpr std::int64_t hostNotFound = -1003;
inline constexpr std::int64_t cannotConnect = -1004;
inline constexpr std::int64_t connectionLost = -1005;
inline constexpr std::int64_t tooManyRedirects = -1007;
inline constexpr std::int64_t notAvailable = -1008;
inline constexpr std::int64_t notConnected = -1009;
inline constexpr std::int64_t badResponse = -1011;
inline constexpr std::int64_t authenticationRequired = -1013;
inline constexpr std::int64_t fileNotFound = -1100;
inline constexpr std::int64_t noPermission = -1102;
inline constexpr std::int64_t tooLong = -1103;
inline constexpr std::int64_t secureConnectionFailed = -1200;
}  // namespace url_code

/// Whether what lies at the address comes over HTTPS, from a host that it names.
[[nodiscard]] bool isSecure(const QUrl& url);

/// The code of `urlErrorDomain` for what Qt reports. Without a network, no host can be found.
[[nodiscard]] std::int64_t urlCode(QNetworkReply::NetworkError error, bool hasNetwork);

[[nodiscard]] UpdaterError urlError(std::int64_t code, Message description);
/// What the updater could not do because of `cause`.
[[nodiscard]] UpdaterError wrapped(std::int64_t code, Message description, UpdaterError cause);
/// A newer version that will not be offered, or will not be installed.
[[nodiscard]] UpdaterError notAcceptable(Message description);

}  // namespace klarvik
