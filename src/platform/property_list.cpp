#include "platform/property_list.h"

#include <expat.h>
#include <plist/plist.h>
#include <unicode/unistr.h>

#include <cstdint>
#include <cstdlib>
#include <limits>
#include <memory>

#include "base/text.h"

namespace klarvik {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

std::string textIn(plist_t node) {
  std::uint64_t length = 0;
  const char* const characters = plist_get_string_ptr(node, &length);
  return characters == nullptr ? std::string() : std::string(characters, length);
}

std::optional<PropertyList::Texts> readBinary(std::string_view content) {
  if (!isBoundedBinaryPropertyList(content)) return std::nullopt;
  plist_t root = nullptr;
  plist_from_bin(content.data(), static_cast<std::uint32_t>(content.size()), &root);
  const std::unique_ptr<void, decltype(&plist_free)> freed(root, plist_free);
  if (!PLIST_IS_DICT(root)) return std::nullopt;
  plist_dict_iter position = nullptr;
  plist_dict_new_iter(root, &position);
  const std::unique_ptr<void, decltype(&std::free)> freedPosition(position, std::free);
  PropertyList::Texts texts;
  while (true) {
    char* key = nullptr;
    plist_t value = nullptr;
    plist_dict_next_item(root, position, &key, &value);
    if (key == nullptr) return texts;
    if (PLIST_IS_STRING(value)) texts.emplace(key, textIn(value));
    std::free(key);
  }
}

/// Listens to the reader of XML, and keeps no more than the texts.
class XmlTexts {
 public:
  std::optional<PropertyList::Texts> read(const std::string& content) {
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate("UTF-8"), XML_ParserFree);
    if (!parser) return std::nullopt;
    XML_SetUserData(parser.get(), this);
    XML_SetElementHandler(
        parser.get(),
        [](void* self, const XML_Char* name, const XML_Char**) {
          static_cast<XmlTexts*>(self)->start(name);
        },
        [](void* self, const XML_Char*) { static_cast<XmlTexts*>(self)->end(); });
    XML_SetCharacterDataHandler(parser.get(), [](void* self, const XML_Char* text, int length) {
      static_cast<XmlTexts*>(self)->add({text, static_cast<std::size_t>(length)});
    });
    const auto length = static_cast<int>(content.size());
    const bool isRead = XML_Parse(parser.get(), content.data(), length, 1) == XML_STATUS_OK;
    return isRead && _isDictionary ? std::optional(std::move(_texts)) : std::nullopt;
  }

 private:
  enum class Element { key, text, other };

  /// Of <plist><dict><key/><string/>, the depths are 0 to 2.
  void start(std::string_view name) {
    if (_depth == 0) _isList = name == "plist";
    if (_depth == 1) _isDictionary = _isList && name == "dict";
    if (_depth == kEntryDepth) {
      _element = name == "key" ? Element::key : name == "string" ? Element::text : Element::other;
      _text.clear();
    }
    ++_depth;
  }

  void add(std::string_view text) {
    if (_depth == kEntryDepth + 1 && _element != Element::other) _text += text;
  }

  void end() {
    --_depth;
    if (_depth != kEntryDepth || !_isDictionary) return;
    if (_element == Element::text && _key) _texts.emplace(*std::move(_key), std::move(_text));
    _key.reset();
    if (_element == Element::key) _key = std::move(_text);
  }

  static constexpr std::size_t kEntryDepth = 2;

  std::size_t _depth = 0;
  bool _isList = false;
  bool _isDictionary = false;
  Element _element = Element::other;
  std::string _text;
  std::optional<std::string> _key;
  PropertyList::Texts _texts;
};

/// By the byte order mark, or by the zero beside a character that every list begins with.
const char* encodingOf(std::string_view content) {
  if (content.size() < 2) return "UTF-8";
  const std::string_view start = content.substr(0, 2);
  if (start == "\xFF\xFE" || (start[0] != 0 && start[1] == 0)) return "UTF-16LE";
  if (start == "\xFE\xFF" || (start[0] == 0 && start[1] != 0)) return "UTF-16BE";
  return "UTF-8";
}

/// In UTF-8. What cannot be decoded is replaced: it may stand in a text that nobody asks for.
std::string decoded(std::string_view content) {
  std::string text;
  const auto length = static_cast<std::int32_t>(content.size());
  icu::UnicodeString(content.data(), length, encodingOf(content)).toUTF8String(text);
  if (text.starts_with(kByteOrderMark)) text.erase(0, kByteOrderMark.size());
  return text;
}

std::optional<PropertyList::Texts> textsOf(std::string_view content) {
  if (isBinaryPropertyList(content)) return readBinary(content);
  const std::string text = decoded(content);
  return trimmed(text).starts_with('<') ? XmlTexts().read(text) : readOldStylePropertyList(text);
}

}  // namespace

std::optional<PropertyList> PropertyList::parse(std::string_view content) {
  if (content.size() > std::numeric_limits<std::int32_t>::max()) return std::nullopt;
  auto texts = textsOf(content);
  if (!texts) return std::nullopt;
  return PropertyList(*std::move(texts));
}

std::optional<std::string> PropertyList::text(std::string_view key) const {
  const auto found = _texts.find(key);
  if (found == _texts.end()) return std::nullopt;
  const bool isWhole =
      isUtf8(found->second) && found->second.find(kReplacement) == std::string::npos;
  return isWhole ? std::optional(found->second) : std::nullopt;
}

}  // namespace klarvik
