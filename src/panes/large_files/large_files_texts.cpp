#include "panes/large_files/large_files_texts.h"

#include <QStringList>

#include "panes/kit/row_text.h"
#include "translation/translation.h"

namespace klarvik::large_files {
namespace {

QString wholeNumber(double value) {
  return QString::number(static_cast<std::int64_t>(value));
}

}  // namespace

QString scanningSubtitle(std::string_view currentName) {
  return translate("LargeFiles", "Scanning your home folder") + QStringLiteral(" · ") +
         printableText(currentName);
}

QString foundSubtitle(std::size_t files, double thresholdMB) {
  return translate("LargeFiles", "%n files over %1 MB in your home folder", nullptr, plural(files))
      .arg(wholeNumber(thresholdMB));
}

QString unscannedSubtitle() {
  return translate("LargeFiles",
                   "Finds the biggest files in your home folder. Nothing is pre-selected.");
}

Placeholder measuring(const Words& words) {
  return Placeholder::busy(translate("LargeFiles", "Measuring"),
                           programText(words.walkingForLargeFiles));
}

Placeholder notScanned(bool hasFullDiskAccess) {
  return Placeholder::idle(
      QStringLiteral("doc.text.magnifyingglass"), translate("LargeFiles", "No scan yet"),
      hasFullDiskAccess
          ? translate("LargeFiles", "Rescan to list the biggest files in your home folder.")
          : translate("LargeFiles",
                      "Reading Documents, Desktop and Downloads needs Full Disk "
                      "Access, so this one waits until you ask. Rescan and "
                      "Klarvik will explain what macOS is about to request."));
}

Placeholder nothingFound(double thresholdMB) {
  return Placeholder::idle(
      QStringLiteral("checkmark.circle"), translate("LargeFiles", "Nothing that big"),
      translate("LargeFiles", "No files over %1 MB matched.").arg(wholeNumber(thresholdMB)));
}

QString thresholdText(double thresholdMB) {
  return translate("LargeFiles", "%1 MB").arg(wholeNumber(thresholdMB));
}

QString selectionSummary(std::int64_t bytes, std::size_t files, const Formatting& formatting) {
  const QString counted =
      files == 1 ? translate("LargeFiles", "%1 selected · 1 file")
                 : translate("LargeFiles", "%1 selected · %n files", nullptr, plural(files));
  return counted.arg(byteText(bytes, formatting));
}

QString trashButtonTitle(std::int64_t bytes, const Formatting& formatting) {
  return translate("LargeFiles", "Move %1 to Trash").arg(byteText(bytes, formatting));
}

QString footerHint() {
  return translate("LargeFiles",
                   "These are your own files, not junk. Klarvik never pre-selects them.");
}

std::string finishedSummary(std::size_t files) {
  return translate("LargeFiles", "%n files", nullptr, plural(files)).toStdString();
}

QString description(const LargeFile& file, const Formatting& formatting, Date now) {
  return QStringList{printableText(file.url.filename().native()), byteText(file.size, formatting),
                     printableText(translated(file.kind()).toStdString()),
                     translate("LargeFiles", "last opened %1")
                         .arg(translated(file.lastOpenedText(formatting, now)))}
      .join(QStringLiteral(", "));
}

}  // namespace klarvik::large_files
