#include "platform/update/update_choice.h"

#include <QUrl>
#include <algorithm>

#include "base/message.h"
#include "base/text.h"
#include "platform/base64.h"
#include "platform/update/release_signature.h"
#include "platform/update/update_errors.h"
#include "platform/update/version.h"

namespace klarvik {
namespace {

constexpr const char* thisSystem = "linux";
constexpr std::size_t digestBytes = 32;
constexpr std::size_t signatureBytes = 64;

struct Candidate {
  Version version;
  const AppcastItem* item;
};

/// False also when either text is no version: what cannot be compared is never newer.
bool isBefore(const std::string& left, const std::string& right) {
  const auto former = Version::parse(left);
  const auto latter = Version::parse(right);
  return former && latter && *former < *latter;
}

bool isNotAfter(const std::string& left, const std::string& right) {
  const auto former = Version::parse(left);
  const auto latter = Version::parse(right);
  return former && latter && *former <= *latter;
}

bool isForThisSystem(const AppcastItem& item, const RunningProgram& running) {
  return item.channel.empty() && (item.system.empty() || item.system == thisSystem) &&
         (item.minimumSystem.empty() || isNotAfter(item.minimumSystem, running.systemVersion)) &&
         (item.maximumSystem.empty() || isNotAfter(running.systemVersion, item.maximumSystem));
}

/// A feed that calls an older release by a higher number would take the user back.
bool isNewer(const AppcastItem& item, const RunningProgram& running) {
  return isBefore(running.build, item.version) &&
         !isBefore(item.displayVersion, running.displayVersion);
}

/// The newest first; of equals, the one that stands first in the feed.
std::vector<Candidate> newerItems(const std::vector<AppcastItem>& items,
                                  const RunningProgram& running) {
  std::vector<Candidate> newer;
  for (const AppcastItem& item : items) {
    if (isForThisSystem(item, running) && isNewer(item, running)) {
      newer.push_back({*Version::parse(item.version), &item});
    }
  }
  std::ranges::stable_sort(newer, std::ranges::greater{}, &Candidate::version);
  return newer;
}

std::int64_t lengthOf(const AppcastItem& item) {
  return wholeNumber<std::int64_t>(item.length).value_or(0);
}

std::string secureAddress(const std::string& text) {
  const QUrl url(QString::fromStdString(text), QUrl::StrictMode);
  return isSecure(url) ? text : std::string();
}

/// What follows a "+" may be any text, and is not for a title or the name of a file.
std::string shownVersion(const AppcastItem& item) {
  const std::string& version =
      Version::parse(item.displayVersion) ? item.displayVersion : item.version;
  return version.substr(0, version.find('+'));
}

bool isSigned(const AppcastItem& item, const UpdateOffer& offer, const std::string& signature,
              const std::string& publicKey) {
  const auto statement = releaseStatement({.version = item.version,
                                           .displayVersion = item.displayVersion,
                                           .length = offer.length,
                                           .digest = offer.digest});
  return statement && isSignedBy(publicKey, *statement, signature);
}

std::variant<UpdateOffer, UpdaterError> offerOf(const AppcastItem& item,
                                                const std::string& publicKey,
                                                std::int64_t mostBytes) {
  UpdateOffer offer;
  offer.version = shownVersion(item);
  offer.notes = item.notes;
  offer.notesLink = secureAddress(item.notesLink);
  offer.address = secureAddress(item.address);
  offer.length = lengthOf(item);
  offer.digest = bytesOfBase64(item.digest).value_or("");
  const std::string signature = bytesOfBase64(item.signature).value_or("");
  if (offer.address.empty()) {
    return notAcceptable(
        {QT_TRANSLATE_NOOP(
             "Engine",
             "Version %1 is not offered over a secure connection, so Klarvik leaves it alone."),
         {offer.version}});
  }
  if (offer.length <= 0 || offer.length > mostBytes) {
    return notAcceptable(
        {QT_TRANSLATE_NOOP("Engine",
                           "Version %1 does not say how long it is, so Klarvik leaves it alone."),
         {offer.version}});
  }
  if (offer.digest.size() != digestBytes || signature.size() != signatureBytes) {
    return notAcceptable(
        {QT_TRANSLATE_NOOP("Engine", "Version %1 is not signed, so Klarvik leaves it alone."),
         {offer.version}});
  }
  if (!isSigned(item, offer, signature, publicKey)) {
    return notAcceptable(
        {QT_TRANSLATE_NOOP(
             "Engine",
             "Version %1 is not signed by the makers of Klarvik, so Klarvik leaves it alone."),
         {offer.version}});
  }
  return offer;
}

}  // namespace

std::variant<UpdateOffer, NothingNewer, UpdaterError> chooseUpdate(
    const std::vector<AppcastItem>& items, const RunningProgram& running, std::int64_t mostBytes) {
  const std::vector<Candidate> newer = newerItems(items, running);
  if (newer.empty()) return NothingNewer{};
  if (!running.publicKey) {
    return notAcceptable(QT_TRANSLATE_NOOP(
        "Engine",
        "There is a newer version, but this copy of Klarvik has no key to check it with."));
  }
  std::optional<UpdaterError> objection;
  for (const Candidate& candidate : newer) {
    auto judged = offerOf(*candidate.item, *running.publicKey, mostBytes);
    if (auto* const offer = std::get_if<UpdateOffer>(&judged)) return std::move(*offer);
    if (!objection) objection = std::get<UpdaterError>(judged);
  }
  return *objection;
}

}  // namespace klarvik
