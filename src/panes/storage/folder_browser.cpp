#include "panes/storage/folder_browser.h"

#include <QUrl>
#include <algorithm>
#include <utility>

#include "base/paths.h"
#include "core/removal_check.h"
#include "panes/kit/donut.h"
#include "panes/kit/row_text.h"
#include "platform/file_system.h"
#include "platform/formatting.h"
#include "platform/notification_center.h"
#include "state/section.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

FolderBrowser::Measure measureTheDisk(const FileSystem& files) {
  return [&files](const FolderBrowser::Area& area, const std::stop_token& stop,
                  const FolderSizes::Progress& progress) {
    if (!area.isWholeVolume) {
      return FolderSizes::measure(files, area.places, area.leftOut, stop, progress);
    }
    const VolumeTops tops = files.volumeTops();
    std::vector<Path> leftOut = area.leftOut;
    leftOut.insert(leftOut.end(), tops.seenElsewhere.begin(), tops.seenElsewhere.end());
    return FolderSizes::measure(files, tops.folders, leftOut, stop, progress);
  };
}

/// A whole path is told from the home on.
QString shortName(std::string_view name, const Path& home) {
  if (!isBelow(name, home.native())) return printableText(name);
  return QStringLiteral("~") + printableText(name.substr(home.native().size()));
}

QString nameOf(const FolderSizes::Row& row, const Path& home) {
  if (!row.path.empty()) return shortName(row.name, home);
  return row.things == 1 ? translate("Storage", "1 smaller thing")
                         : translate("Storage", "%L1 smaller things", nullptr, plural(row.things))
                               .arg(row.things);
}

}  // namespace

FolderBrowser::FolderBrowser(SharedState& shared, const Desktop& desktop, QObject* parent,
                             Measure measure)
    : QAbstractListModel(parent),
      _desktop(desktop),
      _measure(measure ? std::move(measure) : measureTheDisk(desktop.files)),
      _notice(shared.removalNotice()),
      _removal(desktop, _notice, &shared.lastRemoval()),
      _measurement(desktop.clock) {
  connect(&_removal, &PickedFilesRemoval::changed, this, &FolderBrowser::removalChanged);
  connect(&_removal, &PickedFilesRemoval::restored, this, [this] {
    if (_isOpen) measureAgain();
  });
}

FolderBrowser::~FolderBrowser() {
  blockSignals(true);
  finishRemovals();
}

int FolderBrowser::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(_rows.size());
}

QVariant FolderBrowser::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const FolderSizes::Row& row = _rows[static_cast<std::size_t>(index.row())];
  const std::int64_t whole = _sizes.bytes(_folder);
  const double share =
      whole > 0 ? static_cast<double>(row.bytes) / static_cast<double>(whole) : 0.0;
  switch (role) {
    case NameRole:
      return nameOf(row, _desktop.files.home());
    case DetailRole:
      return row.path.empty() ? translate("Storage", "Each takes less than the rows above")
             : row.folder     ? translate("Storage", "Folder")
                              : translate("Storage", "File");
    case PathRole:
      return printableText(row.path.native());
    case UrlRole:
      return row.path.empty() ? QUrl() : urlOfPath(row.path);
    case ShareRole:
      return share;
    case ShareTextRole:
      return shareText(share);
    case SizeRole:
      return byteText(row.bytes, _desktop.formatting);
    case SymbolRole:
      return row.folder         ? QStringLiteral("folder.fill")
             : row.path.empty() ? QStringLiteral("circle.dashed")
                                : QStringLiteral("doc.text.fill");
    case CanOpenRole:
      return row.folder.has_value();
    case CanTrashRole:
      return mayTrash(row);
    case DescriptionRole:
      return rowDescription(nameOf(row, _desktop.files.home()),
                            byteText(row.bytes, _desktop.formatting), shareText(share));
    default:
      return {};
  }
}

QHash<int, QByteArray> FolderBrowser::roleNames() const {
  return {{NameRole, "name"},
          {DetailRole, "detail"},
          {PathRole, "path"},
          {UrlRole, "url"},
          {ShareRole, "share"},
          {ShareTextRole, "shareText"},
          {SizeRole, "size"},
          {SymbolRole, "symbol"},
          {CanOpenRole, "canOpen"},
          {CanTrashRole, "canTrash"},
          {DescriptionRole, "description"}};
}

