#include "places/words.h"

namespace klarvik {

std::string filledIn(std::string_view sentence, std::string_view value) {
  constexpr std::string_view place = "%1";
  std::string text(sentence);
  if (const auto at = text.find(place); at != std::string::npos) {
    text.replace(at, place.size(), value);
  }
  return text;
}

}  // namespace klarvik
