#pragma once

#include <optional>
#include <string_view>

namespace klarvik {

/// The heading of the group in which a desktop entry says what it is.
constexpr std::string_view desktopEntryGroup = "[Desktop Entry]";

/// The value of a key in that group of an entry's text, as it stands there but for the blanks
/// around it: a part of `entry`. The first one counts. Nothing where there is none.
[[nodiscard]] std::optional<std::string_view> valueInDesktopEntry(std::string_view entry,
                                                                  std::string_view key);

}  // namespace klarvik
