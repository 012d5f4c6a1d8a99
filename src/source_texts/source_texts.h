#pragma once

#include <set>
#include <string>

namespace klarvik {

/// Every text of the tables that a person reads, of all systems: names of categories and places,
/// reasons, sentences. What is written in code is marked there, and lupdate finds it by itself.
[[nodiscard]] std::set<std::string> sourceTexts();

}  // namespace klarvik
