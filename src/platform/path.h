#pragma once

#include <filesystem>

namespace klarvik {

/// A path holds the bytes of the names as the disk has them; they need not be UTF-8.
using Path = std::filesystem::path;

}  // namespace klarvik
