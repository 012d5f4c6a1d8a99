#include "panes/duplicates/duplicates_texts.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

const Formatting formatting{"en_US"};
const Path home = "/Users/ann";

TEST(DuplicatesTexts, TheTitleNamesTheFigureOnceThereAreGroups) {
  EXPECT_EQ(duplicates::title(0, 0, formatting), "Duplicates");
  EXPECT_EQ(duplicates::title(1, 2'500'000, formatting), "Duplicates · 2.5 MB reclaimable");
  EXPECT_EQ(duplicates::title(1, 0, formatting), "Duplicates · Zero KB reclaimable");
}

TEST(DuplicatesTexts, TheSubtitleTellsWhatTheScanIsAt) {
  EXPECT_EQ(duplicates::unscannedSubtitle(),
            "Compares file contents with SHA-256, not names. One copy of each is always kept.");
  EXPECT_EQ(duplicates::scanningSubtitle(3, "/Users/ann/Documents/a.pdf", home),
            "3 groups so far · ~/Documents/a.pdf");
  EXPECT_EQ(duplicates::scanningSubtitle(0, "Collecting files...", home),
            "0 groups so far · Collecting files...");
  EXPECT_EQ(duplicates::foundSubtitle(2, 5),
            "2 groups · 5 extra copies · one copy of each is always kept");
}

TEST(DuplicatesTexts, ANameThatIsNotUtf8IsMadePrintable) {
  EXPECT_EQ(duplicates::scanningSubtitle(0, "a\xff\n", home),
            QStringLiteral("0 groups so far · a\uFFFD\uFFFD"));
  EXPECT_EQ(duplicates::folderList({"/a\xff"}), QStringLiteral("a\uFFFD"));
}

TEST(DuplicatesTexts, FoldersAreListedInWords) {
  EXPECT_EQ(duplicates::folderList({}), "none yet");
  EXPECT_EQ(duplicates::folderList({"/Users/ann/Documents"}), "Documents");
  EXPECT_EQ(duplicates::folderList({"/a/Documents", "/a/Downloads"}), "Documents and Downloads");
  EXPECT_EQ(duplicates::folderList({"/a/Documents", "/a/Downloads", "/a/Desktop"}),
            "Documents, Downloads and Desktop");
  EXPECT_EQ(duplicates::folderList({"/"}), "/");
}

TEST(DuplicatesTexts, AChipSaysWhatAClickDoes) {
  EXPECT_EQ(duplicates::folderHelps({"/Users/ann/Documents", "/media/disk"}, home),
            (QStringList{"~/Documents — click to remove", "/media/disk — click to remove"}));
  EXPECT_EQ(duplicates::folderHelps({"/Users/ann/Documents"}, home),
            (QStringList{"~/Documents — the last folder cannot be removed"}));
}

TEST(DuplicatesTexts, APlaceholderForEachState) {
  EXPECT_EQ(duplicates::hashing(),
            Placeholder::busy("Hashing files",
                              "Klarvik compares contents, so identical files are found even when "
                              "they were renamed."));
  EXPECT_EQ(duplicates::notScanned({"/Users/ann/Documents", "/Users/ann/Desktop"}),
            Placeholder::idle(
                "doc.on.doc", "Choose where to look",
                "Klarvik compares contents, not names, so it only reads the folders you name: "
                "Documents and Desktop. Nothing outside them is touched.",
                "Add a folder…"));
  EXPECT_EQ(duplicates::nothingFound(),
            Placeholder::idle("checkmark.circle", "No duplicates",
                              "Nothing in those folders is byte-for-byte identical."));
}

TEST(DuplicatesTexts, WhatRemainsIsToldInWholeMinutes) {
  using namespace std::chrono_literals;
  EXPECT_EQ(duplicates::remainingText(std::nullopt), "");
  EXPECT_EQ(duplicates::remainingText(0s), "Less than a minute left");
  EXPECT_EQ(duplicates::remainingText(60s), "Less than a minute left");
  EXPECT_EQ(duplicates::remainingText(61s), "About 2 minutes left");
  EXPECT_EQ(duplicates::remainingText(3601s), "About 61 minutes left");
}

TEST(DuplicatesTexts, TheFooterSumsUpWhatWouldGo) {
  EXPECT_EQ(duplicates::selectionSummary(0, 0, formatting), "Zero KB selected · 0 copies");
  EXPECT_EQ(duplicates::selectionSummary(1'500'000, 1, formatting), "1.5 MB selected · 1 copies");
  EXPECT_EQ(duplicates::deleteButtonTitle(1'500'000, formatting), "Delete 1.5 MB");
  EXPECT_EQ(duplicates::footerHint(),
            "One copy of every group stays where it is. Deletions go to Trash.");
  EXPECT_EQ(duplicates::minSizeText(1.9), "Min size 1 MB");
  EXPECT_EQ(duplicates::finishedSummary(1), "1 groups");
}

TEST(DuplicatesTexts, ARowSaysWhatItIsItsSizeAndItsVerdict) {
  ChosenGroup group;
  EXPECT_EQ(duplicates::groupName(group.group), "Unknown");
  group.group.files = {{.url = "/Users/ann/Documents/a.pdf", .size = 2'000'000},
                       {.url = "/Users/ann/b.pdf", .size = 2'000'000}};
  group.removableBytes = 2'000'000;
  EXPECT_EQ(duplicates::groupName(group.group), "a.pdf");
  EXPECT_EQ(duplicates::groupDescription(group, formatting), "a.pdf, 2 copies, 2 MB reclaimable");
  EXPECT_EQ(duplicates::copyDescription(group.group.files[0], KeepOrDelete::Keep, home, formatting),
            "a.pdf, 2 MB, keep, ~/Documents/");
  EXPECT_EQ(
      duplicates::copyDescription(group.group.files[1], KeepOrDelete::Delete, home, formatting),
      "b.pdf, 2 MB, delete, ~/");
  EXPECT_EQ(
      duplicates::copyDescription(group.group.files[1], KeepOrDelete::Neither, home, formatting),
      "b.pdf, 2 MB, ~/");
  EXPECT_EQ(duplicates::menuEntry(true), "This copy stays");
  EXPECT_EQ(duplicates::menuEntry(false), "Keep this copy instead");
}

}  // namespace
}  // namespace klarvik
