#include "linux_applications_fixture.h"
#include "support/linux_sample_disk.h"
#include "tools/installed_applications.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;
using testing::UnorderedElementsAre;

TEST_F(LinuxApplications, OfADiskWithoutAnyAreNone) {
  EXPECT_THAT(engine.listApps(), IsEmpty());
}

TEST_F(LinuxApplications, OfADebianPackageTakeItsSizeAndGoByACommand) {
  installDebian("writer");
  const AppInfo app = appCalled("writer");
  EXPECT_EQ(app.kind, AppKind::systemPackage);
  EXPECT_EQ(app.bundleID, "writer");
  EXPECT_EQ(app.package, "writer");
  EXPECT_EQ(app.appSize, 70 * 1024);
  EXPECT_EQ(app.appURL, "/usr/share/applications/writer.desktop");
  EXPECT_FALSE(app.goesToTrash());
  EXPECT_EQ(app.removalCommand(), "sudo apt remove writer");
}

TEST_F(LinuxApplications, ThatTheSystemNeedsAreListedAndNeverOffered) {
  installDebian("shell", "Essential: yes\n");
  installDebian("editor-of-root", "Priority: important\n");
  installDebian("guarded", "Protected: yes\n");
  installDebian("plain", "Priority: optional\nEssential: no\n");
  for (const AppInfo& app : engine.listApps()) {
    const bool isPlain = app.name == "plain";
    EXPECT_EQ(app.keptBecause.empty(), isPlain) << app.name;
    EXPECT_EQ(app.removalCommand().empty(), !isPlain) << app.name;
  }
}

