#include "probe/report.h"

#include <iostream>

#include "base/text.h"

namespace klarvik::probe {
namespace {

std::string hexadecimal(std::string_view bytes) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text;
  for (const char each : bytes) {
    const auto byte = static_cast<unsigned char>(each);
    text += digits[byte >> 4U];
    text += digits[byte & 0xFU];
  }
  return text;
}

Report itemReport(const JunkItem& item) {
  Report report{{"name", textReport(item.name)},
                {"path", pathReport(item.path)},
                {"size", item.size},
                {"modifiedNanoseconds", dateReport(item.modifiedDate)}};
  if (item.taken > 0) report["taken"] = item.taken;
  return report;
}

}  // namespace

Report textReport(std::string_view bytes) {
  if (isUtf8(bytes)) return std::string(bytes);
  return {{"bytes", hexadecimal(bytes)}};
}

Report pathReport(const std::optional<Path>& path) {
  return path ? textReport(path->native()) : Report(nullptr);
}

Report dateReport(const std::optional<Date>& date) {
  if (!date) return nullptr;
  return std::chrono::duration_cast<std::chrono::nanoseconds>(date->time_since_epoch()).count();
}

Report updateReport(const ScanUpdate& update) {
  return {{"event", "update"},
          {"fraction", update.fraction},
          {"categoryName", update.categoryName},
          {"currentPath", update.currentPath ? textReport(*update.currentPath) : Report(nullptr)},
          {"partialItems", update.partialItems},
          {"partialBytes", update.partialBytes},
          {"completedCategories", update.completedCategories},
          {"totalCategories", update.totalCategories}};
}

Report categoryReport(const CleanCategory& category) {
  Report items = Report::array();
  for (const JunkItem& item : category.items) items.push_back(itemReport(item));
  return {{"type", rawValue(category.type)},
          {"safety", safety(category.type) == SafetyLevel::safe ? "safe" : "caution"},
          {"totalSize", category.totalSize()},
          {"items", std::move(items)}};
}

Report progressReport(const DeletionProgress& progress) {
  return {{"event", "progress"},
          {"completed", progress.completed},
          {"total", progress.total},
          {"currentName", textReport(progress.currentName)},
          {"freed", progress.freed}};
}

Report outcomeReport(const DeletionOutcome& outcome) {
  return {{"event", "outcome"},
          {"original", pathReport(outcome.originalURL)},
          {"reclaimed", outcome.reclaimed},
          {"trashed", pathReport(outcome.trashedURL)}};
}

void print(const Report& report) {
  std::cout << report.dump() << std::endl;
}

}  // namespace klarvik::probe
