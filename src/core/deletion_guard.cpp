#include "core/deletion_guard.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "platform/unicode_text.h"

namespace klarvik {
namespace {

using Refusal = std::optional<std::string>;
constexpr std::nullopt_t allowed = std::nullopt;

constexpr std::array<std::string_view, 13> systemDirectories{
    "/",    "/Applications", "/Library", "/System", "/Users",   "/bin",    "/sbin",
    "/usr", "/etc",          "/var",     "/opt",    "/private", "/Volumes"};

constexpr std::array<std::string_view, 8> protectedPrefixes{"/System/",
                                                            "/bin/",
                                                            "/sbin/",
                                                            "/usr/bin/",
                                                            "/usr/sbin/",
                                                            "/usr/lib/",
                                                            "/Library/Keychains/",
                                                            "/private/var/db/"};

constexpr std::array<std::string_view, 4> managedPrefixes{
    "/private/var/vm/", "/private/var/folders/", "/.Spotlight-V100",
    "/Library/Apple/usr/libexec/oah"};

constexpr std::array<std::string_view, 22> protectedHomePaths{
    "Desktop",
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
    "Library/Application Support/AddressBook",
    "Library/PersonalizationPortrait",
    "Library/Photos",
    "Library/Sharing"};

constexpr std::array<std::string_view, 11> residualRoots{"Library/Preferences",
                                                         "Library/Caches",
                                                         "Library/Application Support",
                                                         "Library/Containers",
                                                         "Library/Group Containers",
                                                         "Library/Saved Application State",
                                                         "Library/HTTPStorages",
                                                         "Library/WebKit",
                                                         "Library/Logs",
                                                         "Library/Cookies",
                                                         "Library/Application Scripts"};

constexpr std::array<std::string_view, 5> cleanableOutsideHome{
    "/private/tmp/", "/tmp/", "/.MobileBackups/", "/Library/Caches/", "/private/var/log/"};

template <class... Parts>
Refusal refuse(const Parts&... parts) {
  std::string sentence;
  (sentence.append(parts), ...);
  return sentence;
}

std::vector<std::string_view> pieces(std::string_view path) {
  std::vector<std::string_view> found;
  while (!path.empty()) {
    const std::string_view piece = path.substr(0, path.find('/'));
    if (!piece.empty()) found.push_back(piece);
    path.remove_prefix(std::min(piece.size() + 1, path.size()));
  }
  return found;
}

bool isBelow(std::string_view path, std::string_view folder) {
  return path.size() > folder.size() && path.starts_with(folder) && path[folder.size()] == '/';
}

template <std::size_t count>
const std::string_view* firstPrefixOf(std::string_view path,
                                      const std::array<std::string_view, count>& prefixes) {
  const auto* found =
      std::ranges::find_if(prefixes, [&](auto prefix) { return path.starts_with(prefix); });
  return found != prefixes.end() ? found : nullptr;
}

bool isSystemDirectory(std::string_view path) {
  return std::ranges::find(systemDirectories, path) != systemDirectories.end();
}

// An account without a home of its own is often given "/" or another system directory. What lies
// there belongs to everybody.
bool isSomeonesHome(std::string_view home) {
  return home.starts_with('/') && !isSystemDirectory(home);
}

std::vector<std::string> distinctiveIdentifiers(const std::vector<std::string>& identifiers) {
  std::vector<std::string> kept;
  for (const std::string& identifier : identifiers) {
    std::string lower = lowercased(identifier);
    if (characterCount(lower) > 3) kept.push_back(std::move(lower));
  }
  return kept;
}

Refusal residualRefusal(std::string_view path, const std::vector<std::string>& allIdentifiers) {
  const std::vector<std::string> identifiers = distinctiveIdentifiers(allIdentifiers);
  if (identifiers.empty()) return refuse("App identifier is too short to match residuals safely.");

  const auto* root =
      std::ranges::find_if(residualRoots, [&](auto entry) { return isBelow(path, entry); });
  if (root == residualRoots.end()) {
    return refuse(path, " is not a place apps leave residual files.");
  }

  const std::string_view rest = path.substr(root->size() + 1);
  const std::vector<std::string_view> restPieces = pieces(rest);
  const std::string_view folder = restPieces.empty() ? rest : restPieces.front();
  const std::string lowerFolder = lowercased(folder);
  const bool belongs = std::ranges::any_of(identifiers, [&](const std::string& id) {
    return lowerFolder.find(id) != std::string::npos;
  });
  if (belongs) return allowed;
  return refuse(folder, " does not belong to the app being removed.");
}

Refusal refusalInHome(std::string_view relative, const DeletionScope& scope) {
  const bool deepEnough = pieces(relative).size() >= 2;
  switch (scope.kind) {
    case DeletionScope::Kind::residual:
      return residualRefusal(relative, scope.identifiers);
    case DeletionScope::Kind::pickedFile:
      if (deepEnough) return allowed;
      return refuse("~/", relative, " is a whole folder, not a file you picked.");
    case DeletionScope::Kind::general:
      break;
  }
  for (const std::string_view entry : protectedHomePaths) {
    if (relative == entry || isBelow(relative, entry)) {
      return refuse("~/", entry, " holds your own files, not junk.");
    }
  }
  if (deepEnough) return allowed;
  return refuse("~/", relative, " is too broad to delete safely.");
}

Refusal refusalOutsideHome(std::string_view path, const DeletionScope& scope) {
  if (path.starts_with("/Users/")) return refuse("Refusing to touch another user account.");
  // Ahead of the cleanable places: a residual in /Library/Caches must still belong to the app.
  if (scope.kind == DeletionScope::Kind::residual && path.starts_with("/Library/")) {
    return residualRefusal(path.substr(1), scope.identifiers);
  }
  if (firstPrefixOf(path, cleanableOutsideHome) != nullptr) return allowed;
  return refuse(path, " is outside the locations Klarvik cleans.");
}

}  // namespace

std::optional<std::string> DeletionGuard::refusalReason(const Path& givenPath,
                                                        const DeletionScope& scope,
                                                        const Path& givenHome) {
  const std::string path = standardizedPath(givenPath).native();
  const std::string home = standardizedPath(givenHome).native();

  // The disk would read such a path only as far as its NUL, which is another path than this one.
  const bool namesAPath = givenPath.native().find('\0') == std::string::npos;
  if (!path.starts_with('/') || !namesAPath) return refuse("Path is not absolute.");
  // Any two dots in a row, also inside a name: wider than needed, and wanted so.
  if (path.find("..") != std::string::npos) {
    return refuse("Path contains a parent-directory reference.");
  }
  if (isSystemDirectory(path)) return refuse(path, " is a system directory.");
  if (const auto* entry = firstPrefixOf(path, protectedPrefixes)) {
    return refuse(*entry, " is protected by macOS and by Klarvik.");
  }
  if (const auto* entry = firstPrefixOf(path, managedPrefixes)) {
    return refuse(*entry, " is managed by macOS while it is running.");
  }
  if (isSomeonesHome(home)) {
    if (path == home) return refuse("Refusing to delete the home directory.");
    if (isBelow(path, home)) {
      return refusalInHome(std::string_view(path).substr(home.size() + 1), scope);
    }
  }
  return refusalOutsideHome(path, scope);
}

Path standardizedPath(const Path& path) {
  const bool absolute = path.native().starts_with('/');
  std::vector<std::string_view> kept;
  for (const std::string_view piece : pieces(path.native())) {
    if (piece == ".") continue;
    if (piece != "..") {
      kept.push_back(piece);
    } else if (!kept.empty() && kept.back() != "..") {
      kept.pop_back();
    } else if (!absolute) {
      kept.push_back(piece);
    }
  }
  std::string text = absolute ? "/" : "";
  for (const std::string_view piece : kept) {
    if (piece.data() != kept.front().data()) text += '/';
    text += piece;
  }
  return text;
}

}  // namespace klarvik
