#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"

namespace klarvik {

// Local snapshots of the disk. They are no files: each is named by its date text, and stands in
// results under a path that exists nowhere, so that it can be selected and removed like any item.

/// What a snapshot counts for when no size is told: 500 MiB, so that it never shows as nothing.
inline constexpr std::int64_t estimatedSnapshotBytes = 524'288'000;

/// The texts that name snapshots in what `tmutil listlocalsnapshotdates` prints, in its order.
[[nodiscard]] std::vector<std::string> snapshotTexts(std::string_view output);

[[nodiscard]] Path snapshotPath(std::string_view text);
/// Whether a standardised path stands for a snapshot.
[[nodiscard]] bool isSnapshotPath(const Path& path);

/// Nothing where the text may not stand on a command line.
[[nodiscard]] std::optional<std::string> snapshotSizeCommand(const std::string& text);
/// The same for the path of a snapshot: the tool is told its last component, but the whole text has
/// to be harmless, so that what is removed is never another one than what was listed.
[[nodiscard]] std::optional<std::string> snapshotRemovalCommand(const Path& path);

/// Bytes, from what the size command printed; the estimate where that is no number.
[[nodiscard]] std::int64_t snapshotBytes(std::string_view output);

// Local snapshots as the analysis of System Data lists them: by their full names, where a Smart
// Scan asks for their dates. Their paths are the same.

/// What a snapshot counts for here when no size is told. The Smart Scan has an estimate of its own.
inline constexpr std::int64_t estimatedListedSnapshotBytes = 1'000'000'000;

/// The texts that name snapshots in what `tmutil listlocalsnapshots` prints, in its order, without
/// the vendor's prefix.
[[nodiscard]] std::vector<std::string> listedSnapshots(std::string_view output);

/// Nothing where the text may not stand on a command line.
[[nodiscard]] std::optional<std::string> listedSnapshotSizeCommand(const std::string& text);

/// Bytes, from what the size command printed; the estimate where that is no number.
[[nodiscard]] std::int64_t listedSnapshotBytes(std::string_view output);

}  // namespace klarvik
