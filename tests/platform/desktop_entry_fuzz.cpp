// Whatever an autostart entry holds, a value is a piece of one of its lines, without blanks around.

#include "platform/desktop_entry.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::string_view blanks = " \t\r";
  const std::string_view entry(reinterpret_cast<const char*>(data), size);
  for (const std::string_view key : {"Exec", "Hidden", "X-GNOME-Autostart-enabled"}) {
    const auto value = klarvik::valueInDesktopEntry(entry, key);
    if (!value || value->empty()) continue;
    if (entry.find(*value) == std::string_view::npos) std::abort();
    if (value->find('\n') != std::string_view::npos) std::abort();
    if (blanks.find(value->front()) != std::string_view::npos) std::abort();
    if (blanks.find(value->back()) != std::string_view::npos) std::abort();
  }
  return 0;
}
