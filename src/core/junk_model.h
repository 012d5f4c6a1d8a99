#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/uuid.h"
#include "platform/date.h"
#include "platform/entry_identity.h"
#include "platform/path.h"

namespace klarvik {

class Formatting;

/// Whether the items of a category may be selected without asking. Shown as Safe and Review.
enum class SafetyLevel { safe, caution };

/// The places that a Smart Scan looks at, in the order in which they are listed.
enum class CategoryType {
  xcodeCache,
  simulators,
  xcodeArchives,
  appCaches,
  systemLogs,
  iosBackups,
  trashBin,
  browserCaches,
  dockerData,
  timeMachine,
  systemData,
};

/// The named system colours that categories are drawn in.
enum class SystemColor { blue, purple, indigo, orange, yellow, green, red, cyan, mint, teal, gray };

inline constexpr std::size_t categoryTypeCount = 11;
[[nodiscard]] const std::array<CategoryType, categoryTypeCount>& allCategoryTypes();

/// The name that the user reads. It is also the key under which the history stores a category.
[[nodiscard]] std::string_view rawValue(CategoryType type);
[[nodiscard]] std::optional<CategoryType> categoryType(std::string_view rawValue);
[[nodiscard]] std::string_view icon(CategoryType type);
[[nodiscard]] SystemColor color(CategoryType type);
[[nodiscard]] SafetyLevel safety(CategoryType type);
[[nodiscard]] std::string_view description(CategoryType type);

/// One thing that can be removed.
struct JunkItem {
  Uuid id = Uuid::random();
  std::string name;  ///< what the row shows; bytes of the disk, made printable only at the screen
  Path path;
  std::int64_t size = 0;  ///< bytes that the removal should reclaim
  std::optional<Date> modifiedDate = std::nullopt;
  /// As it was found. Another thing that comes to its name later is not removed in its place.
  /// Nothing for what is no file.
  std::optional<EntryIdentity> identity = std::nullopt;

  /// Of all that is shown.
  bool operator==(const JunkItem& other) const;
};

/// What one category of a scan found.
struct CleanCategory {
  Uuid id = Uuid::random();
  CategoryType type = CategoryType::xcodeCache;
  std::vector<JunkItem> items;  ///< in the order the scanner gave them

  [[nodiscard]] std::int64_t totalSize() const;
  [[nodiscard]] std::string formattedSize(const Formatting& formatting) const;
};

/// A sum of sizes. One that no longer fits 64 bits is a fault of the program, and ends it.
[[nodiscard]] std::int64_t addBytes(std::int64_t left, std::int64_t right);

}  // namespace klarvik
