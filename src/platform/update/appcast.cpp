#include "platform/update/appcast.h"

#include <QXmlStreamReader>
#include <algorithm>
#include <array>
#include <utility>

#include "base/text.h"
#include "platform/update/plain_text.h"

namespace klarvik {
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
