#include "probe/command.h"

#include <algorithm>
#include <array>
#include <limits>

namespace klarvik::probe {

namespace {

constexpr auto anyNumber = std::numeric_limits<std::size_t>::max();

}  // namespace

bool Invocation::has(std::string_view option) const {
  return std::find(options.begin(), options.end(), option) != options.end();
}

std::vector<std::string> readEntries(std::istream& input, const Invocation& call) {
  const char separator = call.has("-0") ? '\0' : '\n';
  std::vector<std::string> entries;
  for (std::string entry; std::getline(input, entry, separator);) entries.push_back(entry);
  return entries;
}

std::span<const Command> commands() {
  static const auto all = std::to_array<Command>({
      {"guard",
       "[-0] general|pickedFile|residual [IDENTIFIER...]  < paths",
       {"-0"},
       1,
       anyNumber,
       guard},
      {"measure", "PATH", {}, 1, 1, measure},
      {"scan", "", {}, 0, 0, scan},
      {"clean", "[--no-trash] [--only-safe]", {"--no-trash", "--only-safe"}, 0, 0, clean},
      {"trash-files", "[-0]  < paths", {"-0"}, 0, 0, trashFiles},
      {"restore", "[-0]  < trashed path and original path, in turn", {"-0"}, 0, 0, restore},
      {"empty-trash", "", {}, 0, 0, emptyTrash},
      {"duplicates", "MINSIZE DIR...", {}, 2, anyNumber, duplicates},
      {"apps", "", {}, 0, 0, apps},
      {"residuals", "BUNDLE-ID", {}, 1, 1, residuals},
      {"uninstall", "BUNDLE-ID", {}, 1, 1, uninstall},
      {"large",
       "[--lists] BYTES  (--lists: each report with its whole list)",
       {"--lists"},
       1,
       1,
       large},
      {"privacy", "[clear]  (without the clipboard: a terminal has none)", {}, 0, 1, privacy},
      {"system-data", "", {}, 0, 0, systemData},
      {"composition", "", {}, 0, 0, composition},
  });
  return all;
}

}  // namespace klarvik::probe
