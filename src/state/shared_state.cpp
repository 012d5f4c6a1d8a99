#include "state/shared_state.h"

#include <QtGlobal>

namespace klarvik {

namespace {

SharedState* theSharedState = nullptr;

}  // namespace

SharedState::SharedState(const Desktop& desktop)
    : _desktop(desktop),
      _toolActivity(desktop.clock),
      _scanCoordinator(desktop.defaults),
      _scanHistory(desktop.defaults, desktop.clock),
      _permissionsManager(desktop),
      _diskMonitor(desktop),
      _trashMonitor(desktop, _removalNotice) {
  if (theSharedState != nullptr) qFatal("There is a SharedState already; the process has one.");
  theSharedState = this;
}

SharedState::~SharedState() {
  theSharedState = nullptr;
}

UpdateManager& SharedState::updateManager() {
  if (!_updateManager) _updateManager.emplace(_desktop);
  return *_updateManager;
}

SharedState& SharedState::instance() {
  if (theSharedState == nullptr) {
    qFatal("A shared object was asked for while there is no SharedState; main makes it first.");
  }
  return *theSharedState;
}

}  // namespace klarvik
