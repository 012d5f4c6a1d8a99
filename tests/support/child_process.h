#pragma once

#include <functional>

namespace klarvik {

/// Runs `operation` in a child process and answers what it answers; false when the child crashes.
[[nodiscard]] bool inChild(const std::function<bool()>& operation);

/// The same, as an ordinary user, whom the mode bits of files concern.
[[nodiscard]] bool inChildWithoutPrivileges(const std::function<bool()>& operation);

}  // namespace klarvik
