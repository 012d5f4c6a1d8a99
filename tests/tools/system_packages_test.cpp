#include "tools/system_packages.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>

#include "linux_applications_fixture.h"
#include "places/disk_layout.h"
#include "platform/linux/command_runners.h"
#include "tools/package_removal.h"
#include "tools/pacman_packages.h"
#include "tools/rpm_packages.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

const PackageManager& managerOf(PackageRecords records) {
  const auto& all = layoutFor(Path(linuxHome)).applications.desktop->packageManagers;
  return *std::ranges::find(all, records, &PackageManager::records);
}

TEST(PacmanRecords, TellNameAndSize) {
  EXPECT_EQ(readPacmanDescription("%NAME%\nwriter\n\n%VERSION%\n2.0-1\n\n%SIZE%\n123456\n\n"),
            (PacmanDescription{"writer", 123456}));
  EXPECT_EQ(readPacmanDescription("%SIZE%\n-5\n\n%NAME%\na\nb\n%SIZE%\n7"),
            (PacmanDescription{"a", 0}))
      << "a heading stands behind an empty line";
  EXPECT_EQ(readPacmanDescription("%NAME%\na\n\n%SIZE%\n9223372036854775807\n"),
            (PacmanDescription{"a", 0}));
  EXPECT_EQ(readPacmanDescription("%DESC%\n%NAME%\n\n"), std::nullopt);
  EXPECT_EQ(readPacmanDescription(""), std::nullopt);
}

TEST(PacmanRecords, TellTheFilesAndNotTheirCopies) {
  const std::string text =
      "%FILES%\nusr/\nusr/bin/writer\nusr/share/applications/writer.desktop\n\n"
      "%BACKUP%\netc/writer.conf\tab12\nusr/bin/other\n";
  EXPECT_THAT(pacmanFilesOf(text, {"usr/share/applications/writer.desktop", "usr/bin/other",
                                   "etc/writer.conf", "writer"}),
              ElementsAre("usr/share/applications/writer.desktop"));
  EXPECT_THAT(pacmanFilesOf("", {"a"}), IsEmpty());
}

TEST(RpmAnswers, TellPackagesAndTheirFiles) {
  const auto packages = readRpmPackages(
      "\t/usr/bin/nobodys\nwriter\t18\n\t/usr/bin/writer\n\t/usr/share/doc/a b\n"
      "package gone is not installed\n\t/usr/bin/gone\nwriter\t4\n\t/usr/lib/w\n"
      "-y\t1\n\t/usr/bin/odd\nempty\t(none)\n",
      {"/usr/bin/writer", "/usr/lib/w", "/usr/bin/gone", "/usr/bin/odd", "/usr/bin/nobodys"});
  EXPECT_THAT(packages,
              ElementsAre(Pair("empty", RpmPackage{}),
                          Pair("writer", RpmPackage{22, {"/usr/bin/writer", "/usr/lib/w"}})))
      << "two of one name go together";
}

TEST(RpmAnswers, TellWhoNeedsAPackage) {
  EXPECT_THAT(rpmDependents("error: Failed dependencies:\n"
                            "\tlibw.so()(64bit) is needed by (installed) acme-add-on-1-1.noarch\n"
                            "\twriter is needed by (installed) more-1:2.0-3.fc40.x86_64\n"
                            "\twriter is needed by (installed) odd\n"
                            "\twriter is needed by (installed) -y-1-1.x86_64\n"),
              ElementsAre("acme-add-on", "more"));
  EXPECT_THAT(rpmDependents("error: package gone is not installed\n"), IsEmpty());
}

TEST(PacmanAnswers, TellWhatGoesAndWhoStandsAgainstIt) {
  const PackageManager& pacman = managerOf(PackageRecords::pacman);
  EXPECT_THAT(namedRemovals("libw\nwriter\n:: a question [y/N]\n--x\n", pacman),
              ElementsAre("libw", "writer"));
  EXPECT_THAT(needersOf(":: removing writer breaks dependency 'writer>=2' required by add-on\n"
                        ":: removing writer breaks dependency 'x' required by a b\n",
                        pacman),
              ElementsAre("add-on"));
}

/// A disk of a system without Debian's package manager.
class ForeignPackages : public LinuxApplications {
 protected:
  const Path entryOfWriter = "/usr/share/applications/writer.desktop";
  const std::string rpmDatabase = disk.onDisk("/var/lib/rpm").native();
  const std::string pacmanDatabase = disk.onDisk("/var/lib/pacman").native();

