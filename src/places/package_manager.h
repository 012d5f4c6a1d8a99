#pragma once

#include <span>
#include <string_view>

namespace klarvik {

/// How the records of installed packages are read.
enum class PackageRecords {
  dpkg,    ///< lists and a table of Debian's, as files
  rpm,     ///< a database that the program "rpm" is asked about
  pacman,  ///< a folder for each package
};

/// How a package manager tells what would go together with a package.
enum class RemovalAnswer {
  marked,      ///< lines "Remv NAME …"
  names,       ///< a line for each package; a refusal where others need it
  dependents,  ///< the packages that need it, one step at a time
};

/// The command that a user is told, of the program that there is.
struct PackageFrontEnd {
  std::string_view program;  ///< an absolute path
  std::string_view removal;  ///< the name of the package follows
};

/// A package manager of a system, which Klarvik asks and never has remove anything. All of a
/// layout's live as long as the program.
struct PackageManager {
  PackageRecords records;
  /// Absolute paths; one of them is there where this manager has installed something.
  std::span<const std::string_view> databases;
  std::span<const PackageFrontEnd> frontEnds;  ///< the first counts where none is there
  /// A command that changes nothing and says what a removal would do; the name follows.
  std::span<const std::string_view> question;
  RemovalAnswer answer;
  /// By which its program is told the folder of the database; empty where it knows only one.
  std::string_view databaseOption;
  std::string_view nameMarks;  ///< what names hold besides letters and digits
  /// Patterns; a removal that would take such a package along is not offered.
  std::span<const std::string_view> needed;
  /// A folder of files, each line of which names a package that is never removed; may be empty.
  std::string_view protectedLists{};
  /// Whether more than the answer names may go: what nothing else needs.
  bool mayTakeMore = false;
};

}  // namespace klarvik
