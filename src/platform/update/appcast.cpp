#include "platform/update/appcast.h"

#include <QXmlStreamReader>
#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "base/text.h"

namespace klarvik {
namespace {

constexpr std::size_t mostBytes = 16'000;
constexpr std::size_t longestCharacter = 4;
constexpr std::size_t longestEntity = 8;
constexpr std::string_view whiteSpace = " \t\r\n";
constexpr std::string_view bullet = "\u2022 ";

constexpr std::array<std::pair<std::string_view, std::string_view>, 6> entities{
    {{"amp", "&"}, {"lt", "<"}, {"gt", ">"}, {"quot", "\""}, {"apos", "'"}, {"nbsp", " "}}};
/// Elements that stand on lines of their own.
constexpr std::array<std::string_view, 15> blocks{
    "p", "div", "br", "ul", "ol", "li", "h1", "h2", "h3", "h4", "h5", "h6", "tr", "table", "hr"};
/// Elements whose content is not for reading.
constexpr std::array<std::string_view, 4> unread{"script", "style", "head", "title"};

bool isOneOf(std::string_view name, const auto& names) {
  return std::ranges::find(names, name) != names.end();
}

bool isWhite(char character) {
  return whiteSpace.find(character) != whiteSpace.npos;
}

bool isControl(char character) {
  return static_cast<unsigned char>(character) < 0x20 || character == 0x7F;
}

/// "&#65;" without what stands around the digits.
std::optional<std::string> characterOfNumber(std::string_view digits) {
  std::uint32_t number = 0;
  for (const char digit : digits) {
    if (digit < '0' || digit > '9') return std::nullopt;
    number = number * 10 + static_cast<std::uint32_t>(digit - '0');
  }
  if (number < 0x20 || number > 0x7E) return std::nullopt;
  return std::string(1, static_cast<char>(number));
}

/// Reads once from front to end, whatever is nested in what. QTextDocument, which also knows HTML,
/// takes seconds of the main thread for 64 KB of open elements or of style rules, and asks for the
/// style sheets and pictures that a text names.
class HtmlToText {
 public:
  explicit HtmlToText(std::string_view html) : _rest(html) {}

  std::string read() {
    while (!_rest.empty() && _text.size() < mostBytes + longestCharacter) {
      if (_rest.front() == '<') {
        takeTag();
      } else if (_rest.front() == '&') {
        takeEntity();
      } else {
        take(_rest.front());
        _rest.remove_prefix(1);
      }
    }
    return std::move(_text);
  }

 private:
  void takeTag() {
    if (_rest.starts_with("<!--")) return skipThrough("-->");
    const auto end = _rest.find('>');
    std::string_view tag = _rest.substr(1, end == _rest.npos ? end : end - 1);
    skipThrough(">");
    const bool isEnd = tag.starts_with('/');
    if (isEnd) tag.remove_prefix(1);
    const std::string name =
        lowercased(tag.substr(0, std::min(tag.find_first_of(" \t\r\n/"), std::size_t{10})));
    if (isOneOf(name, blocks)) endLine();
    if (!isEnd && name == "li") _text += bullet;
    if (!isEnd && isOneOf(name, unread))
      _rest.remove_prefix(std::min(_rest.find("</"), _rest.size()));
  }

  void takeEntity() {
    const std::string_view ahead = _rest.substr(1, longestEntity);
    const auto end = ahead.find(';');
    const std::string_view name = ahead.substr(0, end == ahead.npos ? 0 : end);
    if (const auto character = characterOf(name)) {
      _text += *character;
      _rest.remove_prefix(name.size() + 2);
    } else {
      take('&');
      _rest.remove_prefix(1);
    }
  }

  static std::optional<std::string> characterOf(std::string_view name) {
    if (name.starts_with('#')) return characterOfNumber(name.substr(1));
    for (const auto& [known, character] : entities) {
      if (known == name) return std::string(character);
    }
    return std::nullopt;
  }

  /// White space between words is one space, and none where a line begins.
  void take(char character) {
    if (!isWhite(character)) {
      _text += character;
    } else if (!_text.empty() && !isWhite(_text.back())) {
      _text += ' ';
    }
  }

  void endLine() {
    while (!_text.empty() && _text.back() == ' ') _text.pop_back();
    if (!_text.empty() && _text.back() != '\n') _text += '\n';
  }

  void skipThrough(std::string_view end) {
    const auto at = _rest.find(end);
    _rest.remove_prefix(at == _rest.npos ? _rest.size() : at + end.size());
  }

