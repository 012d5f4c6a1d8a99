#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "places/disk_layout.h"
#include "platform/formatting.h"
#include "systemdata/system_data_item.h"

/// Every sentence of the System Data pane that follows a rule, as plain functions of what it tells
/// of. Sizes are in bytes.
namespace klarvik::system_data {

/// Without a total there is no result.
[[nodiscard]] std::string paneTitle(std::optional<std::int64_t> total,
                                    const Formatting& formatting);
/// Without a figure there is no result.
[[nodiscard]] std::string subtitle(std::optional<std::int64_t> removableBytes, const Words& words,
                                   const Formatting& formatting);
[[nodiscard]] std::string actionTitle(bool isScanning, bool hasResult);

[[nodiscard]] std::string removableSummary(std::int64_t removableBytes,
                                           const Formatting& formatting);
[[nodiscard]] std::string protectedSummary(std::int64_t protectedBytes,
                                           const Formatting& formatting);

/// Whether the system needs them is told of the kind, whatever its items say; where the analysis
/// accounts for the whole volume, what the kind is.
[[nodiscard]] std::string kindDetail(std::size_t items, SystemDataSubCategory kind,
                                     const DiskLayout& layout);
/// Its sentence, and where it lies.
[[nodiscard]] std::string itemDetail(const SystemDataItem& item, const Path& home);
/// How the rows add up.
[[nodiscard]] std::string ledgerNote(const LedgerSum& sum, const Words& words,
                                     const Formatting& formatting);
[[nodiscard]] std::string selectionHelp(SystemDataSubCategory kind, const DiskLayout& layout);
[[nodiscard]] std::string safetyText(ItemSafety safety);

[[nodiscard]] std::string selectionSummary(std::int64_t selected);
[[nodiscard]] std::string removalTitle(std::int64_t selectedBytes, const Formatting& formatting);
[[nodiscard]] std::string confirmationTitle(std::int64_t selected);
[[nodiscard]] std::string confirmationMessage(std::int64_t selectedBytes,
                                              const Formatting& formatting);

[[nodiscard]] std::string removedHeadline(std::int64_t items, std::int64_t bytes,
                                          const Formatting& formatting);
[[nodiscard]] std::string removedDetail(bool trashHoldsIt);

}  // namespace klarvik::system_data
