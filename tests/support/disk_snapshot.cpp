#include "support/disk_snapshot.h"

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
  std::ifstream file(entry.path(), std::ios::binary);
  return "file " + mode + " " + std::string{std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

DiskSnapshot snapshotOf(const Path& folder) {
  DiskSnapshot snapshot;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    snapshot[entry.path().lexically_relative(folder)] = describe(entry);
  }
  return snapshot;
}

}  // namespace klarvik
