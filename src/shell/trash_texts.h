#pragma once

#include <string>
#include <string_view>

#include "places/disk_layout.h"
#include "platform/formatting.h"
#include "shell/trash_block_model.h"

/// What the sidebar says and draws of the Trash, as plain functions of its figures.
namespace klarvik::sidebar {

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

}  // namespace klarvik::sidebar
