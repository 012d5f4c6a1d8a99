#pragma once

#include <QString>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "places/words.h"
#include "platform/formatting.h"
#include "tools/app_info.h"
#include "tools/package_removal.h"

/// The texts of the Uninstaller pane that follow a rule. Names of applications are handed over as
/// the disk has them, and come back printable.
namespace klarvik::uninstaller {

[[nodiscard]] QString listSubtitle(bool isWaitingForTurn, bool isLoading, std::size_t appCount,
                                   const Words& words);
[[nodiscard]] QString detailSubtitle(std::size_t residualCount, std::int64_t totalBytes,
                                     const Formatting& formatting);
/// The title of the detail level, and of the button that does it.
[[nodiscard]] QString uninstallTitle(std::string_view appName);
[[nodiscard]] QString whatItIs(ResidualCategory category);

[[nodiscard]] QString noLeftovers(std::string_view appName);
[[nodiscard]] QString noMatch(const QString& searchText);

[[nodiscard]] QString selectionSummary(std::int64_t selectedBytes, std::size_t selectedCount,
                                       std::size_t residualCount, const Formatting& formatting);
[[nodiscard]] QString selectionHint(std::size_t selectedCount, std::size_t residualCount);

// Of applications that desktop entries tell.

/// How it was installed, before its identifier: "Flatpak · org.acme.Writer".
[[nodiscard]] QString origin(const AppInfo& app);
/// What becomes of the application and of what is selected.
[[nodiscard]] QString removalHint(const AppInfo& app);
/// Of the button: what is done with the application, or with its leftovers alone.
[[nodiscard]] QString actionTitle(const AppInfo& app);
/// Why Klarvik does not remove it itself, and what else the command would remove.
[[nodiscard]] QString planExplanation(const AppInfo& app, const RemovalPlan& plan);
/// The packages that would go with it, all of them.
[[nodiscard]] QString alsoRemoved(const RemovalPlan& plan);

}  // namespace klarvik::uninstaller
