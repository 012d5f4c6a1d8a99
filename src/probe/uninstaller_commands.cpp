// Commands on installed applications and what they left behind.

#include "tools/uninstaller_engine.h"

#include <algorithm>
#include <iostream>
#include <optional>

#include "probe/command.h"
#include "probe/report.h"

namespace klarvik::probe {

namespace {

constexpr int noSuchApp = 1;

Report appReport(const AppInfo& app) {
  return {{"event", "app"},
          {"name", textReport(app.name)},
          {"bundleID", app.bundleID},
          {"path", pathReport(app.appURL)},
          {"size", app.appSize}};
}

Report residualReport(const ResidualFile& residual) {
  return {{"event", "residual"},
          {"category", rawValue(residual.category)},
          {"path", pathReport(residual.url)},
          {"size", residual.size}};
}

/// The installed application whose bundle identifier the command was given.
std::optional<AppInfo> namedApp(const Invocation& call, UninstallerEngine& engine) {
  const std::vector<AppInfo> apps = engine.listApps();
  const auto found = std::ranges::find(apps, call.arguments[0], &AppInfo::bundleID);
  if (found != apps.end()) return *found;
  std::cerr << "klarvik-probe: no application has this bundle identifier\n";
  return std::nullopt;
}

}  // namespace

int apps(const Invocation& call) {
  for (const AppInfo& app : UninstallerEngine(call.platform).listApps()) print(appReport(app));
  return 0;
}

int residuals(const Invocation& call) {
  UninstallerEngine engine(call.platform);
  const auto app = namedApp(call, engine);
  if (!app) return noSuchApp;
  for (const ResidualFile& residual : engine.findResiduals(*app)) print(residualReport(residual));
  return 0;
}

int uninstall(const Invocation& call) {
  UninstallerEngine engine(call.platform);
  const auto app = namedApp(call, engine);
  if (!app) return noSuchApp;
  const std::vector<ResidualFile> found = engine.findResiduals(*app);
  for (const ResidualFile& residual : found) print(residualReport(residual));
  const auto freed = call.stop.stop_requested() ? 0 : engine.uninstall(*app, found);
  print({{"event", "result"}, {"freed", freed}});
  return 0;
}

}  // namespace klarvik::probe
