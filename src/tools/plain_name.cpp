#include "tools/plain_name.h"

#include <algorithm>

namespace klarvik {

bool isPlainName(std::string_view name, std::string_view marks) {
  const auto isLetterOrDigit = [](char each) {
    return (each >= 'a' && each <= 'z') || (each >= 'A' && each <= 'Z') ||
           (each >= '0' && each <= '9');
  };
  return !name.empty() && isLetterOrDigit(name.front()) &&
         std::ranges::all_of(name, [&](char each) {
           return isLetterOrDigit(each) || marks.find(each) != std::string_view::npos;
         });
}

}  // namespace klarvik
