#include "panes/uninstaller/uninstaller_texts.h"

#include <QStringList>

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

QString origin(const AppInfo& app) {
  const QString identifier = printableText(app.bundleID);
  const auto installed = [&](const char* how) {
    return QString::fromUtf8(how) + QStringLiteral(" · ") + identifier;
  };
  switch (app.kind) {
    case AppKind::bundle:
      break;
    case AppKind::appImage:
      return installed("AppImage");
    case AppKind::byHand:
      return installed("Installed by hand");
    case AppKind::flatpak:
      return installed("Flatpak");
    case AppKind::snap:
      return installed("Snap");
    case AppKind::debianPackage:
      return installed("Package");
    case AppKind::foreign:
      return installed("For all users");
  }
  return identifier;
}

QString removalHint(const AppInfo& app) {
  if (app.goesToTrash()) {
    return QStringLiteral("The app and what is selected go to the Trash, and can be put back.");
  }
  if (isRemovedByTool(app)) {
    return app.kind == AppKind::snap
               ? QStringLiteral(
                     "snapd removes the app, and keeps a snapshot of its data for 31 days.")
               : QStringLiteral(
                     "Flatpak removes the app. Selected leftovers go to the Trash, and can be put "
                     "back.");
  }
  return QStringLiteral("The app stays. Selected leftovers go to the Trash, and can be put back.");
}

QString actionTitle(const AppInfo& app) {
  const bool appGoes = app.goesToTrash() || isRemovedByTool(app);
  return appGoes ? uninstallTitle(app.name) : QStringLiteral("Move Leftovers to Trash");
}

QString planExplanation(const AppInfo& app, const RemovalPlan& plan) {
  if (!plan.keptBecause.empty()) return printableText(plan.keptBecause);
  if (plan.command.empty()) return {};
  const QString how = QStringLiteral(
      "Klarvik does not remove packages. Run this in a terminal if you agree with it.");
  if (app.kind != AppKind::debianPackage) return how;
  if (!plan.isSimulated) return how + QStringLiteral(" What else it removes is not known.");
  const std::size_t count = plan.alsoRemoved.size();
  if (count == 0) return how + QStringLiteral(" It removes no other package.");
  if (count == 1) {
    return how + QStringLiteral(" It also removes ") + printableText(plan.alsoRemoved.front()) +
           QStringLiteral(".");
  }
  constexpr std::size_t mostNamed = 4;
  QStringList named;
  for (const std::string& each : plan.alsoRemoved) {
    if (named.size() < static_cast<qsizetype>(mostNamed)) named << printableText(each);
  }
  QString also = named.join(QStringLiteral(", "));
  if (count > mostNamed) also += QStringLiteral(" and %1 more").arg(count - mostNamed);
  return how + QStringLiteral(" It also removes %1 packages: ").arg(count) + also +
         QStringLiteral(".");
}

QString alsoRemoved(const RemovalPlan& plan) {
  QStringList named;
  for (const std::string& each : plan.alsoRemoved) named << printableText(each);
  return named.join(QStringLiteral(", "));
}

}  // namespace klarvik::uninstaller
