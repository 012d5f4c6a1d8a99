#include "places/tool.h"

namespace klarvik {

std::vector<std::string> removalCommand(const CleaningTool& tool,
                                        std::span<const std::string> names) {
  std::vector<std::string> command;
  std::size_t next = 0;
  for (const std::string_view argument : tool.removes) {
    std::string text(argument);
    for (const std::string_view stand : {"NAME", "REVISION"}) {
      const auto at = text.find(stand);
      if (at == std::string::npos || next >= names.size()) continue;
      text.replace(at, stand.size(), names[next++]);
      break;
    }
    command.push_back(std::move(text));
  }
  return command;
}

std::string commandLine(const CleaningTool& tool) {
  if (!tool.isRun()) return std::string(tool.told);
  std::string line;
  for (const std::string_view argument : tool.removes) {
    if (!line.empty()) line += ' ';
    line += argument;
  }
  return line;
}

}  // namespace klarvik