void FolderBrowser::open(Area area) {
  _area = std::move(area);
  _shownNext.clear();
  measure();
}

void FolderBrowser::measureAgain() {
  // While it measures nothing is shown.
  if (!isMeasuring()) _shownNext = _sizes.path(_folder);
  measure();
}

void FolderBrowser::measure() {
  cancelTrash();
  _isOpen = true;
  ++_openings;
  _counted = 0;
  _measurement.deleteInBackground(std::exchange(_sizes, {}));
  show(FolderSizes::top);
  _measurement.start<std::int64_t, FolderSizes>(
      {.work =
           [measure = _measure, area = _area](std::stop_token stop, const auto& post) {
             return measure(area, stop, [&post](std::int64_t bytes) { post(bytes); });
           },
       .report =
           [this](std::int64_t bytes) {
             _counted = bytes;
             emit statusChanged();
           },
       .finish = [this](FolderSizes sizes) { finishMeasuring(std::move(sizes)); }});
  emit stateChanged();
  emit statusChanged();
}

void FolderBrowser::finishMeasuring(FolderSizes sizes) {
  _sizes = std::move(sizes);
  show(levelAt(_shownNext));
  emit stateChanged();
}

FolderSizes::Id FolderBrowser::levelAt(const Path& place) const {
  FolderSizes::Id level = topLevel();
  for (bool goesDown = true; goesDown;) {
    const auto rows = _sizes.rows(level, _sizes.folderCount() + FolderSizes::keptFiles);
    const auto next = std::ranges::find_if(rows, [&](const FolderSizes::Row& row) {
      return row.folder && (row.path == place || isBelow(place.native(), row.path.native()));
    });
    goesDown = next != rows.end();
    if (goesDown) level = *next->folder;
  }
  return level;
}

/// An area of one folder begins with what lies in it.
FolderSizes::Id FolderBrowser::topLevel() const {
  const auto starts = _sizes.rows(FolderSizes::top, 2);
  return starts.size() == 1 && starts.front().folder ? *starts.front().folder : FolderSizes::top;
}

std::vector<FolderSizes::Row> FolderBrowser::rowsOf(FolderSizes::Id folder) const {
  std::vector<FolderSizes::Row> rows = _sizes.rows(folder);
  std::erase_if(rows, [](const FolderSizes::Row& row) { return row.bytes < 1; });
  return rows;
}

void FolderBrowser::show(FolderSizes::Id folder) {
  beginResetModel();
  _folder = folder;
  _rows = rowsOf(folder);
  endResetModel();
  emit levelChanged();
  emit statusChanged();
}

/// The rows that stay keep their places on the screen, where only the one has gone.
void FolderBrowser::showWithout(const Path& gone) {
  std::vector<FolderSizes::Row> rows = rowsOf(_folder);
  const auto row = std::ranges::find(_rows, gone, &FolderSizes::Row::path);
  if (row == _rows.end() || rows.size() + 1 != _rows.size()) return show(_folder);
  const auto at = static_cast<int>(row - _rows.begin());
  beginRemoveRows({}, at, at);
  _rows = std::move(rows);
  endRemoveRows();
  if (!_rows.empty()) emit dataChanged(index(0), index(rowCount() - 1));
  emit statusChanged();
}

QString FolderBrowser::status() const {
  if (isMeasuring()) {
    return translate("Storage", "Reading folders: %1 so far")
        .arg(byteText(_counted, _desktop.formatting));
  }
  if (_rows.empty())
    return translate("Storage", "Nothing in here takes space, as far as you may look.");
  return byteText(_sizes.bytes(_folder), _desktop.formatting);
}

QStringList FolderBrowser::crumbs() const {
  QStringList names;
  const FolderSizes::Id topMost = topLevel();
  for (FolderSizes::Id at = _folder; at != topMost && at != FolderSizes::top;
       at = _sizes.above(at)) {
    names.prepend(shortName(_sizes.name(at), _desktop.files.home()));
  }
  names.prepend(_area.name);
  return names;
}

