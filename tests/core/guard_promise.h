#pragma once

#include <optional>
#include <string>

#include "core/deletion_guard.h"

namespace klarvik {

/// Asks the guard about `path`. When it allows the path, answers what speaks against that by an
/// account of its own of what may ever be removed, which shares nothing with the guard; nothing
/// when all is well.
[[nodiscard]] std::optional<std::string> violatedInvariant(const Path& path,
                                                           const DeletionScope& scope,
                                                           const Path& home);

}  // namespace klarvik
