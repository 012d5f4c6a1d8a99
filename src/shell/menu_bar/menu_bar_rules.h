#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/formatting.h"
#include "platform/status_item.h"
#include "state/app_state.h"

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

/// What `TrashMonitor` publishes.
struct TrashFigures {
  std::int64_t bytes = 0;
  std::int64_t itemCount = 0;
  bool isEmptying = false;
  bool isReadable = true;
};
[[nodiscard]] std::string_view trashSymbol(const TrashFigures& trash);
[[nodiscard]] std::string trashLabel(const TrashFigures& trash, const Formatting& formatting);
[[nodiscard]] bool canEmpty(const TrashFigures& trash);

}  // namespace klarvik::menu_bar
