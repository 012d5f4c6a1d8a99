#pragma once

#include <cstdint>
#include <mutex>
#include <stop_token>
#include <string>
#include <vector>

#include "base/message.h"
#include "core/deletion_guard.h"
#include "core/removal_outcome.h"
#include "platform/file_system.h"
#include "platform/platform.h"
#include "tools/app_info.h"
#include "tools/package_removal.h"

namespace klarvik {

/// What an uninstalling did.
struct UninstallOutcome {
  std::int64_t freed = 0;  ///< bytes, of what is gone as it was measured when it was found
  bool isGone = false;     ///< the application itself
  bool isRunning = false;  ///< and therefore nothing was done
  Message whyItStayed{};   ///< a sentence; empty where there is nothing to say
  std::vector<TrashedItem> trashed{};  ///< of what is gone, that which can be put back

  bool operator==(const UninstallOutcome&) const = default;
};

/// Lists the installed applications, finds what one of them has left in the Library folders, and
/// removes it.
///
/// Owned by whoever started the work; cheap to make, holds nothing between two calls, and must not
/// outlive the platform. Operations are synchronous, run one at a time, and are meant to be called
/// off the main thread. But for a removal none
/// of them can be stopped: whoever no longer wants the answer ignores it.
/// Nothing throws: what fails counts as not found or not removed.
class UninstallerEngine {
 public:
  /// `leftAlone`, where there is one, counts what is left although it was selected; it must outlive
  /// the engine.
  explicit UninstallerEngine(const Platform& platform, LeftAlone* leftAlone = nullptr);

  /// What lies directly in /Applications and in the user's own Applications folder and has a bundle
  /// identifier, by name. No residuals yet.
  [[nodiscard]] std::vector<AppInfo> listApps();

  /// What bears the application's name or identifier at the top level of a Library folder, largest
  /// first. Empty things are left out, and so is what belongs to the system, or rather to another
  /// application that is installed.
  [[nodiscard]] std::vector<ResidualFile> findResiduals(const AppInfo& app);

  /// Removes `residuals` for good, one after the other, each only if `DeletionGuard` lets it go as
  /// a residual of `app`; then moves the application to the Trash. What is not the thing that was
  /// found stays. Answers the bytes freed: of each thing that is gone, what it measured when it was
  /// found.
  std::int64_t uninstall(const AppInfo& app, const std::vector<ResidualFile>& residuals);

  /// The same, and more of what it did. Of an application that a desktop entry tells, residuals go
  /// to the Trash too, and only after the application itself; where that stays because Klarvik does
  /// not remove such, they go alone, and where it could not be removed, nothing does.
  ///
  /// A stop ends the tool that removes an application, and nothing is removed any more then.
  UninstallOutcome remove(const AppInfo& app, const std::vector<ResidualFile>& residuals,
                          const std::stop_token& stop = {});

  /// How an application goes that Klarvik does not remove itself. Asks the package manager.
  [[nodiscard]] RemovalPlan plan(const AppInfo& app) const;

  /// The words by which `DeletionGuard` knows what is a residual of `app`.
  [[nodiscard]] static std::vector<std::string> residualIdentifiers(const AppInfo& app);

 private:
  [[nodiscard]] UninstallOutcome removeBundle(const AppInfo& app,
                                              const std::vector<ResidualFile>& residuals);
  [[nodiscard]] UninstallOutcome removeProgram(const AppInfo& app,
                                               const std::vector<ResidualFile>& residuals,
                                               const std::stop_token& stop);
  bool trashIfAllowed(TrashedItem item, const DeletionScope& scope, UninstallOutcome& outcome);
  /// Fills in where the item went, and adds it to what is gone.
  bool trash(TrashedItem item, const ItemCheck& check, UninstallOutcome& outcome);

  const Platform& _platform;
  LeftAlone* const _leftAlone;
  mutable std::mutex _working;
};

}  // namespace klarvik
