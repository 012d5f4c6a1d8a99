#include "platform/linux/user_attributes.h"

#include <errno.h>
#include <sys/types.h>
#include <sys/xattr.h>

#include <algorithm>
#include <string_view>

#include "base/posix_io.h"

namespace klarvik {
namespace {

constexpr std::string_view ownNames = "user.";
// The system gives out no longer list.
constexpr std::size_t longestList = 64UL * 1024;

/// The calls that take a handle refuse one that was opened for its place alone; this name of it
/// leads to that very file, whatever has come to its own name.
std::string nameOfHandle(int file) {
  return "/proc/self/fd/" + std::to_string(file);
}

}  // namespace

std::vector<std::string> userAttributesOf(int file) {
  std::vector<std::string> names;
  const std::string handle = nameOfHandle(file);
  // Most files have none.
  const ssize_t needed = retryOnEintr([&] { return ::listxattr(handle.c_str(), nullptr, 0); });
  if (needed <= 0) return names;
  std::string list(longestList, '\0');
  const auto read = [&] { return ::listxattr(handle.c_str(), list.data(), list.size()); };
  const ssize_t length = retryOnEintr(read);
  if (length <= 0) return names;
  list.resize(static_cast<std::size_t>(length));
  for (std::string_view rest = list; !rest.empty();) {
    const std::string_view name = rest.substr(0, rest.find('\0'));
    if (name.starts_with(ownNames)) names.emplace_back(name);
    rest.remove_prefix(std::min(rest.size(), name.size() + 1));
  }
  return names;
}

bool removeUserAttribute(int file, const std::string& name) {
  const std::string handle = nameOfHandle(file);
  const auto remove = [&] { return ::removexattr(handle.c_str(), name.c_str()); };
  return retryOnEintr(remove) == 0 || errno == ENODATA;
}

}  // namespace klarvik