  std::string_view _rest;
  std::string _text;
};

/// No more than is read, and no half of a character at its end.
std::string cut(std::string_view text) {
  std::string_view kept = text.substr(0, mostBytes);
  const auto isContinuation = [&](std::size_t at) {
    return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
  };
  while (!kept.empty() && isContinuation(kept.size())) kept.remove_suffix(1);
  return std::string(kept);
}

}  // namespace

std::string plainNotes(std::string_view text) {
  std::string notes = cut(text);
  std::erase_if(notes, [](char character) { return isControl(character) && character != '\n'; });
  return std::string(trimmed(notes, whiteSpace));
}

std::string plainNotesOfHtml(std::string_view html) {
  return plainNotes(HtmlToText(html).read());
}

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// Elements of an item, under the prefix that appcasts bind.
constexpr std::array<std::pair<const char*, std::string AppcastItem::*>, 7> elements{{
    {"sparkle:version", &AppcastItem::version},
    {"sparkle:shortVersionString", &AppcastItem::displayVersion},
    {"sparkle:releaseNotesLink", &AppcastItem::notesLink},
    {"sparkle:minimumSystemVersion", &AppcastItem::minimumSystem},
    {"sparkle:maximumSystemVersion", &AppcastItem::maximumSystem},
    {"sparkle:channel", &AppcastItem::channel},
    {"sparkle:os", &AppcastItem::system},
}};
/// Attributes of its enclosure. Older feeds have the version here.
constexpr std::array<std::pair<const char*, std::string AppcastItem::*>, 7> attributes{{
    {"url", &AppcastItem::address},
    {"length", &AppcastItem::length},
    {"klarvik:sha256", &AppcastItem::digest},
    {"klarvik:signature", &AppcastItem::signature},
    {"sparkle:version", &AppcastItem::version},
    {"sparkle:shortVersionString", &AppcastItem::displayVersion},
    {"sparkle:os", &AppcastItem::system},
}};

/// What begins so hides what is in it up to its end.
constexpr std::array<std::pair<std::string_view, std::string_view>, 3> wrappers{
    {{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}}};

/// Whether a document type stands anywhere: the reader takes one also where none may be.
bool hasDocumentType(std::string_view text) {
  for (std::size_t at = text.find('<'); at != text.npos; at = text.find('<', at)) {
    const std::string_view rest = text.substr(at);
    const auto* const wrapper = std::ranges::find_if(
        wrappers, [&](const auto& candidate) { return rest.starts_with(candidate.first); });
    if (wrapper == wrappers.end() && rest.starts_with("<!")) return true;
    at = wrapper != wrappers.end() ? text.find(wrapper->second, at) : at + 1;
  }
  return false;
}

class AppcastReader {
 public:
  explicit AppcastReader(const QString& feed) : _xml(feed) {
    // The names are told apart by their prefix, and no address stands for it.
    _xml.setNamespaceProcessing(false);
  }

  std::optional<std::vector<AppcastItem>> read() {
    if (!_xml.readNextStartElement() || _xml.qualifiedName() != u"rss") return std::nullopt;
    while (_xml.readNextStartElement()) {
      if (_xml.qualifiedName() == u"channel") {
        readChannel();
      } else {
        _xml.skipCurrentElement();
      }
    }
    while (!_xml.atEnd()) _xml.readNext();
    if (_xml.hasError() || !_hasChannel) return std::nullopt;
    return std::move(_items);
  }

 private:
  void readChannel() {
    _hasChannel = true;
    while (_xml.readNextStartElement()) {
      if (_xml.qualifiedName() == u"item") {
        readItem();
      } else {
        _xml.skipCurrentElement();
      }
    }
  }

  void readItem() {
    AppcastItem item;
    while (_xml.readNextStartElement()) {
      const QString name = _xml.qualifiedName().toString();
      if (name == u"description") {
        readNotes(item);
      } else if (name == u"enclosure") {
        readEnclosure(item);
      } else {
        readText(item, name);
      }
    }
    _items.push_back(std::move(item));
  }

  void readNotes(AppcastItem& item) {
    const auto form = _xml.attributes().value(QLatin1String("sparkle:format"));
    const bool isPlain = form == u"plain-text" || form == u"markdown";
    const std::string text = elementText();
    item.notes = isPlain ? plainNotes(text) : plainNotesOfHtml(text);
  }

  void readEnclosure(AppcastItem& item) {
    const QXmlStreamAttributes found = _xml.attributes();
    _xml.skipCurrentElement();
    if (!item.address.empty()) return;
    for (const auto& [name, field] : attributes) {
      if (found.hasAttribute(QLatin1String(name))) {
        item.*field = found.value(QLatin1String(name)).trimmed().toString().toStdString();
      }
    }
  }

  void readText(AppcastItem& item, const QString& element) {
    for (const auto& [name, field] : elements) {
      if (element == QLatin1String(name)) {
        item.*field = QString::fromStdString(elementText()).trimmed().toStdString();
        return;
      }
    }
    _xml.skipCurrentElement();
  }

  std::string elementText() {
    return _xml.readElementText(QXmlStreamReader::SkipChildElements).toStdString();
  }

  QXmlStreamReader _xml;
  std::vector<AppcastItem> _items;
  bool _hasChannel = false;
};

}  // namespace

std::optional<std::vector<AppcastItem>> parseAppcast(std::string_view feed) {
  if (feed.starts_with(byteOrderMark)) feed.remove_prefix(byteOrderMark.size());
  if (!isUtf8(feed) || hasDocumentType(feed)) return std::nullopt;
  // As text, so that no encoding that the feed names has a say.
  return AppcastReader(QString::fromUtf8(feed.data(), static_cast<qsizetype>(feed.size()))).read();
}

}  // namespace klarvik
