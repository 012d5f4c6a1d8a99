#pragma once

#include <string>
#include <string_view>

namespace klarvik {

/// The texts of the windows that name a system or a part of it: whole sentences, never put together
/// from words. "%1" stands for what `filledIn` puts there.
struct Words {
  // The disk.
  std::string_view systemAndEverythingElse;  ///< the share of the disk that no folder explains
  std::string_view keptForSystem;            ///< free blocks that no ordinary user may write
  std::string_view unnamedVolume;            ///< for a volume without a label
  std::string_view unnamedHomeVolume;        ///< the same, where only the home lies on it
  std::string_view systemLine;               ///< "%1": name and version, as the system tells them

  // Why something that is found cannot be removed.
  std::string_view folderAboveUnreadable;
  std::string_view liesElsewhere;  ///< "%1": the path it really lies at
  std::string_view holdsOtherVolume;
  std::string_view belongsToAnother;
  std::string_view holdsReadOnlyFolders;

  // Why an application is not removed. "%1": the tool that was asked to, or what the sentence
  // names.
  std::string_view appIsRunning{};
  std::string_view appNotTrashed{};
  std::string_view appOfNoAskedManager{};
  std::string_view packageIsOfSystem{};
  std::string_view appHasNoFolderOfItsOwn{};
  std::string_view appIsWorkedOn{};
  std::string_view removalTakesNeeded{};
  std::string_view packageIsNeededBy{};  ///< "%2": another package
  std::string_view appIsNotRemoved{};
  std::string_view serviceIsNotRunning{};
  std::string_view toolNotStarted{};
  std::string_view toolTookTooLong{};
  std::string_view toolWasStopped{};
  std::string_view toolDidNotRemove{};
  std::string_view toolDidNotRemoveAndSaid{};  ///< "%2": what the tool said

  // Of an analysis that accounts for the whole volume.
  std::string_view smallerItems{};
  std::string_view countedSmallerItems{};  ///< "%n": how many, more than one
  std::string_view eachTakesLittle{};
  std::string_view hasDeletedFilesOpen{};

  // The file manager and the Trash.
  std::string_view showInFileManager;
  std::string_view openTrash;
  std::string_view trashUnreadable;
  std::string_view trashUnreadableInTray;

  // The first run.
  std::string_view welcomeTitle;
  std::string_view welcomeText;
  std::string_view nothingLeaves;
  std::string_view keepInTray;

  // The settings.
  std::string_view launchAtLoginUnavailable;
  std::string_view showInTray;
  std::string_view includeDeveloperCaches;

  // The sections.
  std::string_view reviewItemsAreSelected;
  std::string_view walkingForLargeFiles;
  std::string_view systemDataUnanalysed;
  std::string_view systemDataAnalysed;    ///< "%1": a size
  std::string_view systemDataHelp;        ///< "%1": a size
  std::string_view itemsOfProtectedKind;  ///< "%1": "3 items"
  // Of an analysis that accounts for the whole volume; else empty.
  std::string_view ledgerAddsUp;   ///< "%1": what is used
  std::string_view ledgerExceeds;  ///< "%1": by how much the rows take more than that
  std::string_view analysisFindsSafe;
  std::string_view analysisFindsSnapshots;
  std::string_view analysisFindsProtected;
  std::string_view readingApplications;
  std::string_view noApplications;
  std::string_view applicationsListed;  ///< "%n": a number
  std::string_view applicationColumn;
  std::string_view measuringApplications;
  std::string_view lookingForLeftovers;
  std::string_view noTrails;
  std::string_view trailsUnread;
  std::string_view browserTrails;
  std::string_view recentTrails;
  std::string_view downloadOrigins;
};

/// The sentence with `value` in the place of its "%1".
[[nodiscard]] std::string filledIn(std::string_view sentence, std::string_view value);

}  // namespace klarvik
