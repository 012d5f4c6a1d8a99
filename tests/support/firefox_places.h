#pragma once

#include <string>

namespace klarvik {

/// The content of a database with the tables of Firefox's that bear on a history: two pages that
/// only the history keeps, one that is a bookmark, and one that a keyword leads to.
[[nodiscard]] std::string firefoxPlaces();

}  // namespace klarvik
