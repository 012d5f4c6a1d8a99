#include "engine/tool_removal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "engine/place_scanner.h"
#include "engine/scanner_engine.h"
#include "places/disk_layout.h"
#include "platform/system_platform.h"
#include "support/fake_running_programs.h"
#include "support/fake_tool_runner.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using End = ToolResult::End;

constexpr std::int64_t big = 10'500'000;

/// A Linux home on a disk of the machine. Tools answer what a test lays down.
class ToolsTest : public testing::Test {
 protected:
  ToolsTest() {
    for (const Path& place : storages()) disk.makeFolder(place);
  }

  /// Where the tools keep what is in no table of places.
  [[nodiscard]] std::vector<Path> storages() const {
    return {"/var/lib/docker", home / ".local/share/containers",
            home / ".local/share/flatpak/runtime", "/var/lib/snapd/snaps"};
  }

  [[nodiscard]] Path onDisk(const Path& place) const { return disk.onDisk(home / place); }

  void file(const Path& place, std::int64_t bytes = big) const {
    disk.makeFile(home / place, bytes);
  }

  void remove(const Path& place) const { std::filesystem::remove_all(onDisk(place)); }

  [[nodiscard]] Platform platformWith(ToolRunner& runner) {
    return {system.files,      system.trash, system.commands,        system.defaults, system.volume,
            system.formatting, system.info,  system.recentDocuments, programs,        runner};
  }

  [[nodiscard]] CleanCategory find(CategoryType type) {
    return PlaceScanner(platform, {}, [](const JunkItem&) {}).find(type);
  }

  [[nodiscard]] JunkItem only(CategoryType type) {
    CleanCategory found = find(type);
    EXPECT_THAT(found.items, SizeIs(1));
    return found.items.empty() ? JunkItem{} : found.items.front();
  }

  [[nodiscard]] JunkItem modules() {
    file("go/pkg/mod/one", 6'000'000);
    file("go/pkg/mod/two", 5'000'000);
    tools.answer("go env GOMODCACHE", onDisk("go/pkg/mod").native() + "\n");
    return only(CategoryType::packageCaches);
  }

  std::int64_t removed(const JunkItem& item) {
    return ScannerEngine(platform, &leftAlone).deleteItem(item, /*useTrash=*/true).reclaimed;
  }

  const Path home = "/home/ann";
  TemporaryFolder disk;
  SystemPlatform machine{disk.path(), home};
  const Platform system = machine.platform();
  FakeRunningPrograms programs;
  FakeToolRunner tools;
  const Platform platform = platformWith(tools);
  LeftAlone leftAlone;
};

TEST_F(ToolsTest, OfferAFolderWhereTheyNameIt) {
  const JunkItem item = modules();
  ASSERT_NE(item.tool, nullptr);
  EXPECT_EQ(item.tool->id, "go");
  EXPECT_EQ(item.name, "Go modules");
  EXPECT_EQ(item.path, home / "go/pkg/mod");
  EXPECT_GE(item.size, 11'000'000);
  EXPECT_TRUE(item.goesForGood);
  EXPECT_TRUE(item.identity.has_value());
}

TEST_F(ToolsTest, AreToldWhereTheyDoNotNameTheFolder) {
  file("go/pkg/mod/one");
  file(".ccache/0/1/one");
  file("elsewhere/one");
  const auto hints = [&] {
    const CleanCategory found = find(CategoryType::packageCaches);
    EXPECT_THAT(found.items, IsEmpty());
    std::vector<std::string> commands;
    for (const Hint& hint : found.hints) commands.push_back(hint.command);
    return commands;
  };
  const auto both = testing::UnorderedElementsAre("go clean -modcache", "ccache --clear");
  EXPECT_THAT(hints(), both);
  const std::string asks = "go env GOMODCACHE";
  for (const std::string& answer :
       {onDisk("elsewhere").native() + "\n", onDisk("go/pkg").native() + "\n",
        onDisk("go/pkg/mod/one").native() + "\n", std::string("/home/ann/go/pkg/mod\n"),
        std::string(), std::string("go: unknown\n"), std::string(3000, '/'),
        std::string("/\xff\n")}) {
    tools.answer(asks, answer);
    EXPECT_THAT(hints(), both) << answer;
  }
  const std::string right = onDisk("go/pkg/mod").native() + "\n";
  for (const ToolResult& result :
       {ToolResult{.end = End::exited, .status = 1, .output = right},
        ToolResult{.end = End::signalled, .status = 9, .output = right},
        ToolResult{.end = End::timedOut, .output = right},
        ToolResult{.end = End::exited, .output = right, .isCut = true}}) {
    tools.act(asks, [&] { return result; });
    EXPECT_THAT(hints(), both);
  }
}

