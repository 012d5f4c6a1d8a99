#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/update/appcast.h"
#include "platform/updater.h"

namespace klarvik {

/// What runs here, for which an update is looked for.
struct RunningProgram {
  std::string build;           ///< "CFBundleVersion"
  std::string displayVersion;  ///< "CFBundleShortVersionString"
  std::optional<std::string>
      publicKey;  ///< 32 bytes; nothing: no update can be told from a forgery
  std::string systemVersion;
};

/// An item that may be offered: it is signed, and all that is left to be compared is the archive.
struct UpdateOffer {
  std::string version;  ///< as people call it; nothing but a version
  std::string notes;
  std::string notesLink;
  std::string address;
  std::int64_t length = 0;
  std::string digest;  ///< SHA-256 of the archive, 32 bytes

  bool operator==(const UpdateOffer&) const = default;
};

struct NothingNewer {};

/// The newest item that this program may be replaced by. An error when there are newer ones, but
/// none of them can be accepted.
[[nodiscard]] std::variant<UpdateOffer, NothingNewer, UpdaterError> chooseUpdate(
    const std::vector<AppcastItem>& items, const RunningProgram& running, std::int64_t mostBytes);

}  // namespace klarvik
