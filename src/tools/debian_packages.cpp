#include "tools/debian_packages.h"

#include <optional>
#include <vector>

#include "base/text.h"
#include "platform/file_system.h"

namespace klarvik {
namespace {

constexpr std::string_view statusFile = "/var/lib/dpkg/status";
constexpr std::string_view listFolder = "/var/lib/dpkg/info";
constexpr std::string_view listExtension = ".list";
// A machine with everything installed has some 100 MB of the first, and some 20 MB of the second.
constexpr std::size_t longestStatus = 512UL * 1024 * 1024;
constexpr std::size_t longestList = 256UL * 1024 * 1024;
constexpr std::int64_t unitOfSizes = 1024;
constexpr std::int64_t largestSize = std::int64_t{1} << 50;

/// What one paragraph of the status says.
struct Paragraph {
  std::string_view package, status, size, priority;
  bool isEssential = false;

  void take(std::string_view line) {
    const auto colon = line.find(':');
    if (colon == std::string_view::npos || line.front() == ' ' || line.front() == '\t') return;
    const std::string_view key = line.substr(0, colon);
    const std::string_view value = trimmed(line.substr(colon + 1), " \t\r");
    if (key == "Package") package = value;
    if (key == "Status") status = value;
    if (key == "Installed-Size") size = value;
    if (key == "Priority") priority = value;
    if ((key == "Essential" || key == "Protected") && value == "yes") isEssential = true;
  }

  void addTo(DebianPackageTable& table) const {
    if (package.empty() || !status.ends_with(" installed")) return;
    const auto kilobytes = decimalInteger(size);
    const bool isSize = kilobytes && *kilobytes >= 0 && *kilobytes <= largestSize / unitOfSizes;
    const bool isNeeded = isEssential || priority == "required" || priority == "important";
    table.insert_or_assign(
        std::string(package),
        DebianPackage{.bytes = isSize ? *kilobytes * unitOfSizes : 0, .isNeeded = isNeeded});
  }
};

/// "libacme" of "libacme:amd64.list".
std::string packageOfList(const Path& list) {
  const std::string name = list.stem().native();
  return name.substr(0, name.find(':'));
}

}  // namespace

DebianPackageTable readDebianStatus(std::string_view status) {
  DebianPackageTable table;
  Paragraph paragraph;
  while (!status.empty()) {
    const std::string_view line = takeLine(status);
    if (!line.empty()) {
      paragraph.take(line);
      continue;
    }
    paragraph.addTo(table);
    paragraph = {};
  }
  paragraph.addTo(table);
  return table;
}

DebianPackageTable installedDebianPackages(const FileSystem& files) {
  const auto status = textOfFile(files, statusFile, longestStatus);
  return status ? readDebianStatus(*status) : DebianPackageTable{};
}

std::map<Path, std::string> debianOwners(const FileSystem& files, const std::set<Path>& paths) {
  std::map<Path, std::string> owners;
  if (paths.empty()) return owners;
  for (const Path& list : files.list(listFolder).value_or(std::vector<Path>{})) {
    if (list.extension() != listExtension) continue;
    const auto text = textOfFile(files, list, longestList);
    if (!text) continue;
    std::string_view rest = *text;
    while (!rest.empty()) {
      const std::string_view line = takeLine(rest);
      const auto wanted = paths.find(Path(line));
      if (wanted != paths.end()) owners.emplace(*wanted, packageOfList(list));
    }
  }
  return owners;
}

}  // namespace klarvik