TEST_F(ToolsTest, AreToldWhereTheyWouldCleanAnotherFolderToo) {
  file("miniconda3/pkgs/one");
  tools.answer("conda info --json", "{\"pkgs_dirs\":[\"" + onDisk("miniconda3/pkgs").native() +
                                        "\",\"" + onDisk(".conda/pkgs").native() + "\"]}");
  EXPECT_EQ(only(CategoryType::toolchains).tool->id, "conda");
  file(".conda/pkgs/one", 100);
  EXPECT_THAT(find(CategoryType::toolchains).items, IsEmpty());
  EXPECT_THAT(find(CategoryType::toolchains).hints, SizeIs(1));
}

TEST_F(ToolsTest, AreAskedOfTheFolderOfEachVersion) {
  file(".local/share/pnpm/store/v3/one");
  file(".local/share/pnpm/store/v10/one");
  tools.answer("pnpm store path", onDisk(".local/share/pnpm/store/v10").native() + "\n");
  const CleanCategory found = find(CategoryType::toolchains);
  ASSERT_THAT(found.items, SizeIs(1));
  EXPECT_EQ(found.items.front().name, "pnpm store (v10)");
  ASSERT_THAT(found.hints, SizeIs(1));
  EXPECT_EQ(found.hints.front().name, "pnpm store (v3)");
}

TEST_F(ToolsTest, CountWhatIsReallyGone) {
  const JunkItem item = modules();
  tools.act("go clean -modcache", [&] {
    remove("go/pkg/mod/one");
    return FakeToolRunner::printed("removed everything, 900 GB\n");
  });
  const std::int64_t reclaimed = removed(item);
  EXPECT_GE(reclaimed, 6'000'000);
  EXPECT_LT(reclaimed, 7'000'000);
  EXPECT_EQ(leftAlone.toolsInVain, 0);
  EXPECT_TRUE(std::filesystem::exists(onDisk("go/pkg/mod/two")));
}

TEST_F(ToolsTest, HaveReclaimedNothingWhenTheyFail) {
  const JunkItem item = modules();
  std::int64_t inVain = 0;
  for (const ToolResult& result :
       {ToolResult{}, ToolResult{.end = End::exited, .status = 1},
        ToolResult{.end = End::signalled, .status = 15}, ToolResult{.end = End::timedOut},
        ToolResult{.end = End::stopped}, ToolResult{.end = End::exited, .output = "done\n"}}) {
    tools.act("go clean -modcache", [&] { return result; });
    EXPECT_EQ(removed(item), 0);
    EXPECT_EQ(leftAlone.toolsInVain, ++inVain);
    EXPECT_TRUE(std::filesystem::exists(onDisk("go/pkg/mod/one")));
    EXPECT_TRUE(std::filesystem::exists(onDisk("go/pkg/mod/two")));
  }
}

TEST_F(ToolsTest, AreNotRunForWhatTheyWereNotAskedAbout) {
  const JunkItem item = modules();
  const auto isNotRun = [&] {
    EXPECT_EQ(removed(item), 0);
    EXPECT_THAT(tools.commandsRun(), Not(Contains("go clean -modcache")));
  };
  // It cleans another folder now.
  file("elsewhere/one");
  tools.answer("go env GOMODCACHE", onDisk("elsewhere").native() + "\n");
  isNotRun();
  tools.end("go env GOMODCACHE", End::timedOut);
  isNotRun();
  // Another folder has come to the name.
  tools.answer("go env GOMODCACHE", onDisk("go/pkg/mod").native() + "\n");
  std::filesystem::rename(onDisk("go/pkg/mod"), onDisk("go/pkg/kept"));
  file("go/pkg/mod/mine");
  isNotRun();
  remove("go/pkg/mod");
  std::filesystem::create_symlink("kept", onDisk("go/pkg/mod"));
  isNotRun();
  EXPECT_TRUE(std::filesystem::exists(onDisk("go/pkg/kept/one")));
}

