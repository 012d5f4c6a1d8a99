#include "panes/uninstaller/uninstaller_texts.h"

#include <QStringList>

#include "panes/kit/row_text.h"
#include "translation/translation.h"

namespace klarvik::uninstaller {
namespace {

/// A sentence about the packages that would go together with it.
QString whatElseGoes(const RemovalPlan& plan) {
  const std::size_t count = plan.alsoRemoved.size();
  if (count == 0) {
    return plan.mayTakeMore ? translate("Uninstaller", "No other package needs it.")
                            : translate("Uninstaller", "It removes no other package.");
  }
  if (count == 1) {
    return translate("Uninstaller", "It also removes %1.")
        .arg(printableText(plan.alsoRemoved.front()));
  }
  constexpr std::size_t mostNamed = 4;
  QStringList named;
  for (const std::string& each : plan.alsoRemoved) {
    if (named.size() < static_cast<qsizetype>(mostNamed)) named << printableText(each);
  }
  QString also = named.join(QStringLiteral(", "));
  if (count > mostNamed) {
    also = translate("Uninstaller", "%1 and %n more", nullptr, plural(count - mostNamed)).arg(also);
  }
  return translate("Uninstaller", "It also removes %n packages: %1.", nullptr, plural(count))
      .arg(also);
}

}  // namespace

QString listSubtitle(bool isWaitingForTurn, bool isLoading, std::size_t appCount,
                     const Words& words) {
  if (isWaitingForTurn)
    return translate("Uninstaller", "Waiting for another tool to finish measuring");
  if (isLoading) return programText(words.readingApplications);
  return translated(Message::counted(words.applicationsListed, plural(appCount)));
}

QString detailSubtitle(std::size_t residualCount, std::int64_t totalBytes,
                       const Formatting& formatting) {
  return translate("Uninstaller", "%n leftovers found · %1 total", nullptr, plural(residualCount))
      .arg(byteText(totalBytes, formatting));
}

QString uninstallTitle(std::string_view appName) {
  return translate("Uninstaller", "Uninstall %1").arg(printableText(appName));
}

QString whatItIs(ResidualCategory category) {
  switch (category) {
    case ResidualCategory::preferences:
      return translate("Uninstaller", "Settings and licence keys");
    case ResidualCategory::caches:
      return translate("Uninstaller", "Rebuilt on next launch");
    case ResidualCategory::appSupport:
      return translate("Uninstaller", "Documents and unsynced data");
    case ResidualCategory::logs:
      return translate("Uninstaller", "Diagnostics only");
    case ResidualCategory::containers:
      return translate("Uninstaller", "Sandboxed app data");
    case ResidualCategory::savedState:
      return translate("Uninstaller", "Window positions");
    case ResidualCategory::cookies:
    case ResidualCategory::other:
      return translate("Uninstaller", "Review before removing");
  }
  return {};
}

QString noLeftovers(std::string_view appName) {
  return translate("Uninstaller",
                   "%1 has not left anything behind that Klarvik can attribute to it.")
      .arg(printableText(appName));
}

QString noMatch(const QString& searchText) {
  return translate("Uninstaller", "Nothing matches “%1”").arg(searchText);
}

QString selectionSummary(std::int64_t selectedBytes, std::size_t selectedCount,
                         std::size_t residualCount, const Formatting& formatting) {
  return translate("Uninstaller", "%1 selected · %2 of %n leftovers", nullptr,
                   plural(residualCount))
      .arg(byteText(selectedBytes, formatting), QString::number(selectedCount));
}

QString selectionHint(std::size_t selectedCount, std::size_t residualCount) {
  return selectedCount < residualCount
             ? translate(
                   "Uninstaller",
                   "Preferences and app data left behind on purpose. Everything goes to Trash.")
             : translate("Uninstaller", "Everything goes to Trash, so it can be put back.");
}

QString origin(const AppInfo& app) {
  const QString identifier = printableText(app.bundleID);
  const auto installed = [&](const QString& how) {
    return how + QStringLiteral(" · ") + identifier;
  };
  switch (app.kind) {
    case AppKind::bundle:
      break;
    case AppKind::appImage:
      return installed(QLatin1String("AppImage"));
    case AppKind::byHand:
      return installed(translate("Uninstaller", "Installed by hand"));
    case AppKind::flatpak:
      return installed(QLatin1String("Flatpak"));
    case AppKind::snap:
      return installed(QLatin1String("Snap"));
    case AppKind::systemPackage:
      return installed(translate("Uninstaller", "Package"));
    case AppKind::foreign:
      return installed(translate("Uninstaller", "For all users"));
  }
  return identifier;
}

QString removalHint(const AppInfo& app) {
  if (app.goesToTrash()) {
    return translate("Uninstaller",
                     "The app and what is selected go to the Trash, and can be put back.");
  }
  if (isRemovedByTool(app)) {
    return app.kind == AppKind::snap
               ? translate("Uninstaller",
                           "snapd removes the app, and keeps a snapshot of its data for 31 days.")
               : translate(
                     "Uninstaller",
                     "Flatpak removes the app. Selected leftovers go to the Trash, and can be put "
                     "back.");
  }
  return translate("Uninstaller",
                   "The app stays. Selected leftovers go to the Trash, and can be put back.");
}

QString actionTitle(const AppInfo& app) {
  const bool appGoes = app.goesToTrash() || isRemovedByTool(app);
  return appGoes ? uninstallTitle(app.name) : translate("Uninstaller", "Move Leftovers to Trash");
}

QString planExplanation(const AppInfo& app, const RemovalPlan& plan) {
  if (!plan.keptBecause.empty()) return translated(plan.keptBecause);
  if (plan.command.empty()) return {};
  const QString how =
      translate("Uninstaller",
                "Klarvik does not remove packages. Run this in a terminal if you agree with it.");
  if (app.kind != AppKind::systemPackage) return how;
  if (!plan.isSimulated)
    return how + ' ' + translate("Uninstaller", "What else it removes is not known.");
  const QString told = how + ' ' + whatElseGoes(plan);
  if (!plan.mayTakeMore) return told;
  return told + ' ' + translate("Uninstaller", "What no package needs then may go as well.");
}

QString alsoRemoved(const RemovalPlan& plan) {
  QStringList named;
  for (const std::string& each : plan.alsoRemoved) named << printableText(each);
  return named.join(QStringLiteral(", "));
}

}  // namespace klarvik::uninstaller
