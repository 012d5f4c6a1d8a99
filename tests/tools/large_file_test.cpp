#include "platform/formatting.h"
#include "tools/large_file_walker.h"

#include <gmock/gmock.h>

#include <map>
#include <numeric>
#include <random>

namespace klarvik {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

LargeFile named(const std::string& name) {
  return {.url = "/Users/ann/Movies/" + name};
}

LargeFileList::value_type file(const std::string& name, std::int64_t size = 0,
                               std::optional<Date> lastOpened = std::nullopt) {
  LargeFile file = named(name);
  file.size = size;
  file.lastOpened = lastOpened;
  return std::make_shared<const LargeFile>(std::move(file));
}

std::vector<std::string> names(const LargeFileList& files) {
  std::vector<std::string> all;
  for (const auto& each : files) all.push_back(each->url.filename());
  return all;
}

Date daysAgo(int days) {
  return Date(std::chrono::seconds(1'772'644'000)) - std::chrono::hours(24 * days);
}

TEST(LargeFileKind, IsToldByTheExtension) {
  const std::map<std::string, std::vector<std::string>> kinds{
      {"Video", {"mp4", "mov", "avi", "mkv", "m4v"}},
      {"Audio", {"m4a", "mp3", "wav", "aiff", "flac"}},
      {"Archive", {"zip", "tar", "gz", "rar", "7z"}},
      {"Disk image", {"dmg", "iso", "pkg", "sparsebundle"}},
      {"Developer", {"xcarchive", "ipa", "dsym"}},
      {"Document", {"pdf", "doc", "docx", "xls", "xlsx", "key", "pages"}},
      {"Design", {"psd", "ai", "sketch", "fig"}},
      {"Other", {"", "txt", "mp", "mp45", "zip~"}},
  };
  for (const auto& [kind, extensions] : kinds) {
    for (const auto& extension : extensions) {
      EXPECT_EQ(named("a." + extension).kind(), kind) << extension;
    }
  }
}

TEST(LargeFileKind, OfALinuxDiskHasItsOwnNames) {
  const std::map<std::string, std::string> kinds{
      {"a.qcow2", "Virtual machine"}, {"a.iso", "Disk image"},  {"a.deb", "Installer"},
      {"a.AppImage", "Installer"},    {"a.webm", "Video"},      {"a.tar.zst", "Archive"},
      {"a.odt", "Document"},          {"a.xcarchive", "Other"}, {"a.sparsebundle", "Other"},
  };
  for (const auto& [name, kind] : kinds) {
    EXPECT_EQ(LargeFile{.url = "/home/ann/" + name}.kind(), kind) << name;
  }
}

TEST(LargeFileKind, OfAnExtensionInUpperCaseIsTheSame) {
  EXPECT_EQ(named("holiday.MOV").kind(), "Video");
  EXPECT_EQ(named("a.tar.Gz").kind(), "Archive");
}

TEST(LargeFileKind, OfAFileWithoutAnExtensionIsOther) {
  EXPECT_EQ(named("mov").kind(), "Other");
  EXPECT_EQ(named(".mov").kind(), "Other");
  EXPECT_EQ(named("a.zip.").kind(), "Other");
  EXPECT_EQ(named("a.\xff\xfe").kind(), "Other");
}

TEST(LargeFileLastOpened, IsTheTimeThatHasPassedInFullWords) {
  const Formatting formatting("en_US");
  LargeFile opened = named("a");
  opened.lastOpened = daysAgo(3);
  EXPECT_EQ(opened.lastOpenedText(formatting, daysAgo(0)), "3 days ago");
}

TEST(LargeFileLastOpened, ShowsNeverWhereTheFileSystemGivesNoAccessTime) {
  EXPECT_EQ(named("a").lastOpenedText(Formatting("en_US"), daysAgo(0)), "never");
}

TEST(LargeFileOrder, HasALabelForEach) {
  EXPECT_EQ(label(LargeFileSort::size), "Size");
  EXPECT_EQ(label(LargeFileSort::date), "Last opened");
  EXPECT_EQ(label(LargeFileSort::name), "Name");
}

TEST(LargeFileOrder, BySizePutsTheLargestFirstAndKeepsEqualOnes) {
  LargeFileList files{file("b", 2), file("c", 1), file("a", 2), file("d", 3)};
  sortFiles(files, LargeFileSort::size, Formatting("en_US"));
  EXPECT_THAT(names(files), ElementsAre("d", "b", "a", "c"));
}

TEST(LargeFileOrder, ByDatePutsFilesNeverOpenedFirstThenTheLongestUnopened) {
  LargeFileList files{file("new", 1, daysAgo(1)), file("never b"), file("old", 2, daysAgo(900)),
                      file("never a"), file("older", 3, daysAgo(30'000))};
  sortFiles(files, LargeFileSort::date, Formatting("en_US"));
  EXPECT_THAT(names(files), ElementsAre("never b", "never a", "older", "old", "new"));
}

TEST(LargeFileOrder, ByNameDisregardsCaseAndKeepsEqualOnes) {
  LargeFileList files{file("beta"), file("Gamma"), file("alpha", 1), file("ALPHA", 2),
                      file("Äther")};
  sortFiles(files, LargeFileSort::name, Formatting("en_US"));
  EXPECT_THAT(names(files), ElementsAre("alpha", "ALPHA", "Äther", "beta", "Gamma"));
}

TEST(LargeFileOrder, ByNameTakesNamesThatAreNotUtf8) {
  LargeFileList files{file("b"), file("\xff\xfe"), file("a\nb"), file("a")};
  sortFiles(files, LargeFileSort::name, Formatting("en_US"));
  EXPECT_THAT(names(files), testing::UnorderedElementsAre("a", "a\nb", "b", "\xff\xfe"));
}

TEST(LargeFileMerge, GivesWhatSortingEverythingAtOnceGives) {
  std::mt19937 random(7);
  LargeFileList merged;
  LargeFileList all;
  for (int round = 0; round < 50; ++round) {
    LargeFileList fresh;
    for (std::size_t count = random() % 20; count > 0; --count) {
      fresh.push_back(file(std::to_string(all.size()), random() % 30));
      all.push_back(fresh.back());
    }
    mergeBySize(merged, fresh);
    LargeFileList sorted = all;
    sortFiles(sorted, LargeFileSort::size, Formatting("en_US"));
    ASSERT_EQ(merged, sorted) << "round " << round;
  }
  EXPECT_GT(merged.size(), 200U);
}

}  // namespace
}  // namespace klarvik
