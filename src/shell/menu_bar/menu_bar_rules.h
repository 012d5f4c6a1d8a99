#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "places/words.h"
#include "platform/formatting.h"
#include "platform/status_item.h"
#include "state/app_state.h"
#include "state/trash_monitor.h"

/// What the status item and its popover say and draw, as plain functions of what they tell of.
namespace klarvik::menu_bar {

/// Three layers on one another, the topmost fainter.
[[nodiscard]] std::vector<StatusItem::Pill> statusIcon(double width, double height);

/// What was just reclaimed, after a blank; empty when that is nothing.
[[nodiscard]] std::string title(const AppState::ScanState& state, const Formatting& formatting);

/// How many categories of a result have a line of their own.
inline constexpr std::size_t shownCategories = 4;
/// The line below those; empty when no category is left out.
[[nodiscard]] std::string moreCategories(std::size_t count);

[[nodiscard]] std::string_view trashSymbol(const TrashMonitor::Figures& trash);
[[nodiscard]] std::string trashLabel(const TrashMonitor::Figures& trash, const Words& words,
                                     const Formatting& formatting);
[[nodiscard]] bool canEmpty(const TrashMonitor::Figures& trash);

}  // namespace klarvik::menu_bar
