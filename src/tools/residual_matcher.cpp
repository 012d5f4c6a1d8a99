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

std::vector<std::string> formsOfTheName(const AppInfo& app) {
  std::vector<std::string> forms;
  const std::string name = comparableName(app.name);
  for (std::string form : {name, withBlanksAs("", name), withBlanksAs("-", name)}) {
    if (isLongEnough(form)) append(forms, std::move(form));
  }
  return forms;
}

/// `parts` of the bundle identifier, then the forms of the name, then the whole identifier.
std::vector<std::string> identifyingTexts(const std::vector<std::string>& parts,
                                          const AppInfo& app) {
  std::vector<std::string> texts;
  for (const std::string& part : parts) append(texts, part);
  for (std::string& form : formsOfTheName(app)) append(texts, std::move(form));
  append(texts, comparableName(app.bundleID));
  return texts;
}

bool isAtWordEdge(std::string_view name, std::size_t at) {
  return at >= name.size() || wordSeparators.find(name[at]) != std::string_view::npos;
}

/// Whether a word, or several, of `name` begin with `text`.
bool hasWordsThatBegin(std::string_view name, std::string_view text, bool andEnd = false) {
  if (text.empty()) return false;
  for (auto at = name.find(text); at != std::string_view::npos; at = name.find(text, at + 1)) {
    const bool begins = at == 0 || isAtWordEdge(name, at - 1);
    if (begins && (!andEnd || isAtWordEdge(name, at + text.size()))) return true;
  }
  return false;
}

/// Whether `text` stands in `name` between the separators of words.
bool spells(std::string_view name, std::string_view text) {
  return hasWordsThatBegin(name, text, /*andEnd=*/true);
}

/// Folders that applications share are called by an identifier with this in front of it.
std::string_view withoutGroup(std::string_view name) {
  constexpr std::string_view group = "group.";
  return name.starts_with(group) ? name.substr(group.size()) : name;
}

/// The first two labels of an identifier: "com.acme" of "com.acme.writer".
std::string_view vendorOf(std::string_view identifier) {
  const auto first = identifier.find('.');
  if (first == std::string_view::npos) return {};
  return identifier.substr(0, identifier.find('.', first + 1));
}

constexpr std::string_view systemVendor = "com.apple";

}  // namespace

ResidualMatcher::ResidualMatcher(const AppInfo& app, const ApplicationPlaces& places,
                                 const std::vector<std::string>& installed)
    : _protectedNames(places.protectedNames),
      _bundleID(comparableName(app.bundleID)),
      _tokens(identifyingTexts(distinctiveParts(app.bundleID), app)),
      _nameForms(formsOfTheName(app)) {
  std::erase_if(_tokens, [](const std::string& token) { return !isLongEnough(token); });
  for (const std::string& identifier : installed) {
    std::string lower = comparableName(identifier);
    if (lower != _bundleID) _otherBundles.push_back(std::move(lower));
  }
}

bool ResidualMatcher::matches(std::string_view name) const {
  const std::string lower = comparableName(name);
  const auto isTheSystems = [&](std::string_view identifier) {
    return std::ranges::any_of(
        _protectedNames, [&](std::string_view start) { return identifier.starts_with(start); });
  };
  // Of an application of the system everything is the system's.
  if (isTheSystems(lower) || isTheSystems(_bundleID)) return false;
  return bearsAToken(lower) && !isAnothers(lower) && !sharesOnlyTheVendor(lower);
}

bool ResidualMatcher::bearsAToken(const std::string& lower) const {
  const std::vector<std::string_view> words = split(lower, wordSeparators);
  return lower == _bundleID || std::ranges::any_of(_tokens, [&](const std::string& token) {
           return lower == token || std::ranges::find(words, token) != words.end();
         });
}

bool ResidualMatcher::isAnothers(const std::string& lower) const {
  if (vendorOf(withoutGroup(lower)) == systemVendor && vendorOf(_bundleID) != systemVendor) {
    return true;
  }
  const bool isOwn = spells(lower, _bundleID);
  return std::ranges::any_of(_otherBundles, [&](const std::string& other) {
    // One word alone is rather a word of this name than another's identifier.
    const bool isWord = other.find('.') == std::string::npos;
    // The longer of two that begin alike is the one that is meant.
    const bool isMeant = !isOwn || other.size() > _bundleID.size();
    return isMeant && (isWord ? lower == other : spells(lower, other));
  });
}

bool ResidualMatcher::sharesOnlyTheVendor(const std::string& lower) const {
  const std::string_view vendor = vendorOf(_bundleID);
  if (vendor.empty() || vendorOf(withoutGroup(lower)) != vendor) return false;
  // A word grown longer, "writerx" of "writer", says more than the vendor does.
  const auto stands = [&](std::string_view text) {
    return hasWordsThatBegin(lower, text, /*andEnd=*/!isLongEnough(text));
  };
  return !stands(_bundleID) && !stands(split(_bundleID, ".").back()) &&
         std::ranges::none_of(_nameForms, stands);
}

std::vector<std::string> guardIdentifiers(const AppInfo& app) {
  std::vector<std::string> parts = distinctiveParts(app.bundleID);
  std::ranges::transform(parts, parts.begin(), comparableName);
  return identifyingTexts(parts, app);
}

}  // namespace klarvik
