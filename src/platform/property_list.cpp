#include "platform/property_list.h"

#include <plist/plist.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

#include "base/text.h"
#include "platform/binary_property_list.h"

namespace klarvik {
namespace {

/// How often these may occur in an XML list, comments and all. The library frees one container
/// inside the other on the stack, compares the keys of a dictionary with one another, and moves the
/// rest of a text for each entity in it.
struct Bound {
  std::string_view word;
  std::size_t most;
};
constexpr std::array<Bound, 4> kBounds{
    {{"<dict", 10'000}, {"<array", 10'000}, {"<key", 5'000}, {"&", 2'000}}};

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// Calls `visit` with what follows each `word`, until it answers false. Whether it never did.
template <class Visit>
bool forEach(std::string_view word, std::string_view text, Visit visit) {
  for (std::size_t at = text.find(word); at != std::string_view::npos; at = text.find(word, at)) {
    at += word.size();
    if (!visit(text.substr(at))) return false;
  }
  return true;
}

bool holdsAtMost(const Bound& bound, std::string_view text) {
  std::size_t count = 0;
  return forEach(bound.word, text, [&](std::string_view) { return ++count <= bound.most; });
}

/// "2026-01-31T23:59:59Z" and the end of the element. With any other month the library looks up its
/// length where there is none.
bool isDate(std::string_view text) {
  constexpr std::string_view form = "0000-00-00T00:00:00Z</date>";
  if (text.size() < form.size()) return false;
  const auto fits = [](char expected, char found) {
    return expected == '0' ? found >= '0' && found <= '9' : found == expected;
  };
  const std::string_view month = text.substr(5, 2);
  return std::equal(form.begin(), form.end(), text.begin(), fits) && month >= "01" && month <= "12";
}

bool isBoundedXml(std::string_view content) {
  const auto isSoundDate = [](std::string_view rest) {
    return rest.starts_with("/>") || (rest.starts_with('>') && isDate(rest.substr(1)));
  };
  return std::ranges::all_of(kBounds,
                             [&](const Bound& bound) { return holdsAtMost(bound, content); }) &&
         forEach("<date", content, isSoundDate);
}

plist_t rootOf(std::string_view content) {
  if (content.starts_with(kByteOrderMark)) content.remove_prefix(kByteOrderMark.size());
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
