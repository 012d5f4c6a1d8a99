#include "systemdata/system_data_sub_category.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "places/disk_layout.h"

namespace klarvik {
namespace {

std::string_view nameOf(ItemSafety safety) {
  if (safety == ItemSafety::safe) return "safe";
  return safety == ItemSafety::review ? "review" : "protected";
}

/// Two lines for each kind: name, icon, colour and verdict; description.
std::string allKinds() {
  std::ostringstream lines;
  for (const SystemDataSubCategory kind : allSystemDataSubCategories()) {
    const RgbColor shade = color(kind);
    lines << rawValue(kind) << " | " << icon(kind) << " | " << shade.red << ' ' << shade.green
          << ' ' << shade.blue << " | " << nameOf(defaultSafety(kind)) << "\n  "
          << description(kind) << '\n';
  }
  return lines.str();
}

TEST(SystemDataSubCategory, EachKindHasItsNameIconColourSafetyAndDescription) {
  EXPECT_EQ(allKinds(), R"(Application Support | app.badge.fill | 0.098 0.62 0.439 | review
  The working data of installed apps: libraries, databases, saved sessions. Removing a folder here empties that app. Uninstall the app instead, or clear its caches from inside it.
Containers | shippingbox.fill | 0.565 0.522 0.914 | review
  Sandboxed app data. A Docker VM can be pruned from Docker; most other containers hold the app's own documents and settings.
Group Containers | square.stack.3d.up.fill | 0.851 0.349 0.149 | review
  Data shared between an app and its extensions. WhatsApp and Telegram keep their message history here, so emptying a folder signs you out and loses the chats. Clear media from inside each app.
Developer Tools | wrench.and.screwdriver.fill | 0.224 0.529 0.898 | safe
  Xcode data, iOS simulators, Android SDK. Delete old simulators and unused SDKs.
Package Manager Caches | shippingbox.and.arrow.backward.fill | 0.788 0.522 0 | safe
  Cached packages from npm, yarn, pip, CocoaPods, Gradle, etc. Safe to delete — will re-download when needed.
Time Machine Snapshots | clock.arrow.2.circlepath | 0.902 0.404 0.404 | review
  Local snapshots kept for Time Machine. Safe to delete — your external backups remain intact.
System Temp Files | doc.badge.clock.fill | 0.443 0.443 0.463 | safe
  Temporary files created by macOS and apps. Mostly auto-managed, some can be cleared.
VM & Swap | memorychip.fill | 0.298 0.298 0.318 | protected
  Virtual memory used by macOS. Cannot be deleted — system-managed and essential.
System Databases | cylinder.fill | 0.298 0.298 0.318 | protected
  System databases (fseventsd, dyld, etc.). Cannot be deleted — essential for macOS.
Mail Storage | envelope.fill | 0.835 0.318 0.506 | review
  Email data and attachments. Manage in Mail.app by deleting old emails.
Homebrew | mug.fill | 0.443 0.443 0.463 | safe
  Cached package downloads. Run 'brew cleanup' to free this space.
Firmware Files | cpu.fill | 0.443 0.443 0.463 | review
  iOS/iPadOS firmware files (IPSW). Safe to delete after updating your devices.
Spotlight Index | magnifyingglass | 0.298 0.298 0.318 | protected
  Search index built by Spotlight. Cannot be manually deleted — system-managed.
Diagnostic Reports | stethoscope | 0.443 0.443 0.463 | safe
  Crash reports and diagnostic logs. Safe to delete.
Saved App State | bookmark.fill | 0.443 0.443 0.463 | safe
  Window positions and state saved by apps. Safe to delete — apps recreate on launch.
Cookies & Web Storage | globe | 0.443 0.443 0.463 | review
  Browser cookies and web storage. Deleting may log you out of websites.
App Caches | archivebox.fill | 0 0.514 0 | safe
  Temporary cache files from all apps. Safe to delete — apps will regenerate them.
System Library Data | building.columns.fill | 0.298 0.298 0.318 | protected
  System-level library data. Cannot be deleted — essential for macOS and installed apps.
Logs | doc.text.fill | 0.443 0.443 0.463 | safe
  System and app log files. Safe to delete — they accumulate over time.
Preferences & Config | gearshape.fill | 0.298 0.298 0.318 | protected
  App preferences and configuration files. Do not delete — may reset app settings.
iCloud & Mobile Docs | icloud.fill | 0.298 0.298 0.318 | protected
  iCloud Drive and Mobile Documents data. Managed by iCloud — do not delete manually.
Other Library Data | folder.fill | 0.443 0.443 0.463 | review
  Other data in your Library folder not covered by specific categories. Review individually.
)");
}

TEST(SystemDataSubCategory, IsCalledByItsOwnNameOnAMacsDisk) {
  const DiskLayout& mac = layoutFor("/Users/ann");
  for (const SystemDataSubCategory kind : allSystemDataSubCategories()) {
    EXPECT_EQ(label(kind, mac), rawValue(kind));
    EXPECT_EQ(description(kind, mac), description(kind));
  }
}

TEST(SystemDataSubCategory, HasALabelOfItsOwnOnALinuxDisk) {
  const DiskLayout& linux = layoutFor("/home/ann");
  std::set<std::string_view> labels;
  for (const SystemDataSubCategory kind : allSystemDataSubCategories()) {
    labels.insert(label(kind, linux));
    EXPECT_TRUE(description(kind, linux).ends_with('.')) << label(kind, linux);
  }
  EXPECT_EQ(labels, (std::set<std::string_view>{"App Caches",
                                                "App Data",
                                                "Cloud Folders",
                                                "Crash Reports",
                                                "Developer Tools",
                                                "Flatpak Data",
                                                "Homebrew",
                                                "Installed System",
                                                "Kernels & Firmware",
                                                "Logs",
                                                "Mail",
                                                "Other Hidden Folders",
                                                "Package Caches",
                                                "Saved State",
                                                "Search Index",
                                                "Settings",
                                                "Snap Data",
                                                "Snapshots",
                                                "Swap & Hibernation",
                                                "System Databases",
                                                "Temporary Files",
                                                "Web Storage"}));
}

TEST(SystemDataSubCategory, NamesNoOtherSystemOnALinuxDisk) {
  for (const SystemDataWords& words : layoutFor("/home/ann").systemData) {
    for (const std::string_view text : {words.label, words.description, words.scanning}) {
      for (const char* const name : {"macOS", "Mac ", "Finder", "Xcode", "iPhone", "iPad", "Safari",
                                     "Time Machine", "iCloud", "Spotlight"}) {
        EXPECT_EQ(text.find(name), std::string_view::npos) << text;
      }
    }
  }
}

}  // namespace
}  // namespace klarvik
