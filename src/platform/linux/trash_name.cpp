#include "platform/linux/trash_name.h"

#include <limits.h>

#include <random>

namespace klarvik {
namespace {

constexpr std::size_t kLongestName = NAME_MAX - kTrashRecordSuffix.size();
constexpr std::size_t kLongestExtension = 32;
constexpr std::size_t kNumberedNames = 8;

std::string_view extensionOf(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos || dot == 0) return {};
  const std::string_view extension = name.substr(dot);
  return extension.size() <= kLongestExtension ? extension : std::string_view();
}

// Not in the middle of a character, if it is UTF-8: that has at most three bytes after the first.
std::string_view cutTo(std::string_view text, std::size_t length) {
  if (text.size() <= length) return text;
  const auto continues = [&](std::size_t at) {
    return (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
  };
  for (std::size_t end = length; end > 0 && length - end <= 3; --end) {
    if (!continues(end)) return text.substr(0, end);
  }
  return text.substr(0, length);
}

std::string numberAfter(std::size_t taken) {
  std::string text;
  if (taken == 0) return text;
  const std::size_t number = taken <= kNumberedNames ? taken + 1 : std::random_device()();
  return text.append(".").append(std::to_string(number));
}

}  // namespace

std::string trashName(std::string_view name, std::size_t taken) {
  const std::string_view extension = extensionOf(name);
  const std::string_view stem = name.substr(0, name.size() - extension.size());
  const std::string number = numberAfter(taken);
  std::string result(cutTo(stem, kLongestName - number.size() - extension.size()));
  return result.append(number).append(extension);
}

}  // namespace klarvik
