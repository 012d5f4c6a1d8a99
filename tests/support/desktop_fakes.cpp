#include "support/desktop_fakes.h"

#include <utility>

namespace klarvik {

LoginItem::Status FakeLoginItem::status() const {
  return current;
}

bool FakeLoginItem::registerProgram() {
  return setIfChanged(Status::enabled);
}

bool FakeLoginItem::unregisterProgram() {
  return setIfChanged(Status::notRegistered);
}

bool FakeLoginItem::setIfChanged(Status wanted) {
  ++changes;
  if (canChange) current = wanted;
  return canChange;
}

void FakeOpenPanel::chooseFolders(const Request& request, Answer answer) {
  requests.push_back(request);
  _answer = std::move(answer);
}

void FakeOpenPanel::choose(const std::vector<Path>& folders) {
  std::exchange(_answer, {})(folders);
}

bool FakePasteboard::holdsTextOrImage() {
  return isFilled;
}

void FakePasteboard::copy(std::string_view text) {
  copied = text;
  isFilled = true;
}

void FakePasteboard::clear() {
  isFilled = false;
  ++clearings;
}

bool FakeRecentDocuments::clear() {
  if (gate != nullptr) gate->pass();
  ++clearings;
  return canClear;
}

void FakeStatusItem::setHandlers(Handlers handlers) {
  _handlers = std::move(handlers);
}

bool FakeStatusItem::hasTray() const {
  return _hasTray;
}

void FakeStatusItem::show(const Look& look) {
  shown = look;
}

void FakeStatusItem::remove() {
  shown.reset();
}

void FakeStatusItem::press(const Place& icon) const {
  _handlers.activated(icon);
}

void FakeStatusItem::choose(std::size_t entry) const {
  _handlers.chosen(entry);
}

void FakeStatusItem::setTray(bool hasTray) {
  _hasTray = hasTray;
  if (_handlers.trayChanged) _handlers.trayChanged();
}

void FakeUpdater::start(UpdaterDelegate& toBeTold) {
  delegate = &toBeTold;
}

void FakeUpdater::stop() {
  delegate = nullptr;
}

bool FakeUpdater::canCheckForUpdates() const {
  return canCheck;
}

void FakeUpdater::checkForUpdates() {
  ++checks;
}

std::optional<Date> FakeUpdater::lastUpdateCheckDate() const {
  return lastCheck;
}

bool FakeUpdater::automaticallyChecksForUpdates() const {
  return isAutomatic;
}

void FakeUpdater::setAutomaticallyChecksForUpdates(bool checksByItself) {
  if (canStore) isAutomatic = checksByItself;
}

void FakeUpdater::present(std::function<void(const UpdateStage&)> toShow) {
  show = std::move(toShow);
}

void FakeUpdater::install() {
  ++installs;
}

void FakeUpdater::dismiss() {
  ++dismissals;
  if (show) show(update_stage::Hidden{});
}

bool FakeWorkspace::openUrl(const std::string& url) {
  openedUrls.push_back(url);
  return canOpen;
}

bool FakeWorkspace::openFolder(const Path& folder) {
  openedFolders.push_back(folder);
  return canOpen;
}

void FakeWorkspace::reveal(const Path& item) {
  revealedItems.push_back(item);
}

void FakeWorkspace::relaunch() {
  ++relaunches;
}

}  // namespace klarvik
