#include "panes/uninstaller/uninstaller_texts.h"

#include "panes/kit/row_text.h"

namespace klarvik::uninstaller {

QString listSubtitle(bool isWaitingForTurn, bool isLoading, std::size_t appCount,
                     const Words& words) {
  if (isWaitingForTurn) return QStringLiteral("Waiting for another tool to finish measuring");
  if (isLoading) return programText(words.readingApplications);
  return programText(words.applicationsListed).arg(appCount);
}

QString detailSubtitle(std::size_t residualCount, std::int64_t totalBytes,
                       const Formatting& formatting) {
  return QString::number(residualCount) + QStringLiteral(" leftovers found · ") +
         byteText(totalBytes, formatting) + QStringLiteral(" total");
}

QString uninstallTitle(std::string_view appName) {
  return QStringLiteral("Uninstall ") + printableText(appName);
}

QString whatItIs(ResidualCategory category) {
  switch (category) {
    case ResidualCategory::preferences:
      return QStringLiteral("Settings and licence keys");
    case ResidualCategory::caches:
      return QStringLiteral("Rebuilt on next launch");
    case ResidualCategory::appSupport:
      return QStringLiteral("Documents and unsynced data");
    case ResidualCategory::logs:
      return QStringLiteral("Diagnostics only");
    case ResidualCategory::containers:
      return QStringLiteral("Sandboxed app data");
    case ResidualCategory::savedState:
      return QStringLiteral("Window positions");
    case ResidualCategory::cookies:
    case ResidualCategory::other:
      return QStringLiteral("Review before removing");
  }
  return {};
}

QString noLeftovers(std::string_view appName) {
  return printableText(appName) +
         QStringLiteral(" has not left anything behind that Klarvik can attribute to it.");
}

QString noMatch(const QString& searchText) {
  return QStringLiteral("Nothing matches “") + searchText + QStringLiteral("”");
}

QString selectionSummary(std::int64_t selectedBytes, std::size_t selectedCount,
                         std::size_t residualCount, const Formatting& formatting) {
  return byteText(selectedBytes, formatting) + QStringLiteral(" selected · ") +
         QString::number(selectedCount) + QStringLiteral(" of ") + QString::number(residualCount) +
         QStringLiteral(" leftovers");
}

QString selectionHint(std::size_t selectedCount, std::size_t residualCount) {
  return selectedCount < residualCount
             ? QStringLiteral(
                   "Preferences and app data left behind on purpose. Everything goes to Trash.")
             : QStringLiteral("Everything goes to Trash, so it can be put back.");
}

}  // namespace klarvik::uninstaller
