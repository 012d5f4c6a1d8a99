#include "places/linux/linux_layout.h"

namespace klarvik::linux_disk {

const Words words{
    .systemAndEverythingElse = "The system and everything else",
    .keptForSystem = "kept for the system",
    .unnamedVolume = "System",
    .unnamedHomeVolume = "Home",
    .systemLine = "%1",

    .folderAboveUnreadable = "The folder that it lies in cannot be opened.",
    .liesElsewhere = "It really lies at %1, which Klarvik leaves alone.",
    .holdsOtherVolume = "Another volume is mounted inside of it, so that it cannot be removed.",
    .belongsToAnother = "Some of it belongs to another user, so that it cannot be removed.",
    .holdsReadOnlyFolders =
        "Some of its folders are read-only: the Trash could not be emptied of them again.",

    .appIsRunning = "%1 is running. Close it first.",
    .appNotTrashed = "It could not be moved to the Trash.",
    .appOfNoAskedManager =
        "It was installed for all users of this computer, and not by a package manager that "
        "Klarvik asks.",
    .packageIsOfSystem = "The package %1 is a part of the system.",
    .appHasNoFolderOfItsOwn = "Klarvik cannot tell which folder is its own: its program is %1.",
    .appIsWorkedOn = "Its folder is one that somebody works in: it holds a Git repository.",
    .removalTakesNeeded = "Removing it would remove %1, which this computer needs.",
    .packageIsNeededBy = "The package %2 needs %1, and has to be removed first.",
    .appIsNotRemoved = "Klarvik does not remove it.",
    .serviceIsNotRunning = "%1 does not run on this computer.",
    .toolNotStarted = "%1 could not be started.",
    .toolTookTooLong = "%1 took too long, and was stopped.",
    .toolWasStopped = "%1 was stopped.",
    .toolDidNotRemove = "%1 did not remove it.",
    .toolDidNotRemoveAndSaid = "%1 did not remove it: %2",

    .smallerItems = "Smaller items",
    .countedSmallerItems = "%n smaller items",
    .eachTakesLittle = "Each takes too little to be worth a row.",
    .hasDeletedFilesOpen = "Has deleted files open. Restart it to get the space back.",

    .showInFileManager = "Show in File Manager",
    .openTrash = "Open the Trash in your file manager",
    .trashUnreadable = "Cannot be read",
    .trashUnreadableInTray = "Trash · cannot be read",

    .welcomeTitle = "Klarvik finds what file managers hide",
    .welcomeText =
        "App caches, package downloads, browser leftovers, logs and the residue apps leave behind "
        "when you delete them.",
    .nothingLeaves = "Nothing leaves this computer. No account, no telemetry.",
    .keepInTray = "Keep Klarvik in the system tray",

    .launchAtLoginUnavailable = "Unavailable until Klarvik is installed.",
    .showInTray = "Show in the system tray",
    .includeDeveloperCaches = "Include developer caches (builds, packages, containers)",

    .reviewItemsAreSelected =
        "Review items are things you might want back — build results, toolchains, what removed "
        "apps left behind. What goes to the Trash can be restored until you empty it.\n\nTurn this "
        "warning off in Settings → General.",
    .walkingForLargeFiles =
        "Walking the visible folders of your home. Photo and music libraries are skipped.",
    .systemDataUnanalysed =
        "Not analysed yet. Your file manager will not say where the space of the disk went. "
        "Klarvik "
        "will.",
    .systemDataAnalysed = "All that is used on this disk, by what it is. %1 of it can go.",
    .systemDataHelp = "%1 Klarvik can remove from the folders that apps keep out of sight",
    .itemsOfProtectedKind = "%1",
    .ledgerAddsUp = "The rows add up to %1: all that the disk says is used.",
    .ledgerExceeds =
        "The rows add up to %1 more than the disk says is used: copies can share their space, and "
        "files may have changed meanwhile.",
    .analysisFindsSafe = "Package downloads, crash reports and other caches",
    .analysisFindsSnapshots = "Snapshots, app data, toolchains",
    .analysisFindsProtected = "Swap, cloud folders, the installed system",
    .readingApplications = "Reading the installed apps…",
    .noApplications = "No app with an entry in the menu of this computer was found.",
    .applicationsListed = "%n apps · removing one leaves its settings and caches behind",
    .applicationColumn = "APP",
    .measuringApplications = "Measuring the apps in the menu, and the AppImages in your home.",
    .lookingForLeftovers = "Checking settings, caches, app data and states in your home.",
    .noTrails = "No trail that Klarvik clears was found.",
    .trailsUnread = "Rescan to see what this computer has recorded.",
    .browserTrails = "BROWSERS",
    .recentTrails = "RECENT FILES",
    .downloadOrigins = "Origin of downloads",
};

}  // namespace klarvik::linux_disk
