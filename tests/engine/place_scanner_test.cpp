#include "engine/place_scanner.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <string>

#include "engine/scanner_engine.h"
#include "engine/sizes.h"
#include "platform/system_platform.h"
#include "support/fake_running_programs.h"
#include "support/fake_tool_runner.h"
#include "support/private_mounts.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

constexpr std::size_t big = 10'500'000;
constexpr std::size_t middling = 1'500'000;

/// A Linux home on a disk of the machine.
class LinuxDiskTest : public testing::Test {
 protected:
  [[nodiscard]] Path onDisk(const Path& place) const {
    return disk.path() / (place.is_absolute() ? place : home / place).relative_path();
  }

  void file(const Path& place, std::size_t bytes = middling) const {
    std::filesystem::create_directories(onDisk(place).parent_path());
    std::ofstream(onDisk(place), std::ios::binary) << std::string(bytes, 'x');
  }

  void folder(const Path& place) const { std::filesystem::create_directories(onDisk(place)); }

  void link(const Path& place, const Path& target) const {
    std::filesystem::create_directories(onDisk(place).parent_path());
    std::filesystem::create_symlink(target, onDisk(place));
  }

  /// The thing and all in it was last used so many days ago.
  void age(const Path& place, int days) const {
    const timespec then{.tv_sec = ::time(nullptr) - 86'400L * days, .tv_nsec = 0};
    const std::array<timespec, 2> times{then, then};
    ASSERT_EQ(::utimensat(AT_FDCWD, onDisk(place).c_str(), times.data(), AT_SYMLINK_NOFOLLOW), 0);
  }

  [[nodiscard]] Platform platform() {
    return {system.files,      system.trash, system.commands,        system.defaults, system.volume,
            system.formatting, system.info,  system.recentDocuments, programs,        tools};
  }

  [[nodiscard]] CleanCategory find(CategoryType type) {
    const Platform used = platform();
    PlaceScanner scanner(used, {}, [](const JunkItem&) {});
    if (type == CategoryType::buildArtifacts) return scanner.findArtifacts();
    if (type == CategoryType::trashBin) return scanner.findTrashed();
    return scanner.find(type);
  }

  [[nodiscard]] std::vector<std::string> paths(CategoryType type) {
    std::vector<std::string> found;
    for (const JunkItem& item : find(type).items) {
      found.push_back(
          item.path
              .lexically_relative(item.path.native().starts_with(home.native()) ? home : Path("/"))
              .native());
    }
    std::ranges::sort(found);
    return found;
  }

  const Path home = "/home/ann";
  TemporaryFolder disk;
  SystemPlatform machine{disk.path(), home};
  const Platform system = machine.platform();
  FakeRunningPrograms programs;
  FakeToolRunner tools;
};

using Names = std::vector<std::string>;

TEST_F(LinuxDiskTest, OffersAPlaceWithItsNameItsReasonAndAllThatItTakes) {
  file(".npm/_cacache/index", big);
  file(".npm/_cacache/.hidden/part", middling);
  const CleanCategory found = find(CategoryType::packageCaches);
  ASSERT_EQ(found.items.size(), 1U);
  const JunkItem& item = found.items.front();
  EXPECT_EQ(item.name, "npm");
  EXPECT_EQ(item.reason, "npm downloads what it needs again.");
  EXPECT_GE(item.size, static_cast<std::int64_t>(big + middling));
  EXPECT_TRUE(item.identity.has_value());
  EXPECT_FALSE(item.goesForGood);
  EXPECT_EQ(item.closeFirst, "");
}

TEST_F(LinuxDiskTest, LeavesOutWhatIsTooSmallToBeWorthARow) {
  file(".npm/_cacache/index", middling);
  EXPECT_EQ(paths(CategoryType::packageCaches), Names{});
}

TEST_F(LinuxDiskTest, TakesUnknownCachesForLeftoversAndLeavesTheKeptOnesAlone) {
  for (const char* name : {"unknown", "pip", "mozilla", "rclone", "nvim", "gnome-control-center",
                           "fontconfig", "keepassxc", ".hidden"}) {
    file(Path(".cache") / name / "data", big);
  }
  file(".cache/plain file", big);
  link(".cache/linked", "unknown");
  EXPECT_EQ(paths(CategoryType::systemData), Names{".cache/unknown"});
  EXPECT_EQ(paths(CategoryType::packageCaches), Names{".cache/pip"});
  EXPECT_EQ(paths(CategoryType::appCaches), Names{});
}

TEST_F(LinuxDiskTest, OffersOnlyTheNamedPartsOfAFolderThatHoldsMore) {
  file(".config/Code/CachedData/x");
  file(".config/Code/User/History/x");
  file(".config/google-chrome/Profile 2/GPUCache/x");
  file(".config/google-chrome/Profile 2/History");
  EXPECT_EQ(paths(CategoryType::appCaches), Names{".config/Code/CachedData"});
  EXPECT_EQ(paths(CategoryType::browserCaches), Names{".config/google-chrome/Profile 2/GPUCache"});
}

TEST_F(LinuxDiskTest, OffersNothingTwiceWhereRowsOverlap) {
  file(".cache/JetBrains/IdeaIC2023.3/index/x", big);
  file(".cache/JetBrains/IdeaIC2023.3/caches/x", big);
  file(".cache/JetBrains/IdeaIC2024.1/index/x", big);
  file(".cache/JetBrains/IdeaIC2024.1/caches/x", big);
  const Platform used = platform();
  PlaceScanner scanner(used, {}, [](const JunkItem&) {});
  Names found;
  for (const ScanRow& row : layoutFor(home).scanRows) {
    for (const JunkItem& item : scanner.find(row.type).items) found.push_back(item.path);
  }
  std::ranges::sort(found);
  EXPECT_EQ(found, (Names{"/home/ann/.cache/JetBrains/IdeaIC2023.3",
                          "/home/ann/.cache/JetBrains/IdeaIC2024.1/caches",
                          "/home/ann/.cache/JetBrains/IdeaIC2024.1/index"}));
}

TEST_F(LinuxDiskTest, SaysWhatToCloseFirst) {
  file(".cache/mozilla/firefox/ab.default/x");
  EXPECT_EQ(find(CategoryType::browserCaches).items.front().closeFirst, "");
  for (const char* name : {"firefox", "firefox-esr"}) {
    programs.running = {name};
    EXPECT_EQ(find(CategoryType::browserCaches).items.front().closeFirst, "Firefox") << name;
  }
}

TEST_F(LinuxDiskTest, AsksForTheApplicationWhoseFolderItIs) {
  folder("/var/lib/flatpak/app/org.acme.Writer");
  file(".var/app/org.acme.Writer/cache/x");
  programs.running = {"org.acme.Writer"};
  const auto found = find(CategoryType::appCaches);
  ASSERT_EQ(found.items.size(), 1U);
  EXPECT_EQ(found.items.front().closeFirst, "org.acme.Writer");
}

TEST_F(LinuxDiskTest, TakesTheDataOfAFlatpakForALeftoverOnlyWhenItIsGone) {
  folder("/var/lib/flatpak/app/org.acme.Writer");
  file(".var/app/org.acme.Writer/data/x", big);
  file(".var/app/org.gone.App/data/x", big);
  EXPECT_EQ(paths(CategoryType::systemData), Names{".var/app/org.gone.App"});
  file("/etc/flatpak/installations.d/other.conf", 1);
  EXPECT_EQ(paths(CategoryType::systemData), Names{});
}

TEST_F(LinuxDiskTest, TakesTheDataOfASnapForALeftoverOnlyWhenItIsKnownToBeGone) {
  file("snap/gone/common/x", big);
  file("snap/there/12/x", big);
  file("snap/there/13/x", big);
  EXPECT_EQ(paths(CategoryType::systemData), Names{});
  file("/var/lib/snapd/snaps/there_13.snap", 1);
  EXPECT_EQ(paths(CategoryType::systemData), (Names{"snap/gone", "snap/there/12"}));
}

TEST_F(LinuxDiskTest, TakesNoDataForALeftoverWhereWhatIsInstalledMayBeOnAVolumeThatIsNotThere) {
  file(".var/app/org.acme.Writer/data/x", big);
  file("snap/ink/common/x", big);
  EXPECT_EQ(paths(CategoryType::systemData), Names{}) << "a home that two systems share";
  folder("/var/lib/flatpak");
  folder("/var/lib/snapd/snaps");
  EXPECT_EQ(paths(CategoryType::systemData), Names{}) << "places to mount on";
  folder("/var/lib/flatpak/app/org.acme.Reader");
  file("/var/lib/snapd/snaps/core_1.snap", 1);
  link(".local/share/flatpak", "/media/ann/disk/flatpak");
  EXPECT_EQ(paths(CategoryType::systemData), Names{"snap/ink"}) << "a link to what is unplugged";
  std::filesystem::remove(onDisk(".local/share/flatpak"));
  EXPECT_EQ(paths(CategoryType::systemData), (Names{".var/app/org.acme.Writer", "snap/ink"}));
}

TEST_F(LinuxDiskTest, TakesNothingForOlderThanWhatCannotTakeItsPlace) {
  file("Applications/Ink-1.2.AppImage", big);
  link("Applications/Ink-1.3.AppImage", "gone");
  file("Applications/Ink-1.4.AppImage", 0);
  folder("Applications/Ink-1.5.AppImage");
  EXPECT_EQ(paths(CategoryType::installedPackages), Names{});
  file("Applications/Ink-1.6.AppImage", big);
  EXPECT_EQ(paths(CategoryType::installedPackages), Names{"Applications/Ink-1.2.AppImage"});
}

TEST_F(LinuxDiskTest, TellsWhatOnlyItsOwnToolCanRemove) {
  file("go/pkg/mod/x/file", big);
  const CleanCategory found = find(CategoryType::packageCaches);
  EXPECT_TRUE(found.items.empty());
  ASSERT_EQ(found.hints.size(), 1U);
  EXPECT_EQ(found.hints.front().command, "go clean -modcache");
}

TEST_F(LinuxDiskTest, OffersToRunAsRootWhatIsAConstantWhereTheSystemAsksForThePassword) {
  file("/var/cache/apt/archives/a.deb", 5 * big);
  const auto hint = [&] {
    const CleanCategory found = find(CategoryType::installedPackages);
    EXPECT_EQ(found.hints.size(), 1U);
    EXPECT_EQ(found.hints.front().command, "sudo apt-get clean");
    return found.hints.front();
  };
  EXPECT_EQ(hint().runAsRoot, nullptr);
  tools.answer("pkexec --version", "pkexec version 122\n");
  EXPECT_EQ(hint().runAsRoot, nullptr);
  file("/usr/bin/apt-get", 1);
  ASSERT_NE(hint().runAsRoot, nullptr);
  EXPECT_EQ(hint().runAsRoot->id, "apt");
  tools.end("pkexec --version", ToolResult::End::exited, 1);
  EXPECT_EQ(hint().runAsRoot, nullptr);
}

TEST_F(LinuxDiskTest, NeverOffersToRunAsRootWhatIsOnlyTold) {
  file("/var/lib/systemd/coredump/core.x", 5 * big);
  file("/usr/bin/find", 1);
  tools.answer("pkexec --version", "pkexec version 122\n");
  for (const Hint& told : find(CategoryType::systemLogs).hints) {
    EXPECT_EQ(told.runAsRoot, nullptr) << told.command;
  }
}

TEST_F(LinuxDiskTest, TellsWhatLiesOutsideOfTheHomeThroughALink) {
  file("/data/caches/pip/x", big);
  link(".cache", disk.path() / "data/caches");
  const CleanCategory found = find(CategoryType::packageCaches);
  EXPECT_TRUE(found.items.empty());
  ASSERT_EQ(found.hints.size(), 1U);
  EXPECT_EQ(found.hints.front().reason,
            "It really lies at /data/caches/pip, which Klarvik leaves alone.");
}

TEST_F(LinuxDiskTest, OffersWhatALinkInTheHomeLeadsTo) {
  file(".my caches/pip/x", big);
  link(".cache", ".my caches");
  EXPECT_EQ(paths(CategoryType::packageCaches), Names{".cache/pip"});
}

TEST_F(LinuxDiskTest, OffersNothingOfALinkIntoWhatPeopleKeep) {
  file("Documents/pip/x", big);
  link(".cache", "Documents");
  EXPECT_EQ(paths(CategoryType::packageCaches), Names{});
}

TEST_F(LinuxDiskTest, TellsAReadOnlyTreeInsteadOfFillingTheTrashForGood) {
  file(".cache/pip/deep/er/x", big);
  ASSERT_EQ(::chmod(onDisk(".cache/pip/deep/er").c_str(), 0555), 0);
  const CleanCategory found = find(CategoryType::packageCaches);
  EXPECT_TRUE(found.items.empty());
  ASSERT_EQ(found.hints.size(), 1U);
  EXPECT_EQ(found.hints.front().reason,
            "Some of its folders are read-only: the Trash could not be emptied of them again.");
  ASSERT_EQ(::chmod(onDisk(".cache/pip/deep/er").c_str(), 0755), 0);
}

TEST_F(LinuxDiskTest, PassesOverAPlaceThatIsAFileASocketOrALink) {
  file(".cache/go-build", big);
  folder(".cache/real");
  file(".cache/real/x", big);
  link(".cache/pip", "real");
  link(".cache/yarn", "nowhere");
  ASSERT_EQ(::mkfifo(onDisk(".cache/deno").c_str(), 0600), 0);
  EXPECT_EQ(paths(CategoryType::packageCaches), Names{".cache/go-build"});
}

TEST_F(LinuxDiskTest, LeavesAnotherVolumeAlone) {
  folder(".cache/pip");
  folder(".cache/unknown/mounted");
  file(".cache/unknown/own", big);
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountTmpfs(onDisk(".cache/pip"));
    mountTmpfs(onDisk(".cache/unknown/mounted"));
    file(".cache/pip/far", big);
    file(".cache/unknown/mounted/far", big);
    EXPECT_EQ(paths(CategoryType::packageCaches), Names{});
    const CleanCategory found = find(CategoryType::systemData);
    EXPECT_TRUE(found.items.empty());
    ASSERT_EQ(found.hints.size(), 1U);
    EXPECT_LT(found.hints.front().size, static_cast<std::int64_t>(2 * big));
    EXPECT_EQ(found.hints.front().reason,
              "Another volume is mounted inside of it, so that it cannot be removed.");
  }));
}

