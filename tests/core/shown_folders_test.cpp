#include "core/shown_folders.h"

#include <gtest/gtest.h>

#include "platform/system_platform.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

constexpr std::string_view german =
    "XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\nXDG_VIDEOS_DIR=\"$HOME/Filme\"\n";

TEST(ShownFolders, AreThoseOfTheDesktopOnALinuxDisk) {
  const TemporaryFolder disk;
  disk.makeFile("/home/ann/.config/user-dirs.dirs", german);
  SystemPlatform machine(disk.path(), "/home/ann");
  const UserFolders shown = shownFolders(machine.platform().files);
  EXPECT_EQ(shown.documents, "/home/ann/Dokumente");
  EXPECT_EQ(shown.videos, "/home/ann/Filme");
  EXPECT_EQ(shown.downloads, "/home/ann/Downloads");
}

TEST(ShownFolders, AreNamedThroughALinkToWhereSettingsAreKept) {
  const TemporaryFolder disk;
  disk.makeFile("/home/ann/dotfiles/user-dirs.dirs", german);
  disk.makeFolder("/home/ann/.config");
  disk.makeLink("/home/ann/.config/user-dirs.dirs", "../dotfiles/user-dirs.dirs");
  SystemPlatform machine(disk.path(), "/home/ann");
  EXPECT_EQ(shownFolders(machine.platform().files).documents, "/home/ann/Dokumente");
}

TEST(ShownFolders, AreAlwaysTheSameOnAMacsDisk) {
  const TemporaryFolder disk;
  disk.makeFile("/Users/ann/.config/user-dirs.dirs", german);
  SystemPlatform machine(disk.path(), "/Users/ann");
  const UserFolders shown = shownFolders(machine.platform().files);
  EXPECT_EQ(shown.documents, "/Users/ann/Documents");
  EXPECT_EQ(shown.videos, "/Users/ann/Movies");
}

TEST(WithoutNested, KeepsEachFolderOnceAndNeverTheHome) {
  const std::vector<Path> folders{"/home/ann/a",  "/home/ann/a/b", "/home/ann", "/home/ann/a",
                                  "/home/ann/ab", "/data",         "/"};
  EXPECT_EQ(withoutNested(folders, "/home/ann"),
            (std::vector<Path>{"/home/ann/a", "/home/ann/ab", "/data"}));
}

}  // namespace
}  // namespace klarvik
