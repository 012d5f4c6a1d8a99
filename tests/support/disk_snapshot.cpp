#include "support/disk_snapshot.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace klarvik {
namespace {

namespace fs = std::filesystem;

std::string describe(const fs::directory_entry& entry) {
  const fs::file_status status = entry.symlink_status();
  const std::string mode = std::to_string(static_cast<unsigned>(status.permissions()));
  if (status.type() == fs::file_type::symlink) return "link to " + fs::read_symlink(entry).native();
  if (status.type() == fs::file_type::directory) return "folder " + mode;
  if (status.type() != fs::file_type::regular) return "other " + mode;
  const std::string date = std::to_string(entry.last_write_time().time_since_epoch().count());
  std::ifstream file(entry.path(), std::ios::binary);
  return "file " + mode + " " + date + " " + std::string{std::istreambuf_iterator<char>(file), {}};
}

bool liesIn(const Path& place, const Path& folder) {
  return std::mismatch(folder.begin(), folder.end(), place.begin(), place.end()).first ==
         folder.end();
}

}  // namespace

DiskSnapshot snapshotOf(const Path& folder) {
  DiskSnapshot snapshot;
  if (!fs::is_directory(fs::symlink_status(folder)))
    return {{"", describe(fs::directory_entry(folder))}};
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    snapshot[entry.path().lexically_relative(folder)] = describe(entry);
  }
  return snapshot;
}

std::string differences(const DiskSnapshot& before, const DiskSnapshot& after) {
  return unexpectedDifferences(before, after, {});
}

std::string unexpectedDifferences(const DiskSnapshot& before, const DiskSnapshot& after,
                                  const std::vector<Path>& selected) {
  const auto isSelected = [&](const Path& place) {
    return std::any_of(selected.begin(), selected.end(),
                       [&](const Path& folder) { return liesIn(place, folder.relative_path()); });
  };
  std::string lines;
  for (const auto& [place, description] : before) {
    const auto found = after.find(place);
    if (found == after.end()) {
      if (!isSelected(place)) lines += "gone " + place + "\n";
    } else if (found->second != description) {
      lines += "changed " + place + "\n";
    }
  }
  for (const auto& [place, description] : after) {
    if (!before.contains(place)) lines += "new " + place + "\n";
  }
  return lines;
}

}  // namespace klarvik
