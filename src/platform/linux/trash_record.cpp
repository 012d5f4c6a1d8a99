#include "platform/linux/trash_record.h"

#include <algorithm>
#include <array>

#include "base/text.h"

namespace klarvik {
namespace {

constexpr std::string_view kHeading = "[Trash Info]";
constexpr std::string_view kPathKey = "Path=";
constexpr std::string_view kHexDigits = "0123456789ABCDEF";
// Letters and digits aside, what a place may hold without being encoded.
constexpr std::string_view kPlainMarks = "/-._~";

bool isPlain(unsigned char byte) {
  return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
         (byte >= '0' && byte <= '9') ||
         kPlainMarks.find(static_cast<char>(byte)) != std::string_view::npos;
}

std::string percentEncoded(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (isPlain(byte)) {
      text += c;
    } else {
      text += {'%', kHexDigits[byte >> 4], kHexDigits[byte & 15]};
    }
  }
  return text;
}

std::optional<char> byteOf(std::string_view twoDigits) {
  const auto value = wholeNumber<unsigned char>(twoDigits, 16);
  if (twoDigits.size() != 2 || !value || *value == 0) return std::nullopt;
  return static_cast<char>(*value);
}

std::optional<std::string> percentDecoded(std::string_view text) {
  std::string bytes;
  while (!text.empty()) {
    if (text.front() != '%') {
      bytes += text.front();
      text.remove_prefix(1);
      continue;
    }
    const auto byte = byteOf(text.substr(1, 2));
    if (!byte) return std::nullopt;
    bytes += *byte;
    text.remove_prefix(3);
  }
  return bytes;
}

bool climbs(const Path& place) {
  return std::find(place.begin(), place.end(), "..") != place.end();
}

}  // namespace

std::string trashRecordText(const Path& place, std::time_t deleted) {
  std::tm local{};
  ::localtime_r(&deleted, &local);
  std::array<char, 32> date{};
  std::strftime(date.data(), date.size(), "%Y-%m-%dT%H:%M:%S", &local);
  return std::string(kHeading) + "\n" + std::string(kPathKey) + percentEncoded(place.native()) +
         "\nDeletionDate=" + date.data() + "\n";
}

std::optional<Path> placeInTrashRecord(std::string_view text) {
  if (takeLine(text) != kHeading) return std::nullopt;
  while (!text.empty()) {
    const std::string_view line = takeLine(text);
    if (!line.starts_with(kPathKey)) continue;
    const auto bytes = percentDecoded(line.substr(kPathKey.size()));
    if (!bytes || bytes->empty() || bytes->find('\0') != std::string::npos) return std::nullopt;
    Path place(*bytes);
    return climbs(place) ? std::nullopt : std::optional(std::move(place));
  }
  return std::nullopt;
}

}  // namespace klarvik
