#include "panes/privacy/privacy_texts.h"

#include <QStringList>

#include "panes/kit/row_text.h"
#include "translation/translation.h"

namespace klarvik::privacy {
namespace {

QString trails(std::size_t count) {
  return count == 1 ? translate("Privacy", "1 trail")
                    : translate("Privacy", "%n trails", nullptr, plural(count));
}

}  // namespace

std::string_view label(PrivacyCategory category, const Words& words) {
  return category == PrivacyCategory::quarantine ? words.downloadOrigins : rawValue(category);
}

QString name(const PrivacyItem& item, const Words& words) {
  const QString kind = programText(label(item.category, words));
  return item.program.empty() ? kind : kind + QStringLiteral(" — ") + printableText(item.program);
}

QString cost(PrivacyCategory category) {
  switch (category) {
    case PrivacyCategory::browserHistory:
      return translate("Privacy", "Autocomplete forgets sites");
    case PrivacyCategory::browserCookies:
      return translate("Privacy", "Signs you out everywhere");
    case PrivacyCategory::browserCache:
      return translate("Privacy", "Sites reload once, slower");
    case PrivacyCategory::recentFiles:
      return translate("Privacy", "Recent menus empty out");
    case PrivacyCategory::recentApps:
      return translate("Privacy", "Recent apps list empties");
    case PrivacyCategory::downloadsList:
      return translate("Privacy", "Download history forgotten");
    case PrivacyCategory::clipboard:
      return translate("Privacy", "Whatever you last copied");
    case PrivacyCategory::quarantine:
      return translate("Privacy", "Downloaded-from records go");
    case PrivacyCategory::trashHistory:
      return translate("Privacy", "Where trashed files came from");
    case PrivacyCategory::locationHistory:
      return translate("Privacy", "Cached location lookups");
    case PrivacyCategory::shellHistory:
      return translate("Privacy", "Commands you typed are forgotten");
    case PrivacyCategory::thumbnails:
      return translate("Privacy", "Previews of pictures, deleted ones too");
  }
  return {};
}

QString entryCount(const PrivacyItem& item) {
  return item.count > 0 ? QString::number(item.count) : QStringLiteral("—");
}

QString obstacle(const PrivacyItem& item) {
  if (!item.closeFirst.empty()) {
    return translate("SmartScan", "Close %1 first.")
        .arg(printableText(translated(item.closeFirst).toStdString()));
  }
  if (item.stayed) return translate("Privacy", "Stayed: in use, or changed");
  return programText(item.told);
}

QString clearedSubtitle(const PrivacyClearance& result, const Formatting& formatting) {
  const QString cleared =
      translate("Privacy", "Cleared %n trails · %1 freed", nullptr, plural(result.cleaned))
          .arg(byteText(result.freed, formatting));
  if (result.stayed.empty()) return cleared;
  return cleared + QStringLiteral(" · ") +
         translate("Privacy", "%n stayed: in use, or changed since the scan", nullptr,
                   plural(result.stayed.size()));
}

QString selectionSummary(std::size_t selectedCount, std::int64_t selectedBytes,
                         const Formatting& formatting) {
  return translate("Privacy", "%1 selected · %2")
      .arg(trails(selectedCount), byteText(selectedBytes, formatting));
}

QString selectionHint(bool signsOut, bool forgetsCommands) {
  if (signsOut) {
    return translate("Privacy", "Your selection signs you out of sites. This cannot be undone.");
  }
  if (forgetsCommands) {
    return translate("Privacy",
                     "Your selection forgets the commands you typed. This cannot be undone.");
  }
  return translate("Privacy", "Clearing a trail is permanent, but nothing you rely on is removed.");
}

bool signsOut(const PrivacyItem& item) {
  return item.category == PrivacyCategory::browserCookies && !item.parts.empty();
}

QString signOutQuestion(const std::vector<PrivacyItem>& items, const Words& words) {
  QStringList names;
  for (const PrivacyItem& item : items) names << name(item, words);
  return translate(
             "Privacy",
             "Every site forgets that you are signed in once these are cleared. This cannot be "
             "undone.") +
         QStringLiteral("\n\n") + names.join(QLatin1Char('\n'));
}

QString clearTitle(std::size_t selectedCount) {
  return translate("Privacy", "Clear %1").arg(trails(selectedCount));
}

}  // namespace klarvik::privacy