// The guard refuses these places: only a tool may remove what lies there.
TEST_F(ToolsTest, AreTheOnlyWayForTheirPlaces) {
  JunkItem item = modules();
  item.tool = nullptr;
  for (const bool useTrash : {true, false}) {
    item.goesForGood = !useTrash;
    EXPECT_EQ(ScannerEngine(platform).deleteItem(item, useTrash).reclaimed, 0);
  }
  EXPECT_TRUE(std::filesystem::exists(onDisk("go/pkg/mod/one")));
}

TEST_F(ToolsTest, AreThoseOfTheTableAndNoOthers) {
  JunkItem item = modules();
  static constexpr std::array<std::string_view, 2> command{"rm", "x"};
  const CleaningTool other{.id = "go", .name = "Go", .asks = item.tool->asks, .removes = command};
  item.tool = &other;
  EXPECT_EQ(removed(item), 0);
  item.tool = layoutFor(home).tool("journal");
  EXPECT_EQ(removed(item), 0);
  EXPECT_THAT(tools.commandsRun(), SizeIs(1));
}

TEST_F(ToolsTest, DoNotBeginAfterAStop) {
  const JunkItem item = modules();
  std::stop_source stop;
  stop.request_stop();
  EXPECT_EQ(ScannerEngine(platform).deleteItem(item, true, stop.get_token()).reclaimed, 0);
  EXPECT_THAT(tools.commandsRun(), SizeIs(1));
}

TEST_F(ToolsTest, OfContainersTellWhatTheyWouldRemoveAndAreAskedAgain) {
  const std::string where = "docker context inspect --format {{.Endpoints.docker.Host}}";
  const std::string sizes = "docker system df --format {{json .}}";
  const auto answer = [](const std::string& builds, const std::string& images) {
    return "{\"Type\":\"Images\",\"Size\":\"" + images + "\",\"Reclaimable\":\"300MB (3%)\"}\n" +
           "{\"Type\":\"Build Cache\",\"Size\":\"" + builds + "\",\"Reclaimable\":\"800MB\"}\n";
  };
  tools.answer(sizes, answer("900MB", "2GB"));
  tools.answer("docker images --filter dangling=true --format {{json .}}",
               "{\"Size\":\"200MB\"}\n{\"Size\":\"150MB\"}\n");
  tools.answer(where, "tcp://build.example:2375\n");
  EXPECT_THAT(find(CategoryType::dockerData).items, IsEmpty());
  tools.answer(where, "unix:///var/run/docker.sock\n");
  const auto items = find(CategoryType::dockerData).items;
  ASSERT_THAT(items, SizeIs(2));
  EXPECT_EQ(items[0].name, "Docker build cache");
  EXPECT_EQ(items[0].size, 800'000'000);
  EXPECT_EQ(items[1].size, 300'000'000);
  EXPECT_TRUE(items[1].goesForGood);

  tools.act("docker builder prune --force", [&] {
    tools.answer(sizes, answer("250MB", "2GB"));
    return FakeToolRunner::printed("Total: 12GB\n");
  });
  EXPECT_EQ(removed(items[0]), 650'000'000);
  tools.answer("docker image prune --force", "");
  EXPECT_EQ(removed(items[1]), 0);
  EXPECT_EQ(leftAlone.toolsInVain, 1);
}

