#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tools/app_info.h"

namespace klarvik {

/// Tells by their names alone which entries of the Library folders one application has left there.
/// Touches no file. Once made, it may be asked from any thread.
class ResidualMatcher {
 public:
  /// The tables of `places` live as long as the program. `installed` are the bundle identifiers of
  /// all applications that are installed, this one's own among them or not.
  ResidualMatcher(const AppInfo& app, const ApplicationPlaces& places,
                  const std::vector<std::string>& installed = {});

  /// Whether an entry called `name` belongs to the application: it bears the bundle identifier, or
  /// one of the application's tokens stands in it as a whole word ("note" does in "note-cache", but
  /// not in "notebook.plist"). What belongs to the system never does, and neither does what bears
  /// the identifier of another installed application, or shares no more than the vendor's words.
  [[nodiscard]] bool matches(std::string_view name) const;

 private:
  [[nodiscard]] bool bearsAToken(const std::string& lower) const;
  [[nodiscard]] bool isAnothers(const std::string& lower) const;
  [[nodiscard]] bool sharesOnlyTheVendor(const std::string& lower) const;

  std::span<const std::string_view> _protectedNames;
  std::string _bundleID;                   // in lower case
  std::vector<std::string> _tokens;        // long enough to tell one application from another
  std::vector<std::string> _nameForms;     // those of the tokens that are forms of the name
  std::vector<std::string> _otherBundles;  // in lower case
};

/// The words that `DeletionGuard` looks for in the place of a residual of `app`. They differ from
/// what a matcher looks for: here all parts of the bundle identifier are in lower case, there a
/// part that has a capital letter matches nothing.
[[nodiscard]] std::vector<std::string> guardIdentifiers(const AppInfo& app);

}  // namespace klarvik
