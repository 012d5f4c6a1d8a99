// The large file walk and the trails of use as processes of their own.

#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "support/program.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::SizeIs;

constexpr int usageError = 2;

class ToolCommands : public testing::Test {
 protected:
  TemporaryFolder disk;

  ToolCommands() { disk.makeFolder("/Users/ann"); }

  [[nodiscard]] std::vector<std::string> command(const std::vector<std::string>& words) const {
    std::vector<std::string> all{KLARVIK_PROBE, "--root", disk.path(), "--home", "/Users/ann"};
    all.insert(all.end(), words.begin(), words.end());
    return all;
  }

  [[nodiscard]] std::vector<json> run(const std::vector<std::string>& words) const {
    Program program(command(words));
    std::vector<json> reports;
    for (const std::string& line : program.readToEnd()) reports.push_back(json::parse(line));
    EXPECT_EQ(program.wait(), 0);
    return reports;
  }

  static std::vector<json> paths(const json& files) {
    std::vector<json> all;
    for (const json& file : files) all.push_back(file["path"]);
    return all;
  }
};

TEST_F(ToolCommands, LargePrintsEachReportAndTheListLargestFirst) {
  disk.makeSparseFile("/Users/ann/Documents/b.zip", 2'000);
  disk.makeSparseFile("/Users/ann/Documents/c.\xff", 3'000);
  for (int number = 0; number < 600; ++number) {
    disk.makeFile("/Users/ann/Movies/" + std::to_string(number));
  }
  const auto reports = run({"large", "2000"});
  ASSERT_THAT(reports, SizeIs(2));
  EXPECT_EQ(reports[0]["event"], "update");
  EXPECT_EQ(reports[0]["fraction"], 0.00625);
  EXPECT_EQ(reports[0]["count"], 2);
  const json& files = reports[1]["files"];
  ASSERT_THAT(files, SizeIs(2));
  EXPECT_EQ(files[0]["path"]["bytes"], "2f55736572732f616e6e2f446f63756d656e74732f632eff");
  EXPECT_EQ(files[1]["path"], "/Users/ann/Documents/b.zip");
  EXPECT_EQ(files[1]["size"], 2'000);
  EXPECT_EQ(files[1]["kind"], "Archive");
}

TEST_F(ToolCommands, LargePrintsTheListOfEachReportWhenAskedTo) {
  disk.makeSparseFile("/Users/ann/Documents/a", 2'000);
  for (int number = 0; number < 600; ++number) {
    disk.makeFile("/Users/ann/Movies/" + std::to_string(number));
  }
  const auto reports = run({"large", "--lists", "2000"});
  ASSERT_THAT(reports, SizeIs(2));
  EXPECT_THAT(paths(reports[0]["files"]), ElementsAre("/Users/ann/Documents/a"));
}

TEST_F(ToolCommands, PrivacyPrintsEachStepAndWhatItFoundAndChangesNothing) {
  disk.makeFile("/Users/ann/Library/Safari/History.db", 321);
  disk.makeFile("/Users/ann/.local/share/recently-used.xbel", "<xbel/>");
  const auto reports = run({"privacy"});
  ASSERT_THAT(reports, SizeIs(11));
  EXPECT_EQ(
      reports[0],
      (json{{"event", "update"}, {"fraction", 0.1}, {"line", "Scanning browser history..."}}));
  EXPECT_EQ(reports[9]["line"], "Done");
  ASSERT_THAT(reports[10]["items"], SizeIs(1));
  EXPECT_EQ(reports[10]["items"][0]["category"], "Browser History");
  EXPECT_EQ(reports[10]["items"][0]["size"], 321);
  EXPECT_EQ(disk.contentOf("/Users/ann/.local/share/recently-used.xbel"), "<xbel/>");
}

TEST_F(ToolCommands, PrivacyClearEmptiesTheListOfRecentDocuments) {
  disk.makeFile("/Users/ann/Library/Safari/History.db", 321);
  disk.makeFolder("/Users/ann/Library/Application Support/com.apple.sharedfilelist");
  const Path list = "/Users/ann/.local/share/recently-used.xbel";
  disk.makeFile(list, "<xbel version=\"1.0\"><bookmark href=\"file:///x\"/></xbel>");
  const auto reports = run({"privacy", "clear"});
  ASSERT_THAT(reports, SizeIs(12));
  EXPECT_EQ(reports[11], (json{{"event", "cleared"}, {"cleaned", 2}, {"freed", 321}}));
  EXPECT_EQ(disk.contentOf(list).find("bookmark"), std::string::npos);
  EXPECT_TRUE(disk.holds("/Users/ann/Library/Safari/History.db"));
}

TEST_F(ToolCommands, WhatIsNoNumberOrNoWordTheyKnowIsRefused) {
  for (const std::vector<std::string>& words : {std::vector<std::string>{"large"},
                                                {"large", "ten"},
                                                {"large", "10x"},
                                                {"large", ""},
                                                {"large", "99999999999999999999"},
                                                {"privacy", "clean"},
                                                {"privacy", "clear", "all"}}) {
    Program program(command(words));
    EXPECT_THAT(program.readToEnd(), testing::IsEmpty());
    EXPECT_EQ(program.wait(), usageError) << testing::PrintToString(words);
  }
}

}  // namespace
}  // namespace klarvik
