#include "platform/update/version.h"

#include <algorithm>

#include "base/text.h"

namespace klarvik {
namespace {

constexpr std::size_t longestText = 64;
constexpr std::string_view whiteSpace = " \t\r\n";

// The locale has no say in what a digit is.
bool isDigit(char character) {
  return character >= '0' && character <= '9';
}

bool isLetter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool isSeparator(char character) {
  return character == '.' || character == '-' || character == '~';
}

/// Cuts the longest run of what `belongs` off the front of `text`.
template <typename Belongs>
std::string_view takeRun(std::string_view& text, Belongs belongs) {
  const auto end = std::find_if_not(text.begin(), text.end(), belongs);
  const std::string_view run = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  text.remove_prefix(run.size());
  return run;
}

std::string withoutZerosInFront(std::string_view digits) {
  return std::string(digits.substr(std::min(digits.find_first_not_of('0'), digits.size())));
}

std::string inSmallLetters(std::string_view letters) {
  std::string small(letters);
  for (char& letter : small) letter = static_cast<char>(letter | 0x20);
  return small;
}

std::weak_ordering compareNumbers(std::string_view left, std::string_view right) {
  const auto byLength = left.size() <=> right.size();
  return std::is_eq(byLength) ? std::weak_ordering(left <=> right) : byLength;
}

bool isNumber(std::string_view run) {
  return run.empty() || isDigit(run.front());
}

/// A number comes before a word.
std::weak_ordering compareRuns(std::string_view left, std::string_view right) {
  if (isNumber(left) != isNumber(right)) return isNumber(right) <=> isNumber(left);
  return isNumber(left) ? compareNumbers(left, right) : std::weak_ordering(left <=> right);
}

}  // namespace

std::optional<Version> Version::parse(std::string_view text) {
  std::string_view rest = trimmed(text, whiteSpace);
  if (rest.size() > longestText) return std::nullopt;
  Version version;
  do {
    const std::string_view digits = takeRun(rest, isDigit);
    if (digits.empty()) return std::nullopt;
    version._numbers.push_back(withoutZerosInFront(digits));
  } while (rest.starts_with('.') && (rest.remove_prefix(1), true));
  while (!version._numbers.empty() && version._numbers.back().empty()) version._numbers.pop_back();

  std::string_view mark = rest.substr(0, rest.find('+'));
  const bool isMarked = !mark.empty();
  while (!mark.empty()) {
    takeRun(mark, isSeparator);
    if (mark.empty()) break;
    const std::string_view digits = takeRun(mark, isDigit);
    const std::string_view letters = takeRun(mark, isLetter);
    if (digits.empty() && letters.empty()) return std::nullopt;
    if (!digits.empty()) version._preRelease.push_back(withoutZerosInFront(digits));
    if (!letters.empty()) version._preRelease.push_back(inSmallLetters(letters));
  }
  if (isMarked && version._preRelease.empty()) return std::nullopt;
  return version;
}

std::weak_ordering Version::operator<=>(const Version& other) const {
  const auto byNumbers = std::lexicographical_compare_three_way(
      _numbers.begin(), _numbers.end(), other._numbers.begin(), other._numbers.end(),
      compareNumbers);
  if (!std::is_eq(byNumbers)) return byNumbers;
  if (_preRelease.empty() != other._preRelease.empty()) {
    return _preRelease.empty() <=> other._preRelease.empty();
  }
  return std::lexicographical_compare_three_way(_preRelease.begin(), _preRelease.end(),
                                                other._preRelease.begin(), other._preRelease.end(),
                                                compareRuns);
}

}  // namespace klarvik
