#include "probe/command.h"

#include <array>
#include <limits>

namespace klarvik::probe {

namespace {

constexpr auto anyNumber = std::numeric_limits<std::size_t>::max();
// What an interrupt does to a command: whether it can be stopped.
constexpr bool stops = true;
constexpr bool ends = false;

}  // namespace

std::vector<std::string> readEntries(std::istream& input, const Invocation& call) {
  const char separator = call.has(zeroBytes) ? '\0' : '\n';
  std::vector<std::string> entries;
  for (std::string entry; std::getline(input, entry, separator);) entries.push_back(entry);
  return entries;
}

std::span<const Command> commands() {
  static const auto all = std::to_array<Command>({
      {"guard",
       "[-0] general|pickedFile|residual [IDENTIFIER...]  < paths",
       {zeroBytes},
       1,
       anyNumber,
       ends,
       guard},
      {"measure", "PATH", {}, 1, 1, ends, measure},
      {"scan", "", {}, 0, 0, stops, scan},
      {"clean", "[--no-trash] [--only-safe]", {noTrash, onlySafe}, 0, 0, stops, clean},
      {"trash-files", "[-0]  < paths", {zeroBytes}, 0, 0, stops, trashFiles},
      {"restore",
       "[-0]  < trashed path and original path, in turn",
       {zeroBytes},
       0,
       0,
       stops,
       restore},
      {"empty-trash", "", {}, 0, 0, stops, emptyTrash},
      {"duplicates", "MINSIZE DIR...", {}, 2, anyNumber, ends, duplicates},
      {"trash-duplicates",
       "newest|oldest|shallowest MINSIZE DIR...",
       {},
       3,
       anyNumber,
       stops,
       trashDuplicates},
      {"apps", "", {}, 0, 0, ends, apps},
      {"residuals", "BUNDLE-ID", {}, 1, 1, ends, residuals},
      {"uninstall", "BUNDLE-ID", {}, 1, 1, stops, uninstall},
      {"large",
       "[--lists] BYTES  (--lists: each report with its whole list)",
       {lists},
       1,
       1,
       stops,
       large},
      {"privacy",
       "[clear]  (without the clipboard: a terminal has none)",
       {},
       0,
       1,
       stops,
       privacy},
      {"system-data", "", {}, 0, 0, ends, systemData},
      {"composition", "", {}, 0, 0, stops, composition},
      {"folders", "PATH", {}, 1, 1, stops, folders},
  });
  return all;
}

}  // namespace klarvik::probe
