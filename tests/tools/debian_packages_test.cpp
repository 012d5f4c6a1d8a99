#include "tools/debian_packages.h"

#include <gmock/gmock.h>

#include "platform/linux/linux_file_system.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

TEST(DebianStatus, TellsWhatIsInstalledAndWhatTheSystemNeeds) {
  const auto table = readDebianStatus(
      "Package: a\nStatus: install ok installed\nInstalled-Size: 3\nPriority: optional\n\n"
      "Package: b\nStatus: deinstall ok config-files\nInstalled-Size: 3\n\n"
      "Package: c\nStatus: install ok installed\nEssential: yes\nInstalled-Size: x\n\n"
      "Package: d\nStatus: hold ok installed\nPriority: required\nDescription: x\n"
      " Essential: yes\n\n\n"
      "Package: e\nStatus: install ok half-installed\n\n"
      "Status: install ok installed\n\n"
      "Package: f\nStatus: install ok installed\nInstalled-Size: -5");
  EXPECT_THAT(
      table,
      ElementsAre(Pair("a", DebianPackage{3 * 1024, false}), Pair("c", DebianPackage{0, true}),
                  Pair("d", DebianPackage{0, true}), Pair("f", DebianPackage{0, false})));
}

TEST(DebianStatus, OfASizeBeyondAllReasonIsWithoutSize) {
  const auto table = readDebianStatus(
      "Package: a\nStatus: install ok installed\nInstalled-Size: 9223372036854775807\n");
  EXPECT_EQ(table.at("a").bytes, 0);
}

TEST(DebianOwners, AreThePackagesWhoseListsNameAPath) {
  const TemporaryFolder disk;
  disk.makeFile("/var/lib/dpkg/info/office.list", "/.\n/usr/share/a.desktop\n/usr/share/a\n");
  disk.makeFile("/var/lib/dpkg/info/lib:amd64.list", "/usr/lib/b");
  disk.makeFile("/var/lib/dpkg/info/other.conffiles", "/usr/share/c\n");
  disk.makeFolder("/var/lib/dpkg/info/folder.list");
  const LinuxFileSystem files(disk.path(), Path("/home/ann"));
  EXPECT_THAT(debianOwners(files, {"/usr/share/a.desktop", "/usr/lib/b", "/usr/share/c", "/usr"}),
              ElementsAre(Pair("/usr/lib/b", "lib"), Pair("/usr/share/a.desktop", "office")));
  EXPECT_THAT(debianOwners(files, {}), IsEmpty());
  EXPECT_THAT(installedDebianPackages(files), IsEmpty());
}

}  // namespace
}  // namespace klarvik
