#include "state/scan_history_json.h"

#include <chrono>
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <utility>

namespace klarvik {

namespace {

using nlohmann::json;
using Seconds = std::chrono::duration<double>;

/// 1 January 2001, 00:00:00 UTC.
constexpr Date referenceDate{std::chrono::seconds(978'307'200)};

double secondsSinceReference(Date date) {
  return Seconds(date - referenceDate).count();
}

std::optional<Date> dateAfterReference(double seconds) {
  // A century short of what a `Date` can hold on either side, far from any rounding.
  constexpr double furthest = 200.0 * 365 * 24 * 3600;
  if (!(std::abs(seconds) <= furthest)) return std::nullopt;
  return referenceDate + std::chrono::round<Date::duration>(Seconds(seconds));
}

const json* member(const json& object, const char* key) {
  const auto found = object.find(key);
  return found == object.end() ? nullptr : &*found;
}

std::optional<std::int64_t> decodeBytes(const json* value) {
  if (value == nullptr) return std::nullopt;
  if (value->is_number_unsigned()) {
    const auto number = value->get<std::uint64_t>();
    if (number > std::uint64_t{std::numeric_limits<std::int64_t>::max()}) return std::nullopt;
    return static_cast<std::int64_t>(number);
  }
  if (value->is_number_integer()) return value->get<std::int64_t>();
  return std::nullopt;
}

std::optional<Uuid> decodeId(const json* value) {
  if (value == nullptr || !value->is_string()) return std::nullopt;
  return Uuid::fromText(value->get_ref<const std::string&>());
}

std::optional<Date> decodeDate(const json* value) {
  if (value == nullptr || !value->is_number()) return std::nullopt;
  return dateAfterReference(value->get<double>());
}

std::optional<std::map<std::string, std::int64_t>> decodeCategories(const json* value) {
  if (value == nullptr || !value->is_object()) return std::nullopt;
  std::map<std::string, std::int64_t> categories;
  for (const auto& [name, stored] : value->items()) {
    const auto bytes = decodeBytes(&stored);
    if (!bytes) return std::nullopt;
    categories.emplace(name, *bytes);
  }
  return categories;
}

std::optional<ScanHistoryEntry> decodeEntry(const json& value) {
  if (!value.is_object()) return std::nullopt;
  const auto id = decodeId(member(value, "id"));
  const auto date = decodeDate(member(value, "date"));
  const auto totalJunk = decodeBytes(member(value, "totalJunk"));
  auto categories = decodeCategories(member(value, "categories"));
  if (!id || !date || !totalJunk || !categories) return std::nullopt;
  return ScanHistoryEntry{*id, *date, *totalJunk, std::move(*categories)};
}

}  // namespace

std::string encodeHistory(const std::vector<ScanHistoryEntry>& entries) {
  json list = json::array();
  for (const ScanHistoryEntry& entry : entries) {
    list.push_back({{"id", entry.id.text()},
                    {"date", secondsSinceReference(entry.date)},
                    {"totalJunk", entry.totalJunk},
                    {"categories", entry.categories}});
  }
  return list.dump();
}

std::optional<std::vector<ScanHistoryEntry>> decodeHistory(std::string_view text) {
  const json list = json::parse(text, nullptr, /*allow_exceptions=*/false);
  if (!list.is_array()) return std::nullopt;
  std::vector<ScanHistoryEntry> entries;
  for (const json& value : list) {
    auto entry = decodeEntry(value);
    if (!entry) return std::nullopt;
    entries.push_back(std::move(*entry));
  }
  return entries;
}

}  // namespace klarvik
