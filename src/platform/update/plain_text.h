#pragma once

#include <string>
#include <string_view>

namespace klarvik {

/// Release notes that are text already: without control characters, and cut where no one reads on.
[[nodiscard]] std::string plainNotes(std::string_view text);
/// The words of release notes that were written for a browser, a line for each block of them.
/// Nothing that they refer to is read.
[[nodiscard]] std::string plainNotesOfHtml(std::string_view html);

}  // namespace klarvik
