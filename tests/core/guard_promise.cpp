#include "guard_promise.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace klarvik {
namespace {

Path resolved(const Path& path) {
  const Path normal = path.lexically_normal();
  return normal.has_filename() ? normal : normal.parent_path();
}

bool isAtOrBelow(const Path& path, const Path& folder) {
  const auto ends = std::mismatch(folder.begin(), folder.end(), path.begin(), path.end());
  return ends.first == folder.end();
}

std::ptrdiff_t depthBelow(const Path& path, const Path& folder) {
  return std::distance(path.begin(), path.end()) - std::distance(folder.begin(), folder.end());
}

constexpr std::array neverBelow{"/System",
                                "/bin",
                                "/sbin",
                                "/usr/bin",
                                "/usr/sbin",
                                "/usr/lib",
                                "/Library/Keychains",
                                "/private/var/db",
                                "/private/var/vm",
                                "/private/var/folders",
                                "/.Spotlight-V100",
                                "/Library/Apple/usr/libexec/oah"};

constexpr std::array neverItself{"/",    "/Applications", "/Library", "/System", "/Users",
                                 "/bin", "/sbin",         "/usr",     "/etc",    "/var",
                                 "/opt", "/private",      "/Volumes"};

constexpr std::array usersOwn{"Desktop",
                              "Documents",
                              "Downloads",
                              "Pictures",
                              "Movies",
                              "Music",
                              "Library/Keychains",
                              "Library/Mobile Documents",
                              "Library/CloudStorage",
                              "Library/Preferences",
                              "Library/Application Support/AddressBook",
                              "Library/Messages",
                              "Library/Mail",
                              "Library/Containers/com.apple.mail",
                              "Library/Calendars",
                              "Library/Reminders",
                              "Library/Safari",
                              "Library/Application Support/MobileSync",
                              "Library/PersonalizationPortrait",
                              "Library/Photos",
                              "Library/Sharing"};

constexpr std::array sharedPlaces{"/private/tmp", "/tmp", "/.MobileBackups", "/Library/Caches",
                                  "/private/var/log"};

constexpr std::array linuxSharedPlaces{"/tmp", "/var/tmp", "/var/crash"};

constexpr std::array linuxNever{
    ".ssh", ".gnupg",           ".password-store", ".local/share/keyrings",
    ".aws", ".mozilla/firefox", ".thunderbird",    "Documents/x.kdbx"};

// A residual may lie in the Library of the machine as well.
constexpr std::array machineLibrary{"/Library/Preferences",
                                    "/Library/Caches",
                                    "/Library/Application Support",
                                    "/Library/Containers",
                                    "/Library/Group Containers",
                                    "/Library/Saved Application State",
                                    "/Library/HTTPStorages",
                                    "/Library/WebKit",
                                    "/Library/Logs",
                                    "/Library/Cookies",
                                    "/Library/Application Scripts"};

template <class Places>
bool liesBelowOneOf(const Path& path, const Places& places) {
  return std::ranges::any_of(places, [&](const Path& place) {
    return isAtOrBelow(path, place) && depthBelow(path, place) >= 1;
  });
}

}  // namespace

std::optional<std::string> violatedInvariant(const Path& given, const DeletionScope& scope,
                                             const Path& givenHome) {
  if (DeletionGuard::refusalReason(given, scope, givenHome)) return std::nullopt;
  const bool isResidual = scope.kind == DeletionScope::Kind::residual;
  if (given.native().find('\0') != std::string::npos) return "a path that the disk reads in part";
  if (!given.is_absolute()) return "a relative path";

  const Path path = resolved(given);
  const Path home = resolved(givenHome);
  const bool isMac = isAtOrBelow(home, "/Users") && home != "/Users";
  const bool homeIsReal = home.is_absolute() && home != "/";
  for (const Path place : neverItself) {
    if (path == place) return "a system directory";
  }
  for (const Path place : neverBelow) {
    if (!isMac && homeIsReal && isAtOrBelow(path, home)) break;
    if (isAtOrBelow(path, place) && path != place) return "below " + place.native();
  }
  if (homeIsReal && isAtOrBelow(path, home)) {
    if (!isMac) {
      for (const Path never : linuxNever) {
        const bool isResidualOfTheBrowser = isResidual && never.native().starts_with(".mozilla");
        if (isAtOrBelow(path, home / never) && !isResidualOfTheBrowser) return "secrets, or mail";
      }
      return depthBelow(path, home) < 1 ? std::optional<std::string>("the home") : std::nullopt;
    }
    if (depthBelow(path, home) < 2) return "the home, or directly in it";
    for (const Path own : usersOwn) {
      const bool isOwn = isAtOrBelow(path, home / own);
      if (isOwn && scope.kind == DeletionScope::Kind::general) return "the user's own files";
    }
    return std::nullopt;
  }
  if (isAtOrBelow(path, "/Users")) return "another account";
  const bool isShared =
      isMac ? liesBelowOneOf(path, sharedPlaces) : liesBelowOneOf(path, linuxSharedPlaces);
  const bool isMachineResidual = isResidual && liesBelowOneOf(path, machineLibrary);
  if (!isShared && !isMachineResidual) return "outside of every cleanable place";
  return std::nullopt;
}

}  // namespace klarvik