  void makeWriter() const {
    program("/usr/bin/writer");
    entry(entryOfWriter, "Name=Writer\nExec=writer %U\n");
  }

  void installWithPacman(const std::string& name, const std::string& owned,
                         const std::string& more = {}) const {
    const Path folder = Path("/var/lib/pacman/local") / (name + "-2.0-1");
    disk.makeFile(folder / "desc",
                  "%NAME%\n" + name + "\n\n%VERSION%\n2.0-1\n\n%SIZE%\n5000\n\n" + more);
    disk.makeFile(folder / "files", "%FILES%\n" + owned + "\n");
  }

  void makePacmanWriter() const {
    makeWriter();
    installWithPacman("writer", "usr/\nusr/bin/writer\nusr/share/applications/writer.desktop\n",
                      "%DEPENDS%\nlibw\n\n");
    installWithPacman("libw", "usr/lib/libw.so\n", "%REASON%\n1\n\n");
    disk.makeFile("/var/lib/pacman/local/ALPM_DB_VERSION", "9\n");
  }

  /// rpm's answers as it printed them.
  void makeRpmWriter() {
    makeWriter();
    disk.makeFile("/var/lib/rpm/rpmdb.sqlite", "database");
    world.tools.act("rpm --query --queryformat %{NAME}\\n --dbpath " + rpmDatabase +
                        " --file /usr/bin/writer " + entryOfWriter.native(),
                    [] {
                      return ToolResult{.end = ToolResult::End::exited,
                                        .status = 1,
                                        .output =
                                            "file /usr/bin/writer is not owned by any package\n"
                                            "acme-writer\n"};
                    });
    world.tools.answer(
        "rpm --query --queryformat %{NAME}\\t%{LONGSIZE}\\n[\\t%{FILENAMES}\\n] --dbpath " +
            rpmDatabase + " acme-writer",
        "acme-writer\t18000\n\t" + entryOfWriter.native() + "\n\t/usr/share/acme\n");
    world.tools.answer("rpm --query --queryformat %{NAME}\\n --dbpath " + rpmDatabase + " --all",
                       "acme-writer\nbash\n");
  }

  [[nodiscard]] std::string rpmTest(const std::string& names) const {
    return "rpm --erase --test --dbpath " + rpmDatabase + " " + names;
  }
  [[nodiscard]] std::string pacmanQuestion(const std::string& name) const {
    return "pacman -Rs --print --print-format %n --dbpath " + pacmanDatabase + " " + name;
  }

  void refuse(const std::string& line, int exitStatus, const std::string& output,
              const std::string& errors) {
    const ToolResult result{
        .end = ToolResult::End::exited, .status = exitStatus, .output = output, .errors = errors};
    world.tools.act(line, [result] { return result; });
  }
};

TEST_F(ForeignPackages, OfPacmanAreToldByItsRecords) {
  makePacmanWriter();
  const AppInfo app = appCalled("Writer");
  EXPECT_EQ(app.kind, AppKind::systemPackage);
  EXPECT_EQ(app.package, "writer");
  EXPECT_EQ(app.appSize, 5000);
  EXPECT_EQ(app.removalCommand(), "sudo pacman -Rs writer");
  EXPECT_EQ(engine.plan(app), (RemovalPlan{.command = "sudo pacman -Rs writer"}))
      << "pacman is not there";
  world.tools.answer(pacmanQuestion("writer"), "libw\nwriter\n");
  EXPECT_EQ(engine.plan(app), (RemovalPlan{.command = "sudo pacman -Rs writer",
                                           .alsoRemoved = {"libw"},
                                           .isSimulated = true}));
}

TEST_F(ForeignPackages, OfPacmanThatOthersNeedOrThatAreHeldAreNotOffered) {
  makePacmanWriter();
  const AppInfo app = appCalled("Writer");
  refuse(pacmanQuestion("writer"), 1,
         ":: removing writer breaks dependency 'writer' required by addon\n",
         "error: failed to prepare transaction (could not satisfy dependencies)\n");
  EXPECT_EQ(engine.plan(app).command, "");
  EXPECT_EQ(engine.plan(app).keptBecause,
            "The package addon needs writer, and has to be removed first.");
  refuse(pacmanQuestion("writer"), 1,
         ":: HoldPkg was found in target list. Do you want to continue? [y/N] \n", "");
  EXPECT_EQ(engine.plan(app).keptBecause, "The package writer is a part of the system.");
  world.tools.answer(pacmanQuestion("writer"), "plasma-desktop\nwriter\n");
  EXPECT_EQ(engine.plan(app).keptBecause,
            "Removing it would remove plasma-desktop, which this computer needs.");
  refuse(pacmanQuestion("writer"), 255, "", "error: failed to initialize alpm library:\n");
  EXPECT_EQ(engine.plan(app), (RemovalPlan{.command = "sudo pacman -Rs writer"}));
}

