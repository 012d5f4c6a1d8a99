#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/app_info.h"

namespace klarvik {

/// Tells by their names alone which entries of the Library folders one application has left there.
/// Touches no file. Once made, it may be asked from any thread.
class ResidualMatcher {
 public:
  /// The tables of `places` live as long as the program.
  ResidualMatcher(const AppInfo& app, const ApplicationPlaces& places);

  /// Whether an entry called `name` belongs to the application: it bears the bundle identifier, or
  /// one of the application's tokens stands in it as a whole word ("note" does in "note-cache", but
  /// not in "notebook.plist"). What belongs to the system never does.
  [[nodiscard]] bool matches(std::string_view name) const;

 private:
  std::span<const std::string_view> _protectedNames;
  std::string _bundleID;             // in lower case
  std::vector<std::string> _tokens;  // long enough to tell one application from another
};

/// The words that `DeletionGuard` looks for in the place of a residual of `app`. They differ from
/// what a matcher looks for: here all parts of the bundle identifier are in lower case, there a
/// part that has a capital letter matches nothing.
[[nodiscard]] std::vector<std::string> guardIdentifiers(const AppInfo& app);

}  // namespace klarvik
