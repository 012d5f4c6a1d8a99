#include "state/update_manager.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/application_info.h"
#include "platform/clock.h"
#include "platform/formatting.h"
#include "platform/notification_center.h"
#include "state/set_if_changed.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

/// What is not listed is `anyOther`.
constexpr auto sentences = std::to_array<std::pair<std::int64_t, const char*>>({
    {-1001, QT_TRANSLATE_NOOP("Updates", "The update server timed out.")},
    {-1005, QT_TRANSLATE_NOOP("Updates", "No internet connection.")},
    {-1009, QT_TRANSLATE_NOOP("Updates", "No internet connection.")},
    {-1008, QT_TRANSLATE_NOOP("Updates", "The update feed is missing or malformed.")},
    {-1011, QT_TRANSLATE_NOOP("Updates", "The update feed is missing or malformed.")},
    {-1100, QT_TRANSLATE_NOOP("Updates", "The update feed is missing or malformed.")},
});
constexpr const char* anyOther = QT_TRANSLATE_NOOP("Updates", "Could not reach the update server.");

/// The error itself or the one right below it.
const UpdaterError* networkError(const UpdaterError& error) {
  for (const UpdaterError* candidate : {&error, error.underlying.get()}) {
    if (candidate != nullptr && candidate->domain == urlErrorDomain) return candidate;
  }
  return nullptr;
}

}  // namespace

std::string updateErrorText(const UpdaterError& error) {
  const UpdaterError* const network = networkError(error);
  if (network == nullptr) return translated(error.description).toStdString();
  const auto* const found =
      std::ranges::find(sentences, network->code, &decltype(sentences)::value_type::first);
  return translate("Updates", found != sentences.end() ? found->second : anyOther).toStdString();
}

UpdateManager::UpdateManager(const Desktop& desktop, QObject* parent)
    : QObject(parent),
      _desktop(desktop),
      _lastCheckDate(desktop.updater.lastUpdateCheckDate()),
      _changes(desktop.notifications.observe(defaultsChangedNotification,
                                             [this] { followFirstRun(); })) {
  followFirstRun();
  _desktop.updater.start(*this);
}

UpdateManager::~UpdateManager() {
  _desktop.updater.stop();
}

void UpdateManager::checkForUpdates() {
  if (!_desktop.updater.canCheckForUpdates()) {
    return setStatus(Failed{translate("Updates", "A check is already running.").toStdString()});
  }
  setStatus(Checking{});
  _desktop.updater.checkForUpdates();
}

std::string UpdateManager::lastCheckedText() const {
  if (!_lastCheckDate) return translate("Updates", "Never checked").toStdString();
  return filled(translate("Updates", "Checked %1"),
                _desktop.formatting.relativeAbbreviated(*_lastCheckDate, _desktop.clock.now()));
}

std::string UpdateManager::detailText() const {
  const auto* const failed = std::get_if<Failed>(&_status);
  return failed != nullptr ? failed->message + " · " + feedAddress() : lastCheckedText();
}

std::string UpdateManager::feedAddress() const {
  return informationText(_desktop.info, "SUFeedURL")
      .value_or(translate("Updates", "not configured").toStdString());
}

void UpdateManager::didFindValidUpdate(const std::string& displayVersion) {
  later([this, displayVersion] { setStatus(UpdateAvailable{displayVersion}); });
}

void UpdateManager::didNotFindUpdate() {
  later([this] {
    setStatus(UpToDate{});
    setCheckedNow();
  });
}

void UpdateManager::didAbortWithError(const UpdaterError& error) {
  later([this, error] { takeError(error); });
}

void UpdateManager::didFinishUpdateCycle(const std::optional<UpdaterError>& error) {
  later([this, error] {
    setCheckedNow();
    if (error) {
      takeError(*error);
    } else if (std::holds_alternative<Checking>(_status)) {
      setStatus(UpToDate{});
    }
  });
}

void UpdateManager::followFirstRun() {
  _isPastFirstRun = _isPastFirstRun || _desktop.defaults.boolean("onboarding_complete", false);
}

/// Not within the updater's own call: whoever hears of the change may call the updater again.
void UpdateManager::later(std::function<void()> change) {
  QMetaObject::invokeMethod(this, std::move(change), Qt::QueuedConnection);
}

void UpdateManager::takeError(const UpdaterError& error) {
  switch (error.code) {
    case updater_code::installationCancelled:
    case updater_code::installationPutOff:
      return setStatus(Unknown{});
    case updater_code::noUpdate:
      return setStatus(UpToDate{});
    default:
      setStatus(Failed{updateErrorText(error)});
  }
}

void UpdateManager::setStatus(const Status& status) {
  if (setIfChanged(_status, status)) emit statusChanged();
}

void UpdateManager::setCheckedNow() {
  if (setIfChanged(_lastCheckDate, _desktop.clock.now())) emit lastCheckDateChanged();
}

}  // namespace klarvik
