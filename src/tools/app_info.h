#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/message.h"
#include "base/paths.h"
#include "core/uuid.h"
#include "places/application_places.h"
#include "places/package_manager.h"
#include "platform/file_attributes.h"

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
  bool isPreselected = true;  ///< unless its category is one that is kept back

  bool operator==(const ResidualFile&) const = default;
};

/// How an application was installed, and so how it goes.
enum class AppKind {
  bundle,    ///< one folder, which goes to the Trash
  appImage,  ///< one file, which goes to the Trash
  byHand,    ///< by the user: a folder or a file in the home
  flatpak,
  snap,
  systemPackage,  ///< by a package manager of the system, which is asked and told
  foreign,        ///< by root, or by a package manager that is not asked
};

/// A thing that goes to the Trash together with an application.
struct AppPart {
  Path path;
  /// As it was found. Another thing that comes to its name later stays.
  std::optional<EntryIdentity> identity = std::nullopt;

  bool operator==(const AppPart&) const = default;
};

/// One installed application.
struct AppInfo {
  Uuid id = Uuid::random();  ///< new in each listing
  std::string name{};        ///< may hold bytes that are not UTF-8 where it is the folder's
  std::string bundleID{};
  /// The .app folder; the application itself, or its entry where that is no one thing.
  Path appURL{};
  std::int64_t appSize = 0;  ///< bytes of content, hidden things left out
  /// As it was found. Another thing that comes to its name later is not removed in its place.
  std::optional<EntryIdentity> identity = std::nullopt;

  // Of what is told by a desktop entry.
  AppKind kind = AppKind::bundle;
  std::string package{};  ///< as its package manager calls it; a Flatpak's whole reference
  const PackageManager* manager = nullptr;  ///< of a package of the system: whose it is
  std::string removedWith{};               ///< the command that the user may run, of such a package
  bool isForAllUsers = false;              ///< of a Flatpak
  std::vector<std::string> identifiers{};  ///< in lower case; what its leftovers are called
  std::vector<AppPart> parts{};            ///< its entry and icons, where they go with it
  std::string icon{};     ///< of an icon theme, or an absolute path; empty for none
  std::string program{};  ///< the name of its executable; empty where it is not known
  /// Why it is not removed, as a sentence; empty where it can be.
  Message keptBecause{};

  /// Whether Klarvik itself can remove it.
  [[nodiscard]] bool goesToTrash() const;
  /// What the user may run to remove it; empty where there is no such command.
  [[nodiscard]] std::string removalCommand() const;

  bool operator==(const AppInfo&) const = default;
};

}  // namespace klarvik

template <>
struct std::hash<klarvik::ResidualFile> {
  [[nodiscard]] std::size_t operator()(const klarvik::ResidualFile& residual) const noexcept {
    return std::hash<klarvik::Uuid>{}(residual.id);
  }
};