TEST_F(LinuxDiskTest, WaitsForNoServerThatDoesNotAnswer) {
  if (!canMountDeadServers()) GTEST_SKIP() << "no file system of a process can be mounted";
  constexpr std::array<const char*, 11> far{".cache/pip",
                                            ".cache/unknown/far",
                                            "Projects/far/node_modules",
                                            "Documents/far",
                                            "Videos",
                                            "snap/far",
                                            ".local/share/Trash/files/far",
                                            "/tmp/far",
                                            "/var/tmp/far",
                                            ".config/far",
                                            ".local/share/Steam"};
  std::vector<Path> dead;
  for (const char* name : far) {
    folder(name);
    dead.push_back(onDisk(name));
  }
  file("Projects/far/package.json", 1);
  file(".cache/unknown/own", big);
  file(".cache/whole/own", big);
  const bool passes = passesWithDeadServers(dead, [&] {
    ScannerEngine engine(system);
    std::vector<JunkItem> items;
    Names told;
    for (const CleanCategory& category : engine.scanAll({}, {}, {})) {
      items.insert(items.end(), category.items.begin(), category.items.end());
      for (const Hint& hint : category.hints) told.push_back(hint.path.filename().native());
    }
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items.front().path, home / ".cache/whole");
    EXPECT_GT(engine.deleteItem(items.front(), true).reclaimed, 0);
    EXPECT_EQ(told, Names{"unknown"});
    EXPECT_TRUE(std::filesystem::exists(onDisk(".cache/unknown/own")));
  });
  EXPECT_TRUE(passes);
}

