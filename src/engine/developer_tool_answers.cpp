#include "engine/developer_tool_answers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <nlohmann/json.hpp>
#include <optional>
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

namespace {

using nlohmann::json;

constexpr std::string_view runtimePrefix = "com.apple.CoreSimulator.SimRuntime.";

/// What is nested deeper than any device is dropped while it is read, so that output of any depth
/// is held and freed on a stack of ordinary size.
constexpr int deepestKept = 8;

json parsed(std::string_view text) {
  const auto keepShallow = [](int depth, json::parse_event_t, json&) {
    return depth <= deepestKept;
  };
  return json::parse(text, keepShallow, /*allow_exceptions=*/false);
}

bool isListOfObjects(const json& value) {
  return value.is_array() &&
         std::all_of(value.begin(), value.end(), [](const json& each) { return each.is_object(); });
}

std::optional<std::string> textAt(const json& object, const char* key) {
  const auto found = object.find(key);
  if (found == object.end() || !found->is_string()) return std::nullopt;
  return found->get<std::string>();
}

bool isPlainPathComponent(const std::string& text) {
  return !text.empty() && text != "." && text != ".." &&
         text.find_first_of(std::string_view("/\0", 2)) == std::string::npos;
}

std::string withoutRuntimePrefix(std::string text) {
  for (auto at = text.find(runtimePrefix); at != std::string::npos;
       at = text.find(runtimePrefix, at)) {
    text.erase(at, runtimePrefix.size());
  }
  return text;
}

std::optional<SimulatorDevice> device(const json& object) {
  const auto udid = textAt(object, "udid");
  if (!udid || !isPlainPathComponent(*udid)) return std::nullopt;
  return SimulatorDevice{.udid = *udid,
                         .name = textAt(object, "name").value_or(*udid),
                         .runtime = withoutRuntimePrefix(textAt(object, "runtime").value_or(""))};
}

}  // namespace

std::vector<SimulatorDevice> unavailableSimulators(std::string_view text) {
  const json top = parsed(text);
  if (!top.is_object()) return {};
  const auto byRuntime = top.find("devices");
  if (byRuntime == top.end() || !byRuntime->is_object()) return {};
  if (!std::all_of(byRuntime->begin(), byRuntime->end(), isListOfObjects)) return {};

  std::vector<SimulatorDevice> devices;
  for (const json& ofOneRuntime : *byRuntime) {
    for (const json& object : ofOneRuntime) {
      if (auto found = device(object)) devices.push_back(std::move(*found));
    }
  }
  return devices;
}

}  // namespace klarvik
