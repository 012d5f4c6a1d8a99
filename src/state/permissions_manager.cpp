#include "state/permissions_manager.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

#include "base/paths.h"
#include "places/disk_layout.h"
#include "platform/desktop_services.h"
#include "platform/file_system.h"
#include "state/set_if_changed.h"
#include "state/timers.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

constexpr std::array settingsPages{
    "x-apple.systempreferences:com.apple.settings.PrivacySecurity.extension?Privacy_AllFilesAccess",
    "x-apple.systempreferences:com.apple.preference.security?Privacy_AllFilesAccess",
};

std::vector<Path> protectedFiles(const Path& home) {
  std::vector<Path> files;
  for (const std::string_view file : layoutFor(home).protectedFiles) files.push_back(home / file);
  return files;
}

}  // namespace

PermissionsManager::PermissionsManager(const Desktop& desktop, QObject* parent)
    : QObject(parent),
      _desktop(desktop),
      _protectedFiles(protectedFiles(desktop.files.home())),
      _hasFullDiskAccess(probeAccess()) {}

PermissionsManager::~PermissionsManager() {
  _lifetime.request_stop();
}

bool PermissionsManager::probeAccess() const {
  const FileSystem& files = _desktop.files;
  bool anyThere = false;
  for (const Path& path : _protectedFiles) {
    if (!files.exists(path)) continue;
    if (files.openForReading(path) != nullptr) return true;
    anyThere = true;
  }
  // With nothing to test there is no sign of a denial.
  return !anyThere;
}

void PermissionsManager::refreshAccess() {
  if (setIfChanged(_hasFullDiskAccess, probeAccess())) emit hasFullDiskAccessChanged();
}

void PermissionsManager::ensureAccess(std::function<void()> work) {
  refreshAccess();
  if (_hasFullDiskAccess || _hasAskedThisLaunch) {
    work();
    return;
  }
  _hasAskedThisLaunch = true;
  _pendingWork = std::move(work);
  setRequestingAccess(true);
}

void PermissionsManager::finishAccessRequest() {
  setRequestingAccess(false);
  refreshAccess();
  const auto work = std::exchange(_pendingWork, nullptr);
  if (work) work();
}

void PermissionsManager::setRequestingAccess(bool requesting) {
  if (setIfChanged(_isRequestingAccess, requesting)) emit isRequestingAccessChanged();
}

void PermissionsManager::openFullDiskAccessSettings() {
  std::any_of(settingsPages.begin(), settingsPages.end(),
              [&](const char* page) { return _desktop.workspace.openUrl(page); });
  startPolling();
}

void PermissionsManager::startPolling() {
  _pollTimer.emplace(_desktop.clock, 2s, [this] {
    refreshAccess();
    if (_hasFullDiskAccess) _pollTimer.reset();
  });
  endPollingLater();
}

QCoro::Task<> PermissionsManager::endPollingLater() {
  const std::stop_token gone = _lifetime.get_token();
  co_await sleepFor(_desktop.clock, 120s, gone);
  if (!gone.stop_requested()) _pollTimer.reset();
}

void PermissionsManager::relaunch() {
  _desktop.workspace.relaunch();
}

}  // namespace klarvik
