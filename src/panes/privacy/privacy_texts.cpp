#include "panes/privacy/privacy_texts.h"

#include "panes/kit/row_text.h"

namespace klarvik::privacy {
namespace {

QString trails(std::size_t count) {
  return QString::number(count) +
         (count == 1 ? QStringLiteral(" trail") : QStringLiteral(" trails"));
}

}  // namespace

std::string_view label(PrivacyCategory category, const Words& words) {
  return category == PrivacyCategory::quarantine ? words.downloadOrigins : rawValue(category);
}

QString cost(PrivacyCategory category) {
  switch (category) {
    case PrivacyCategory::browserHistory:
      return QStringLiteral("Autocomplete forgets sites");
    case PrivacyCategory::browserCookies:
      return QStringLiteral("Signs you out everywhere");
    case PrivacyCategory::browserCache:
      return QStringLiteral("Sites reload once, slower");
    case PrivacyCategory::recentFiles:
      return QStringLiteral("Recent menus empty out");
    case PrivacyCategory::recentApps:
      return QStringLiteral("Recent apps list empties");
    case PrivacyCategory::downloadsList:
      return QStringLiteral("Download history forgotten");
    case PrivacyCategory::clipboard:
      return QStringLiteral("Whatever you last copied");
    case PrivacyCategory::quarantine:
      return QStringLiteral("Downloaded-from records go");
    case PrivacyCategory::trashHistory:
      return QStringLiteral("Where trashed files came from");
    case PrivacyCategory::locationHistory:
      return QStringLiteral("Cached location lookups");
    case PrivacyCategory::shellHistory:
      return QStringLiteral("Commands you typed are forgotten");
    case PrivacyCategory::thumbnails:
      return QStringLiteral("Previews of pictures, deleted ones too");
  }
  return {};
}

QString entryCount(const PrivacyItem& item) {
  return item.count > 0 ? QString::number(item.count) : QStringLiteral("—");
}

QString obstacle(const PrivacyItem& item) {
  if (!item.closeFirst.empty()) {
    return QStringLiteral("Close %1 first.").arg(printableText(item.closeFirst));
  }
  return programText(item.told);
}

QString clearedSubtitle(const PrivacyClearance& result, const Formatting& formatting) {
  return QStringLiteral("Cleared ") + QString::number(result.cleaned) +
         QStringLiteral(" trails · ") + byteText(result.freed, formatting) +
         QStringLiteral(" freed") +
         (result.stayed.empty() ? QString()
                                : QStringLiteral(" · ") + QString::number(result.stayed.size()) +
                                      QStringLiteral(" stayed: in use, or changed since the scan"));
}

QString selectionSummary(std::size_t selectedCount, std::int64_t selectedBytes,
                         const Formatting& formatting) {
  return trails(selectedCount) + QStringLiteral(" selected · ") +
         byteText(selectedBytes, formatting);
}

QString selectionHint(bool signsOut, bool forgetsCommands) {
  if (signsOut) {
    return QStringLiteral("Your selection signs you out of sites. This cannot be undone.");
  }
  if (forgetsCommands) {
    return QStringLiteral("Your selection forgets the commands you typed. This cannot be undone.");
  }
  return QStringLiteral("Clearing a trail is permanent, but nothing you rely on is removed.");
}

QString clearTitle(std::size_t selectedCount) {
  return QStringLiteral("Clear ") + trails(selectedCount);
}

}  // namespace klarvik::privacy
