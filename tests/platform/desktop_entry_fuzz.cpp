// Whatever a desktop entry holds, a value is a piece of one of its lines, without blanks around,
// and what is read of it holds no line end.

#include "platform/desktop_entry.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void expect(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::string_view blanks = " \t\r";
  const std::string_view entry(reinterpret_cast<const char*>(data), size);
  for (const std::string_view key : {"Exec", "Hidden", "X-GNOME-Autostart-enabled"}) {
    const auto value = klarvik::valueInDesktopEntry(entry, key);
    if (!value || value->empty()) continue;
    expect(entry.find(*value) != std::string_view::npos);
    expect(value->find('\n') == std::string_view::npos);
    expect(blanks.find(value->front()) == std::string_view::npos);
    expect(blanks.find(value->back()) == std::string_view::npos);
  }

  const klarvik::DesktopEntry read = klarvik::readDesktopEntry(entry);
  for (const std::string& text : {read.name, read.command, read.tryCommand, read.icon,
                                  read.windowClass, read.flatpak, read.snap}) {
    expect(text.find('\n') == std::string::npos);
    expect(text.size() <= entry.size());
  }
  for (const std::string_view command : {std::string_view(read.command), entry}) {
    const auto words = klarvik::wordsOfCommand(command);
    std::size_t length = 0;
    for (const std::string& word : words) {
      expect(!word.empty());
      length += word.size();
    }
    expect(length <= command.size());
    const std::string program = klarvik::programOfCommand(words);
    expect(program.empty() || std::find(words.begin(), words.end(), program) != words.end());
  }
  return 0;
}
