#include "panes/smart_scan/smart_scan_texts.h"

#include <algorithm>

#include "panes/kit/row_text.h"
#include "places/tool.h"
#include "translation/translation.h"

namespace klarvik::smart_scan {
namespace {

QString countedItems(std::int64_t count) {
  return translate("SmartScan", "%n items", nullptr, plural(count));
}

}  // namespace

std::string paneTitle(const AppState::ScanState& state, std::int64_t totalSpaceFreeable,
                      const Formatting& formatting) {
  if (std::holds_alternative<AppState::Scanning>(state)) {
    return translate("SmartScan", "Scanning").toStdString();
  }
  if (std::holds_alternative<AppState::Idle>(state) || totalSpaceFreeable < 1) {
    return translated("Smart Scan").toStdString();
  }
  return filled(translate("SmartScan", "%1 found"), formatting.byteText(totalSpaceFreeable));
}

std::string scanningSubtitle(const AppState::ScanActivity& activity, const Path& home) {
  const std::string name = printable(translated(activity.categoryName).toStdString());
  return activity.currentPath
             ? name + " · " + abbreviated(*activity.currentPath, home).toStdString()
             : name;
}

std::string idleSubtitle(std::optional<Date> lastCleanDate, Date now,
                         const Formatting& formatting) {
  return lastCleanDate ? filled(translate("SmartScan", "Last clean %1"),
                                formatting.relative(*lastCleanDate, now))
                       : translate("SmartScan", "Nothing scanned yet").toStdString();
}

std::string resultSubtitle(const std::vector<CleanCategory>& results) {
  std::size_t items = 0;
  for (const CleanCategory& category : results) {
    items += category.items.size();
  }
  const auto categories = std::ranges::count_if(results, &CleanCategory::hasItems);
  const QString counted = translate("SmartScan", "%n categories", nullptr, plural(categories));
  return (counted + " · " + countedItems(static_cast<std::int64_t>(items))).toStdString();
}

std::string scanningHeadline(const AppState::ScanActivity& activity) {
  if (activity.totalCategories < 1) {
    return translated("Starting scan").toStdString();
  }
  const auto current = std::min(activity.totalCategories, activity.completedCategories + 1);
  return filled(translate("SmartScan", "Scanning %1 of %2 categories", nullptr,
                          plural(activity.totalCategories)),
                std::to_string(current), std::to_string(activity.totalCategories));
}

std::string showMoreTitle(std::int64_t hidden) {
  return translate("SmartScan", "Show %n more", nullptr, plural(hidden)).toStdString();
}

std::string selectionSummary(std::int64_t selectedSize, std::int64_t selectedCount,
                             const Formatting& formatting) {
  return filled(translate("SmartScan", "%1 selected · %n items", nullptr, plural(selectedCount)),
                formatting.byteText(selectedSize));
}

std::string selectionHint(std::int64_t selectedCount, bool selectionIsAllSafe,
                          std::string_view fate) {
  if (selectedCount == 0) {
    return translate("SmartScan", "Select something to clean.").toStdString();
  }
  const QString verdict = selectionIsAllSafe
                              ? translate("SmartScan", "Everything selected is marked Safe.")
                              : translate("SmartScan", "Your selection includes Review items.");
  return verdict.toStdString() + " " + std::string(fate);
}

std::string fateOf(const ItemSum& selected, bool useTrash, const Formatting& formatting) {
  const std::int64_t forGood = useTrash ? selected.forGood : selected.size;
  if (forGood == 0) return translate("SmartScan", "Items move to the Trash.").toStdString();
  if (forGood == selected.size) {
    return translate("SmartScan", "Items are removed for good.").toStdString();
  }
  return filled(translate("SmartScan", "%1 moves to the Trash, %2 is removed for good."),
                formatting.byteText(selected.size - forGood), formatting.byteText(forGood));
}

std::string itemNote(const JunkItem& item, const Formatting& formatting) {
  std::vector<std::string> notes;
  if (item.wasJustUsed) {
    notes.push_back(translate("SmartScan", "Used within the last day.").toStdString());
  }
  if (!item.closeFirst.empty()) {
    notes.push_back(filled(translate("SmartScan", "Close %1 first."),
                           translated(item.closeFirst).toStdString()));
  }
  if (item.tool != nullptr) {
    notes.push_back(filled(translate("SmartScan", "%1 removes it for good."), item.tool->name));
  }
  const std::string comesBack = formatting.byteText(item.size);
  if (const std::string taken = formatting.byteText(item.taken);
      item.taken > item.size && taken != comesBack) {
    notes.push_back(translate("SmartScan", "Frees about %1 of %2: other files share the rest.")
                        .arg(QString::fromStdString(comesBack), QString::fromStdString(taken))
                        .toStdString());
  }
  std::string text;
  for (const std::string& note : notes) text += note + ' ';
  return text + translated(item.reason).toStdString();
}

std::string hintsOnlyNote() {
  return translate("SmartScan", "Klarvik removes none of this itself.").toStdString();
}

std::string rootRunTitle(const RootRun& run) {
  const auto title = [&] {
    switch (run.end) {
      case RootRun::End::done:
        return translate("SmartScan", "The command has run");
      case RootRun::End::failed:
      case RootRun::End::killed:
        return translate("SmartScan", "The command failed");
      case RootRun::End::leftAlone:
        return translate("SmartScan", "The command is not waited for any more");
      case RootRun::End::dismissed:
      case RootRun::End::notAllowed:
      case RootRun::End::noAgent:
      case RootRun::End::noService:
      case RootRun::End::notFound:
      case RootRun::End::notThere:
        break;
    }
    return translate("SmartScan", "Nothing was run");
  }();
  return title.toStdString();
}

std::string rootRunSentence(const RootRun& run) {
  const auto sentence = [&] {
    switch (run.end) {
      case RootRun::End::done:
        return translate("SmartScan", "It ended well. What it has left is measured again.");
      case RootRun::End::failed:
        return translate("SmartScan", "It ended with the error %1.").arg(run.status);
      case RootRun::End::killed:
        return translate("SmartScan", "It was ended by the signal %1.").arg(run.status);
      case RootRun::End::dismissed:
        return translate("SmartScan", "The question for the password was cancelled.");
      case RootRun::End::notAllowed:
        return translate("SmartScan",
                         "The password was wrong, or the system allows it to nobody from here. The "
                         "command can still be run in a terminal.");
      case RootRun::End::noAgent:
        return translate("SmartScan",
                         "No program that asks for the password runs on this desktop. The command "
                         "can still be run in a terminal.");
      case RootRun::End::noService:
        return translate("SmartScan",
                         "The service that decides about it, polkit, does not answer. The command "
                         "can still be run in a terminal.");
      case RootRun::End::notFound:
        return translate("SmartScan", "The command is not installed on this computer.");
      case RootRun::End::notThere:
        return translate("SmartScan",
                         "The program that asks for the password, pkexec, could not be started.");
      case RootRun::End::leftAlone:
        return translate("SmartScan",
                         "If the password was given before, it may still be running by itself.");
    }
    return QString();
  }();
  if (!run.isCut) return sentence.toStdString();
  const QString more = translate("SmartScan", "It printed more than is shown here.");
  return (sentence + QLatin1Char(' ') + more).toStdString();
}

std::string commandsNote() {
  return translate("SmartScan",
                   "Klarvik never asks for your password. Run these in a terminal if you agree "
                   "with them.")
      .toStdString();
}

std::string cleanTitle(std::int64_t selectedSize, const Formatting& formatting) {
  return filled(translate("SmartScan", "Clean %1"), formatting.byteText(selectedSize));
}

std::string removingLine(const DeletionProgress& progress, const Formatting& formatting) {
  return filled(translate("Kit", "Removing %1 of %2 · %3 so far"),
                std::to_string(progress.completed), std::to_string(progress.total),
                formatting.byteText(progress.freed));
}

std::string cleanedApartHeadline(const AppState::CleanSummary& summary,
                                 const Formatting& formatting) {
  const auto inTrash = static_cast<std::int64_t>(summary.restorable.size());
  const QString trashed =
      translate("SmartScan", "%n items moved to Trash", nullptr, plural(inTrash));
  const QString removed =
      translate("SmartScan", "%n removed for good", nullptr, plural(summary.itemCount - inTrash));
  return formatting.byteText(summary.freed) + " · " + (trashed + ", " + removed).toStdString();
}

std::string cleanedApartDetail(std::int64_t freeBytes, const Formatting& formatting) {
  return filled(
      translate("SmartScan",
                "%1 free on disk — what went to the Trash takes its space until you empty it"),
      formatting.byteText(freeBytes));
}

std::string cleanedHeadline(const AppState::CleanSummary& summary, const Formatting& formatting) {
  const int count = plural(summary.itemCount);
  const QString counted = summary.restorable.empty()
                              ? translate("SmartScan", "%n items removed", nullptr, count)
                              : translate("SmartScan", "%n items moved to Trash", nullptr, count);
  return formatting.byteText(summary.freed) + " · " + counted.toStdString();
}

std::string cleanedDetail(const AppState::CleanSummary& summary, std::int64_t freeBytes,
                          const Formatting& formatting) {
  const QString sentence =
      summary.restorable.empty()
          ? translate("SmartScan", "%1 free on disk")
          : translate("SmartScan",
                      "%1 free on disk — the Trash still holds this space until you empty it");
  return filled(sentence, formatting.byteText(freeBytes));
}

}  // namespace klarvik::smart_scan
