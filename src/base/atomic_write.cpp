#include "base/atomic_write.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

#include "base/posix_io.h"

namespace klarvik {
namespace {

// Makes the new name last. When that fails, the new content stands all the same.
void syncFolder(const std::filesystem::path& folder) {
  const UniqueFd fd{::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
  if (fd) ::fsync(fd.get());
}

}  // namespace

bool writeAtomically(const std::filesystem::path& file, std::string_view content, ::mode_t mode) {
  // In folders that are everybody's, under a name that nobody else gives.
  const std::filesystem::path fresh =
      file.parent_path() / (".klarvik-" + file.filename().native() + ".new");
  ::unlink(fresh.c_str());  // of a run that was killed
  UniqueFd fd{::open(fresh.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600)};
  if (!fd) return false;
  const bool stored = ::fchmod(fd.get(), mode) == 0 && writeAll(fd.get(), content) &&
                      ::fsync(fd.get()) == 0 && ::close(fd.release()) == 0 &&
                      ::rename(fresh.c_str(), file.c_str()) == 0;
  if (stored) {
    syncFolder(file.parent_path());
  } else {
    ::unlink(fresh.c_str());
  }
  return stored;
}

}  // namespace klarvik