TEST_F(ToolsTest, OfPackagesTellEachThatIsKeptUnused) {
  disk.makeFile("/var/lib/snapd/snaps/core20_1974.snap", 4'000'000);
  disk.makeFile("/var/lib/snapd/snaps/core20_2015.snap", 5'000'000);
  const std::string title = "Name Version Rev Tracking Publisher Notes\n";
  const std::string used = "core20 2 2015 stable canonical base\n";
  tools.answer("snap list --all", title + used + "core20 1 1974 stable canonical base,disabled\n" +
                                      "gone 1 7 stable canonical disabled\n");
  EXPECT_THAT(find(CategoryType::installedPackages).items, IsEmpty()) << "snapd does not run";
  EXPECT_THAT(tools.commandsRun(), Not(Contains("snap list --all")));
  tools.answer("systemctl is-active --quiet snapd.socket", "");
  const JunkItem item = only(CategoryType::installedPackages);
  EXPECT_EQ(item.name, "core20, revision 1974");
  EXPECT_THAT(item.toolNames, ElementsAre("core20", "1974"));

  tools.act("snap remove core20 --revision=1974", [&] {
    std::filesystem::remove(disk.onDisk("/var/lib/snapd/snaps/core20_1974.snap"));
    return FakeToolRunner::printed("core20 (revision 1974) removed\n");
  });
  EXPECT_GE(removed(item), 4'000'000);
  // It is in use again.
  tools.answer("snap list --all", title + used);
  const auto runs = tools.commandsRun().size();
  EXPECT_EQ(removed(item), 0);
  EXPECT_EQ(tools.commandsRun().size(), runs + 2);
}

/// Some make their folders in the home when they are asked what is there.
TEST_F(ToolsTest, AreNotAskedWhereTheyHaveKeptNothing) {
  for (const Path& place : storages()) std::filesystem::remove_all(disk.onDisk(place));
  for (const CategoryType type : {CategoryType::dockerData, CategoryType::installedPackages}) {
    EXPECT_THAT(find(type).items, IsEmpty());
  }
  EXPECT_THAT(tools.commandsRun(), IsEmpty());
}

TEST_F(ToolsTest, OfFlatpakSumUpWhatItWouldRemove) {
  const std::string list = "flatpak list --user --runtime --columns=ref,size,installation";
  tools.answer(list, "org.a/x86_64/1\t1.5?GB\tsystem\norg.b/x86_64/2\t20.0?MB\tuser\n");
  tools.act("flatpak uninstall --user --unused", [] {
    return ToolResult{
        .end = End::exited, .status = 1, .output = "\n 1.\t   \torg.b\t2\tr\n\n [Y/n]: n\n"};
  });
  const JunkItem item = only(CategoryType::installedPackages);
  EXPECT_EQ(item.size, 20'000'000);
  tools.act("flatpak uninstall --user --unused --noninteractive", [&] {
    tools.answer(list, "org.a/x86_64/1\t1.5?GB\tsystem\n");
    return FakeToolRunner::printed("");
  });
  EXPECT_EQ(removed(item), 20'000'000);
}

/// The machine's own tools, on a disk in a temporary folder.
class RealToolsTest : public ToolsTest {
 protected:
  /// `before` are further arguments of the tool, `line` is run before it.
  bool bringIn(const std::string& tool, const std::string& before = "",
               const std::string& line = "") {
    if (::access(("/usr/bin/" + tool).c_str(), X_OK) != 0) return false;
    const Path script = disk.makeFile("/usr/bin/" + tool,
                                      "#!/bin/sh\nexport PATH=/usr/sbin:/usr/bin:/bin\n" + line +
                                          "\nexec /usr/bin/" + tool + " " + before + " \"$@\"\n");
    ::chmod(script.c_str(), 0755);
    return true;
  }

  [[nodiscard]] std::optional<JunkItem> offered(CategoryType type, std::string_view tool) {
    for (JunkItem& item : PlaceScanner(system, {}, [](const JunkItem&) {}).find(type).items) {
      if (item.tool != nullptr && item.tool->id == tool) return std::move(item);
    }
    return std::nullopt;
  }

  std::int64_t reallyRemoved(const JunkItem& item) {
    return ScannerEngine(system, &leftAlone).deleteItem(item, /*useTrash=*/true).reclaimed;
  }

  static bool shell(const std::string& line) {
    return std::system((line + " >/dev/null 2>&1").c_str()) == 0;
  }
};

