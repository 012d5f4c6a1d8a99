#include "panes/duplicates/duplicates_texts.h"

#include <algorithm>

#include "panes/kit/row_text.h"

namespace klarvik::duplicates {
namespace {

QString lastComponent(const Path& path) {
  return printableText((path.has_filename() ? path.filename() : path).native());
}

int wholePercent(double fraction) {
  return static_cast<int>(std::clamp(fraction, 0.0, 1.0) * 100);
}

}  // namespace

QString title(std::size_t groups, std::int64_t reclaimable, const Formatting& formatting) {
  const QString name = QStringLiteral("Duplicates");
  if (groups == 0) return name;
  return name + QStringLiteral(" · ") + byteText(reclaimable, formatting) +
         QStringLiteral(" reclaimable");
}

QString scanningSubtitle(std::int64_t groupsFound, std::string_view currentPath, const Path& home) {
  return QString::number(groupsFound) + QStringLiteral(" groups so far · ") +
         abbreviated(currentPath, home);
}

QString foundSubtitle(std::size_t groups, std::int64_t extraCopies) {
  return QStringLiteral("%1 groups · %2 extra copies · one copy of each is always kept")
      .arg(QString::number(groups), QString::number(extraCopies));
}

QString unscannedSubtitle() {
  return QStringLiteral(
      "Compares file contents with SHA-256, not names. One copy of each is always kept.");
}

QString folderList(const std::vector<Path>& folders) {
  QStringList names = folderNames(folders);
  if (names.isEmpty()) return QStringLiteral("none yet");
  const QString last = names.takeLast();
  return names.isEmpty() ? last : names.join(QStringLiteral(", ")) + QStringLiteral(" and ") + last;
}

QStringList folderNames(const std::vector<Path>& folders) {
  QStringList names;
  for (const Path& folder : folders) names << lastComponent(folder);
  return names;
}

QStringList folderHelps(const std::vector<Path>& folders, const Path& home) {
  const QString ending = folders.size() > 1
                             ? QStringLiteral(" — click to remove")
                             : QStringLiteral(" — the last folder cannot be removed");
  QStringList helps;
  for (const Path& folder : folders) helps << abbreviated(folder.native(), home) + ending;
  return helps;
}

Placeholder hashing() {
  return Placeholder::busy(
      QStringLiteral("Hashing files"),
      QStringLiteral("Klarvik compares contents, so identical files are found even "
                     "when they were renamed."));
}

Placeholder notScanned(const std::vector<Path>& folders) {
  return Placeholder::idle(
      QStringLiteral("doc.on.doc"), QStringLiteral("Choose where to look"),
      QStringLiteral("Klarvik compares contents, not names, so it only reads the "
                     "folders you name: ") +
          folderList(folders) + QStringLiteral(". Nothing outside them is touched."),
      QStringLiteral("Add a folder…"));
}

Placeholder nothingFound() {
  return Placeholder::idle(QStringLiteral("checkmark.circle"), QStringLiteral("No duplicates"),
                           QStringLiteral("Nothing in those folders is byte-for-byte identical."));
}

Placeholder stopped(double fraction) {
  return Placeholder::idle(
      QStringLiteral("doc.on.doc"), QStringLiteral("Search stopped"),
      QStringLiteral("%1% was done, so nobody knows yet whether those folders hold duplicates. "
                     "Rescan to search them to the end.")
          .arg(wholePercent(fraction)));
}

QString stoppedSubtitle(double fraction) {
  return QStringLiteral("Stopped at %1%").arg(wholePercent(fraction));
}

QString minSizeText(double megabytes) {
  return QStringLiteral("Min size %1 MB").arg(static_cast<std::int64_t>(megabytes));
}

QString selectionSummary(std::int64_t bytes, std::size_t copies, const Formatting& formatting) {
  return QStringLiteral("%1 selected · %2 copies")
      .arg(byteText(bytes, formatting), QString::number(copies));
}

QString deleteButtonTitle(std::int64_t bytes, const Formatting& formatting) {
  return QStringLiteral("Delete ") + byteText(bytes, formatting);
}

QString footerHint() {
  return QStringLiteral("One copy of every group stays where it is. Deletions go to Trash.");
}

std::string finishedSummary(std::size_t groups) {
  return std::to_string(groups) + " groups";
}

QString groupName(const DuplicateGroup& group) {
  return group.files.empty() ? QStringLiteral("Unknown") : lastComponent(group.files.front().url);
}

QString menuEntry(bool isKeeper) {
  return isKeeper ? QStringLiteral("This copy stays") : QStringLiteral("Keep this copy instead");
}

QString groupDescription(const ChosenGroup& group, const Formatting& formatting) {
  return QStringLiteral("%1, %2 copies, %3 reclaimable")
      .arg(groupName(group.group), QString::number(group.group.files.size()),
           byteText(group.removableBytes, formatting));
}

QString copyDescription(const DuplicateFile& file, bool isKeeper, const Path& home,
                        const Formatting& formatting) {
  return QStringList{lastComponent(file.url), byteText(file.size, formatting),
                     isKeeper ? QStringLiteral("keep") : QStringLiteral("delete"),
                     folderLine(file.url, home)}
      .join(QStringLiteral(", "));
}

}  // namespace klarvik::duplicates
