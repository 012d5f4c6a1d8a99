#include "support/disk_snapshot.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>

namespace klarvik {
namespace {

namespace fs = std::filesystem;

using ContentOf = std::string (*)(const Path& file);

std::string wholeContent(const Path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::string lengthAndBeginning(const Path& file) {
  std::array<char, 512> buffer{};
  std::ifstream stream(file, std::ios::binary);
  stream.read(buffer.data(), buffer.size());
  return std::to_string(fs::file_size(file)) + ' ' +
         std::string(buffer.data(), static_cast<std::size_t>(stream.gcount()));
}

std::string describe(const fs::directory_entry& entry, ContentOf contentOf) {
  const fs::file_status status = entry.symlink_status();
  const std::string mode = std::to_string(static_cast<unsigned>(status.permissions()));
  if (status.type() == fs::file_type::symlink) return "link to " + fs::read_symlink(entry).native();
  if (status.type() == fs::file_type::directory) return "folder " + mode;
  if (status.type() != fs::file_type::regular) return "other " + mode;
  const std::string date = std::to_string(entry.last_write_time().time_since_epoch().count());
  return "file " + mode + " " + date + " " + contentOf(entry.path());
}

DiskSnapshot snapshotWith(const Path& folder, ContentOf contentOf) {
  DiskSnapshot snapshot;
  if (!fs::is_directory(fs::symlink_status(folder)))
    return {{"", describe(fs::directory_entry(folder), contentOf)}};
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    snapshot[entry.path().lexically_relative(folder)] = describe(entry, contentOf);
  }
  return snapshot;
}

bool liesIn(const Path& place, const Path& folder) {
  return std::mismatch(folder.begin(), folder.end(), place.begin(), place.end()).first ==
         folder.end();
}

}  // namespace

DiskSnapshot snapshotOf(const Path& folder) {
  return snapshotWith(folder, wholeContent);
}

DiskSnapshot outlineOf(const Path& folder) {
  return snapshotWith(folder, lengthAndBeginning);
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
