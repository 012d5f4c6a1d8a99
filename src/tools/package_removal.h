#pragma once

#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

#include "base/message.h"
#include "places/package_manager.h"
#include "platform/platform.h"
#include "tools/app_info.h"

namespace klarvik {

/// How an application goes that Klarvik does not remove itself.
struct RemovalPlan {
  /// What the user may run in a terminal; empty where nothing is offered.
  std::string command{};
  std::vector<std::string> alsoRemoved{};  ///< packages that would go with it
  bool isSimulated = false;                ///< the package manager was asked
  /// More than these may go: what nothing else needs.
  bool mayTakeMore = false;
  Message keptBecause{};  ///< why nothing is offered, as a sentence

  bool operator==(const RemovalPlan&) const = default;
};

/// Asks the package manager what a removal would take along, which takes up to some seconds.
/// Nothing is changed. Any thread.
[[nodiscard]] RemovalPlan planRemoval(const Platform& platform, const AppInfo& app);

/// The packages that a simulated removal names, by the output of "apt-get --simulate".
[[nodiscard]] std::vector<std::string> simulatedRemovals(std::string_view output);

/// The same by the output of "pacman --print", a name in each line.
[[nodiscard]] std::vector<std::string> namedRemovals(std::string_view output,
                                                     const PackageManager& manager);

/// The packages for whose sake "pacman" refuses a removal, by what it says.
[[nodiscard]] std::vector<std::string> needersOf(std::string_view output,
                                                 const PackageManager& manager);

/// Whether Klarvik asks the application's own package manager to remove it.
[[nodiscard]] bool isRemovedByTool(const AppInfo& app);

/// Has it removed, and waits for that; the package manager may ask the user for a password. Empty
/// once the application is gone, else a sentence that says why it is not. A stop ends it. Any
/// thread.
[[nodiscard]] Message removeByTool(const Platform& platform, const AppInfo& app,
                                   const std::stop_token& stop = {});

}  // namespace klarvik
