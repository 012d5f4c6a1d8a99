#include "core/removal_check.h"

#include <gmock/gmock.h>

#include "support/fake_file_system.h"
#include "support/fault_injecting_file_system.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RemoveIfAllowed : public testing::Test {
 protected:
  const Path caches = "/Users/ann/Library/Caches";
  const DeletionScope scope = DeletionScope::general();
  FakeFileSystem disk;
  FaultInjectingFileSystem files{disk};

  Path fileAt(const Path& path) {
    disk.addFile(path, 100);
    return path;
  }
};

TEST_F(RemoveIfAllowed, RemovesWhatTheGuardLetsGo) {
  EXPECT_TRUE(removeIfAllowed(files, fileAt(caches / "x"), scope, {}));
  EXPECT_THAT(files.removed(), ElementsAre(caches / "x"));
}

TEST_F(RemoveIfAllowed, RemovesTheVeryPathThatTheGuardJudged) {
  fileAt(caches / "x");
  EXPECT_TRUE(removeIfAllowed(files, caches / "other//.././x/", scope, {}));
  EXPECT_THAT(files.removed(), ElementsAre(caches / "x"));
}

TEST_F(RemoveIfAllowed, TheDiskIsNotEvenAskedForWhatTheGuardRefuses) {
  for (const Path& refused : {fileAt("/System/x"), Path("/Users/ann"), caches / "../../../..",
                              Path("/"), Path("x"), Path()}) {
    EXPECT_FALSE(removeIfAllowed(files, refused, scope, {})) << refused;
  }
  EXPECT_THAT(files.removals(), IsEmpty());
  EXPECT_TRUE(disk.holds("/System/x"));
}

TEST_F(RemoveIfAllowed, TheScopeDecidesWhatIsAllowed) {
  const Path file = fileAt("/Users/ann/Library/Preferences/com.example.editor.plist");
  EXPECT_FALSE(removeIfAllowed(files, file, DeletionScope::residual({"org.other"}), {}));
  EXPECT_THAT(files.removals(), IsEmpty());
  EXPECT_TRUE(removeIfAllowed(files, file, DeletionScope::residual({"com.example.editor"}), {}));
}

TEST_F(RemoveIfAllowed, ALinkOnTheWayToAProtectedPlaceKeepsTheItem) {
  const Path item = fileAt(caches / "link/x");
  disk.setRealPlace(item, "/System/x");
  EXPECT_FALSE(removeIfAllowed(files, item, scope, {}));
  EXPECT_TRUE(disk.holds(item));
}

TEST_F(RemoveIfAllowed, ALinkOnTheWayToAnAllowedPlaceDoesNotKeepTheItem) {
  const Path item = fileAt(caches / "link/x");
  disk.setRealPlace(item, caches / "elsewhere/x");
  EXPECT_TRUE(removeIfAllowed(files, item, scope, {}));
  EXPECT_FALSE(disk.holds(item));
}

TEST_F(RemoveIfAllowed, WhatIsMissingOrCannotBeRemovedCountsAsNotRemoved) {
  EXPECT_FALSE(removeIfAllowed(files, caches / "missing", scope, {}));
  files.fail(FileOperation::remove, fileAt(caches / "stuck"));
  EXPECT_FALSE(removeIfAllowed(files, caches / "stuck", scope, {}));
  EXPECT_TRUE(disk.holds(caches / "stuck"));
}

}  // namespace
}  // namespace klarvik
