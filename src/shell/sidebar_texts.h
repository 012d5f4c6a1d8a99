#pragma once

#include <cmath>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "core/disk_stats.h"
#include "places/disk_layout.h"
#include "places/words.h"
#include "platform/formatting.h"
#include "shell/trash_block_model.h"
#include "state/app_state.h"
#include "state/scan_coordinator.h"
#include "state/section.h"
#include "state/tool_activity.h"
#include "translation/translation.h"

/// What the sidebar says and draws, as plain functions of what it shows: the disk, the Trash, the
/// rows of the tools.
namespace klarvik::sidebar {

/// A fraction in whole percent; what is over is left out.
[[nodiscard]] inline std::string percentText(double fraction) {
  return filled(translate("Kit", "%1%"),
                std::to_string(static_cast<std::int64_t>(std::trunc(fraction * 100))));
}

/// 0 to 1.
[[nodiscard]] double usedFraction(const DiskStats& stats);
[[nodiscard]] bool isNearlyFull(const DiskStats& stats);
[[nodiscard]] std::string percentFull(const DiskStats& stats);
[[nodiscard]] std::string freeLine(const DiskStats& stats, const Formatting& formatting);

[[nodiscard]] std::string_view trashSymbol(const TrashMonitor::Figures& trash);
[[nodiscard]] std::string trashSubtitle(const TrashMonitor::Figures& trash, const Words& words,
                                        const Formatting& formatting);
/// A Trash that cannot be read can be granted where the layout knows of such a permission.
[[nodiscard]] TrashBlockModel::Control trashControl(const TrashMonitor::Figures& trash,
                                                    const DiskLayout& layout);
[[nodiscard]] std::string trashControlHelp(const TrashMonitor::Figures& trash,
                                           const DiskLayout& layout, const Formatting& formatting);
[[nodiscard]] std::string emptyTrashMessage(const TrashMonitor::Figures& trash,
                                            const Formatting& formatting);

using Totals = std::map<std::string, ScanCoordinator::Total>;

[[nodiscard]] std::optional<std::string> trailing(Section section,
                                                  const AppState::ScanState& scanState,
                                                  const Totals& totals,
                                                  const Formatting& formatting);
[[nodiscard]] std::optional<std::string> help(Section section, const Totals& totals,
                                              const Words& words, const Formatting& formatting);

/// What stands at the right of a row, once the tool's activity has had its say.
struct RightHand {
  std::string text;
  bool hasCheckmark = false;
  bool operator==(const RightHand&) const = default;
};
[[nodiscard]] RightHand rightHand(const ToolActivity::State& activity,
                                  const std::optional<std::string>& trailing);
/// Whether a loader takes the place of the icon.
[[nodiscard]] bool isWorking(const ToolActivity::State& activity);

}  // namespace klarvik::sidebar
