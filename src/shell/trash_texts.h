#pragma once

#include <string>
#include <string_view>

#include "platform/formatting.h"
#include "shell/trash_block.h"

/// What the sidebar says and draws of the Trash, as plain functions of its figures.
namespace klarvik::sidebar {

[[nodiscard]] std::string_view trashSymbol(const TrashMonitor::Figures& trash);
[[nodiscard]] std::string trashSubtitle(const TrashMonitor::Figures& trash,
                                        const Formatting& formatting);
[[nodiscard]] TrashBlock::Control trashControl(const TrashMonitor::Figures& trash);
[[nodiscard]] std::string trashControlHelp(const TrashMonitor::Figures& trash,
                                           const Formatting& formatting);
[[nodiscard]] std::string emptyTrashMessage(const TrashMonitor::Figures& trash,
                                            const Formatting& formatting);

}  // namespace klarvik::sidebar
