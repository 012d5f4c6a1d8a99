#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "base/paths.h"
#include "places/application_places.h"
#include "places/category_type.h"
#include "places/colors.h"
#include "places/guard_rules.h"
#include "places/place.h"
#include "places/system_data_places.h"
#include "places/tool.h"
#include "places/trail_places.h"
#include "places/words.h"
#include "platform/user_folders.h"

namespace klarvik {

/// One step of a Smart Scan.
struct ScanRow {
  std::string_view name;  ///< what the user reads while it runs
  double fraction;        ///< of the whole scan, told when the step begins
  CategoryType type;
  bool isForDevelopers = false;  ///< left out where the user does not want them
};

/// How a program is called that has to be closed first.
struct ProgramName {
  std::string_view program;
  std::string_view name;
};

/// A link that a program keeps in its profile while it runs. Its text ends in a process number.
struct ProgramLock {
  std::string_view program;
  Base base;
  std::string_view pattern;
};

/// What the user calls files with one of these extensions.
struct FileKindName {
  std::string_view name;
  std::span<const std::string_view> extensions;  ///< lower case, without the dot
};

/// A share of the disk in the coarse terms that a person thinks in.
struct StorageShare {
  std::string_view id;
  std::string_view label;
  RgbColor color;
  /// Below the home unless absolute. What several places take together has no folder to open.
  std::span<const std::string_view> places{};
  /// One of the folders that the user sees, in the place of `places`.
  Path UserFolders::*shown = nullptr;
  /// More places, by patterns. Of two shares, what lies deeper belongs to the place that is deeper.
  std::span<const PlacePattern> patterns{};
  bool holdsArtifacts = false;  ///< what builds left in the projects of the user
};

/// Everything that one system's disks have in common: what lies where, what may go, and how things
/// are called. The same object for the whole run of the program; any thread.
struct DiskLayout {
  std::span<const ScanRow> scanRows;    ///< in the order in which they run
  std::span<const Place> places;        ///< empty where the scan rows have methods of their own
  std::span<const CleaningTool> tools;  ///< that remove something of their own
  std::span<const ProjectArtifact> artifacts;
  std::int64_t artifactsAbove;  ///< bytes; what takes no more is not listed
  std::span<const std::string_view> notSearchedForProjects;  ///< names of folders in the home
  std::span<const ProgramName> programs;
  std::span<const ProgramLock> programLocks;
  /// Whether a size is all that a removal gives back: hidden things and the contents of packages
  /// too, and nothing of another volume.
  bool sizesAreWhole;
  /// Whether it is told how much of a selection goes for good, where some of it does.
  bool tellsWhatGoesForGood;
  bool marksSelectedCopiesOnly;  ///< as ones that go; else every copy but the one that stays
  bool desktopNamesFolders;  ///< whether the user's desktop says which folders are shown, and how
  /// Below the home: where else than in the shown folders large files are looked for.
  std::span<const std::string_view> moreLargeFileFolders;
  std::span<const FileKindName> fileKinds;  ///< of large files
  bool allVisibleFoldersMayBeLarge;  ///< every other visible folder of the home is looked at too
  std::span<const Pass> analysisPasses;  ///< of System Data, in the order in which they run
  /// In the place of the passes, where the analysis accounts for the whole volume.
  std::span<const LedgerPlace> ledger;
  std::span<const StorageShare> storageShares;  ///< in the order in which they are measured
  const TrailPlaces& trails;
  const ApplicationPlaces& applications;
  const GuardRules& guard;
  const Words& words;
  /// In the order of the kinds; empty where their own names and texts hold.
  std::span<const SystemDataWords> systemData;
  /// Files that only a program with Full Disk Access can open, below the home unless absolute; none
  /// where there is no such permission.
  std::span<const std::string_view> protectedFiles;
  /// Whether the blocks that no ordinary user may write count as used.
  bool keptBlocksAreUsed;

  /// What the user reads; `rawValue` where the layout has no other word.
  [[nodiscard]] std::string_view label(CategoryType type) const;
  /// Nothing where there is none of this `id`.
  [[nodiscard]] const CleaningTool* tool(std::string_view id) const;
  /// Whether the user is asked for Full Disk Access, and reads of it.
  [[nodiscard]] bool asksForFullDiskAccess() const { return !protectedFiles.empty(); }
};

/// A home below "/Users" lies on a Mac's disk, every other one on a Linux disk. Only the text of
/// the path counts.
[[nodiscard]] const DiskLayout& layoutFor(const Path& home);

}  // namespace klarvik
