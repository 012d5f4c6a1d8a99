#include "platform/desktop_entry.h"

namespace klarvik {
namespace {

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t\r";
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

}  // namespace

std::optional<std::string_view> valueInDesktopEntry(std::string_view entry, std::string_view key) {
  bool isInGroup = false;
  while (!entry.empty()) {
    const auto end = entry.find('\n');
    const std::string_view line = trimmed(entry.substr(0, end));
    entry = end == std::string_view::npos ? std::string_view{} : entry.substr(end + 1);
    if (line.starts_with('[')) isInGroup = line == desktopEntryGroup;
    const auto equals = line.find('=');
    if (!isInGroup || equals == std::string_view::npos) continue;
    if (trimmed(line.substr(0, equals)) == key) return trimmed(line.substr(equals + 1));
  }
  return std::nullopt;
}

}  // namespace klarvik
