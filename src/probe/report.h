#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>

#include "engine/scanner_engine.h"

namespace klarvik::probe {

/// One line of the output. Fields come out in the order in which they were put in.
using Report = nlohmann::ordered_json;

/// Bytes of the disk: a text where they are UTF-8, else {"bytes": their hexadecimal digits}.
[[nodiscard]] Report textReport(std::string_view bytes);
[[nodiscard]] Report pathReport(const std::optional<Path>& path);
/// Nanoseconds since 1970-01-01.
[[nodiscard]] Report dateReport(const std::optional<Date>& date);

[[nodiscard]] Report updateReport(const ScanUpdate& update);
[[nodiscard]] Report categoryReport(const CleanCategory& category);
[[nodiscard]] Report progressReport(const DeletionProgress& progress);
[[nodiscard]] Report outcomeReport(const DeletionOutcome& outcome);

/// Writes one line on standard output, at once.
void print(const Report& report);

}  // namespace klarvik::probe
