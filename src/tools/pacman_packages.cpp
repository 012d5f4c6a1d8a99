#include "tools/pacman_packages.h"

#include "base/text.h"
#include "platform/file_system.h"

namespace klarvik {
namespace {

constexpr std::string_view recordsFolder = "/var/lib/pacman/local";
// The largest package has some 100,000 files.
constexpr std::size_t longestFileList = 64UL * 1024 * 1024;
constexpr std::size_t longestDescription = 1024UL * 1024;
constexpr std::int64_t largestSize = std::int64_t{1} << 50;

/// A heading stands between two such signs, and its values below it to the next empty line.
bool isHeading(std::string_view line) {
  return line.size() > 2 && line.starts_with('%') && line.ends_with('%');
}

std::optional<PacmanDescription> descriptionIn(const FileSystem& files, const Path& folder) {
  const auto text = textOfFile(files, folder / "desc", longestDescription);
  return text ? readPacmanDescription(*text) : std::nullopt;
}

}  // namespace

std::optional<PacmanDescription> readPacmanDescription(std::string_view text) {
  PacmanDescription description;
  std::string_view heading;
  while (!text.empty()) {
    const std::string_view line = takeLine(text);
    if (line.empty()) {
      heading = {};
    } else if (heading.empty() && isHeading(line)) {
      heading = line;
    } else if (heading == "%NAME%" && description.name.empty()) {
      description.name = line;
    } else if (heading == "%SIZE%") {
      const auto bytes = decimalInteger(line);
      if (bytes && *bytes >= 0 && *bytes <= largestSize) description.bytes = *bytes;
    }
  }
  if (description.name.empty()) return std::nullopt;
  return description;
}

std::vector<std::string_view> pacmanFilesOf(std::string_view text,
                                            const std::set<std::string, std::less<>>& wanted) {
  std::vector<std::string_view> found;
  bool isInFiles = false;
  while (!text.empty()) {
    const std::string_view line = takeLine(text);
    if (line.empty()) {
      isInFiles = false;
    } else if (isHeading(line)) {
      isInFiles = line == "%FILES%";
    } else if (isInFiles && wanted.contains(line)) {
      found.push_back(line);
    }
  }
  return found;
}

PackageOwners pacmanOwners(const Platform& platform, const PackageManager& manager,
                           const std::set<Path>& paths) {
  PackageOwners owners;
  std::set<std::string, std::less<>> wanted;
  for (const Path& path : paths) wanted.insert(path.relative_path().native());
  for (const Path& folder :
       platform.files.list(Path(recordsFolder)).value_or(std::vector<Path>{})) {
    const auto text = textOfFile(platform.files, folder / "files", longestFileList);
    if (!text) continue;
    const auto own = pacmanFilesOf(*text, wanted);
    if (own.empty()) continue;
    const auto description = descriptionIn(platform.files, folder);
    if (!description || !isPackageName(description->name, manager)) continue;
    for (const std::string_view path : own) {
      owners.emplace(Path("/") / path, SystemPackage{.name = description->name,
                                                     .bytes = description->bytes,
                                                     .manager = &manager});
    }
  }
  return owners;
}

std::optional<PackageNames> pacmanNames(const Platform& platform, const PackageManager&) {
  const auto folders = platform.files.list(Path(recordsFolder));
  if (!folders) return std::nullopt;
  PackageNames names;
  for (const Path& folder : *folders) {
    // "NAME-VERSION-RELEASE", where only the name may hold more hyphens; beside them lies a file
    // without any.
    const std::string whole = folder.filename().native();
    const auto release = whole.rfind('-');
    if (release == std::string::npos || release == 0) continue;
    const auto version = whole.rfind('-', release - 1);
    if (version != std::string::npos) names.insert(whole.substr(0, version));
  }
  return names;
}

}  // namespace klarvik