TEST_F(LinuxDiskTest, TellsWhatBelongsToAnotherUser) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can give a file away";
  constexpr uid_t nobody = 65'534;
  file(".cache/pip/http/x", big);
  file(".cache/go-build/x", big);
  file(".cache/root's/deep/x", big);
  ASSERT_EQ(::chown(onDisk(".cache/pip/http/x").c_str(), nobody, nobody), 0);
  ASSERT_EQ(::chown(onDisk(".cache/root's").c_str(), nobody, nobody), 0);
  for (const CategoryType type : {CategoryType::packageCaches, CategoryType::systemData}) {
    const CleanCategory found = find(type);
    ASSERT_EQ(found.hints.size(), 1U) << rawValue(type);
    EXPECT_EQ(found.hints.front().reason,
              "Some of it belongs to another user, so that it cannot be removed.");
  }
  EXPECT_EQ(paths(CategoryType::packageCaches), Names{".cache/go-build"});
}

TEST_F(LinuxDiskTest, TellsWhatCannotBeEmptiedBecauseAFolderInItIsClosed) {
  for (const mode_t closed : {0000, 0300, 0500, 0600}) {
    file(".cache/pip/open/x", big);
    folder(".cache/pip/closed");
    ASSERT_EQ(::chmod(onDisk(".cache/pip/closed").c_str(), closed), 0);
    const CleanCategory found = find(CategoryType::packageCaches);
    EXPECT_TRUE(found.items.empty()) << closed;
    EXPECT_EQ(found.hints.size(), 1U) << closed;
    ASSERT_EQ(::chmod(onDisk(".cache/pip/closed").c_str(), 0755), 0);
  }
}

