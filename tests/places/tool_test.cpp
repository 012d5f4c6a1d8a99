#include "places/tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "places/disk_layout.h"

namespace klarvik {
namespace {

using testing::ElementsAre;

const DiskLayout& linuxLayout = layoutFor("/home/ann");

const CleaningTool& tool(std::string_view id) {
  return *linuxLayout.tool(id);
}

TEST(TheTools, AreNamedOnceAndSayWhatTheyDo) {
  std::set<std::string_view> ids;
  for (const CleaningTool& each : linuxLayout.tools) {
    EXPECT_TRUE(ids.insert(each.id).second) << each.id;
    EXPECT_EQ(linuxLayout.tool(each.id), &each);
    EXPECT_FALSE(each.name.empty()) << each.id;
    EXPECT_EQ(each.isRun(), !each.asks.empty()) << each.id;
    EXPECT_EQ(each.isRun(), !each.removes.empty()) << each.id;
    EXPECT_EQ(each.item.empty(), each.reason.empty()) << each.id;
    EXPECT_FALSE(commandLine(each).empty()) << each.id;
  }
  EXPECT_EQ(linuxLayout.tool("none"), nullptr);
  EXPECT_TRUE(layoutFor("/Users/ann").tools.empty());
}

// Some of these remove what people keep (volumes, data, the whole store of a user), others more
// than is shown.
TEST(TheTools, AreNeverToldToRemoveMoreThanIsShown) {
  for (const CleaningTool& each : linuxLayout.tools) {
    std::vector<std::string> all = removalCommand(each, std::vector<std::string>{"one", "2"});
    for (const ToolCommand command : {each.asks, each.asksFirst, each.asRoot}) {
      all.insert(all.end(), command.begin(), command.end());
    }
    all.emplace_back(each.told);
    for (const std::string& argument : all) {
      for (const char* never : {"volume", "reset", "delete-data", "autoremove", "force-remove",
                                "purge", "prune --all", "rm -r"}) {
        EXPECT_EQ(argument.find(never), std::string::npos) << each.id << ' ' << argument;
      }
      EXPECT_NE(argument, "-a") << each.id;
    }
  }
}

TEST(TheTools, ThatNeedRootAreToldAndNeverRun) {
  for (const CleaningTool& each : linuxLayout.tools) {
    EXPECT_EQ(each.rights == ToolRights::root, each.told.starts_with("sudo ")) << each.id;
    for (const ToolCommand command : {each.asks, each.asksFirst, each.removes}) {
      for (const std::string_view argument : command) {
        EXPECT_NE(argument, "sudo") << each.id;
        EXPECT_NE(argument, "pkexec") << each.id;
        EXPECT_NE(argument, "sh") << each.id;
      }
      for (const std::string_view tool : command.first(command.empty() ? 0 : 1)) {
        EXPECT_EQ(tool.find('/'), std::string_view::npos) << each.id;
      }
    }
  }
}

TEST(TheTools, ThatMayBeRunAsRootAreTheseConstantsAndWhatIsToldIsWhatIsRun) {
  std::map<std::string_view, std::string> lines;
  for (const CleaningTool& each : linuxLayout.tools) {
    if (each.asRoot.empty()) continue;
    EXPECT_EQ(each.rights, ToolRights::root) << each.id;
    const std::string_view program = each.asRoot.front();
    EXPECT_TRUE(program.starts_with("/usr/bin/")) << each.id;
    std::string told = "sudo " + std::string(program.substr(program.rfind('/') + 1));
    std::string& line = lines[each.id];
    line = program;
    for (const std::string_view argument : each.asRoot.subspan(1)) {
      for (const char* stand : {"NAME", "REVISION", "*", "$", " ", ";"}) {
        EXPECT_EQ(argument.find(stand), std::string_view::npos) << each.id << ' ' << argument;
      }
      told.append(" ").append(argument);
      line.append(" ").append(argument);
    }
    EXPECT_EQ(told, each.told) << each.id;
  }
  EXPECT_THAT(lines,
              testing::ElementsAre(
                  testing::Pair("apt", "/usr/bin/apt-get clean"),
                  testing::Pair("dnf", "/usr/bin/dnf clean packages"),
                  testing::Pair("journal", "/usr/bin/journalctl --rotate --vacuum-size=200M")));
}

TEST(TheTools, OfPlacesAreInTheTable) {
  for (const Place& place : linuxLayout.places) {
    const CleaningTool* its = linuxLayout.tool(place.details.tool);
    EXPECT_EQ(its != nullptr, place.details.removal == Removal::byTool) << place.id;
    EXPECT_TRUE(its == nullptr || its->item.empty()) << place.id;
  }
}

TEST(RemovalCommand, TakesTheNamesThatTheToolPrinted) {
  EXPECT_THAT(removalCommand(tool("snap"), std::vector<std::string>{"core20", "1974"}),
              ElementsAre("snap", "remove", "core20", "--revision=1974"));
  EXPECT_THAT(removalCommand(tool("go"), {}), ElementsAre("go", "clean", "-modcache"));
  EXPECT_TRUE(removalCommand(tool("journal"), {}).empty());
}

TEST(CommandLine, IsWhatTheUserMayRun) {
  EXPECT_EQ(commandLine(tool("go")), "go clean -modcache");
  EXPECT_EQ(commandLine(tool("apt")), "sudo apt-get clean");
}

}  // namespace
}  // namespace klarvik
