#pragma once

#include <cstdint>
#include <string_view>

struct xcb_connection_t;

namespace klarvik {

// Selections by which programs on an X11 display say what they are: the tray, the compositor. Main
// thread only.

/// Nothing where the program does not draw to such a display.
[[nodiscard]] xcb_connection_t* x11Connection();
/// The number of a selection; 0 where the display does not answer.
[[nodiscard]] std::uint32_t x11Selection(xcb_connection_t* connection, std::string_view name);
[[nodiscard]] bool isOwned(xcb_connection_t* connection, std::uint32_t selection);

}  // namespace klarvik