TEST_F(LinuxDiskTest, OffersWhatIsInTheTrashForGoodAndTellsWhatCannotGo) {
  file(".local/share/Trash/files/old", middling);
  file(".local/share/Trash/files/keys.kdbx", middling);
  file(".local/share/Trash/files/tree/deep/x", middling);
  ASSERT_EQ(::chmod(onDisk(".local/share/Trash/files/tree/deep").c_str(), 0555), 0);
  const CleanCategory found = find(CategoryType::trashBin);
  ASSERT_EQ(found.items.size(), 1U);
  EXPECT_EQ(found.items.front().name, "old");
  EXPECT_TRUE(found.items.front().goesForGood);
  Names told;
  for (const Hint& hint : found.hints) told.push_back(hint.name);
  std::ranges::sort(told);
  EXPECT_EQ(told, (Names{"keys.kdbx", "tree"}));
  ASSERT_EQ(::chmod(onDisk(".local/share/Trash/files/tree/deep").c_str(), 0755), 0);
}

TEST_F(LinuxDiskTest, ACategoryWithNothingButHintsIsFound) {
  file("go/pkg/mod/x/file", big);
  ScannerEngine engine(system);
  const auto found = engine.scanAll({}, {}, {});
  ASSERT_EQ(found.size(), 1U);
  EXPECT_FALSE(found.front().hasItems());
  EXPECT_EQ(found.front().hints.size(), 1U);
}

