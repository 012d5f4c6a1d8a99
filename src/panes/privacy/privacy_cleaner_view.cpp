#include "panes/privacy/privacy_cleaner_view.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/bytes.h"
#include "panes/kit/row_text.h"
#include "panes/privacy/privacy_texts.h"
#include "places/disk_layout.h"
#include "platform/file_system.h"
#include "platform/notification_center.h"
#include "state/report_mailbox.h"
#include "state/section.h"

namespace klarvik {
namespace {

std::int64_t totalSize(const std::vector<PrivacyItem>& items) {
  std::int64_t sum = 0;
  for (const PrivacyItem& item : items) sum = addBytes(sum, item.size);
  return sum;
}

}  // namespace

PrivacyCleanerView::PrivacyCleanerView(const Sources& sources, const Desktop& desktop,
                                       QObject* parent)
    : QObject(parent),
      _coordinator(sources.coordinator),
      _activity(sources.activity),
      _notice(sources.notice),
      _desktop(desktop),
      _trailList(desktop.formatting, layoutFor(desktop.files.home()).words) {
  connect(&_trailList, &TrailList::selectionChanged, this, &PrivacyCleanerView::selectionChanged);
}

PrivacyCleanerView::~PrivacyCleanerView() {
  _stop.request_stop();
  _scanTask.request_stop();
  _clearings.finish();
  _scans.finish();
}

QString PrivacyCleanerView::subtitle() const {
  if (_isScanning) return _currentTask;
  if (_lastResult) return privacy::clearedSubtitle(*_lastResult, _desktop.formatting);
  return QStringLiteral(
      "Clearing a trail is not the same as freeing space. "
      "Each row says what it costs you.");
}

Placeholder PrivacyCleanerView::placeholder() const {
  if (_isScanning) {
    return Placeholder::busy(QStringLiteral("Reading trails"),
                             QStringLiteral("Nothing is cleared by a scan."));
  }
  if (hasItems()) return {};
  if (!_hasScanned) {
    return Placeholder::idle(QStringLiteral("shield"), QStringLiteral("No scan yet"),
                             programText(layoutFor(_desktop.files.home()).words.trailsUnread));
  }
  return Placeholder::idle(QStringLiteral("checkmark.circle"), QStringLiteral("Nothing to clear"),
                           programText(layoutFor(_desktop.files.home()).words.noTrails));
}

QString PrivacyCleanerView::selectionSummary() const {
  return privacy::selectionSummary(selected().size(), totalSize(_trailList.selectedItems()),
                                   _desktop.formatting);
}

QString PrivacyCleanerView::selectionHint() const {
  const std::vector<PrivacyItem> chosen = _trailList.selectedItems();
  return privacy::selectionHint(std::ranges::any_of(chosen, hurts, &PrivacyItem::category));
}

QString PrivacyCleanerView::clearTitle() const {
  return privacy::clearTitle(selected().size());
}

bool PrivacyCleanerView::canClear() const {
  return !selected().empty() && !_isCleaning;
}

QCoro::Task<> PrivacyCleanerView::appear() {
  const AutoScan autoScan{.key = toolKey(Section::privacy),
                          .isNeeded = [this] { return !_hasScanned && !_isScanning; },
                          .start = [this] { startScan(); },
                          .isRunning = [this] { return _isScanning; }};
  co_await runAutoScan(_coordinator, _desktop.clock, autoScan, _stop.get_token());
}

void PrivacyCleanerView::performAction() {
  if (_isScanning) {
    cancelScan();
  } else {
    startScan();
  }
}

void PrivacyCleanerView::cancelScan() {
  _scanTask.request_stop();
  _isScanning = false;
  _hasScanned = true;
  _activity.clear(toolKey(Section::privacy));
  emit stateChanged();
}

void PrivacyCleanerView::startScan() {
  _isScanning = true;
  _trailList.clear();
  _lastResult.reset();
  _progress = 0;
  emit stateChanged();
  _activity.start(toolKey(Section::privacy));
  scan();
}

QCoro::Task<> PrivacyCleanerView::scan() {
  _scanTask = std::stop_source();
  const std::stop_token stop = _scanTask.get_token();
  PrivacyScanner scanner(_desktop.files, _desktop.pasteboard, _desktop.recentDocuments);
  ReportMailbox<Report> reports(_desktop.clock, [this, stop](const Report& report) {
    if (!stop.stop_requested()) showReport(report);
  });
  const auto report = [&reports](double fraction, std::string_view line) {
    reports.post({fraction, printableText(line)});
  };
  std::vector<PrivacyItem> found =
      co_await onEngineThread(_scans, [&] { return scanner.scan(report); });
  reports.empty();
  if (!stop.stop_requested()) finishScan(std::move(found));
}

void PrivacyCleanerView::showReport(const Report& report) {
  _progress = report.fraction;
  _currentTask = report.line;
  _activity.setProgress(toolKey(Section::privacy), report.fraction);
  emit stateChanged();
}

void PrivacyCleanerView::finishScan(std::vector<PrivacyItem> found) {
  _trailList.show(std::move(found));
  _isScanning = false;
  _hasScanned = true;
  emit stateChanged();
  _activity.finish(toolKey(Section::privacy), std::to_string(items().size()) + " trails");
  _coordinator.setTotal(
      toolKey(Section::privacy),
      {totalSize(items()), static_cast<std::int64_t>(items().size()), _desktop.clock.now()});
}

void PrivacyCleanerView::toggle(int row) {
  if (!_isCleaning) _trailList.toggle(row);
}

void PrivacyCleanerView::clear() {
  if (canClear()) clearItems(_trailList.selectedItems());
}

QCoro::Task<> PrivacyCleanerView::clearItems(std::vector<PrivacyItem> items) {
  _isCleaning = true;
  emit stateChanged();
  emit selectionChanged();

  LeftAlone leftAlone;
  PrivacyScanner scanner(_desktop.files, _desktop.pasteboard, _desktop.recentDocuments, &leftAlone);
  const PrivacyClearance done =
      co_await onEngineThread(_clearings, [&] { return scanner.clear(items); });
  _notice.tell(leftAlone);

  _isCleaning = false;
  _lastResult = done;
  _trailList.remove(items);
  emit stateChanged();
  _desktop.notifications.post(diskChangedNotification);
}

}  // namespace klarvik
