#include "platform/desktop_entry.h"

#include "base/text.h"

namespace klarvik {
namespace {

constexpr std::string_view blanks = " \t\r";

}  // namespace

std::optional<std::string_view> valueInDesktopEntry(std::string_view entry, std::string_view key) {
  bool isInGroup = false;
  while (!entry.empty()) {
    const std::string_view line = trimmed(takeLine(entry), blanks);
    if (line.starts_with('[')) isInGroup = line == desktopEntryGroup;
    const auto equals = line.find('=');
    if (!isInGroup || equals == std::string_view::npos) continue;
    if (trimmed(line.substr(0, equals), blanks) != key) continue;
    return trimmed(line.substr(equals + 1), blanks);
  }
  return std::nullopt;
}

}  // namespace klarvik
