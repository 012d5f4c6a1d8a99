#pragma once

#include "platform/platform.h"
#include "systemdata/system_data_engine.h"

namespace klarvik {

/// Accounts for all that the volume of the home says is used, by the table of its layout: what was
/// measured, largest first, what programs have deleted and not closed, and last the remainder that
/// nobody but an administrator could read. What the file system keeps for the system is told before
/// the remainder; it is not used. As `SystemDataEngine::analyse` otherwise.
[[nodiscard]] SystemDataResult makeLedger(const Platform& platform,
                                          const SystemDataEngine::ProgressSink& progress,
                                          const std::stop_token& stop);

}  // namespace klarvik