TEST_F(LinuxApplications, OfFlatpakAreMeasuredAndKnownByTheirWholeReference) {
  installFlatpak("/var/lib/flatpak", "org.gimp.GIMP", "GIMP");
  installFlatpak(home / ".local/share/flatpak", "org.acme.Ink", "Ink");
  const AppInfo gimp = appCalled("GIMP");
  EXPECT_EQ(gimp.kind, AppKind::flatpak);
  EXPECT_EQ(gimp.bundleID, "org.gimp.GIMP");
  EXPECT_EQ(gimp.package, "app/org.gimp.GIMP/x86_64/stable");
  EXPECT_EQ(gimp.appURL, "/var/lib/flatpak/app/org.gimp.GIMP");
  EXPECT_GE(gimp.appSize, 20'000);
  EXPECT_EQ(gimp.removalCommand(), "flatpak uninstall app/org.gimp.GIMP/x86_64/stable");
  EXPECT_EQ(appCalled("Ink").removalCommand(),
            "flatpak uninstall --user app/org.acme.Ink/x86_64/stable");
}

TEST_F(LinuxApplications, OfSnapAreMeasuredByAllTheirFiles) {
  installSnap("ink", "12");
  disk.makeFile("/var/lib/snapd/snaps/ink_13.snap", 30'000);
  disk.makeFile("/var/lib/snapd/snaps/ink_pot_9.snap", 9'000'000);
  const AppInfo ink = appCalled("ink");
  EXPECT_EQ(ink.kind, AppKind::snap);
  EXPECT_GE(ink.appSize, 60'000);
  EXPECT_LT(ink.appSize, 100'000);
  EXPECT_EQ(ink.removalCommand(), "snap remove ink");
  std::filesystem::remove_all(disk.onDisk("/var/lib/snapd/snaps"));
  EXPECT_THAT(engine.listApps(), IsEmpty()) << "an entry that the snap has left";
}

TEST_F(LinuxApplications, ThatAreAppImagesAreFoundWithAnEntryAndWithout) {
  appImage(home / "Downloads/Joplin-3.0.15.AppImage");
  entry(ownEntries / "joplin.desktop",
        "Name=Joplin\nIcon=joplin\nExec=" + (home / "Downloads/Joplin-3.0.15.AppImage").native());
  disk.makeFile(home / ".local/share/icons/hicolor/64x64/apps/joplin.png", 100);
  appImage(home / "Applications/Krita-5.2.AppImage");
  appImage(home / ".local/bin/inkscape");
  appImage(home / "Applications/.hidden.AppImage");
  program(home / "Applications/text.AppImage");
  disk.makeFile(home / "AppImages/short", "ELF");
  disk.makeLink(home / "AppImages/linked.AppImage", "../Applications/Krita-5.2.AppImage");

  EXPECT_THAT(names(), UnorderedElementsAre("Joplin", "Krita-5.2", "inkscape"));
  const AppInfo joplin = appCalled("Joplin");
  EXPECT_EQ(joplin.kind, AppKind::appImage);
  EXPECT_EQ(joplin.appURL, home / "Downloads/Joplin-3.0.15.AppImage");
  EXPECT_THAT(joplin.parts, SizeIs(2));
  EXPECT_TRUE(joplin.goesToTrash());
  EXPECT_THAT(joplin.identifiers, ElementsAre("joplin"));
  EXPECT_THAT(appCalled("Krita-5.2").identifiers, ElementsAre("krita"));
}

TEST_F(LinuxApplications, InstalledByHandAreTheFolderThatIsTheirs) {
  installByHand("ink");
  const AppInfo ink = appCalled("ink");
  EXPECT_EQ(ink.kind, AppKind::byHand);
  EXPECT_EQ(ink.appURL, home / ".local/opt/ink-2.1");
  EXPECT_THAT(ink.parts, SizeIs(2));
  EXPECT_TRUE(ink.goesToTrash());
}

TEST_F(LinuxApplications, InstalledByHandInAFolderThatMayHoldOtherThingsStay) {
  program(home / "Projects/tool/run");
  entry(ownEntries / "tool.desktop", "Name=Tool\nExec=" + (home / "Projects/tool/run").native());
  program(home / "bin/things/start");
  entry(ownEntries / "start.desktop", "Name=Start\nExec=" + (home / "bin/things/start").native());
  installByHand("mine");
  disk.makeFolder(home / ".local/opt/mine-2.1/.git");
  for (const AppInfo& app : engine.listApps()) {
    EXPECT_NE(app.keptBecause, "") << app.name;
    EXPECT_FALSE(app.goesToTrash()) << app.name;
  }
  EXPECT_THAT(names(), SizeIs(3));
}

TEST_F(LinuxApplications, OfRootAreToldWhereNoPackageOwnsThem) {
  program("/opt/acme/acme");
  entry(ownEntries / "acme.desktop", "Name=Acme\nExec=/opt/acme/acme\n");
  program("/usr/local/bin/hers");
  entry("/usr/local/share/applications/hers.desktop", "Name=Hers\nExec=hers\n");
  for (const AppInfo& app : engine.listApps()) {
    EXPECT_EQ(app.kind, AppKind::foreign);
    EXPECT_THAT(app.keptBecause, StartsWith("It was installed for all users"));
    EXPECT_GE(app.appSize, 5'000);
  }
  EXPECT_THAT(names(), ElementsAre("Acme", "Hers"));
}

TEST_F(LinuxApplications, AreNotWhatOnlyStartsAnotherOne) {
  installDebian("wine");
  entry(ownEntries / "game.desktop", "Name=Game\nExec=env WINEPREFIX=/x wine game.exe\n");
  entry(ownEntries / "page.desktop", "Name=Page\nExec=/usr/bin/wine --app=page\n");
  EXPECT_THAT(names(), ElementsAre("wine"));
}

TEST_F(LinuxApplications, AreNotWhatNoMenuShows) {
  installDebian("a", {}, "NoDisplay=true\n");
  installDebian("b", {}, "Hidden=true\n");
  installDebian("c", {}, "OnlyShowIn=Nowhere;\n");
  installDebian("d", {}, "Categories=X-GNOME-Settings-Panel;\n");
  installDebian("e");
  disk.makeFile("/usr/share/applications/link.desktop", "[Desktop Entry]\nType=Link\nName=L\n");
  disk.makeFile("/usr/share/applications/other.txt", "[Desktop Entry]\nType=Application\n");
  EXPECT_THAT(names(), ElementsAre("e"));
}

TEST_F(LinuxApplications, AreCalledAsTheFirstEntryOfAnIdentifierSays) {
  installDebian("writer");
  installDebian("painter");
  entry(ownEntries / "writer.desktop", "Name=My Writer\nExec=writer --fast\n");
  entry(ownEntries / "painter.desktop", "Hidden=true\n");
  EXPECT_THAT(names(), ElementsAre("My Writer"));
  EXPECT_EQ(appCalled("My Writer").kind, AppKind::systemPackage);
}

TEST_F(LinuxApplications, OfOnePackageAreOne) {
  installDebian("office");
  for (const char* const part : {"calc", "draw"}) {
    const Path place = Path("/usr/share/applications") / (std::string(part) + ".desktop");
    entry(place, "Name=" + std::string(part) + "\nExec=office --" + part + "\n");
  }
  package("office",
          {"/usr/bin/office", "/usr/share/applications/office.desktop",
           "/usr/share/applications/calc.desktop", "/usr/share/applications/draw.desktop"});
  EXPECT_THAT(names(), ElementsAre("office"));
}

TEST_F(LinuxApplications, BehindLinksBelongToWhoeverOwnsTheFile) {
  entry("/usr/lib/office/share/writer.desktop", "Name=Writer\nExec=office\n");
  program("/usr/lib/office/program");
  disk.makeLink("/usr/bin/office", "../lib/office/program");
  disk.makeLink("/usr/share/applications/writer.desktop", "/usr/lib/office/share/writer.desktop");
  package("office", {"/usr/lib/office/share/writer.desktop"});
  disk.makeLink("/usr/share/applications/loop.desktop", "loop.desktop");
  disk.makeLink("/usr/share/applications/gone.desktop", "nowhere");
  EXPECT_THAT(names(), ElementsAre("Writer"));
  EXPECT_EQ(appCalled("Writer").package, "office");
}

TEST_F(LinuxApplications, WhoseEntriesAreHostileHaveAClearOutcome) {
  installDebian("good");
  const std::string megabytes(2'000'000, 'x');
  entry(ownEntries / "large.desktop", "Name=" + megabytes + "\nExec=good\n");
  entry(ownEntries / "long.desktop", "Name=" + megabytes.substr(0, 500'000) +
                                         "\nExec=" + (home / ".local/bin/long").native() + "\n");
  program(home / ".local/bin/long");
  program(home / ".local/bin/odd");
  entry(ownEntries / "odd.desktop",
        "Name=\x1b[2J\xff\x01\nExec=" + (home / ".local/bin/odd").native() + "\nIcon=../../x\n");
  entry(ownEntries / "relative.desktop", "Name=Relative\nExec=../../bin/rm -rf\n");
  entry(ownEntries / "open.desktop", "Name=Open\nExec=\"good\n");
  entry(ownEntries / "empty.desktop", "Name=Empty\nExec=\n");
  entry(ownEntries / "shell.desktop", "Name=Shell\nExec=/home/ann/../../usr/bin/good\n");
  entry(ownEntries / "flatpak.desktop",
        "Name=F\nX-Flatpak=../../../home/ann/Documents\nExec=good\n");
  entry(ownEntries / "snap.desktop", "Name=S\nX-SnapInstanceName=../x\nExec=good\n");
  disk.makeFolder(ownEntries / "folder.desktop");
  ASSERT_EQ(::mkfifo(disk.onDisk(ownEntries / "pipe.desktop").c_str(), 0600), 0);
  const auto found = names();
  ASSERT_THAT(found, SizeIs(3));
  EXPECT_TRUE(std::ranges::find(found, "good") != found.end());
  for (const std::string& name : found) {
    EXPECT_LE(name.size(), 200U);
    EXPECT_EQ(name.find('\x1b'), std::string::npos);
  }
}

TEST_F(LinuxApplications, OfTheUserAreNeverSoughtOutsideOfTheFoldersForPrograms) {
  program(home / "Documents/letter");
  entry(ownEntries / "letter.desktop", "Name=Letter\nExec=" + (home / "Documents/letter").native());
  EXPECT_FALSE(appCalled("Letter").goesToTrash());
  program("/home/ben/.local/bin/his");
  entry(ownEntries / "his.desktop", "Name=His\nExec=/home/ben/.local/bin/his\n");
  EXPECT_THAT(names(), ElementsAre("Letter"));
}

TEST_F(LinuxApplications, OfAHomeThatIsALinkAreNamedAsTheUserNamesIt) {
  std::filesystem::remove_all(disk.onDisk(home));
  disk.makeFolder("/data/ann");
  disk.makeLink(home, "../data/ann");
  installByHand("ink");
  appImage(home / "Applications/Krita-5.2.AppImage");
  EXPECT_EQ(appCalled("ink").appURL, home / ".local/opt/ink-2.1");
  EXPECT_TRUE(appCalled("ink").goesToTrash());
  EXPECT_TRUE(engine.remove(appCalled("ink"), {}).isGone);
  EXPECT_FALSE(disk.holds("/data/ann/.local/opt/ink-2.1"));
  EXPECT_TRUE(engine.remove(appCalled("Krita-5.2"), {}).isGone);
}

TEST(ApplicationsOfTheLinuxSampleDisk, AreOfEveryKindAndLeaveOnlyTheirOwn) {
  FakeDesktopOnDisk world{std::nullopt, linuxHome};
  std::filesystem::remove_all(world.disk.onDisk("/home"));
  const LinuxSampleDisk sample = buildLinuxSampleDisk(world.disk.path());
  UninstallerEngine engine(world.desktop);
  std::map<AppKind, std::size_t> kinds;
  std::map<std::string, std::size_t> leftovers;
  for (const AppInfo& app : engine.listApps()) {
    ++kinds[app.kind];
    EXPECT_GT(app.appSize, 0) << app.name;
    for (const ResidualFile& each : engine.findResiduals(app)) {
      ++leftovers[app.name];
      EXPECT_EQ(std::ranges::find(sample.secrets, each.url), sample.secrets.end()) << each.url;
      const bool isSandboxed = app.kind == AppKind::flatpak || app.kind == AppKind::snap;
      const std::string within = each.url.lexically_relative(linuxHome).native();
      EXPECT_EQ(isSandboxed, within.starts_with(".var/app/") || within.starts_with("snap/"))
          << each.url;
    }
  }
  EXPECT_GE(kinds[AppKind::flatpak], 10U);
  EXPECT_EQ(kinds[AppKind::snap], 5U);
  EXPECT_EQ(kinds[AppKind::appImage], 1U);
  EXPECT_EQ(kinds[AppKind::byHand], 1U);
  EXPECT_EQ(kinds[AppKind::systemPackage], 2U);
  EXPECT_EQ(leftovers["Inkpot"], 4U);
  EXPECT_EQ(leftovers["Typesetter"], 4U);
  EXPECT_EQ(leftovers["Sheets"], 4U);
  EXPECT_EQ(leftovers["Acme Shell"], 0U);
  EXPECT_EQ(leftovers["spotify"], 1U);
}

TEST(NameWithoutVersion, EndsWhereTheVersionBegins) {
  EXPECT_EQ(nameWithoutVersion("Joplin-3.0.15.AppImage"), "joplin");
  EXPECT_EQ(nameWithoutVersion("Krita_v5-x86_64.appimage"), "krita");
  EXPECT_EQ(nameWithoutVersion("ink-pot-linux"), "ink-pot");
  EXPECT_EQ(nameWithoutVersion("draw.io"), "draw.io");
  EXPECT_EQ(nameWithoutVersion(""), "");
  EXPECT_EQ(nameWithoutVersion("-"), "-");
}

TEST_F(LinuxApplications, OfFlatpakAreNotWaitedForAfterAStopAndKeepTheirData) {
  installFlatpak(home / ".local/share/flatpak", "org.acme.Ink", "Ink");
  disk.makeFile(home / ".var/app/org.acme.Ink/data/letter", 50'000);
  const auto apps = engine.listApps();
  ASSERT_EQ(apps.size(), 1U);
  const auto residuals = engine.findResiduals(apps.front());
  ASSERT_FALSE(residuals.empty());
  std::stop_source stop;
  world.tools.actWithin("flatpak uninstall --noninteractive --user app/org.acme.Ink/x86_64/stable",
                        [&](const ToolLimits& limits) {
                          stop.request_stop();
                          EXPECT_TRUE(limits.stop.stop_requested());
                          return ToolResult{.end = ToolResult::End::stopped};
                        });
  const UninstallOutcome done = engine.remove(apps.front(), residuals, stop.get_token());
  EXPECT_FALSE(done.isGone);
  EXPECT_EQ(done.freed, 0);
  EXPECT_TRUE(disk.holds(home / ".var/app/org.acme.Ink/data/letter"));
  EXPECT_EQ(engine.listApps().size(), 1U);
}

TEST_F(LinuxApplications, ThatAreGoneAtAStopLeaveTheirData) {
  installFlatpak(home / ".local/share/flatpak", "org.acme.Ink", "Ink");
  disk.makeFile(home / ".var/app/org.acme.Ink/data/letter", 50'000);
  const auto apps = engine.listApps();
  ASSERT_EQ(apps.size(), 1U);
  std::stop_source stop;
  world.tools.actWithin("flatpak uninstall --noninteractive --user app/org.acme.Ink/x86_64/stable",
                        [&](const ToolLimits&) {
                          std::filesystem::remove_all(disk.onDisk(home / ".local/share/flatpak"));
                          stop.request_stop();
                          return ToolResult{.end = ToolResult::End::stopped};
                        });
  const auto residuals = engine.findResiduals(apps.front());
  const UninstallOutcome done = engine.remove(apps.front(), residuals, stop.get_token());
  EXPECT_TRUE(done.isGone);
  EXPECT_TRUE(disk.holds(home / ".var/app/org.acme.Ink/data/letter"));
}

}  // namespace
}  // namespace klarvik
