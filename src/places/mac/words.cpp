#include "places/mac/mac_layout.h"

namespace klarvik::mac {

const Words words{
    .systemAndEverythingElse = "macOS and everything else",
    .keptForSystem = "",
    .unnamedVolume = "Macintosh HD",
    .unnamedHomeVolume = "Macintosh HD",
    .systemLine = "macOS %1",

    // Its categories have methods of their own, which offer all that they find.
    .folderAboveUnreadable = "",
    .liesElsewhere = "",
    .holdsOtherVolume = "",
    .belongsToAnother = "",
    .holdsReadOnlyFolders = "",

    .showInFileManager = "Show in Finder",
    .openTrash = "Open the Trash in Finder",
    .trashUnreadable = "Needs Full Disk Access",
    .trashUnreadableInTray = "Trash · needs Full Disk Access",

    .welcomeTitle = "Klarvik finds what the Finder hides",
    .welcomeText =
        "App caches, old iPhone backups, browser leftovers, logs and the residue apps leave behind "
        "when you drag them to the Trash.",
    .nothingLeaves = "Nothing leaves your Mac. No account, no telemetry.",
    .keepInTray = "Keep Klarvik in the menu bar",

    .launchAtLoginUnavailable = "Unavailable until Klarvik is signed and in /Applications.",
    .showInTray = "Show in the menu bar",
    .includeDeveloperCaches = "Include developer caches (Xcode, npm, Docker)",

    .reviewItemsAreSelected =
        "Review items are things you might want back — iPhone backups, Xcode archives, local "
        "snapshots. Everything goes to the Trash, so it can be restored until you empty "
        "it.\n\nTurn "
        "this warning off in Settings → General.",
    .walkingForLargeFiles =
        "Walking Documents, Downloads, Desktop, Movies and Music. Photo and music libraries are "
        "skipped.",
    .systemDataUnanalysed =
        "Not analysed yet. Storage settings will not say what is in these folders. Klarvik will.",
    .systemDataAnalysed =
        "System Data, plus the Developer, Mail and app folders Storage settings files elsewhere "
        "and explains just as poorly. %1 of it can go.",
    .systemDataHelp = "%1 Klarvik can remove from the folders macOS keeps out of Storage settings",
    .itemsOfProtectedKind = "%1 · macOS needs these",
    .ledgerAddsUp = "",
    .ledgerExceeds = "",
    .analysisFindsSafe = "Device backups, Mail downloads, Homebrew and other caches",
    .analysisFindsSnapshots = "Local Time Machine snapshots",
    .analysisFindsProtected = "Swap, iCloud local copies, system frameworks",
    .readingApplications = "Reading /Applications…",
    .noApplications = "Nothing found in /Applications.",
    .applicationsListed = "%n apps · dragging one to the Trash leaves its support files behind",
    .applicationColumn = "BUNDLE",
    .measuringApplications = "Measuring every app in /Applications and ~/Applications.",
    .lookingForLeftovers =
        "Checking Preferences, Caches, Application Support, Containers and Logs.",
    .noTrails = "No browsing or system trails were found.",
    .trailsUnread = "Rescan to see what your Mac has recorded.",
    .browserTrails = "SAFARI, CHROME, FIREFOX",
    .recentTrails = "MACOS RECENTS",
    .downloadOrigins = "Quarantine DB",
};

}  // namespace klarvik::mac
