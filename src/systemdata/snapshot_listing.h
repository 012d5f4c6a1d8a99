#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace klarvik {

// Local snapshots as the analysis of System Data lists them: by their full names, where a Smart
// Scan asks for their dates. Their paths are those of "engine/local_snapshots.h".

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