TEST_F(LinuxDiskTest, AHeldLockOfAProfileTellsThatItsProgramRuns) {
  file(".config/google-chrome/Default/GPUCache/x");
  link(".config/google-chrome/SingletonLock", "machine-12");
  const auto closeFirst = [&] {
    const CleanCategory found = find(CategoryType::browserCaches);
    return found.items.empty() ? "nothing found" : found.items.front().closeFirst;
  };
  EXPECT_EQ(closeFirst(), "");
  programs.running = {"SingletonLock"};
  EXPECT_EQ(closeFirst(), "Google Chrome");
}

TEST_F(LinuxDiskTest, OffersOldTemporaryThingsOfTheUserForGood) {
  for (const char* name : {"old", "fresh", "open", "ssh-agent", ".hidden"}) {
    file(Path("/tmp") / name, middling);
    if (std::string(name) != "fresh") age(Path("/tmp") / name, 11);
  }
  file("/tmp/folder/old", middling);
  file("/tmp/folder/fresh", 1);
  age("/tmp/folder/old", 11);
  age("/tmp/folder", 11);
  programs.open = {disk.path() / "tmp/open"};
  const CleanCategory found = find(CategoryType::systemData);
  ASSERT_EQ(found.items.size(), 1U);
  EXPECT_EQ(found.items.front().path, "/tmp/old");
  EXPECT_TRUE(found.items.front().goesForGood);
}