void FolderBrowser::activate(int row) {
  if (!hasIndex(row, 0)) return;
  if (const auto folder = _rows[static_cast<std::size_t>(row)].folder) show(*folder);
}

void FolderBrowser::goTo(int crumb) {
  const qsizetype levels = crumbs().size();
  if (crumb < 0 || crumb >= levels) return;
  FolderSizes::Id folder = _folder;
  for (qsizetype steps = levels - 1 - crumb; steps > 0; --steps) folder = _sizes.above(folder);
  if (folder != _folder) show(folder);
}

void FolderBrowser::goUp() {
  const qsizetype levels = crumbs().size();
  if (levels < 2) {
    close();
  } else {
    goTo(static_cast<int>(levels) - 2);
  }
}

void FolderBrowser::close() {
  if (!_isOpen) return;
  cancelTrash();
  _measurement.cancel();
  _isOpen = false;
  _measurement.deleteInBackground(std::exchange(_sizes, {}));
  show(FolderSizes::top);
  emit stateChanged();
}

/// By the text alone: where it really lies, and whether it is still the same, is looked at again
/// when it goes.
bool FolderBrowser::mayTrash(const FolderSizes::Row& row) const {
  if (row.path.empty() || !row.identity) return false;
  // What counts elsewhere lies in it as well, and would go along.
  const bool holdsOther = std::ranges::any_of(
      _area.leftOut, [&](const Path& path) { return isBelow(path.native(), row.path.native()); });
  return !holdsOther && mayRemove(_desktop.files, row.path, DeletionScope::pickedFile());
}

void FolderBrowser::requestTrash(int row) {
  if (!hasIndex(row, 0) || isDeleting()) return;
  const FolderSizes::Row& picked = _rows[static_cast<std::size_t>(row)];
  if (!mayTrash(picked)) return;
  _asked = Asked{.opening = _openings, .folder = _folder, .row = picked};
  emit confirmingChanged();
}

void FolderBrowser::confirmTrash() {
  if (!_asked) return;
  Asked asked = std::move(*_asked);
  cancelTrash();
  if (!isDeleting()) trash(std::move(asked));
}

void FolderBrowser::cancelTrash() {
  if (!_asked) return;
  _asked.reset();
  emit confirmingChanged();
}

QString FolderBrowser::confirmationTitle() const {
  return _asked ? translate("Storage", "Move “%1” to Trash?")
                      .arg(nameOf(_asked->row, _desktop.files.home()))
                : QString();
}

QString FolderBrowser::confirmationMessage() const {
  if (!_asked) return {};
  const QString text =
      _asked->row.hasOtherNames
          ? translate("Storage",
                      "This frees up to %1 once the Trash is emptied: some of it has another name, "
                      "which may be elsewhere. Nothing is removed permanently.")
          : translate("Kit",
                      "This frees %1 once the Trash is emptied. Nothing is removed permanently.");
  return text.arg(byteText(_asked->row.bytes, _desktop.formatting));
}

QCoro::Task<> FolderBrowser::trash(Asked asked) {
  const PickedFile file{asked.row.path, asked.row.path.filename().native(), asked.row.bytes,
                        asked.row.identity};
  auto pick = [file](LeftAlone&) { return PickedFilesRemoval::Pick{{file}}; };
  const std::set<Path> moved = co_await _removal.trash(1, std::move(pick));
  if (moved.empty()) {
    LeftAlone leftAlone;
    // Of another thing in its place the removal has told.
    const bool isStillIt = entryIdentity(_desktop.files, asked.row.path) == asked.row.identity;
    leftAlone.notMoved = isStillIt ? 1 : 0;
    _notice.tell(leftAlone);
    co_return;
  }
  // Another area may have been opened meanwhile, whose folders have other numbers.
  if (_isOpen && !isMeasuring() && asked.opening == _openings) {
    _sizes.remove(asked.folder, asked.row.path);
    const bool isInside = isBelow((_sizes.path(_folder) / "x").native(), asked.row.path.native());
    if (isInside) {
      show(asked.folder);
    } else {
      showWithout(asked.row.path);
    }
  }
  _desktop.notifications.post(diskChangedNotification);
}

}  // namespace klarvik
