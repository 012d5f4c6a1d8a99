#include "platform/property_list.h"

#include <plist/plist.h>

#include <cstdint>
#include <limits>

#include "platform/binary_property_list.h"
#include "platform/unicode_text.h"

namespace klarvik {
namespace {

/// Each is one level of the stack when the library lets go of a list that nests them all.
constexpr std::size_t kMostContainers = 10'000;

std::size_t countOf(std::string_view word, std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = text.find(word); at != std::string_view::npos;
       at = text.find(word, at + word.size())) {
    ++count;
  }
  return count;
}

/// Whatever else the text holds, comments included, it opens no more containers than these words.
bool isBoundedXml(std::string_view content) {
  return countOf("<dict", content) + countOf("<array", content) <= kMostContainers;
}

plist_t rootOf(std::string_view content) {
  const auto size = static_cast<std::uint32_t>(content.size());
  plist_t root = nullptr;
  if (isBinaryPropertyList(content)) {
    if (isBoundedBinaryPropertyList(content)) plist_from_bin(content.data(), size, &root);
  } else if (isBoundedXml(content)) {
    plist_from_xml(content.data(), size, &root);
  }
  return root;
}

}  // namespace

void PropertyList::Release::operator()(void* root) const {
  plist_free(root);
}

std::optional<PropertyList> PropertyList::parse(std::string_view content) {
  if (content.size() > std::numeric_limits<std::uint32_t>::max()) return std::nullopt;
  PropertyList list(rootOf(content));
  if (!PLIST_IS_DICT(list._root.get())) return std::nullopt;
  return list;
}

std::optional<std::string> PropertyList::text(const char* key) const {
  const plist_t value = plist_dict_get_item(_root.get(), key);
  if (!PLIST_IS_STRING(value)) return std::nullopt;
  std::uint64_t length = 0;
  const char* characters = plist_get_string_ptr(value, &length);
  if (characters == nullptr || !isUtf8({characters, length})) return std::nullopt;
  return std::string(characters, length);
}

}  // namespace klarvik