TEST_F(LinuxDiskTest, CountsAFileWithTwoNamesOnceAndNotAtAllWhenOneIsElsewhere) {
  file(".cache/pip/one", big);
  std::filesystem::create_hard_link(onDisk(".cache/pip/one"), onDisk(".cache/pip/two"));
  file("elsewhere", big);
  std::filesystem::create_hard_link(onDisk("elsewhere"), onDisk(".cache/pip/three"));
  const CleanCategory found = find(CategoryType::packageCaches);
  ASSERT_EQ(found.items.size(), 1U);
  EXPECT_LT(found.items.front().size, static_cast<std::int64_t>(2 * big));
  EXPECT_GT(found.items.front().taken, static_cast<std::int64_t>(2 * big));
  EXPECT_LT(found.items.front().taken, static_cast<std::int64_t>(3 * big));
}

TEST_F(LinuxDiskTest, TakesNoMoreThanItFreesWhereNothingIsShared) {
  file(".cache/pip/one", big);
  const CleanCategory found = find(CategoryType::packageCaches);
  ASSERT_EQ(found.items.size(), 1U);
  EXPECT_EQ(found.items.front().taken, 0);
}

TEST_F(LinuxDiskTest, PromisesNothingOfWhatCopiesElsewhereHaveToo) {
  if (!canMountImage("btrfs")) GTEST_SKIP() << "no btrfs can be mounted here";
  const TemporaryFolder store;
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    ASSERT_TRUE(mountImage("btrfs", store.path(), disk.path()));
    file("kept", big);
    file(".cache/pip/own", big);
    ASSERT_TRUE(shareContent(onDisk("kept"), onDisk(".cache/pip/copy")));
    ::sync();
    const CleanCategory found = find(CategoryType::packageCaches);
    ASSERT_EQ(found.items.size(), 1U);
    EXPECT_NEAR(static_cast<double>(found.items.front().size), big, 1e5);
    EXPECT_NEAR(static_cast<double>(found.items.front().taken), 2 * big, 2e5);
    // A stop leaves out what has not been looked at yet.
    std::stop_source stop;
    stop.request_stop();
    EXPECT_EQ(sharedBytes(system.files, home / ".cache/pip", stop.get_token()), 0);
    EXPECT_GE(sharedBytes(system.files, home / ".cache/pip/copy", {}), 10'000'000);
  }));
}

TEST_F(LinuxDiskTest, OffersAMenuEntryWhoseProgramIsGone) {
  const auto entry = [&](const Path& name, const std::string& text) {
    file(Path(".local/share/applications") / name, 0);
    std::ofstream(onDisk(Path(".local/share/applications") / name))
        << "[Desktop Entry]\nType=Application\n"
        << text;
  };
  file("/opt/there/bin", 1);
  entry("gone.desktop", "Exec=/opt/gone/bin %U\n");
  entry("there.desktop", "Exec=/opt/there/bin %U\n");
  entry("by name.desktop", "Exec=gone\n");
  entry("unplugged.desktop", "Exec=/media/ann/disk/bin\n");
  entry("flatpak.desktop", "Exec=/usr/bin/flatpak run x\nX-Flatpak=x\n");
  EXPECT_EQ(paths(CategoryType::systemData), Names{".local/share/applications/gone.desktop"});
}

