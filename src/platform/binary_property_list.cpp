#include "platform/property_list.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace klarvik {
namespace {

constexpr std::string_view kMagic = "bplist00";
constexpr std::size_t kTrailerBytes = 32;
constexpr std::size_t kDeepest = 200;
constexpr std::uint64_t kMostObjects = 100'000;        // each counted for every reference to it
constexpr std::uint64_t kMostBytes = 64 * 1'048'576U;  // in what objects hold, counted likewise

/// The kinds of objects, as the upper half of their first byte tells them.
enum Kind : unsigned {
  simple = 0x0,
  integer = 0x1,
  real = 0x2,
  date = 0x3,
  data = 0x4,
  ascii = 0x5,
  utf16 = 0x6,
  uid = 0x8,
  array = 0xA,
  dictionary = 0xD,
};

/// An object without what it refers to.
struct Object {
  std::uint64_t bytes = 0;           ///< of content after the marker, references included
  std::uint64_t firstReference = 0;  ///< position in the list
  std::uint64_t references = 0;
};

class Outline {
 public:
  explicit Outline(std::string_view content) : _content(content) {}

  bool isBounded() { return readTrailer() && walk(); }

 private:
  [[nodiscard]] unsigned byteAt(std::uint64_t position) const {
    return static_cast<unsigned char>(_content[position]);
  }

  /// Nothing when the number is not wholly within the objects.
  [[nodiscard]] std::optional<std::uint64_t> number(std::uint64_t position, std::uint64_t bytes,
                                                    std::uint64_t end) const {
    if (bytes > 8 || position > end || bytes > end - position) return std::nullopt;
    std::uint64_t value = 0;
    for (std::uint64_t i = 0; i < bytes; ++i) value = value << 8U | byteAt(position + i);
    return value;
  }

  bool readTrailer() {
    if (_content.size() < kMagic.size() + kTrailerBytes) return false;
    const std::uint64_t end = _content.size();
    const std::uint64_t trailer = end - kTrailerBytes;
    _offsetBytes = byteAt(trailer + 6);
    _referenceBytes = byteAt(trailer + 7);
    _objects = *number(trailer + 8, 8, end);
    _root = *number(trailer + 16, 8, end);
    _table = *number(trailer + 24, 8, end);
    const auto isWidth = [](std::uint64_t bytes) { return bytes >= 1 && bytes <= 8; };
    return isWidth(_offsetBytes) && isWidth(_referenceBytes) && _root < _objects &&
           _table >= kMagic.size() && _table <= trailer &&
           _objects <= (trailer - _table) / _offsetBytes;
  }

  bool walk() {
    struct Visit {
      std::uint64_t object;
      std::size_t depth;
    };
    std::vector<Visit> waiting{{_root, 1}};
    std::uint64_t seen = 0;
    std::uint64_t bytes = 0;
    while (!waiting.empty()) {
      const Visit visit = waiting.back();
      waiting.pop_back();
      const auto object = objectNumber(visit.object);
      if (!object || visit.depth > kDeepest) return false;
      bytes += object->bytes;
      seen += object->references;
      if (bytes > kMostBytes || seen > kMostObjects) return false;
      for (std::uint64_t i = 0; i < object->references; ++i) {
        const auto reference =
            number(object->firstReference + i * _referenceBytes, _referenceBytes, _table);
        if (!reference) return false;
        waiting.push_back({*reference, visit.depth + 1});
      }
    }
    return true;
  }

  [[nodiscard]] std::optional<Object> objectNumber(std::uint64_t index) const {
    if (index >= _objects) return std::nullopt;
    const auto position = number(_table + index * _offsetBytes, _offsetBytes, _content.size());
    if (!position || *position < kMagic.size() || *position >= _table) return std::nullopt;
    return objectAt(*position);
  }

  /// Nothing when the object is of no known kind or not wholly in front of the table.
  [[nodiscard]] std::optional<Object> objectAt(std::uint64_t position) const {
    const unsigned kind = byteAt(position) >> 4U;
    const unsigned low = byteAt(position) & 0xFU;
    ++position;
    switch (kind) {
      case simple:
        return low == 0 || low == 8 || low == 9 ? within(position, 0, 1) : std::nullopt;
      case integer:
        return low <= 4 ? within(position, 1, std::uint64_t{1} << low) : std::nullopt;
      case real:
        return low == 2 || low == 3 ? within(position, 1, std::uint64_t{1} << low) : std::nullopt;
      case date:
        return low == 3 ? within(position, 1, 8) : std::nullopt;
      case uid:
        return low <= 7 ? within(position, 1, low + 1) : std::nullopt;
      default:
        return countedObject(kind, low, position);
    }
  }

  [[nodiscard]] std::optional<Object> countedObject(unsigned kind, unsigned low,
                                                    std::uint64_t position) const {
    std::uint64_t count = low;
    if (low == 0xF) {
      if (position >= _table || byteAt(position) >> 4U != integer) return std::nullopt;
      const std::uint64_t width = std::uint64_t{1} << (byteAt(position) & 0xFU);
      const auto stated = number(position + 1, width, _table);
      if (!stated) return std::nullopt;
      count = *stated;
      position += 1 + width;
    }
    switch (kind) {
      case data:
      case ascii:
        return within(position, count, 1);
      case utf16:
        return within(position, count, 2);
      case array:
        return container(position, count, 1);
      case dictionary:
        return container(position, count, 2);
      default:
        return std::nullopt;
    }
  }

  [[nodiscard]] std::optional<Object> container(std::uint64_t position, std::uint64_t count,
                                                std::uint64_t referencesEach) const {
    auto object = within(position, count, referencesEach * _referenceBytes);
    if (object) object->references = count * referencesEach;
    return object;
  }

  [[nodiscard]] std::optional<Object> within(std::uint64_t position, std::uint64_t count,
                                             std::uint64_t bytesEach) const {
    if (position > _table || count > (_table - position) / bytesEach) return std::nullopt;
    return Object{.bytes = count * bytesEach, .firstReference = position};
  }

  std::string_view _content;
  std::uint64_t _offsetBytes = 0;
  std::uint64_t _referenceBytes = 0;
  std::uint64_t _objects = 0;
  std::uint64_t _root = 0;
  std::uint64_t _table = 0;  // where the objects end, and their positions begin
};

}  // namespace

bool isBinaryPropertyList(std::string_view content) {
  return content.starts_with(kMagic.substr(0, 6));
}

bool isBoundedBinaryPropertyList(std::string_view content) {
  return content.starts_with(kMagic) && Outline(content).isBounded();
}

}  // namespace klarvik
