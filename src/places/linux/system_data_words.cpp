#include "places/linux/linux_layout.h"

namespace klarvik::linux_disk {
namespace {

using enum SystemDataSubCategory;

constexpr std::array<SystemDataWords, ledgerKindCount> kinds{{
    {applicationSupport, "App Data",
     "What your apps keep: libraries, databases, saved sessions. Removing a folder here empties "
     "its app, so clear it from inside the app where you can.",
     "Scanning app data..."},
    {containers, "Flatpak Data",
     "Documents and settings of Flatpak apps, a folder for each. Removing one resets its app.",
     "Scanning Flatpak data..."},
    {groupContainers, "Snap Data",
     "Documents and settings of snap apps, a folder for each. Removing one resets its app.",
     "Scanning snap data..."},
    {developerTools, "Developer Tools",
     "Compilers, SDKs, virtual devices and package stores. Fetching them again may take long.",
     "Scanning developer tools..."},
    {packageManagerCaches, "Package Caches",
     "Downloads of npm, pip, Cargo, Gradle and other package managers. They are fetched again "
     "when needed.",
     "Scanning package caches..."},
    {timeMachineSnapshots, "Snapshots",
     "Earlier states of the disk, kept by Timeshift, Snapper or the file system itself. The tool "
     "that made them has to remove them.",
     "Scanning snapshots..."},
    {systemTemp, "Temporary Files",
     "What lies in /tmp and /var/tmp. Some of it belongs to programs that are running.",
     "Scanning temporary files..."},
    {vmSwap, "Swap & Hibernation",
     "Space for when memory runs short, and for hibernation. The system needs it.",
     "Scanning swap files..."},
    {systemDatabases, "System Databases",
     "What services and packages keep below /var/lib. The system needs it.",
     "Scanning system databases..."},
    {mailStorage, "Mail",
     "Messages and attachments of your mail programs. Remove mail in its program.",
     "Scanning mail..."},
    {homebrewCache, "Homebrew",
     "Downloads of Homebrew, and what it has installed. Run 'brew cleanup' to free space.",
     "Scanning Homebrew..."},
    {firmware, "Kernels & Firmware",
     "Kernels, their modules and firmware. Older ones are removed by your package manager.",
     "Scanning kernels and firmware..."},
    {spotlightIndex, "Search Index",
     "What the desktop's search knows of your files. The desktop looks after it.",
     "Scanning the search index..."},
    {diagnostics, "Crash Reports",
     "What programs that crashed left behind. Of use only to whoever looks for the fault.",
     "Scanning crash reports..."},
    {savedState, "Saved State",
     "Open windows, positions and histories that apps keep from one start to the next.",
     "Scanning saved state..."},
    {cookiesStorage, "Web Storage",
     "What websites keep in your browsers. Removing it may log you out of them.",
     "Scanning web storage..."},
    {caches, "App Caches", "Copies that apps keep to be quicker. They make them again.",
     "Scanning app caches..."},
    {systemLibrary, "Installed System",
     "The system and its packages, below /usr and /opt. Your package manager looks after them.",
     "Scanning the installed system..."},
    {logs, "Logs", "Records that the system and your apps write. They grow over time.",
     "Scanning logs..."},
    {preferences, "Settings", "Settings of your apps. Removing them resets the apps.",
     "Scanning settings..."},
    {icloudData, "Cloud Folders",
     "Copies of what Nextcloud, Dropbox and others keep on a server. What is removed here may go "
     "from the server as well.",
     "Scanning cloud folders..."},
    {otherLibrary, "Other Hidden Folders",
     "Hidden folders of your home that belong to no other kind. Look into each before you remove "
     "it.",
     "Scanning other hidden folders..."},
    {containerStorage, "Containers & Machines",
     "Images and disks of Docker, Podman, VirtualBox and others. Remove those you no longer need "
     "in the program that made them.",
     "Scanning containers and machines..."},
    {packages, "Flatpak & Snap",
     "Apps that Flatpak and snap have installed, and downloads of package managers. Uninstall "
     "what you no longer use.",
     "Scanning Flatpak and snap..."},
    {deletedOpen, "Deleted but Still Open",
     "Files that are deleted and that a program still has open. Their space comes back when the "
     "program is closed or started anew.",
     "Looking for deleted files..."},
    {reserved, "Kept for the System",
     "Free space that the file system keeps back for the system. It is not used, and no ordinary "
     "user can write to it, so it is not part of the sum. On a volume that holds only data, an "
     "administrator can lower it with 'tune2fs -m 1'.",
     "Reading the volume..."},
    {otherUsers, "Other Users",
     "Homes of other users of this computer, as far as you may read them. Only their owners can "
     "tidy them.",
     "Scanning other users..."},
    {yourFiles, "Your Files",
     "The visible folders of your home, and your Trash. Storage and Large Files show what in "
     "them takes the space.",
     "Scanning your files..."},
    {elsewhere, "Elsewhere on the Disk",
     "Folders outside of all homes that are no part of the system. Whoever made them knows "
     "whether they are still needed.",
     "Scanning the rest of the disk..."},
    {notReadable, "Not Readable for You",
     "Used, but in no folder that you may open: storage of Docker, other users' files, snapshots, "
     "and what the file system needs for itself. An administrator can look into it with 'du'.",
     "Reading the volume..."},
}};

constexpr bool everyRowStandsAtItsKind() {
  for (std::size_t row = 0; row < kinds.size(); ++row) {
    if (static_cast<std::size_t>(kinds[row].kind) != row) return false;
  }
  return true;
}
static_assert(everyRowStandsAtItsKind());

}  // namespace

std::span<const SystemDataWords> systemDataWords() {
  return kinds;
}

}  // namespace klarvik::linux_disk