TEST_F(LinuxDiskTest, KeepsAMenuEntryWhoseProgramMayBeThere) {
  const auto entry = [&](const Path& name, const std::string& text) {
    file(Path(".local/share/applications") / name, 0);
    std::ofstream(onDisk(Path(".local/share/applications") / name))
        << "[Desktop Entry]\nType=Application\n"
        << text;
  };
  file("/opt/My App/run", 1);
  entry("blank.desktop", "TryExec=/opt/My App/run\nExec=\"/opt/My App/run\" %U\n");
  std::filesystem::create_symlink("/media/ann/disk/games", onDisk("Games"));
  entry("behind a link.desktop", "Exec=" + (home / "Games/chess/run").native() + "\n");
  std::filesystem::create_directories(onDisk("Disk"));
  entry("not mounted.desktop", "Exec=" + (home / "Disk/chess/run").native() + "\n");
  entry("tab.desktop", "Exec=/opt/tab\t%U\n");
  file("/opt/tab", 1);
  EXPECT_EQ(paths(CategoryType::systemData), Names{});
}

TEST_F(LinuxDiskTest, FindsNothingInAHomeOfSecretsAndOwnThings) {
  const DiskLayout& layout = layoutFor(home);
  const Catalogue catalogue(layout, UserFolders::in(home));
  for (const auto& table : {layout.guard.secrets, layout.guard.ownPlaces}) {
    for (const auto& [base, pattern] : table) {
      std::string text(catalogue.folder(base).value_or(""));
      text += "/";
      text += pattern;
      std::ranges::replace(text, '*', 'x');
      file(Path(text).relative_path() / "own/file.db", big / 8);
    }
  }
  for (const char* name : {"Documents", "Pictures", "Dokumente", "Music/target", "Videos/build"}) {
    file(Path(name) / "own.tex", big);
  }
  ScannerEngine engine(system);
  for (const CleanCategory& category : engine.scanAll({}, {}, {})) {
    for (const JunkItem& item : category.items) ADD_FAILURE() << item.path;
  }
}

TEST_F(LinuxDiskTest, ACleanTakesWhatTheScanPromisedAndLeavesTheRest) {
  file(".npm/_cacache/index", big);
  file(".cache/mozilla/firefox/ab.default/x");
  file(".local/share/Trash/files/old", middling);
  file(".local/share/Trash/info/old.trashinfo", 0);
  file(".ssh/id_ed25519", 100);
  file("Documents/letter", middling);
  ScannerEngine engine(system);
  std::vector<JunkItem> items;
  std::int64_t promised = 0;
  for (const CleanCategory& category : engine.scanAll({}, {}, {})) {
    promised += category.totalSize();
    items.insert(items.end(), category.items.begin(), category.items.end());
  }
  EXPECT_EQ(items.size(), 3U);
  std::int64_t freed = 0;
  for (const DeletionOutcome& outcome : engine.deleteItems(items, /*useTrash=*/true)) {
    freed += outcome.reclaimed;
  }
  EXPECT_EQ(freed, promised);
  EXPECT_FALSE(std::filesystem::exists(onDisk(".npm/_cacache")));
  EXPECT_FALSE(std::filesystem::exists(onDisk(".local/share/Trash/files/old")));
  EXPECT_TRUE(std::filesystem::exists(onDisk(".local/share/Trash/files/_cacache/index")));
  EXPECT_TRUE(std::filesystem::exists(onDisk(".ssh/id_ed25519")));
  EXPECT_TRUE(std::filesystem::exists(onDisk("Documents/letter")));
}

TEST_F(LinuxDiskTest, AThingUnderAConditionStaysWhenTheConditionHasPassed) {
  file("/tmp/old", middling);
  age("/tmp/old", 11);
  const Platform used = platform();
  EXPECT_TRUE(isStillOffered(used, "/tmp/old"));
  age("/tmp/old", 1);
  EXPECT_FALSE(isStillOffered(used, "/tmp/old"));
}

