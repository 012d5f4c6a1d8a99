#include <gmock/gmock.h>

#include "engine/scanner_engine.h"
#include "support/fake_desktop.h"
#include "support/private_mounts.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A home and a stick, and an engine that works on both.
class TrashOnVolumes : public testing::TestWithParam<Path> {
 protected:
  const Path home = GetParam();
  const Path stick = "/media/stick";
  TemporaryFolder disk;
  LinuxFileSystem files{disk.path(), home};
  LinuxTrash trash{disk.path(), home};
  FakeDesktop around{files, trash};
  ScannerEngine engine{around.desktop};

  [[nodiscard]] std::vector<std::string> trashed() {
    std::vector<std::string> names;
    for (const CleanCategory& category : engine.scanAll({}, {}, {})) {
      if (category.type != CategoryType::trashBin) continue;
      for (const JunkItem& item : category.items) names.push_back(item.name);
    }
    return names;
  }
  void moveToTrash(const Path& item) {
    ASSERT_TRUE(trash.moveToTrash(item, [](const Path&, const FileAttributes&) { return true; }));
  }
};

TEST_P(TrashOnVolumes, WhatWaitsOnAStickIsFoundByAScanAndGoesWhenTheTrashIsEmptied) {
  EXPECT_TRUE(passesWithPrivateMounts([this] {
    disk.makeFolder(home);
    mountTmpfs(disk.makeFolder(stick));
    disk.makeFile(stick / "letter", std::string(5000, 'x'));
    disk.makeFile(stick / "stays", "mine");
    moveToTrash(stick / "letter");
    EXPECT_THAT(trashed(), ElementsAre("letter"));
    EXPECT_GT(engine.emptyTrash(), 0);
    EXPECT_THAT(*trash.list(), IsEmpty());
    EXPECT_THAT(trashed(), IsEmpty());
    EXPECT_EQ(disk.contentOf(stick / "stays"), "mine");
  }));
}

TEST_P(TrashOnVolumes, ATrashBehindALinkToAStickIsEmptiedToo) {
  EXPECT_TRUE(passesWithPrivateMounts([this] {
    disk.makeFolder(home / ".local/share");
    mountTmpfs(disk.makeFolder(stick));
    disk.makeFolder(stick / "kept");
    disk.makeLink(home / ".local/share/Trash", disk.onDisk(stick / "kept"));
    disk.makeFile(stick / "letter", std::string(5000, 'x'));
    moveToTrash(stick / "letter");
    EXPECT_TRUE(disk.holds(stick / "kept/files/letter"));
    EXPECT_THAT(trashed(), ElementsAre("letter"));
    EXPECT_GT(engine.emptyTrash(), 0);
    EXPECT_FALSE(disk.holds(stick / "kept/files/letter"));
    EXPECT_THAT(*trash.list(), IsEmpty());
  }));
}

INSTANTIATE_TEST_SUITE_P(Homes, TrashOnVolumes, testing::Values("/home/ann", "/Users/ann"),
                         [](const auto& home) {
                           return home.param.native().starts_with("/home") ? "Linux" : "Mac";
                         });

}  // namespace
}  // namespace klarvik