TEST_F(RealToolsTest, GoRemovesItsModules) {
  if (!bringIn("go")) GTEST_SKIP() << "there is no Go";
  file("go/pkg/mod/example.org/one@v1/file");
  ASSERT_EQ(::chmod(onDisk("go/pkg/mod/example.org/one@v1").c_str(), 0555), 0);
  const auto item = offered(CategoryType::packageCaches, "go");
  ASSERT_TRUE(item);
  EXPECT_GE(reallyRemoved(*item), big);
  EXPECT_FALSE(std::filesystem::exists(onDisk("go/pkg/mod/example.org")));
  EXPECT_EQ(leftAlone.toolsInVain, 0);
}

TEST_F(RealToolsTest, CcacheClearsItsCache) {
  if (!bringIn("ccache")) GTEST_SKIP() << "there is no ccache";
  file(".ccache/0/1/0123456789abcdefghijklmnopqrstuvR");
  disk.makeFile(home / ".ccache/ccache.conf", "max_size = 7G\n");
  const auto item = offered(CategoryType::packageCaches, "ccache");
  ASSERT_TRUE(item);
  EXPECT_GE(reallyRemoved(*item), big - 100'000);
  EXPECT_TRUE(std::filesystem::exists(onDisk(".ccache/ccache.conf")));
}

TEST_F(RealToolsTest, PodmanRemovesImagesWithoutAName) {
  const std::string storage = "--root " + onDisk("storage").native() + " --runroot " +
                              onDisk("run").native() + " --storage-driver vfs";
  if (!bringIn("podman", storage)) GTEST_SKIP() << "there is no Podman";
  file("content/file", 3'000'000);
  const std::string podman = disk.onDisk("/usr/bin/podman").native();
  const std::string tar = onDisk("a.tar").native();
  if (!shell("tar cf " + tar + " -C " + onDisk("content").native() + " file && " + podman +
             " import " + tar)) {
    GTEST_SKIP() << "Podman keeps no images here";
  }
  const auto item = offered(CategoryType::dockerData, "podman-images");
  ASSERT_TRUE(item);
  EXPECT_GE(item->size, 3'000'000);
  EXPECT_EQ(reallyRemoved(*item), item->size);
  EXPECT_FALSE(offered(CategoryType::dockerData, "podman-images"));
}

TEST_F(RealToolsTest, FlatpakRemovesAnUnusedRuntime) {
  const std::string folders = "export FLATPAK_USER_DIR=" + onDisk(".local/share/flatpak").native() +
                              " FLATPAK_SYSTEM_DIR=" + onDisk("system").native();
  if (!bringIn("flatpak", "", folders)) GTEST_SKIP() << "there is no Flatpak";
  disk.makeFile(home / "rt/metadata",
                "[Runtime]\nname=org.test.Rt\nruntime=org.test.Rt/x86_64/1\n"
                "sdk=org.test.Rt/x86_64/1\n");
  file("rt/files/file", 3'000'000);
  file("rt/usr/file", 3'000'000);
  const std::string flatpak = "HOME=" + onDisk(".").native() + " LC_ALL=C " +
                              disk.onDisk("/usr/bin/flatpak").native() + " ";
  const std::string repository = onDisk("repository").native();
  const std::string ref = "runtime/org.test.Rt/x86_64/1";
  if (!shell(flatpak + "build-export --runtime --arch=x86_64 " + repository + " " +
             onDisk("rt").native() + " 1") ||
      !shell(flatpak + "remote-add --user --no-gpg-verify test " + repository) ||
      !shell(flatpak + "install --user --noninteractive test " + ref) ||
      !shell(flatpak + "pin --user --remove " + ref)) {
    GTEST_SKIP() << "Flatpak installs nothing here";
  }
  const auto item = offered(CategoryType::installedPackages, "flatpak-user");
  ASSERT_TRUE(item);
  EXPECT_GE(item->size, 3'000'000);
  EXPECT_EQ(reallyRemoved(*item), item->size);
  EXPECT_FALSE(offered(CategoryType::installedPackages, "flatpak-user"));
}

}  // namespace
}  // namespace klarvik
