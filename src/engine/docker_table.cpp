#include "engine/docker_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "base/text.h"

namespace klarvik {

namespace {

struct Unit {
  std::string_view suffix;
  double bytes;
};

constexpr std::array<Unit, 5> units{{
    {"TB", 1e12},
    {"GB", 1e9},
    {"MB", 1e6},
    {"kB", 1e3},
    {"B", 1},
}};

constexpr std::size_t fewestColumns = 4;

std::int64_t truncatedBytes(double bytes) {
  constexpr double beyondRange = 9223372036854775808.0;
  return std::abs(bytes) < beyondRange ? static_cast<std::int64_t>(bytes) : 0;
}

}  // namespace

std::int64_t dockerSizeBytes(std::string_view size) {
  std::string text(size);
  std::replace(text.begin(), text.end(), ',', '.');
  for (const Unit& unit : units) {
    if (!text.ends_with(unit.suffix)) continue;
    const auto number = std::string_view(text).substr(0, text.size() - unit.suffix.size());
    if (const auto value = decimalNumber(number)) return truncatedBytes(*value * unit.bytes);
  }
  return 0;
}

std::int64_t dockerReclaimableBytes(std::string_view table) {
  auto lines = splitLines(table);
  lines.erase(lines.begin());
  std::int64_t total = 0;
  for (const auto line : lines) {
    const auto columns = splitWords(line);
    if (columns.size() < fewestColumns) continue;
    const auto bytes = dockerSizeBytes(columns[columns.size() - 2]);
    if (__builtin_add_overflow(total, bytes, &total)) return 0;
  }
  return total;
}

}  // namespace klarvik
