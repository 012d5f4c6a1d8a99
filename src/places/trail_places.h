#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "places/place.h"

namespace klarvik {

/// The kinds of trails that a machine keeps of what its user did.
enum class PrivacyCategory {
  browserHistory,
  browserCookies,
  browserCache,
  recentFiles,
  recentApps,
  downloadsList,
  clipboard,
  quarantine,
  trashHistory,
  locationHistory,
  // On a Linux disk only.
  shellHistory,
  thumbnails,
};

inline constexpr std::size_t privacyCategoryCount = 12;
[[nodiscard]] const std::array<PrivacyCategory, privacyCategoryCount>& allPrivacyCategories();

/// "Browser History": the name of the kind, which is also its label.
[[nodiscard]] std::string_view rawValue(PrivacyCategory category);

/// What of a trail is counted for the user.
enum class TrailCount {
  none,
  files,
  lines,
  bookmarks,  ///< of a list of recent files
  rows,       ///< of the tables named in `TrailPlaces::countedTables`
};

/// How a trail is cleared.
enum class TrailClearing {
  removed,         ///< for good
  emptied,         ///< the files stay, without content
  asList,          ///< the desktop's list of recent documents stays, without entries
  orphansRemoved,  ///< records in a Trash without the thing that they are of
  told,            ///< by the user, in the program itself
  firefoxHistory,  ///< in a database of Firefox's, where the bookmarks stay
  originRemoved,   ///< the file stays; what it says about where it came from goes
};

/// Where one program keeps one kind of trail. Its texts live as long as the program.
struct Trail {
  PrivacyCategory category;
  std::string_view program;  ///< as the user calls it; empty where the kind says it all
  Base base;
  std::string_view folder;                   ///< below the base
  std::span<const std::string_view> inside;  ///< patterns below the folder
  TrailClearing clearing = TrailClearing::removed;
  TrailCount count = TrailCount::none;
  std::string_view closedFirst{};  ///< the program that writes it again, or that it belongs to
  std::string_view told{};         ///< how the user clears it, where Klarvik cannot
};

/// What is counted of a database: the rows of one of its tables.
struct CountedTable {
  std::string_view file;  ///< the database's name, without its folders
  std::string_view table;
};

/// Where a system's programs keep trails of what their user did, below the home. Empty where the
/// trails of a kind are not looked for.
struct TrailPlaces {
  std::span<const std::string_view> histories;      ///< files
  std::span<const std::string_view> cookies;        ///< files
  std::span<const std::string_view> browserCaches;  ///< folders
  std::span<const std::string_view> downloads;      ///< files
  std::span<const std::string_view> locations;      ///< folders
  std::string_view recentLists;                     ///< a folder
  std::string_view recentApplications;              ///< a file
  std::string_view downloadOrigins;                 ///< a file
  /// Trails that consist of many things each; the lists above are empty where there are any.
  std::span<const Trail> trails{};
  std::span<const CountedTable> countedTables{};
  /// Extended attributes by which a file in the download folder says where it came from.
  std::span<const std::string_view> originAttributes{};
};

}  // namespace klarvik
