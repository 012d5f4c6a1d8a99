#include "panes/privacy/privacy_cleaner_model.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/bytes.h"
#include "panes/kit/row_text.h"
#include "panes/privacy/privacy_texts.h"
#include "places/disk_layout.h"
#include "platform/file_system.h"
#include "platform/notification_center.h"
#include "state/section.h"
#include "state/set_if_changed.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

std::int64_t totalSize(const std::vector<PrivacyItem>& items) {
  std::int64_t sum = 0;
  for (const PrivacyItem& item : items) sum = addBytes(sum, item.size);
  return sum;
}

}  // namespace

PrivacyCleanerModel::PrivacyCleanerModel(SharedState& shared, const Desktop& desktop,
                                         QObject* parent)
    : ToolPane(parent),
      _notice(shared.removalNotice()),
      _desktop(desktop),
      _trailList(desktop.formatting, layoutFor(desktop.files.home()).words),
      _scan(Section::privacy, shared.toolActivity(), shared.scanCoordinator(), desktop.clock) {
  connect(&_trailList, &TrailListModel::selectionChanged, this,
          &PrivacyCleanerModel::selectionChanged);
  // A scan may have taken away what the question was about.
  connect(&_trailList, &TrailListModel::selectionChanged, this, [this] {
    if (selectedThatSignOut().empty()) askToSignOut(false);
  });
}

PrivacyCleanerModel::~PrivacyCleanerModel() {
  _scan.drop();
  finishRemovals();
}

QString PrivacyCleanerModel::subtitle() const {
  if (isScanning()) return _currentTask;
  if (_lastResult) return privacy::clearedSubtitle(*_lastResult, _desktop.formatting);
  return translate("Privacy",
                   "Clearing a trail is not the same as freeing space. "
                   "Each row says what it costs you.");
}

Placeholder PrivacyCleanerModel::placeholder() const {
  if (isScanning()) {
    return Placeholder::busy(translate("Privacy", "Reading trails"),
                             translate("Privacy", "Nothing is cleared by a scan."));
  }
  if (hasItems()) return {};
  if (!hasScanned()) {
    return Placeholder::idle(QStringLiteral("shield"), translate("Privacy", "No scan yet"),
                             programText(layoutFor(_desktop.files.home()).words.trailsUnread));
  }
  return Placeholder::idle(QStringLiteral("checkmark.circle"),
                           translate("Privacy", "Nothing to clear"),
                           programText(layoutFor(_desktop.files.home()).words.noTrails));
}

QString PrivacyCleanerModel::selectionSummary() const {
  return privacy::selectionSummary(selected().size(), totalSize(_trailList.selectedItems()),
                                   _desktop.formatting);
}

QString PrivacyCleanerModel::selectionHint() const {
  const std::vector<PrivacyItem> chosen = _trailList.selectedItems();
  const auto isCommands = [](const PrivacyItem& item) {
    return item.category == PrivacyCategory::shellHistory;
  };
  const auto signsOut = [&](const PrivacyItem& item) {
    return needsReview(item.category) && !isCommands(item);
  };
  return privacy::selectionHint(std::ranges::any_of(chosen, signsOut),
                                std::ranges::any_of(chosen, isCommands));
}

QString PrivacyCleanerModel::clearTitle() const {
  return privacy::clearTitle(selected().size());
}

bool PrivacyCleanerModel::canClear() const {
  return !selected().empty() && !_isCleaning;
}

void PrivacyCleanerModel::appear() {
  _scan.startInTurn([this] { startScan(); });
}

void PrivacyCleanerModel::performAction() {
  if (isScanning()) {
    cancelScan();
  } else {
    startScan();
  }
}

void PrivacyCleanerModel::cancelScan() {
  _scan.cancel();
  emit stateChanged();
}

void PrivacyCleanerModel::startScan() {
  _scan.start<Report, std::vector<PrivacyItem>>(
      {.work =
           [&desktop = _desktop](std::stop_token, const auto& post) {
             PrivacyScanner scanner(desktop, desktop.pasteboard);
             return scanner.scan([&post](double fraction, std::string_view line) {
               post({fraction, translated(line)});
             });
           },
       .report = [this](const Report& report) { showReport(report); },
       .finish = [this](std::vector<PrivacyItem> found) { finishScan(std::move(found)); }});
  _trailList.clear();
  _lastResult.reset();
  _progress = 0;
  emit stateChanged();
}

void PrivacyCleanerModel::showReport(const Report& report) {
  _progress = report.fraction;
  _currentTask = report.line;
  _scan.showProgress(report.fraction);
  emit stateChanged();
}

void PrivacyCleanerModel::finishScan(std::vector<PrivacyItem> found) {
  _trailList.show(std::move(found));
  emit stateChanged();
  _scan.showSummary(
      translate("Privacy", "%n trails", nullptr, plural(items().size())).toStdString());
  _scan.setTotal(totalSize(items()), static_cast<std::int64_t>(items().size()));
}

void PrivacyCleanerModel::toggle(int row) {
  if (!_isCleaning) _trailList.toggle(row);
}

void PrivacyCleanerModel::clear() {
  if (!canClear()) return;
  if (!selectedThatSignOut().empty()) {
    askToSignOut(true);
  } else {
    clearItems(_trailList.selectedItems());
  }
}

void PrivacyCleanerModel::clearAndSignOut() {
  if (!_asksToSignOut) return;
  askToSignOut(false);
  if (canClear()) clearItems(_trailList.selectedItems());
}

void PrivacyCleanerModel::staySignedIn() {
  askToSignOut(false);
}

QString PrivacyCleanerModel::signOutQuestion() const {
  return privacy::signOutQuestion(selectedThatSignOut(), layoutFor(_desktop.files.home()).words);
}

std::vector<PrivacyItem> PrivacyCleanerModel::selectedThatSignOut() const {
  std::vector<PrivacyItem> chosen = _trailList.selectedItems();
  std::erase_if(chosen, [](const PrivacyItem& item) { return !privacy::signsOut(item); });
  return chosen;
}

void PrivacyCleanerModel::askToSignOut(bool asks) {
  if (setIfChanged(_asksToSignOut, asks)) emit asksToSignOutChanged();
}

QCoro::Task<> PrivacyCleanerModel::clearItems(std::vector<PrivacyItem> items) {
  _isCleaning = true;
  emit stateChanged();
  emit selectionChanged();

  LeftAlone leftAlone;
  PrivacyScanner scanner(_desktop, _desktop.pasteboard, &leftAlone);
  const PrivacyClearance done =
      co_await runInBackground(_clearings, [&] { return scanner.clear(items); });
  _notice.tell(leftAlone);

  _isCleaning = false;
  _lastResult = done;
  _trailList.takeOut(items, done.stayed);
  emit stateChanged();
  _desktop.notifications.post(diskChangedNotification);
}

}  // namespace klarvik
