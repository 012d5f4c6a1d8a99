#include "panes/large_files/large_files_texts.h"

#include <QStringList>

#include "panes/kit/row_text.h"

namespace klarvik::large_files {
namespace {

QString wholeNumber(double value) {
  return QString::number(static_cast<std::int64_t>(value));
}

}  // namespace

QString scanningSubtitle(std::string_view currentName) {
  return QStringLiteral("Scanning your home folder · ") + printableText(currentName);
}

QString foundSubtitle(std::size_t files, double thresholdMB) {
  return QStringLiteral("%1 files over %2 MB in your home folder")
      .arg(QString::number(files), wholeNumber(thresholdMB));
}

QString unscannedSubtitle() {
  return QStringLiteral("Finds the biggest files in your home folder. Nothing is pre-selected.");
}

Placeholder measuring(const Words& words) {
  return Placeholder::busy(QStringLiteral("Measuring"), programText(words.walkingForLargeFiles));
}

Placeholder notScanned(bool hasFullDiskAccess) {
  return Placeholder::idle(
      QStringLiteral("doc.text.magnifyingglass"), QStringLiteral("No scan yet"),
      hasFullDiskAccess ? QStringLiteral("Rescan to list the biggest files in your home folder.")
                        : QStringLiteral("Reading Documents, Desktop and Downloads needs Full Disk "
                                         "Access, so this one waits until you ask. Rescan and "
                                         "Klarvik will explain what macOS is about to request."));
}

Placeholder nothingFound(double thresholdMB) {
  return Placeholder::idle(
      QStringLiteral("checkmark.circle"), QStringLiteral("Nothing that big"),
      QStringLiteral("No files over %1 MB matched.").arg(wholeNumber(thresholdMB)));
}

QString thresholdText(double thresholdMB) {
  return wholeNumber(thresholdMB) + QStringLiteral(" MB");
}

QString selectionSummary(std::int64_t bytes, std::size_t files, const Formatting& formatting) {
  return QStringLiteral("%1 selected · %2 %3")
      .arg(byteText(bytes, formatting), QString::number(files),
           files == 1 ? QStringLiteral("file") : QStringLiteral("files"));
}

QString trashButtonTitle(std::int64_t bytes, const Formatting& formatting) {
  return QStringLiteral("Move %1 to Trash").arg(byteText(bytes, formatting));
}

QString footerHint() {
  return QStringLiteral("These are your own files, not junk. Klarvik never pre-selects them.");
}

std::string finishedSummary(std::size_t files) {
  return std::to_string(files) + " files";
}

QString description(const LargeFile& file, const Formatting& formatting, Date now) {
  return QStringList{
      printableText(file.url.filename().native()), byteText(file.size, formatting),
      printableText(file.kind()),
      QStringLiteral("last opened ") + QString::fromStdString(file.lastOpenedText(formatting, now))}
      .join(QStringLiteral(", "));
}

}  // namespace klarvik::large_files
