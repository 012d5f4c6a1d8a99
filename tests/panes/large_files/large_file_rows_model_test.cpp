#include "panes/large_files/large_file_rows_model.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QUrl>
#include <random>

#include "panes/kit/row_text.h"
#include "support/fake_desktop.h"

namespace klarvik {
namespace {

class LargeFileRowsFixture : public ::testing::Test {
 protected:
  static LargeFileList::value_type file(const Path& name, std::int64_t size = 1'000'000) {
    return std::make_shared<const LargeFile>(
        LargeFile{.url = "/Users/ann/Documents" / name, .size = size});
  }
  static LargeFileList numbered(std::size_t count) {
    LargeFileList files;
    for (std::size_t number = 0; number < count; ++number) {
      files.push_back(file(std::to_string(number)));
    }
    return files;
  }
  void show(const LargeFileList& files) {
    (void)rows.apply(arrange(files, {}, rows.files(), rows.inSight(), around.formatting));
  }
  [[nodiscard]] QVariant at(int row, LargeFileRowsModel::Role role) const {
    return rows.index(row).data(role);
  }

  FakeDesktopOnDisk around;
  const Desktop& desktop = around.desktop;
  std::unordered_set<Uuid> selected;
  LargeFileRowsModel rows{selected, desktop};
};

class LargeFileRowsTest : public LargeFileRowsFixture {
 protected:
  QAbstractItemModelTester tester{&rows, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

/// Without the tester, which looks at every row at every change.
class AMillionLargeFiles : public LargeFileRowsFixture {};

TEST_F(LargeFileRowsTest, ARowSaysWhatTheFileIs) {
  show({file("Archive/film.mov", 700'000'000)});
  EXPECT_EQ(at(0, LargeFileRowsModel::NameRole), "film.mov");
  EXPECT_EQ(at(0, LargeFileRowsModel::FolderRole), "~/Documents/Archive/");
  EXPECT_EQ(at(0, LargeFileRowsModel::PathRole), "/Users/ann/Documents/Archive/film.mov");
  EXPECT_EQ(at(0, LargeFileRowsModel::UrlRole).toUrl(),
            urlOfPath("/Users/ann/Documents/Archive/film.mov"));
  EXPECT_EQ(at(0, LargeFileRowsModel::KindRole), "Video");
  EXPECT_EQ(at(0, LargeFileRowsModel::LastOpenedRole), "never");
  EXPECT_EQ(at(0, LargeFileRowsModel::SizeRole), "700 MB");
  EXPECT_EQ(at(0, LargeFileRowsModel::IsSelectedRole), false);
  EXPECT_EQ(at(0, LargeFileRowsModel::DescriptionRole),
            "film.mov, 700 MB, Video, last opened never");
}

TEST_F(LargeFileRowsTest, WhenAFileWasLastOpenedIsSeenFromNow) {
  LargeFile opened = *file("a");
  opened.lastOpened = around.clock.now() - std::chrono::minutes(1);
  show({std::make_shared<const LargeFile>(opened)});
  EXPECT_EQ(at(0, LargeFileRowsModel::LastOpenedRole), "1 minute ago");
  around.clock.advance(std::chrono::minutes(1));
  QSignalSpy changed(&rows, &LargeFileRowsModel::dataChanged);
  rows.refreshDates();
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(at(0, LargeFileRowsModel::LastOpenedRole), "2 minutes ago");
}

TEST_F(LargeFileRowsTest, NamesOf4000CharactersRightToLeftEmojiAndBadUtf8AreShown) {
  const std::string longName(4'000, 'x');
  show({file(longName), file("\u202Egnp.exe"), file("\U0001F600.mov"), file("a\xff\nb")});
  EXPECT_EQ(at(0, LargeFileRowsModel::NameRole).toString().size(), 4'000);
  EXPECT_EQ(at(1, LargeFileRowsModel::NameRole), QStringLiteral("\uFFFDgnp.exe"));
  EXPECT_EQ(at(2, LargeFileRowsModel::NameRole), QString::fromUtf8("\U0001F600.mov"));
  EXPECT_EQ(at(3, LargeFileRowsModel::NameRole), QStringLiteral("a\uFFFD\uFFFDb"));
  EXPECT_EQ(pathOfUrl(at(3, LargeFileRowsModel::UrlRole).toUrl()), "/Users/ann/Documents/a\xff\nb");
}

TEST_F(LargeFileRowsTest, ASelectedFileShowsIt) {
  const LargeFileList files = numbered(2);
  show(files);
  selected.insert(files[1]->id);
  QSignalSpy changed(&rows, &LargeFileRowsModel::dataChanged);
  rows.selectionChanged(1);
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(at(0, LargeFileRowsModel::IsSelectedRole), false);
  EXPECT_EQ(at(1, LargeFileRowsModel::IsSelectedRole), true);
}

TEST_F(LargeFileRowsTest, NewRowsInARowAreOneInsertion) {
  const LargeFileList all = numbered(1'000);
  show({all.begin(), all.begin() + 10});
  QSignalSpy inserted(&rows, &LargeFileRowsModel::rowsInserted);
  QSignalSpy changed(&rows, &LargeFileRowsModel::dataChanged);
  show(all);
  ASSERT_EQ(inserted.count(), 1);
  EXPECT_EQ(inserted.front().at(1).toInt(), 10);
  EXPECT_EQ(inserted.front().at(2).toInt(), 999);
  EXPECT_EQ(changed.count(), 0);
}

TEST_F(AMillionLargeFiles, ComeAndGoInAFewStepsWithThoseInSightFollowed) {
  constexpr int count = 1'000'000;
  QSignalSpy reset(&rows, &LargeFileRowsModel::modelReset);
  QSignalSpy inserted(&rows, &LargeFileRowsModel::rowsInserted);
  const LargeFileList all = numbered(count);
  show(all);
  EXPECT_EQ(rows.rowCount(), count);
  EXPECT_EQ(inserted.count(), 1);

  rows.lookAt(500'000, 500'010);
  const QPersistentModelIndex inSight(rows.index(500'011));
  QSignalSpy removed(&rows, &LargeFileRowsModel::rowsRemoved);
  QSignalSpy changed(&rows, &LargeFileRowsModel::dataChanged);
  LargeFileList odd;
  for (std::size_t number = 1; number < all.size(); number += 2) odd.push_back(all[number]);
  show(odd);
  EXPECT_EQ(rows.files(), odd);
  EXPECT_EQ(reset.count(), 0);
  EXPECT_LT(inserted.count() + removed.count() + changed.count(), 100);
  ASSERT_TRUE(inSight.isValid());
  EXPECT_EQ(rows.files()[static_cast<std::size_t>(inSight.row())], all[500'011]);
}

TEST_F(LargeFileRowsTest, WhatIsNoLongerNeededIsHandedBack) {
  LargeFileList files = numbered(3);
  show(files);
  const std::weak_ptr<const LargeFile> last = files.back();
  files.clear();
  LargeFileList rest = rows.apply(arrange({}, {}, rows.files(), rows.inSight(), around.formatting));
  EXPECT_EQ(rows.rowCount(), 0);
  EXPECT_FALSE(last.expired()) << "freed while the caller had no say";
  rest.clear();
  EXPECT_TRUE(last.expired());
}

TEST_F(LargeFileRowsTest, WhateverChangesTheRowsAreRightAndThoseInSightAreFollowedNeverReset) {
  std::mt19937 random(7);
  const auto any = [&](std::size_t below) { return random() % below; };
  LargeFileList all = numbered(1'000);
  LargeFileList shown;
  QSignalSpy reset(&rows, &LargeFileRowsModel::modelReset);
  for (int round = 0; round < 25; ++round) {
    const auto first = static_cast<int>(any(800));
    rows.lookAt(first, static_cast<int>(any(1'000)));
    std::vector<std::pair<QPersistentModelIndex, const LargeFile*>> inSight;
    for (int row = first; row < std::min(rows.rowCount(), first + 30); ++row) {
      inSight.emplace_back(rows.index(row), rows.files()[static_cast<std::size_t>(row)].get());
    }

    const std::size_t share = 1 + any(8);
    LargeFileList next;
    std::copy_if(all.begin(), all.end(), std::back_inserter(next),
                 [&](const auto&) { return any(8) < share; });
    show(next);

    ASSERT_EQ(rows.files(), next);
    for (const auto& [index, before] : inSight) {
      const bool isStillThere = std::any_of(next.begin(), next.end(),
                                            [&](const auto& file) { return file.get() == before; });
      if (!isStillThere) continue;
      ASSERT_TRUE(index.isValid());
      EXPECT_EQ(rows.files()[static_cast<std::size_t>(index.row())].get(), before);
    }
  }
  EXPECT_EQ(reset.count(), 0);
}

}  // namespace
}  // namespace klarvik
