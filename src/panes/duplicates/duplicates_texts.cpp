#include "panes/duplicates/duplicates_texts.h"

#include <algorithm>

#include "panes/kit/row_text.h"
#include "translation/translation.h"

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
  const QString name = translated("Duplicates");
  if (groups == 0) return name;
  return name + QStringLiteral(" · ") +
         translate("Duplicates", "%1 reclaimable").arg(byteText(reclaimable, formatting));
}

QString scanningSubtitle(std::int64_t groupsFound, const Message& current, const Path& home) {
  return translate("Duplicates", "%n groups so far", nullptr, plural(groupsFound)) +
         QStringLiteral(" · ") + abbreviated(translated(current).toStdString(), home);
}

QString foundSubtitle(std::size_t groups, std::int64_t extraCopies) {
  return QStringList{translate("Duplicates", "%n groups", nullptr, plural(groups)),
                     translate("Duplicates", "%n extra copies", nullptr, plural(extraCopies)),
                     translate("Duplicates", "one copy of each is always kept")}
      .join(QStringLiteral(" · "));
}

QString unscannedSubtitle() {
  return translate(
      "Duplicates",
      "Compares file contents with SHA-256, not names. One copy of each is always kept.");
}

QString folderList(const std::vector<Path>& folders) {
  QStringList names = folderNames(folders);
  if (names.isEmpty()) return translate("Duplicates", "none yet");
  const QString last = names.takeLast();
  return names.isEmpty()
             ? last
             : translate("Duplicates", "%1 and %2").arg(names.join(QStringLiteral(", ")), last);
}

QStringList folderNames(const std::vector<Path>& folders) {
  QStringList names;
  for (const Path& folder : folders) names << lastComponent(folder);
  return names;
}

QStringList folderHelps(const std::vector<Path>& folders, const Path& home) {
  const QString sentence = folders.size() > 1
                               ? translate("Duplicates", "%1 — click to remove")
                               : translate("Duplicates", "%1 — the last folder cannot be removed");
  QStringList helps;
  for (const Path& folder : folders) helps << sentence.arg(abbreviated(folder.native(), home));
  return helps;
}

Placeholder hashing() {
  return Placeholder::busy(translate("Duplicates", "Hashing files"),
                           translate("Duplicates",
                                     "Klarvik compares contents, so identical files are found even "
                                     "when they were renamed."));
}

Placeholder notScanned(const std::vector<Path>& folders) {
  return Placeholder::idle(
      QStringLiteral("doc.on.doc"), translate("Duplicates", "Choose where to look"),
      translate("Duplicates",
                "Klarvik compares contents, not names, so it only reads the folders you name: "
                "%1. Nothing outside them is touched.")
          .arg(folderList(folders)),
      translate("Duplicates", "Add a folder…"));
}

Placeholder nothingFound() {
  return Placeholder::idle(
      QStringLiteral("checkmark.circle"), translate("Duplicates", "No duplicates"),
      translate("Duplicates", "Nothing in those folders is byte-for-byte identical."));
}

Placeholder stopped(double fraction) {
  return Placeholder::idle(
      QStringLiteral("doc.on.doc"), translate("Duplicates", "Search stopped"),
      translate("Duplicates",
                "%1% was done, so nobody knows yet whether those folders hold duplicates. "
                "Rescan to search them to the end.")
          .arg(wholePercent(fraction)));
}

QString stoppedSubtitle(double fraction) {
  return translate("Duplicates", "Stopped at %1%").arg(wholePercent(fraction));
}

QString remainingText(std::optional<std::chrono::seconds> remaining) {
  if (!remaining) return {};
  const auto minutes = std::chrono::ceil<std::chrono::minutes>(*remaining).count();
  if (minutes < 2) return translate("Duplicates", "Less than a minute left");
  return translate("Duplicates", "About %n minutes left", nullptr, plural(minutes));
}

QString minSizeText(double megabytes) {
  return translate("Duplicates", "Min size %1 MB").arg(static_cast<std::int64_t>(megabytes));
}

QString selectionSummary(std::int64_t bytes, std::size_t copies, const Formatting& formatting) {
  return translate("Duplicates", "%1 selected · %n copies", nullptr, plural(copies))
      .arg(byteText(bytes, formatting));
}

QString deleteButtonTitle(std::int64_t bytes, const Formatting& formatting) {
  return translate("Duplicates", "Delete %1").arg(byteText(bytes, formatting));
}

QString footerHint() {
  return translate("Duplicates",
                   "One copy of every group stays where it is. Deletions go to Trash.");
}

std::string finishedSummary(std::size_t groups) {
  return translate("Duplicates", "%n groups", nullptr, plural(groups)).toStdString();
}

QString groupName(const DuplicateGroup& group) {
  return group.files.empty() ? translate("Duplicates", "Unknown")
                             : lastComponent(group.files.front().url);
}

QString menuEntry(bool isKeeper) {
  return isKeeper ? translate("Duplicates", "This copy stays")
                  : translate("Duplicates", "Keep this copy instead");
}

QString groupDescription(const ChosenGroup& group, const Formatting& formatting) {
  return translate("Duplicates", "%1, %n copies, %2 reclaimable", nullptr,
                   plural(group.group.files.size()))
      .arg(groupName(group.group), byteText(group.removableBytes, formatting));
}

QString copyDescription(const DuplicateFile& file, KeepOrDelete::Value fate, const Path& home,
                        const Formatting& formatting) {
  QStringList parts{lastComponent(file.url), byteText(file.size, formatting)};
  if (fate != KeepOrDelete::Neither) {
    parts << (fate == KeepOrDelete::Keep ? translate("Duplicates", "keep")
                                         : translate("Duplicates", "delete"));
  }
  parts << folderLine(file.url, home);
  return parts.join(QStringLiteral(", "));
}

}  // namespace klarvik::duplicates
