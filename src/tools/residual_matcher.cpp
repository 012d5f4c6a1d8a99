#include "tools/residual_matcher.h"

#include <algorithm>
#include <array>

#include "base/text.h"

namespace klarvik {
namespace {

constexpr std::size_t fewestCharacters = 4;
constexpr std::string_view wordSeparators = ".-_ ";

/// Parts of a bundle identifier that identify nobody.
constexpr std::array<std::string_view, 10> genericParts{"com", "org", "net", "io", "app",
                                                        "co",  "uk",  "de",  "fr", "it"};

std::vector<std::string_view> split(std::string_view text, std::string_view separators) {
  std::vector<std::string_view> parts;
  for (std::size_t start = 0; start <= text.size();) {
    const std::size_t end = std::min(text.find_first_of(separators, start), text.size());
    parts.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return parts;
}

bool isLongEnough(std::string_view text) {
  return characterCount(text) >= fewestCharacters;
}

std::vector<std::string> distinctiveParts(const std::string& bundleID) {
  std::vector<std::string> kept;
  for (const std::string_view part : split(bundleID, ".")) {
    const bool isGeneric = std::ranges::find(genericParts, lowercased(part)) != genericParts.end();
    if (isLongEnough(part) && !isGeneric) kept.emplace_back(part);
  }
  return kept;
}

std::string withBlanksAs(std::string_view replacement, std::string_view text) {
  std::string result;
  for (const char character : text) {
    if (character == ' ') {
      result += replacement;
    } else {
      result += character;
    }
  }
  return result;
}

void append(std::vector<std::string>& list, std::string text) {
  if (std::ranges::find(list, text) == list.end()) list.push_back(std::move(text));
}

/// `parts` of the bundle identifier, then the forms of the name, then the whole identifier.
std::vector<std::string> identifyingTexts(const std::vector<std::string>& parts,
                                          const AppInfo& app) {
  std::vector<std::string> texts;
  for (const std::string& part : parts) append(texts, part);
  const std::string name = lowercased(app.name);
  for (std::string form : {name, withBlanksAs("", name), withBlanksAs("-", name)}) {
    if (isLongEnough(form)) append(texts, std::move(form));
  }
  append(texts, lowercased(app.bundleID));
  return texts;
}

}  // namespace

ResidualMatcher::ResidualMatcher(const AppInfo& app, const ApplicationPlaces& places)
    : _protectedNames(places.protectedNames),
      _bundleID(lowercased(app.bundleID)),
      _tokens(identifyingTexts(distinctiveParts(app.bundleID), app)) {
  std::erase_if(_tokens, [](const std::string& token) { return !isLongEnough(token); });
}

bool ResidualMatcher::matches(std::string_view name) const {
  const std::string lower = lowercased(name);
  const auto begins = [&](std::string_view start) { return lower.starts_with(start); };
  if (std::ranges::any_of(_protectedNames, begins)) return false;
  if (lower == _bundleID) return true;
  const std::vector<std::string_view> words = split(lower, wordSeparators);
  return std::ranges::any_of(_tokens, [&](const std::string& token) {
    return lower == token || std::ranges::find(words, token) != words.end();
  });
}

std::vector<std::string> guardIdentifiers(const AppInfo& app) {
  std::vector<std::string> parts = distinctiveParts(app.bundleID);
  std::ranges::transform(parts, parts.begin(), lowercased);
  return identifyingTexts(parts, app);
}

}  // namespace klarvik
