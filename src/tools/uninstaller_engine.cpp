#include "tools/uninstaller_engine.h"

#include <algorithm>
#include <iterator>

#include "base/bytes.h"
#include "base/paths.h"
#include "base/text.h"
#include "core/removal_check.h"
#include "engine/sizes.h"
#include "places/disk_layout.h"
#include "places/words.h"
#include "platform/application_bundle.h"
#include "platform/desktop_entry.h"
#include "platform/file_system.h"
#include "platform/running_programs.h"
#include "platform/trash.h"
#include "tools/installed_applications.h"
#include "tools/leftover_finder.h"
#include "tools/package_removal.h"
#include "tools/residual_matcher.h"

namespace klarvik {

namespace {

bool isApplicationName(const Path& path) {
  return path.extension() == ".app";
}

std::vector<Path> visibleEntries(const FileSystem& files, const Path& folder) {
  std::vector<Path> entries = files.list(folder).value_or(std::vector<Path>{});
  std::erase_if(entries,
                [](const Path& entry) { return entry.filename().native().starts_with('.'); });
  return entries;
}

std::vector<Path> applicationsOf(const FileSystem& files) {
  std::vector<Path> found;
  for (const std::string_view folder : layoutFor(files.home()).applications.folders) {
    std::ranges::copy_if(visibleEntries(files, files.home() / folder), std::back_inserter(found),
                         isApplicationName);
  }
  return found;
}

std::vector<std::string> installedIdentifiers(const FileSystem& files) {
  std::vector<std::string> identifiers;
  for (const Path& path : applicationsOf(files)) {
    if (const auto bundle = ApplicationBundle::at(files, path)) {
      identifiers.push_back(bundle->identifier);
    }
  }
  return identifiers;
}

std::optional<AppInfo> appAt(const FileSystem& files, const Path& path) {
  const auto identity = entryIdentity(files, path);
  const auto bundle = ApplicationBundle::at(files, path);
  if (!bundle) return std::nullopt;
  return AppInfo{.name = bundle->displayName.value_or(bundle->name.value_or(path.stem().native())),
                 .bundleID = bundle->identifier,
                 .appURL = path,
                 .appSize = contentSize(files, path),
                 .identity = identity};
}

bool isRunning(const RunningPrograms& programs, const AppInfo& app) {
  switch (app.kind) {
    case AppKind::flatpak:
      return programs.isSandboxRunning(app.appURL.filename().native());
    case AppKind::snap:
      return programs.isSandboxRunning(app.package);
    case AppKind::bundle:
    case AppKind::appImage:
    case AppKind::byHand:
    case AppKind::systemPackage:
    case AppKind::foreign:
      return !app.program.empty() && programs.isRunning(app.program);
  }
  return false;
}

}  // namespace

UninstallerEngine::UninstallerEngine(const Platform& platform, LeftAlone* leftAlone)
    : _platform(platform), _leftAlone(leftAlone) {}

std::vector<AppInfo> UninstallerEngine::listApps() {
  const std::lock_guard lock(_working);
  const FileSystem& files = _platform.files;
  if (layoutFor(files.home()).applications.desktop != nullptr) {
    return InstalledApplications(_platform).listed(currentDesktops());
  }
  std::vector<AppInfo> apps;
  for (const Path& entry : applicationsOf(files)) {
    if (auto app = appAt(files, entry)) apps.push_back(*std::move(app));
  }
  std::ranges::stable_sort(apps, {}, &AppInfo::name);
  return apps;
}

std::vector<ResidualFile> UninstallerEngine::findResiduals(const AppInfo& app) {
  const std::lock_guard lock(_working);
  const FileSystem& files = _platform.files;
  const ApplicationPlaces& places = layoutFor(files.home()).applications;
  if (places.desktop != nullptr) {
    return findLeftovers(_platform, app, InstalledApplications(_platform).all());
  }
  const ResidualMatcher matcher(app, places, installedIdentifiers(files));
  std::vector<ResidualFile> found;
  for (const ResidualFolder& root : places.residuals) {
    for (const Path& entry : visibleEntries(files, files.home() / root.folder)) {
      if (!matcher.matches(entry.filename().native())) continue;
      const auto identity = entryIdentity(files, entry);
      const std::int64_t size = contentSize(files, entry);
      if (size < 1) continue;
      found.push_back(
          {.url = entry, .size = size, .category = root.category, .identity = identity});
    }
  }
  std::ranges::stable_sort(found, std::ranges::greater{}, &ResidualFile::size);
  return found;
}

std::int64_t UninstallerEngine::uninstall(const AppInfo& app,
                                          const std::vector<ResidualFile>& residuals) {
  return remove(app, residuals).freed;
}

UninstallOutcome UninstallerEngine::remove(const AppInfo& app,
                                           const std::vector<ResidualFile>& residuals,
                                           const std::stop_token& stop) {
  const std::lock_guard lock(_working);
  return app.kind == AppKind::bundle ? removeBundle(app, residuals)
                                     : removeProgram(app, residuals, stop);
}

UninstallOutcome UninstallerEngine::removeBundle(const AppInfo& app,
                                                 const std::vector<ResidualFile>& residuals) {
  const auto scope = DeletionScope::residual(residualIdentifiers(app));
  UninstallOutcome outcome;
  for (const ResidualFile& residual : residuals) {
    const bool isGone =
        removeIfAllowed(_platform.files, residual.url, scope, residual.identity, _leftAlone);
    if (isGone) outcome.freed = addBytes(outcome.freed, residual.size);
  }
  const Path named = standardizedPath(app.appURL);
  // No rule is asked for an application that the user chose to remove: it can be put back.
  const auto isTheApp = [&](const Path&, const FileAttributes& item) {
    return entryIdentity(item) == app.identity;
  };
  outcome.isGone =
      isApplicationName(named) && trash({named, {}, app.identity, app.appSize}, isTheApp, outcome);
  return outcome;
}

UninstallOutcome UninstallerEngine::removeProgram(const AppInfo& app,
                                                  const std::vector<ResidualFile>& residuals,
                                                  const std::stop_token& stop) {
  UninstallOutcome outcome;
  const FileSystem& files = _platform.files;
  const Words& words = layoutFor(files.home()).words;
  outcome.isRunning = isRunning(_platform.programs, app);
  if (outcome.isRunning) {
    outcome.whyItStayed = {words.appIsRunning, {printable(app.name)}};
    return outcome;
  }
  if (isRemovedByTool(app)) {
    outcome.whyItStayed = removeByTool(_platform, app, stop);
    outcome.isGone = outcome.whyItStayed.empty();
    if (!outcome.isGone) return outcome;
    outcome.freed = app.appSize;
  } else if (app.goesToTrash()) {
    const auto scope = DeletionScope::application();
    outcome.isGone = trashIfAllowed({app.appURL, {}, app.identity, app.appSize}, scope, outcome);
    if (!outcome.isGone) {
      outcome.whyItStayed = words.appNotTrashed;
      return outcome;
    }
    for (const AppPart& part : app.parts) {
      trashIfAllowed({part.path, {}, part.identity, 0}, scope, outcome);
    }
  }
  // Another application may have been installed since they were found.
  const auto identifiers = ownIdentifiers(_platform, app, InstalledApplications(_platform).all());
  const auto scope = DeletionScope::residual(identifiers);
  for (const ResidualFile& residual : residuals) {
    if (stop.stop_requested()) break;
    trashIfAllowed({residual.url, {}, residual.identity, residual.size}, scope, outcome);
  }
  return outcome;
}

bool UninstallerEngine::trashIfAllowed(TrashedItem item, const DeletionScope& scope,
                                       UninstallOutcome& outcome) {
  item.original = standardizedPath(item.original);
  if (!item.identity || !mayRemove(_platform.files, item.original, scope)) return false;
  const auto check = itemCheck(_platform.files, item.original, scope, item.identity);
  return trash(std::move(item), check, outcome);
}

bool UninstallerEngine::trash(TrashedItem item, const ItemCheck& check, UninstallOutcome& outcome) {
  auto trashed = _platform.trash.moveToTrash(item.original, check);
  if (!trashed) {
    countIfReplaced(_platform.files, item.original, item.identity, _leftAlone);
    return false;
  }
  item.trashed = *std::move(trashed);
  outcome.freed = addBytes(outcome.freed, item.bytes);
  outcome.trashed.push_back(std::move(item));
  return true;
}

RemovalPlan UninstallerEngine::plan(const AppInfo& app) const {
  const std::lock_guard lock(_working);
  return planRemoval(_platform, app);
}

std::vector<std::string> UninstallerEngine::residualIdentifiers(const AppInfo& app) {
  return app.kind == AppKind::bundle ? guardIdentifiers(app) : app.identifiers;
}

}  // namespace klarvik
