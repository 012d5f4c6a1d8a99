#pragma once

#include <string_view>

namespace klarvik {

/// Whether the bytes say of themselves that they are a binary property list.
[[nodiscard]] bool isBinaryPropertyList(std::string_view content);

/// Whether every object that the list holds lies within its bytes, and all of them together are as
/// much as a parser that copies an object for each reference to it can take: a list may name itself
/// as a part of itself, or name one part twice, that again names one part twice, and so on. To be
/// asked before such a parser is let loose on it.
[[nodiscard]] bool isBoundedBinaryPropertyList(std::string_view content);

}  // namespace klarvik
