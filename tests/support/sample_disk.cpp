#include "support/sample_disk.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "support/disk_writer.h"
#include "support/property_lists.h"

namespace klarvik {

namespace {

struct SampleCache {
  std::string_view name;
  std::int64_t kilobytes;
};

/// Caches that a Smart Scan lists.
constexpr std::array<SampleCache, 10> appCaches{{
    {"com.spotify.client", 5'000},
    {"com.acme.writer", 4'200},
    {"Homebrew", 3'600},
    {"com.tinyspeck.slackmacgap", 1'800},
    {"com.shutter.booth", 2'400},
    {"pip", 2'000},
    {"com.apple.bird", 1'700},
    {"com.figma.Desktop", 1'500},
    {"com.apple.locationd", 1'300},
    {"CocoaPods", 1'100},
}};

/// Too small for a row of their own.
constexpr std::array<SampleCache, 3> smallCaches{{
    {"com.acme.writerx", 80},
    {"com.apple.Music", 400},
    {"note-cache", 120},
}};

constexpr std::array<SampleCache, 5> browserCaches{{
    {"Google/Chrome", 3'000},
    {"com.google.Chrome", 1'200},
    {"com.apple.Safari", 2'000},
    {"Firefox", 1'600},
    {"com.brave.Browser", 900},
}};

/// Left to other rows by their names, and not in the browsers' own list.
constexpr std::array<SampleCache, 2> ownedCaches{{
    {"com.google.Chrome.helper", 1'200},
    {"org.llvm.clang", 1'200},
}};

struct SampleApplication {
  std::string_view folder;  ///< absolute, or below the home
  std::string_view name;
  std::string_view bundleId;
  std::int64_t kilobytes;
  std::string (*propertyList)(const PropertyListTexts&);
};

constexpr std::array<SampleApplication, 8> applications{{
    {"/Applications", "Acme Writer", "com.acme.writer", 1'500, binaryPropertyList},
    {"/Applications", "Booth", "com.shutter.booth", 900, binaryPropertyList},
    {"/Applications", "Note", "com.note.app", 400, xmlPropertyList},
    {"/Applications", "Notebook", "com.paper.notebook", 400, xmlPropertyList},
    {"/Applications", "App 11", "com.eleven.app", 200, xmlPropertyList},
    {"/Applications", "Spotify", "com.spotify.client", 1'200, binaryPropertyList},
    {"/Applications", "Slack", "com.tinyspeck.slackmacgap", 1'000, xmlPropertyList},
    {"Applications", "Mini Tool", "com.mini.tool", 150, binaryPropertyList},
}};

PropertyListTexts information(std::string_view name, std::string_view bundleId) {
  PropertyListTexts texts{{"CFBundleName", std::string(name)},
                          {"CFBundleShortVersionString", "1.0"}};
  if (!bundleId.empty()) texts.emplace_back("CFBundleIdentifier", bundleId);
  return texts;
}

/// Puts the disk together, one subject after the other.
class SampleDiskBuilder {
 public:
  SampleDiskBuilder(const Path& root, const SampleDiskOptions& options)
      : _writer(root), _scale(options.scale), _home(options.home) {
    _disk.root = std::filesystem::canonical(root);
    _disk.home = options.home;
  }

  SampleDisk build() {
    systemFolders();
    userApplications();
    caches();
    developerFolders();
    logs();
    backups();
    leftovers();
    libraryData();
    packageManagers();
    systemDataPlaces();
    documents();
    pictures();
    largeFiles();
    trash();
    otherUsers();
    oddities();
    _writer.finish();
    _disk.files = _writer.fileCount();
    return std::move(_disk);
  }

 private:
  [[nodiscard]] Path inHome(const Path& relative) const { return _home / relative; }
  [[nodiscard]] Path inLibrary(const Path& relative) const { return _home / "Library" / relative; }
  std::size_t& rows(CategoryType type) { return _disk.smartScanItems[type]; }

  [[nodiscard]] std::string recordOf(const Path& original) const {
    return trashRecord(_disk.root / inHome(original).relative_path());
  }

  void systemFolders() {
    for (const char* const place : {"/Applications",
                                    "/Library/Caches",
                                    "/Library/Preferences",
                                    "/Library/Fonts",
                                    "/Library/Frameworks",
                                    "/Library/Logs",
                                    "/System/Library",
                                    "/Users/Shared",
                                    "/Volumes",
                                    "/bin",
                                    "/opt/homebrew",
                                    "/private/etc",
                                    "/private/tmp",
                                    "/private/var/db",
                                    "/private/var/folders",
                                    "/private/var/tmp",
                                    "/private/var/vm",
                                    "/sbin",
                                    "/usr/bin",
                                    "/usr/local/bin",
                                    "/usr/share"}) {
      _writer.folder(place);
    }
    _writer.link("/var", "private/var");
    _writer.link("/tmp", "private/tmp");
    _writer.link("/etc", "private/etc");

    _writer.files("/Library/Caches/com.acme.writer", 4, 600 * kilobyte * _scale);
    _writer.files("/Library/Application Support/Acme Writer", 2, 300 * kilobyte);
    _writer.file("/Library/Preferences/com.acme.writer.plist", 500);
    _writer.file("/Library/Fonts/Acme Sans.ttf", 300 * kilobyte);
    _writer.files("/private/var/folders/zz/zyxvpxvq6csfxvn_n0000000000000/T", 10 * _scale,
                  10'500 * kilobyte * _scale);
    _writer.file("/private/var/db/receipts/com.acme.writer.plist", 4 * kilobyte);
    _writer.sparse("/private/var/vm/sleepimage", 1'024 * mebibyte);
    _writer.sparse("/private/var/vm/swapfile0", 64 * mebibyte);
    _writer.file("/private/tmp/acme-install.log", 30 * kilobyte);
    _writer.file("/.Spotlight-V100/Store-V2/index", 200 * kilobyte);
    _writer.text("/private/etc/hosts", "127.0.0.1 localhost\n");
  }

  void application(const Path& place, std::string_view name, std::string_view propertyList,
                   std::int64_t bytes) {
    _writer.text(place / "Contents/Info.plist", propertyList);
    _writer.file(place / "Contents/MacOS" / name, bytes);
    _writer.file(place / "Contents/Resources/.hidden", 2 * kilobyte);
  }

  void userApplications() {
    for (const SampleApplication& each : applications) {
      application(_home / each.folder / (std::string(each.name) + ".app"), each.name,
                  each.propertyList(information(each.name, each.bundleId)),
                  each.kilobytes * kilobyte);
    }
    _disk.applications = applications.size();
    application("/Applications/Nameless.app", "Nameless",
                xmlPropertyList(information("Nameless", "")), 10 * kilobyte);
    application("/Applications/Suite/Inner.app", "Inner",
                xmlPropertyList(information("Inner", "com.suite.inner")), 10 * kilobyte);
    // What is flat is an application as well, with the name that it shows.
    _writer.text("/Applications/Pocket.app/Info.plist",
                 binaryPropertyList({{"CFBundleDisplayName", "Pocket Reader"},
                                     {"CFBundleName", "Pocket"},
                                     {"CFBundleIdentifier", "com.pocket.reader"}}));
    _writer.file("/Applications/Pocket.app/Pocket", 300 * kilobyte);
    ++_disk.applications;
    // One in each folder, and the cache and the preferences of its sister, which bears its vendor's
    // name.
    _disk.residuals = 12 + 2;
    _writer.folder("/Applications/Empty.app");
    _writer.text("/Applications/Broken.app/Contents/Info.plist", "<plist><dict><key>");
  }

  void cache(const SampleCache& each) {
    const Path folder = inLibrary("Caches") / each.name;
    _writer.files(folder / "Data", 20 * _scale, each.kilobytes * kilobyte * _scale);
    _writer.file(folder / "Cache.db", 40 * kilobyte);
    _writer.file(folder / ".hidden", 10 * kilobyte);
  }

  void caches() {
    for (const SampleCache& each : appCaches) cache(each);
    for (const SampleCache& each : browserCaches) cache(each);
    for (const SampleCache& each : ownedCaches) cache(each);
    rows(CategoryType::appCaches) = appCaches.size();
    rows(CategoryType::browserCaches) = browserCaches.size();
    for (const SampleCache& each : smallCaches) {
      _writer.file(inLibrary("Caches") / each.name / "small.db", each.kilobytes * kilobyte);
    }
    _writer.link(inLibrary("Caches/linked"), "com.spotify.client");
  }

  void developerFolders() {
    const Path xcode = inLibrary("Developer/Xcode");
    _writer.files(xcode / "DerivedData/Klarvik-abc/Build", 30 * _scale, 3 * megabyte * _scale);
    _writer.files(xcode / "DerivedData/Klarvik-abc/Index.noindex", 10 * _scale,
                  1 * megabyte * _scale);
    _writer.files(xcode / "iOS DeviceSupport/17.0 (21A329)/Symbols", 10, 1 * megabyte * _scale);
    rows(CategoryType::xcodeCache) = 2;

    _writer.files(xcode / "Archives/2025-11-02/Acme.xcarchive/Products", 4, 1 * megabyte * _scale);
    _writer.file(xcode / "Archives/2025-11-02/notes.txt", 1 * megabyte * _scale);
    rows(CategoryType::xcodeArchives) = 1;

    const Path simulators = inLibrary("Developer/CoreSimulator");
    _writer.files(simulators / "Caches/dyld", 4, 800 * kilobyte * _scale);
    rows(CategoryType::simulators) = 1;
    _writer.files(simulators / "Devices/5E1F0A52-0001/data", 8, 1'600 * kilobyte * _scale);
    _writer.files(simulators / "Devices/5E1F0A52-0002/data", 8, 1'200 * kilobyte * _scale);
    _writer.file(simulators / "Devices/5E1F0A52-0003/device.plist", 2 * kilobyte);
    _disk.simulatorRows = 2;
    _disk.simulatorListing = R"({"devices": {
      "com.apple.CoreSimulator.SimRuntime.iOS-15-0": [
        {"udid": "5E1F0A52-0001", "name": "iPhone 8", "isAvailable": false,
         "runtime": "com.apple.CoreSimulator.SimRuntime.iOS-15-0"},
        {"udid": "5E1F0A52-0002", "name": "iPad Air", "isAvailable": false},
        {"udid": "5E1F0A52-0003", "name": "iPhone SE", "isAvailable": false},
        {"udid": "5E1F0A52-0004", "name": "iPhone X", "isAvailable": false}]}})";

    const Path docker = inLibrary("Containers/com.docker.docker/Data");
    _writer.files(docker / "cache", 3, 400 * kilobyte * _scale);
    _writer.files(docker / "log", 3, 200 * kilobyte * _scale);
    rows(CategoryType::dockerData) = 2;
  }

  void logs() {
    _writer.files(inLibrary("Logs/Acme Writer"), 10 * _scale, 2 * megabyte * _scale);
    _writer.files(inLibrary("Logs/DiagnosticReports"), 6 * _scale, 1 * megabyte * _scale);
    _writer.file(inLibrary("Logs/CoreSimulator/simulator.log"), 300 * kilobyte);
    _writer.file("/private/var/log/system.log", 1 * megabyte * _scale);
    _writer.file("/private/var/log/install.log", 400 * kilobyte);
    _writer.files("/Library/Logs/DiagnosticReports", 3, 300 * kilobyte * _scale);
    rows(CategoryType::systemLogs) = 2;
  }

  void backups() {
    const Path folder = inLibrary("Application Support/MobileSync/Backup");
    _writer.files(folder / "00008101-000A1D2E3F40001E", 12 * _scale, 3 * megabyte * _scale);
    _writer.files(folder / "00008110-001B2C3D4E50002F", 6 * _scale, 1 * megabyte * _scale);
    rows(CategoryType::iosBackups) = 2;
  }

  void leftovers() {
    _writer.files(inLibrary("Cookies"), 3, 20'400 * kilobyte * _scale);
    _writer.file(inLibrary("Cookies/com.acme.writer.binarycookies"), 2 * kilobyte);
    _writer.files(inLibrary("HTTPStorages/com.acme.writer"), 2, 1 * megabyte * _scale);
    _writer.files(inLibrary("Saved Application State/com.acme.writer.savedState"), 4,
                  2 * megabyte * _scale);
    const Path updates = inLibrary("iTunes/iPhone Software Updates");
    _writer.file(updates / "iPhone14,2_17.0_Restore.ipsw", 4 * megabyte * _scale);
    _writer.file(updates / "iPhone14,2_17.0_Restore.IPSW", 20 * kilobyte);
    rows(CategoryType::systemData) = 1;
  }

  void libraryData() {
    _writer.files(inLibrary("Application Support/Acme Writer"), 8 * _scale,
                  5'200 * kilobyte * _scale);
    _writer.files(inLibrary("Application Support/Google/Chrome/Default/Extensions"), 5,
                  300 * kilobyte);
    _writer.file(inLibrary("Application Support/Google/Chrome/Default/History"), 300 * kilobyte);
    _writer.file(inLibrary("Application Support/Google/Chrome/Default/Cookies"), 60 * kilobyte);
    _writer.file(inLibrary("Application Support/Firefox/Profiles/x.default/places.sqlite"),
                 200 * kilobyte);
    _writer.file(inLibrary("Safari/History.db"), 500 * kilobyte);
    const Path recent = inLibrary("Application Support/com.apple.sharedfilelist");
    _writer.file(recent / "com.apple.LSSharedFileList.RecentDocuments.sfl2", 6 * kilobyte);
    _writer.file(recent / "com.apple.LSSharedFileList.RecentDownloads.sfl2", 5 * kilobyte);
    _writer.file(recent / "com.apple.LSSharedFileList.RecentHosts.sfl2", 4 * kilobyte);
    _writer.file(inLibrary("Preferences/com.apple.dock.plist"), 8 * kilobyte);
    _writer.file(inLibrary("Preferences/com.apple.LaunchServices.QuarantineEventsV2"),
                 90 * kilobyte);
    _writer.file(inLibrary("Preferences/com.acme.writer.plist"), 3 * kilobyte);
    _writer.file(inLibrary("Preferences/com.acme.writerx.plist"), 3 * kilobyte);
    _writer.file(inLibrary("Preferences/com.note.app.plist"), 3 * kilobyte);
    _writer.file(inLibrary("Preferences/notebook.plist"), 3 * kilobyte);
    _writer.file(inLibrary("Preferences/App 110.plist"), 3 * kilobyte);
    _writer.files(inLibrary("Containers/com.acme.writer/Data"), 6 * _scale,
                  5'100 * kilobyte * _scale);
    _writer.files(inLibrary("Containers/com.apple.mail/Data/Library/Mail Downloads"), 3,
                  400 * kilobyte * _scale);
    _writer.files(inLibrary("Group Containers/group.com.acme.writer"), 4,
                  5'100 * kilobyte * _scale);
    _writer.files(inLibrary("Mail/V10/Mailboxes"), 20 * _scale, 900 * kilobyte * _scale);
    _writer.files(inLibrary("Messages"), 2, 400 * kilobyte);
    _writer.file(inLibrary("Keychains/login.keychain-db"), 80 * kilobyte);
    _writer.files(inLibrary("Mobile Documents/com~apple~CloudDocs"), 3, 1 * megabyte * _scale);
    _writer.files(inLibrary("Fonts"), 4, 800 * kilobyte * _scale);
  }

  void packageManagers() {
    _writer.files(inHome(".npm/_cacache"), 40 * _scale, 10'400 * kilobyte * _scale);
    _writer.files(inHome(".cargo/registry"), 20 * _scale, 1 * megabyte * _scale);
    _writer.files(inHome("go/pkg/mod"), 20 * _scale, 1 * megabyte * _scale);
    _writer.file(inHome(".zshrc"), 2 * kilobyte);
    _writer.file(inHome(".config/klarvik-sample.toml"), 1 * kilobyte);
  }

  /// What the analysis of System Data looks at and nobody else makes here.
  void systemDataPlaces() {
    for (const std::string_view place :
         {"Developer/Xcode/UserData", "Developer/Xcode/watchOS DeviceSupport",
          "Developer/Xcode/macOS DeviceSupport", "Developer/Xcode/Products",
          "Developer/Xcode/DocumentationCache", "Developer/CoreSimulator/Images",
          "Developer/XCPGDevices", "Developer/XCTestDevices", "Android/sdk"}) {
      _writer.files(inLibrary(place), 2, 200 * kilobyte * _scale);
    }
    _writer.file(inLibrary("Android/settings.xml"), 20 * kilobyte);
    rows(CategoryType::xcodeCache) += 1;  // the watch

    for (const std::string_view place :
         {".android", ".yarn", ".pnpm-store", ".cocoapods", ".gradle", ".m2", ".nuget", ".gem",
          ".pub-cache", ".cache/pip", ".cache/go-build", ".rustup", ".pyenv", ".nvm", ".rbenv",
          ".conda", "miniconda3", "anaconda3"}) {
      _writer.files(inHome(place), 2, 200 * kilobyte * _scale);
    }

    _writer.file(inLibrary("iTunes/iPad Software Updates/iPad13,1_17.0_Restore.ipsw"),
                 100 * kilobyte);
    _writer.file(inLibrary("iTunes/iPod Software Updates/iPod9,1_15.0_Restore.ipa"),
                 100 * kilobyte);

    for (const std::string_view place :
         {"/Library/Developer/CommandLineTools", "/Library/Developer/CoreSimulator",
          "/Library/Frameworks/Acme.framework", "/Library/Extensions/Acme.kext",
          "/Library/Audio/Plug-Ins", "/private/var/tmp", "/private/var/db/oah",
          "/opt/homebrew/Cellar", "/usr/local/Cellar/acme", "/usr/share/dict"}) {
      _writer.files(place, 2, 200 * kilobyte * _scale);
    }
  }

  /// The same content in several places.
  void duplicates(const std::vector<Path>& places, std::int64_t bytes) {
    const std::string content = "duplicate of " + places.front().native() + '\n';
    for (const Path& place : places) _writer.file(place, bytes, content);
    ++_disk.duplicateGroups;
    _disk.duplicateCopies += places.size();
  }

  void documents() {
    _writer.text(inHome("notes.txt"), "Milk, bread.\n");
    _writer.folder(inHome("Desktop"));
    _writer.file(inHome("Desktop/screenshot.png"), 250 * kilobyte);
    _writer.file(inHome("Documents/Letters/to ben.pages"), 60 * kilobyte);
    _writer.file(inHome("Documents/Letters/.draft"), 20 * kilobyte);
    _writer.files(inHome("Documents/Projects/web/node_modules/left-pad"), 20 * _scale,
                  200 * kilobyte);
    _writer.files(inHome("Documents/Projects/web/src"), 10 * _scale, 100 * kilobyte);
    _writer.link(inHome("Documents/shared"), "../../Shared");
    duplicates({inHome("Documents/report.pdf"), inHome("Documents/Old/report copy.pdf"),
                inHome("Downloads/report (1).pdf")},
               400 * kilobyte);
    duplicates({inHome("Downloads/setup.dmg"), inHome("Downloads/setup (1).dmg")},
               1'500 * kilobyte);
    _writer.file(inHome("Downloads/manual.pdf"), 400 * kilobyte);
  }

  void pictures() {
    duplicates({inHome("Pictures/2024/sea.jpg"), inHome("Pictures/2025/sea.jpg")}, 700 * kilobyte);
    _writer.file(inHome("Pictures/2025/mountain.jpg"), 700 * kilobyte);
    _writer.files(inHome("Pictures/Photos Library.photoslibrary/originals"), 30 * _scale,
                  3 * megabyte * _scale);
    _writer.sparse(inHome("Pictures/Photos Library.photoslibrary/originals/film.mov"),
                   300 * mebibyte);
    _writer.files(inHome("Music/Music Library.musiclibrary"), 4, 200 * kilobyte);
    _writer.file(inHome("Music/song.mp3"), 900 * kilobyte);
  }

  void largeFiles() {
    _writer.sparse(inHome("Movies/holiday.MOV"), 700 * mebibyte);
    _writer.sparse(inHome("Movies/birthday.mp4"), 100 * mebibyte);
    _writer.sparse(inHome("Movies/short.mp4"), 100 * mebibyte - 1);
    _writer.sparse(inHome("Downloads/ubuntu.iso"), 2'048 * mebibyte);
    _writer.sparse(inHome("Documents/Archive/2019.zip"), 150 * mebibyte);
    _writer.sparse(inHome("Documents/Projects/web/build/bundle.zip"), 300 * mebibyte);
    _writer.sparse(inHome("Movies/.hidden.mov"), 400 * mebibyte);
    _writer.link(inHome("Movies/link.mov"), "holiday.MOV");
    _disk.largeFiles = 4;
  }

  void trash() {
    const Path old = inHome(".Trash");
    _writer.file(old / "old movie.mov", 1'500 * kilobyte * _scale);
    _writer.files(old / "Old Project", 10 * _scale, 500 * kilobyte * _scale);
    _writer.file(old / ".hidden note", 10 * kilobyte);
    _writer.link(old / "link to documents", "../Documents");

    const Path files = inHome(".local/share/Trash/files");
    const Path records = inHome(".local/share/Trash/info");
    _writer.file(files / "draft.txt", 20 * kilobyte);
    _writer.text(records / "draft.txt.trashinfo", recordOf("Documents/draft.txt"));
    _writer.files(files / "Screenshots", 5, 900 * kilobyte * _scale);
    _writer.text(records / "Screenshots.trashinfo", recordOf("Desktop/Screenshots"));
    _disk.trashEntries = 6;
    // All of them but the link, which measures nothing.
    rows(CategoryType::trashBin) = 5;
  }

  void otherUsers() {
    _writer.file("/Users/ben/Documents/diary.txt", 10 * kilobyte);
    _writer.files("/Users/ben/Library/Caches/com.spotify.client", 3, 1'200 * kilobyte);
    _writer.file("/Users/Shared/readme.txt", 1 * kilobyte);
  }

  void oddities() {
    const Path odd = inHome("Downloads/odd names");
    _writer.file(odd / "not utf-8 \xff\xfe.bin", 5 * kilobyte);
    _writer.file(odd / "two\nlines.txt", 5 * kilobyte);
    _writer.file(odd / "-rf", 5 * kilobyte);
    _writer.file(odd / "$(touch hit) `id` ;x'\".txt", 5 * kilobyte);
    _writer.file(odd / "größe 📱.txt", 5 * kilobyte);
    _writer.file(odd / std::string(255, 'x'), 5 * kilobyte);
    _writer.link(odd / "to nothing", "missing");
    _writer.link(odd / "to itself", "to itself");
    _writer.link(odd / "to its parent", "..");
  }

  DiskWriter _writer;
  std::int64_t _scale;
  Path _home;
  SampleDisk _disk;
};

}  // namespace

SampleDisk buildSampleDisk(const Path& root, const SampleDiskOptions& options) {
  return SampleDiskBuilder(root, options).build();
}

}  // namespace klarvik
