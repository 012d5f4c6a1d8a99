#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/formatting.h"
#include "state/app_state.h"
#include "state/disk_monitor.h"
#include "state/scan_coordinator.h"
#include "state/section.h"
#include "state/tool_activity.h"

/// What the sidebar says and draws, as plain functions of what it tells of.
namespace klarvik::sidebar {

using Totals = std::map<std::string, ScanCoordinator::Total>;

/// Empty for the one section that is drawn with the brand's own glyph.
[[nodiscard]] std::string_view symbol(Section section);
/// The heading that the section stands below; empty for the one that stands alone.
[[nodiscard]] std::string_view group(Section section);

[[nodiscard]] std::optional<std::string> trailing(Section section,
                                                  const AppState::ScanState& scanState,
                                                  const Totals& totals,
                                                  const Formatting& formatting);
[[nodiscard]] std::optional<std::string> help(Section section, const Totals& totals,
                                              const Formatting& formatting);

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

/// 0 to 1.
[[nodiscard]] double usedFraction(const DiskStats& stats);
[[nodiscard]] bool isNearlyFull(const DiskStats& stats);
[[nodiscard]] std::string percentFull(const DiskStats& stats);
[[nodiscard]] std::string freeLine(const DiskStats& stats, const Formatting& formatting);

/// What `TrashMonitor` publishes.
struct TrashFigures {
  std::int64_t bytes = 0;
  std::int64_t itemCount = 0;
  bool isEmptying = false;
  std::optional<DeletionProgress> emptyProgress;
  bool isReadable = true;
  bool isMeasuring = false;
};
enum class TrashControl { none, progress, grant, empty };

[[nodiscard]] std::string_view trashSymbol(const TrashFigures& trash);
[[nodiscard]] std::string trashSubtitle(const TrashFigures& trash, const Formatting& formatting);
[[nodiscard]] TrashControl trashControl(const TrashFigures& trash);
[[nodiscard]] std::string trashControlHelp(const TrashFigures& trash, const Formatting& formatting);
[[nodiscard]] std::string emptyTrashMessage(const TrashFigures& trash,
                                            const Formatting& formatting);

}  // namespace klarvik::sidebar
