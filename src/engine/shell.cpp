#include "engine/shell.h"

#include <algorithm>

#include "base/text.h"
#include "platform/command_runners.h"

namespace klarvik {
namespace {

bool isInert(char character) {
  const auto byte = static_cast<unsigned char>(character);
  const bool alphanumeric =
      (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
  return alphanumeric || byte >= 0x80 ||
         std::string_view("._:+,@/-").find(character) != std::string_view::npos;
}

}  // namespace

std::string runShell(CommandRunner& commands, const std::string& commandLine) {
  const auto output = commands.run(commandLine);
  if (!output || !isUtf8(*output)) return {};
  return std::string(trimmed(*output));
}

bool isShellSafe(std::string_view text) {
  return !text.empty() && text.front() != '-' && std::all_of(text.begin(), text.end(), isInert);
}

}  // namespace klarvik
