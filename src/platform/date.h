#pragma once

#include <chrono>

namespace klarvik {

/// A moment in time, to the nanosecond where the file system keeps it that finely.
using Date = std::chrono::system_clock::time_point;

}  // namespace klarvik
