#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace klarvik {

/// Whether the items of a category may be selected without asking. Shown as Safe and Review.
enum class SafetyLevel { safe, caution };

/// The kinds of places that a Smart Scan looks at. Which of them it does on one disk, and in which
/// order, stands in that disk's `DiskLayout`.
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
  buildArtifacts,
  packageCaches,
  toolchains,
  installedPackages,
};

/// The named system colours that categories are drawn in.
enum class SystemColor { blue, purple, indigo, orange, yellow, green, red, cyan, mint, teal, gray };

/// Those that a Mac's disk has, in the order in which they are listed.
[[nodiscard]] std::span<const CategoryType> allCategoryTypes();

/// The key under which the history stores a category. What the user reads is the layout's `label`.
[[nodiscard]] std::string_view rawValue(CategoryType type);
[[nodiscard]] std::string_view icon(CategoryType type);
[[nodiscard]] SystemColor color(CategoryType type);
[[nodiscard]] SafetyLevel safety(CategoryType type);
[[nodiscard]] std::string_view description(CategoryType type);

}  // namespace klarvik
