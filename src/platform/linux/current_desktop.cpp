#include "platform/current_desktop.h"

#include <algorithm>
#include <cstdlib>

#include "platform/desktop_entry.h"

namespace klarvik {

std::vector<std::string> currentDesktops() {
  const char* const names = std::getenv("XDG_CURRENT_DESKTOP");
  std::string list = names != nullptr ? names : "";
  std::ranges::replace(list, ':', ';');
  return splitDesktopList(list);
}

}  // namespace klarvik
