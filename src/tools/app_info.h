#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/uuid.h"
#include "places/application_places.h"
#include "platform/entry_identity.h"
#include "platform/path.h"

namespace klarvik {

inline constexpr std::size_t residualCategoryCount = 8;
[[nodiscard]] const std::array<ResidualCategory, residualCategoryCount>& allResidualCategories();
/// The name that the user reads.
[[nodiscard]] std::string_view rawValue(ResidualCategory category);

/// One file or folder that an application has left in a Library folder.
struct ResidualFile {
  Uuid id = Uuid::random();  ///< new in each search
  Path url{};
  std::int64_t size = 0;  ///< bytes of content, hidden things left out; at least 1
  ResidualCategory category = ResidualCategory::other;
  /// As it was found. Another thing that comes to its name later is not removed in its place.
  std::optional<EntryIdentity> identity = std::nullopt;

  bool operator==(const ResidualFile&) const = default;
};

/// One installed application.
struct AppInfo {
  Uuid id = Uuid::random();  ///< new in each listing
  std::string name;          ///< may hold bytes that are not UTF-8 where it is the folder's
  std::string bundleID;
  Path appURL{};             ///< the .app folder
  std::int64_t appSize = 0;  ///< bytes of content, hidden things left out
  /// As it was found. Another thing that comes to its name later is not removed in its place.
  std::optional<EntryIdentity> identity = std::nullopt;

  bool operator==(const AppInfo&) const = default;
};

}  // namespace klarvik

template <>
struct std::hash<klarvik::ResidualFile> {
  [[nodiscard]] std::size_t operator()(const klarvik::ResidualFile& residual) const noexcept {
    return std::hash<klarvik::Uuid>{}(residual.id);
  }
};
