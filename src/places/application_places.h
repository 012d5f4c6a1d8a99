#pragma once

#include <span>
#include <string_view>

#include "places/guard_rules.h"
#include "places/package_manager.h"

namespace klarvik {

/// What a leftover of an application is, by the folder it lies in.
enum class ResidualCategory {
  preferences,
  caches,
  appSupport,
  logs,
  containers,
  savedState,
  cookies,
  other,
};

/// A folder in which applications leave things of theirs.
struct ResidualFolder {
  std::string_view folder;  ///< below the home, unless absolute
  ResidualCategory category;
};

/// How a thing that an application has left is called.
enum class LeftoverName {
  whole,   ///< by one of its identifiers
  hidden,  ///< by one of them behind a dot
  stem,    ///< by one of them before its extension: a file
};

/// A folder in which applications leave things that bear one of their identifiers.
struct LeftoverFolder {
  PlacePattern folder;
  ResidualCategory category;
  LeftoverName name = LeftoverName::whole;
};

/// What a well-known application leaves under a name that is none of its identifiers.
struct KnownLeftover {
  std::string_view identifier;  ///< of the application, in lower case
  PlacePattern place;
  ResidualCategory category;
};

/// Where applications lie that are told by their desktop entries, and what they leave behind.
struct DesktopApplications {
  std::span<const PlacePattern> entryFolders;  ///< the first entry of an identifier counts
  std::span<const PlacePattern> flatpaks;      ///< installations
  std::span<const PlacePattern> appImages;     ///< folders in which they are looked for
  std::span<const PlacePattern> programs;      ///< folders in which a command is looked for
  /// What a user has installed by hand: each goes as a whole.
  std::span<const PlacePattern> byHand;
  /// What goes along with it: its entry and its icons.
  std::span<const PlacePattern> alongside;
  std::span<const LeftoverFolder> leftovers;
  std::span<const KnownLeftover> knownLeftovers;
  std::span<const std::string_view> sharedNames;  ///< patterns, in lower case; of folders of many
  std::span<const std::string_view> commonWords;  ///< in lower case; identify nobody
  /// The first one that has a thing counts.
  std::span<const PackageManager> packageManagers;
  std::string_view snapFiles;  ///< the folder of the files that snaps are installed as
  /// What lies there without a package of its owner's was installed for all users by hand.
  std::string_view addOns;
};

/// Where a system's applications lie, and what they leave behind.
struct ApplicationPlaces {
  std::span<const std::string_view> folders;  ///< of applications; below the home, unless absolute
  std::span<const ResidualFolder> residuals;  ///< in the order in which they are searched
  /// How the names of things begin, in lower case, that are the system's own.
  std::span<const std::string_view> protectedNames;
  /// Instead of all these, where applications have desktop entries.
  const DesktopApplications* desktop = nullptr;
};

}  // namespace klarvik
