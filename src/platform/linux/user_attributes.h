#pragma once

#include <string>
#include <vector>

namespace klarvik {

/// Extended attributes in the name space "user" of the file that `file` is a handle of. A handle
/// that gives no more than the place (`O_PATH`) is enough: a file that may not be read has them as
/// well. Any thread.

/// Their names; none where the file system has no such thing, or cannot be asked.
[[nodiscard]] std::vector<std::string> userAttributesOf(int file);

/// True when the file has no attribute of this name any more.
[[nodiscard]] bool removeUserAttribute(int file, const std::string& name);

}  // namespace klarvik