TEST_F(ForeignPackages, OfRpmAreToldByItsAnswers) {
  makeRpmWriter();
  const AppInfo app = appCalled("Writer");
  EXPECT_EQ(app.kind, AppKind::systemPackage);
  EXPECT_EQ(app.package, "acme-writer");
  EXPECT_EQ(app.appSize, 18'000);
  EXPECT_EQ(app.removalCommand(), "sudo dnf remove acme-writer");
  EXPECT_TRUE(app.keptBecause.empty());
  disk.makeFile("/usr/bin/zypper", 10);
  EXPECT_EQ(appCalled("Writer").removalCommand(), "sudo zypper remove acme-writer");
}

TEST_F(ForeignPackages, OfRpmGoWithAllThatNeedThem) {
  makeRpmWriter();
  const AppInfo app = appCalled("Writer");
  EXPECT_EQ(engine.plan(app), (RemovalPlan{.command = "sudo dnf remove acme-writer"}));
  refuse(rpmTest("acme-writer"), 1, "",
         "error: Failed dependencies:\n"
         "\tacme-writer is needed by (installed) acme-addon-1-1.noarch\n");
  refuse(rpmTest("acme-addon acme-writer"), 1, "",
         "error: Failed dependencies:\n"
         "\tacme-addon is needed by (installed) acme-more-1-1.noarch\n");
  world.tools.answer(rpmTest("acme-addon acme-more acme-writer"), "");
  EXPECT_EQ(engine.plan(app), (RemovalPlan{.command = "sudo dnf remove acme-writer",
                                           .alsoRemoved = {"acme-addon", "acme-more"},
                                           .isSimulated = true,
                                           .mayTakeMore = true}));
  refuse(rpmTest("acme-writer"), 1, "",
         "\tacme-writer is needed by (installed) gnome-shell-46.2-1.fc40.x86_64\n");
  world.tools.answer(rpmTest("acme-writer gnome-shell"), "");
  EXPECT_EQ(engine.plan(app).keptBecause,
            "Removing it would remove gnome-shell, which this computer needs.");
  refuse(rpmTest("acme-writer"), 1, "", "error: cannot open Packages database\n");
  EXPECT_EQ(engine.plan(app), (RemovalPlan{.command = "sudo dnf remove acme-writer"}));
}

TEST_F(ForeignPackages, OfRpmThatItsFrontEndProtectsAreListedAndNeverOffered) {
  makeRpmWriter();
  disk.makeFile("/etc/dnf/protected.d/own.conf", "# mine\nacme-writer\n");
  EXPECT_EQ(appCalled("Writer").keptBecause, "The package acme-writer is a part of the system.");
}

TEST_F(ForeignPackages, ThatNobodyCanBeAskedAboutAreNotOffered) {
  makeRpmWriter();
  disk.makeFile(home / ".config/writer/data", 3'000);
  EXPECT_THAT(leftoversOf(appCalled("Writer")), ElementsAre(".config/writer"));
  const std::string all = "rpm --query --queryformat %{NAME}\\n --dbpath " + rpmDatabase + " --all";
  world.tools.answer(all, "acme-writer\nwriter\n");
  EXPECT_THAT(leftoversOf(appCalled("Writer")), IsEmpty()) << "another package is called so";
  for (const int exitStatus : {0, 1}) {
    refuse(all, exitStatus, "acme-writer\n", "error: rpmdb: a header is damaged\n");
    EXPECT_THAT(leftoversOf(appCalled("Writer")), IsEmpty()) << "not all were read";
  }
  refuse(all, 0, "acme-writer\n", "warning: another kind of database\n");
  EXPECT_THAT(leftoversOf(appCalled("Writer")), ElementsAre(".config/writer"));
  world.tools.end(all, ToolResult::End::timedOut);
  EXPECT_THAT(leftoversOf(appCalled("Writer")), IsEmpty());

  world.tools.end("rpm --query --queryformat %{NAME}\\n --dbpath " + rpmDatabase +
                      " --file /usr/bin/writer " + entryOfWriter.native(),
                  ToolResult::End::timedOut);
  EXPECT_EQ(appCalled("Writer").kind, AppKind::foreign);
  EXPECT_EQ(appCalled("Writer").removalCommand(), "");
}

TEST_F(ForeignPackages, OfHostileRecordsHaveAClearOutcome) {
  makeWriter();
  installWithPacman("-y", "usr/share/applications/writer.desktop\n");
  disk.makeFolder("/var/lib/pacman/local/broken-1-1/files");
  disk.makeFile("/var/lib/pacman/local/nameless-1-1/files",
                "%FILES%\nusr/share/applications/writer.desktop\n");
  disk.makeFile("/var/lib/pacman/local/nameless-1-1/desc", "%SIZE%\n1\n");
  EXPECT_EQ(appCalled("Writer").kind, AppKind::foreign);
}

/// The machine's own program, about a database on a disk in a temporary folder.
class RealPackages : public ForeignPackages {
 protected:
  static bool isThere(const char* tool) {
    return ::access((std::string("/usr/bin/") + tool).c_str(), X_OK) == 0;
  }
  SystemTools tools{"/", UserFolders::in("/")};
  const Platform& own = world.desktop;
  const Platform platform{own.files,      own.trash, own.commands,        own.defaults, own.volume,
                          own.formatting, own.info,  own.recentDocuments, own.programs, tools};
};

TEST_F(RealPackages, PacmanTellsWhatWouldGo) {
  if (!isThere("pacman")) GTEST_SKIP() << "there is no pacman";
  makePacmanWriter();
  const AppInfo app = appCalled("Writer");
  EXPECT_EQ(UninstallerEngine(platform).plan(app), (RemovalPlan{.command = "sudo pacman -Rs writer",
                                                                .alsoRemoved = {"libw"},
                                                                .isSimulated = true}));
  installWithPacman("addon", "usr/lib/addon\n", "%DEPENDS%\nwriter\n\n");
  EXPECT_EQ(UninstallerEngine(platform).plan(app).keptBecause,
            "The package addon needs writer, and has to be removed first.");
}

TEST_F(RealPackages, RpmTellsItsPackagesAndWhatWouldGo) {
  if (!isThere("rpmbuild")) GTEST_SKIP() << "there is no rpm";
  makeWriter();
  const auto build = [&](const std::string& name, const std::string& needs,
                         const std::string& file) {
    const std::string spec =
        "Name: " + name + "\nVersion: 1\nRelease: 1\nSummary: x\nLicense: x\nBuildArch: noarch\n" +
        (needs.empty() ? "" : "Requires: " + needs + "\n") + "%description\nx\n%install\n" +
        "install -D /dev/null %{buildroot}" + file + "\necho content > %{buildroot}" + file +
        "\n%files\n" + file + "\n";
    const std::string top = disk.onDisk("/build").native();
    disk.makeFile("/build/" + name + ".spec", spec);
    disk.makeFolder("/var/lib/rpm");
    const std::string line = "(rpmbuild --dbpath " + rpmDatabase + " -bb --define '_topdir " + top +
                             "' " + top + "/" + name + ".spec && rpm --dbpath " + rpmDatabase +
                             " --justdb --nodeps --install " + top + "/RPMS/noarch/" + name +
                             "-1-1.noarch.rpm) >/dev/null 2>&1";
    return std::system(line.c_str()) == 0;
  };
  ASSERT_TRUE(build("acme-writer", "", entryOfWriter.native()));
  ASSERT_TRUE(build("acme-addon", "acme-writer", "/usr/share/acme/addon"));
  ASSERT_TRUE(build("acme-more", "acme-addon", "/usr/share/acme/more"));

  const PackageManager& rpm = managerOf(PackageRecords::rpm);
  EXPECT_EQ(packageOwners(platform, {entryOfWriter, "/usr/bin/writer"}),
            (PackageOwners{{entryOfWriter, {"acme-writer", 8, false, &rpm}}}));
  EXPECT_EQ(installedPackageNames(platform),
            (PackageNames{"acme-addon", "acme-more", "acme-writer"}));
  EXPECT_EQ(rpmDependentsOf(platform, rpm, "acme-writer"),
            (PackageNames{"acme-addon", "acme-more"}));
  EXPECT_EQ(rpmDependentsOf(platform, rpm, "acme-more"), PackageNames{});
  EXPECT_EQ(rpmDependentsOf(platform, rpm, "gone"), std::nullopt);
}

}  // namespace
}  // namespace klarvik