TEST_F(LinuxDiskTest, OffersWhatABuildLeftBesideItsMarker) {
  file("Projects/app/package.json", 1);
  file("Projects/app/node_modules/.bin/x", big);
  file("Projects/app/packages/part/package.json", 1);
  file("Projects/app/packages/part/node_modules/x", big);
  file("rust/tool/Cargo.toml", 1);
  file("rust/tool/target/CACHEDIR.TAG", 1);
  file("rust/tool/target/debug/x", big);
  EXPECT_EQ(paths(CategoryType::buildArtifacts),
            (Names{"Projects/app/node_modules", "Projects/app/packages/part/node_modules",
                   "rust/tool/target"}));
  Names names;
  for (const JunkItem& item : find(CategoryType::buildArtifacts).items) names.push_back(item.name);
  std::ranges::sort(names);
  EXPECT_EQ(names, (Names{"app/node_modules", "part/node_modules", "tool/target"}));
}

TEST_F(LinuxDiskTest, WhatWasBuiltJustNowComesAfterTheOtherArtifacts) {
  for (const char* name : {"fresh", "old"}) {
    file(Path(name) / "package.json", 1);
    file(Path(name) / "node_modules/x", std::string(name) == "old" ? big : 2 * big);
  }
  age("old/node_modules/x", 2);
  age("old/node_modules", 2);
  const CleanCategory found = find(CategoryType::buildArtifacts);
  ASSERT_EQ(found.items.size(), 2U);
  EXPECT_EQ(found.items[0].name, "old/node_modules");
  EXPECT_FALSE(found.items[0].wasJustUsed);
  EXPECT_TRUE(found.items[1].wasJustUsed);
}

TEST_F(LinuxDiskTest, TakesNoFolderForAnArtifactThatMayBeSomethingElse) {
  file("Thesis/build/thesis.tex", big);
  file("Shots/target/photo.jpg", big);
  file("x/node_modules/x", big);  // no marker
  file("y/CMakeLists.txt", 1);
  file("y/out/x", big);  // no mark inside
  file("z/package.json", 1);
  file("z/node_modules/.git/HEAD", big);  // a repository
  file("w/Cargo.toml", 1);
  file("w/target/CACHEDIR.TAG", 1);
  file("w/target/inner/x", big);
  file("w/target/package.json", 1);  // a project of its own
  file(".hidden/app/package.json", 1);
  file(".hidden/app/node_modules/x", big);
  file("go/src/app/package.json", 1);
  file("go/src/app/node_modules/x", big);
  file("package.json", 1);
  file("node_modules/x", big);
  file("t/main.tf", 1);
  file("t/.terraform/terraform.tfstate", big);
  EXPECT_EQ(paths(CategoryType::buildArtifacts), Names{});
}

TEST_F(LinuxDiskTest, TakesAFolderWithAYoungerDocumentForNoArtifact) {
  file("app/package.json", 1);
  age("app/package.json", 5);
  file("app/.next/notes.docx", 1);
  file("app/.next/x", big);
  EXPECT_EQ(paths(CategoryType::buildArtifacts), Names{});
  age("app/.next/notes.docx", 6);
  EXPECT_EQ(paths(CategoryType::buildArtifacts), Names{"app/.next"});
}

TEST_F(LinuxDiskTest, AnArtifactStaysWhenItsMarkerHasGone) {
  file("app/package.json", 1);
  file("app/node_modules/x", big);
  ScannerEngine engine(system);
  const CleanCategory found = find(CategoryType::buildArtifacts);
  ASSERT_EQ(found.items.size(), 1U);
  std::filesystem::remove(onDisk("app/package.json"));
  EXPECT_EQ(engine.deleteItem(found.items.front(), true).reclaimed, 0);
  EXPECT_TRUE(std::filesystem::exists(onDisk("app/node_modules/x")));
}

TEST_F(LinuxDiskTest, AMacsFoldersInALinuxHomeGiveNoRow) {
  file("Library/Caches/com.acme.writer/x", big);
  file("Library/Developer/Xcode/DerivedData/x", big);
  file("Library/Logs/x", big);
  ScannerEngine engine(system);
  EXPECT_TRUE(engine.scanAll({}, {}, {}).empty());
}

}  // namespace
}  // namespace klarvik
