#pragma once

#include <map>
#include <optional>
#include <string>

#include "places/words.h"
#include "platform/formatting.h"
#include "state/app_state.h"
#include "state/scan_coordinator.h"
#include "state/section.h"
#include "state/tool_activity.h"

/// What the rows of the sidebar say and draw, as plain functions of what they tell of.
namespace klarvik::sidebar {

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
