#include "linux_applications_fixture.h"
#include "places/disk_layout.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class LinuxLeftovers : public LinuxApplications {
 protected:
  void leave(const std::vector<std::string>& places) const {
    for (const std::string& place : places) disk.makeFile(home / place / "data", 5'000);
  }
};

TEST_F(LinuxLeftovers, AreWhatIsCalledExactlyAsTheApplication) {
  installDebian("writer", {}, "StartupWMClass=InkWriter\n");
  const std::vector<std::string> own{".cache/Writer", ".config/writer", ".local/share/inkwriter",
                                     ".local/state/writer", ".writer"};
  leave(own);
  leave({".config/writer2", ".config/my-writer", ".cache/writer.old", ".config/writers", "writer",
         "Documents/writer", ".local/writer", ".config/other/writer"});
  disk.makeFile(home / ".config/autostart/writer.desktop", 100);
  disk.makeFile(home / ".local/share/icons/hicolor/48x48/apps/writer.png", 100);
  disk.makeFile(home / ".local/share/icons/hicolor/48x48/apps/writer-document.png", 100);
  std::vector<Path> expected(own.begin(), own.end());
  expected.emplace_back(".config/autostart/writer.desktop");
  expected.emplace_back(".local/share/icons/hicolor/48x48/apps/writer.png");
  std::ranges::sort(expected);
  EXPECT_EQ(leftoversOf(appCalled("writer")), expected);
}

TEST_F(LinuxLeftovers, HaveTheCategoryOfTheirFolder) {
  installDebian("writer");
  leave({".cache/writer", ".config/writer", ".local/share/writer", ".local/state/writer"});
  std::map<Path, ResidualCategory> categories;
  for (const ResidualFile& each : engine.findResiduals(appCalled("writer"))) {
    categories[each.url.lexically_relative(home)] = each.category;
    EXPECT_FALSE(each.isPreselected);
    EXPECT_GE(each.size, 4'096);
  }
  EXPECT_EQ(categories[".cache/writer"], ResidualCategory::caches);
  EXPECT_EQ(categories[".config/writer"], ResidualCategory::preferences);
  EXPECT_EQ(categories[".local/share/writer"], ResidualCategory::appSupport);
  EXPECT_EQ(categories[".local/state/writer"], ResidualCategory::savedState);
}

TEST_F(LinuxLeftovers, OfAReverseNameAreTheLastPartOnlyWhereItIsLong) {
  program("/usr/bin/x");
  for (const std::string id : {"org.acme.Typewriter", "org.acme.Ink"}) {
    const Path place = "/usr/share/applications/" + id + ".desktop";
    entry(place, "Name=" + id + "\nExec=x\n");
    package("p" + id, {place});
  }
  leave({".config/typewriter", ".config/ink", ".config/org.acme.Ink", ".config/org.acme"});
  EXPECT_THAT(leftoversOf(appCalled("org.acme.Typewriter")), ElementsAre(".config/typewriter"));
  EXPECT_THAT(leftoversOf(appCalled("org.acme.Ink")), ElementsAre(".config/org.acme.Ink"));
}

TEST_F(LinuxLeftovers, AreNeverToldByACommonWordOrASharedName) {
  for (const char* const name :
       {"config", "files", "studio", "python3", "google", "JetBrains", "systemd", "applications",
        "autostart", "icons", "gnome-shell", "local", "share", "cache", "mozilla", "fonts"}) {
    installDebian(name);
    leave({std::string(".config/") + name, std::string(".cache/") + name,
           std::string(".local/share/") + name});
    if (std::string_view(name) == "share") continue;
    EXPECT_THAT(leftoversOf(appCalled(name)), IsEmpty()) << name;
  }
}

TEST_F(LinuxLeftovers, OfTheFamousAreKnownByName) {
  installDebian("code");
  leave({".config/Code", ".vscode", ".config/code", ".config/Code - OSS"});
  const auto found = leftoversOf(appCalled("code"));
  EXPECT_THAT(found, ElementsAre(".config/Code", ".vscode"));
  installDebian("jetbrains-idea");
  leave({".config/JetBrains/IntelliJIdea2024.3", ".config/JetBrains/PyCharm2024.3",
         ".cache/JetBrains/IntelliJIdea2024.3"});
  EXPECT_THAT(leftoversOf(appCalled("jetbrains-idea")),
              ElementsAre(".config/JetBrains/IntelliJIdea2024.3"));
}

TEST_F(LinuxLeftovers, ThatTwoOfTheFamousShareAreOfferedForNeither) {
  installDebian("firefox-esr");
  leave({".cache/mozilla/firefox", ".cache/mozilla/other", ".mozilla/firefox"});
  EXPECT_THAT(leftoversOf(appCalled("firefox-esr")), ElementsAre(".cache/mozilla/firefox"));
  installDebian("firefox");
  EXPECT_THAT(leftoversOf(appCalled("firefox-esr")), IsEmpty());
  EXPECT_THAT(leftoversOf(appCalled("firefox")), IsEmpty());
}

TEST_F(LinuxLeftovers, AreNeverASecretNorHoldOne) {
  for (const char* const name : {"keyrings", "ssh", "gnupg", "rclone", "keepassxc", "Signal",
                                 "pass", "nvim", "emacs", "vaults"}) {
    installDebian(name);
  }
  leave({".local/share/keyrings", ".ssh", ".gnupg", ".config/rclone", ".cache/rclone",
         ".config/keepassxc", ".config/Signal", ".cache/nvim", ".cache/emacs"});
  disk.makeFile(home / ".config/vaults/deep/all.kdbx", 9'000);
  for (const AppInfo& app : engine.listApps()) EXPECT_THAT(leftoversOf(app), IsEmpty()) << app.name;
}

TEST_F(LinuxLeftovers, AreTheSameWithTheAccentsOfTheirNameApartOrNot) {
  appImage(home / "Applications/Caf\u00e9-1.0.AppImage");
  leave({".config/Cafe\u0301", ".cache/caf\u00e9", ".config/cafe"});
  EXPECT_THAT(leftoversOf(appCalled("Caf\u00e9-1.0")),
              ElementsAre(".cache/caf\u00e9", ".config/Cafe\u0301"));
}

TEST_F(LinuxLeftovers, AreNotOfferedWhileAnotherApplicationHasTheSameIdentifier) {
  appImage(home / "Applications/Inkpot-1.0.AppImage");
  leave({".config/inkpot"});
  const AppInfo ink = appCalled("Inkpot-1.0");
  EXPECT_THAT(leftoversOf(ink), ElementsAre(".config/inkpot"));
  appImage(home / "Applications/Inkpot-2.0.AppImage");
  EXPECT_THAT(leftoversOf(ink), IsEmpty());
  std::filesystem::remove(disk.onDisk(home / "Applications/Inkpot-2.0.AppImage"));
  EXPECT_THAT(leftoversOf(ink), SizeIs(1));
  package("inkpot", {"/usr/bin/inkpot"});
  EXPECT_THAT(leftoversOf(ink), IsEmpty()) << "a program of the terminal";
}

TEST_F(LinuxLeftovers, OfWhatNoMenuShowsAreItsOwnToo) {
  installByHand("inkpot");
  leave({".config/inkpot"});
  installDebian("helper", {}, "NoDisplay=true\nStartupWMClass=inkpot\n");
  EXPECT_THAT(leftoversOf(appCalled("inkpot")), IsEmpty());
}

TEST_F(LinuxLeftovers, OfSandboxesLieInTheFoldersOfTheSandbox) {
  installFlatpak("/var/lib/flatpak", "org.acme.Typewriter", "Typewriter");
  installSnap("inkpot", "3");
  leave({".var/app/org.acme.Typewriter", ".config/org.acme.Typewriter", ".config/typewriter",
         "snap/inkpot", ".config/inkpot", ".var/app/org.acme.Typewriter2"});
  EXPECT_THAT(leftoversOf(appCalled("Typewriter")), ElementsAre(".var/app/org.acme.Typewriter"));
  const auto ofInk = engine.findResiduals(appCalled("inkpot"));
  ASSERT_THAT(ofInk, SizeIs(1));
  EXPECT_EQ(ofInk[0].url, home / "snap/inkpot");
  EXPECT_TRUE(ofInk[0].isPreselected);
  EXPECT_EQ(ofInk[0].category, ResidualCategory::containers);
}

TEST_F(LinuxLeftovers, OfAFlatpakThatIsInstalledTwiceAreStillNeeded) {
  const std::string id = "org.acme.Typewriter";
  installFlatpak("/var/lib/flatpak", id, "Typewriter");
  leave({".var/app/" + id});
  const AppInfo app = appCalled("Typewriter");
  EXPECT_THAT(leftoversOf(app), SizeIs(1));
  installFlatpak(home / ".local/share/flatpak", id, "Typewriter");
  EXPECT_THAT(names(), ElementsAre("Typewriter"));
  EXPECT_THAT(leftoversOf(app), IsEmpty());
}

TEST_F(LinuxLeftovers, AreNoLinksAndNothingBehindOne) {
  installDebian("writer");
  disk.makeFile(home / "Documents/writer/letter", 9'000);
  disk.makeLink(home / ".config/writer", "../Documents/writer");
  std::filesystem::remove_all(disk.onDisk(home / ".cache"));
  disk.makeLink(home / ".cache", "Documents");
  EXPECT_THAT(leftoversOf(appCalled("writer")), IsEmpty());
}

class LinuxUninstalling : public LinuxLeftovers {
 protected:
  void SetUp() override { static_cast<void>(world.trash.folders()); }

  /// What is gone or changed outside of the Trash and of `gone`.
  [[nodiscard]] std::string unexpectedSince(DiskSnapshot before,
                                            const std::vector<Path>& gone) const {
    const auto isInTrash = [](const auto& each) {
      return each.first.starts_with("home/ann/.local/share/Trash");
    };
    DiskSnapshot after = snapshotOf(disk.path());
    std::erase_if(before, isInTrash);
    std::erase_if(after, isInTrash);
    return unexpectedDifferences(before, after, gone);
  }
};

TEST_F(LinuxUninstalling, MovesAnAppImageItsEntryItsIconsAndLeftoversToTheTrash) {
  appImage(home / "Applications/Inkpot-1.0.AppImage");
  entry(ownEntries / "inkpot.desktop",
        "Name=Inkpot\nIcon=inkpot\nExec=" + (home / "Applications/Inkpot-1.0.AppImage").native());
  const Path icon = home / ".local/share/icons/hicolor/64x64/apps/inkpot.png";
  disk.makeFile(icon, 100);
  leave({".config/inkpot", ".cache/inkpot"});
  const AppInfo app = appCalled("Inkpot");
  const auto leftovers = engine.findResiduals(app);
  ASSERT_THAT(leftovers, SizeIs(2));
  const auto before = snapshotOf(disk.path());
  const UninstallOutcome outcome = engine.remove(app, leftovers);
  EXPECT_TRUE(outcome.isGone);
  EXPECT_EQ(outcome.freed, app.appSize + leftovers[0].size + leftovers[1].size);
  EXPECT_EQ(unexpectedSince(before, {app.appURL, ownEntries / "inkpot.desktop", icon,
                                     home / ".config/inkpot", home / ".cache/inkpot"}),
            "");
  EXPECT_TRUE(disk.holds(trashed / "Inkpot-1.0.AppImage"));
  EXPECT_TRUE(disk.holds(trashed / "inkpot.desktop"));
  EXPECT_TRUE(disk.holds(trashed / "inkpot.png"));
  EXPECT_THAT(*world.trash.list(), SizeIs(5));
  EXPECT_THAT(engine.listApps(), IsEmpty());
}

TEST_F(LinuxUninstalling, MovesTheFolderOfWhatWasInstalledByHand) {
  installByHand("inkpot");
  disk.makeLink(home / ".local/bin/inkpot", "../opt/inkpot-2.1/bin/inkpot");
  const AppInfo app = appCalled("inkpot");
  EXPECT_TRUE(engine.remove(app, {}).isGone);
  EXPECT_FALSE(disk.holds(home / ".local/opt/inkpot-2.1"));
  EXPECT_TRUE(disk.holds(trashed / "inkpot-2.1/bin/inkpot"));
  EXPECT_FALSE(disk.holds(ownEntries / "inkpot.desktop"));
}

TEST_F(LinuxUninstalling, OfAPackageTakesOnlyTheSelectedLeftovers) {
  installDebian("inkpot");
  installFlatpak("/var/lib/flatpak", "org.acme.Typewriter", "Typewriter");
  leave({".config/inkpot", ".cache/inkpot", ".var/app/org.acme.Typewriter"});
  const auto before = snapshotOf(disk.path());
  auto leftovers = engine.findResiduals(appCalled("inkpot"));
  std::erase_if(leftovers, [&](const auto& each) { return each.url != home / ".cache/inkpot"; });
  const UninstallOutcome outcome = engine.remove(appCalled("inkpot"), leftovers);
  EXPECT_FALSE(outcome.isGone);
  EXPECT_EQ(outcome.freed, leftovers.at(0).size);
  EXPECT_EQ(unexpectedSince(before, {home / ".cache/inkpot"}), "");
  EXPECT_TRUE(disk.holds(trashed / "inkpot/data"));
}

TEST_F(LinuxUninstalling, HasAFlatpakRemovedByItsToolAndThenMovesItsLeftovers) {
  installFlatpak("/var/lib/flatpak", "org.acme.Typewriter", "Typewriter");
  leave({".var/app/org.acme.Typewriter"});
  const AppInfo app = appCalled("Typewriter");
  world.tools.act(
      "flatpak uninstall --noninteractive --system app/org.acme.Typewriter/x86_64/stable", [&] {
        EXPECT_TRUE(disk.holds(home / ".var/app/org.acme.Typewriter/data"));
        std::filesystem::remove_all(disk.onDisk(app.appURL));
        return FakeToolRunner::printed("");
      });
  const auto leftovers = engine.findResiduals(app);
  ASSERT_THAT(leftovers, SizeIs(1));
  const UninstallOutcome outcome = engine.remove(app, leftovers);
  EXPECT_TRUE(outcome.isGone);
  EXPECT_EQ(outcome.freed, app.appSize + leftovers[0].size);
  EXPECT_TRUE(disk.holds(trashed / "org.acme.Typewriter/data"));
}

TEST_F(LinuxUninstalling, TellsWhyAToolLeftItAndKeepsItsLeftovers) {
  installFlatpak(home / ".local/share/flatpak", "org.acme.Typewriter", "Typewriter");
  leave({".var/app/org.acme.Typewriter"});
  const AppInfo app = appCalled("Typewriter");
  const auto leftovers = engine.findResiduals(app);
  const std::string line =
      "flatpak uninstall --noninteractive --user app/org.acme.Typewriter/x86_64/stable";
  const auto before = snapshotOf(disk.path());
  const auto whyItStayed = [&] { return engine.remove(app, leftovers).whyItStayed; };
  EXPECT_EQ(whyItStayed(), "flatpak could not be started.");
  world.tools.end(line, ToolResult::End::timedOut);
  EXPECT_EQ(whyItStayed(), "flatpak took too long, and was stopped.");
  world.tools.act(line, [] {
    return ToolResult{
        .end = ToolResult::End::exited, .status = 1, .errors = "  Not\x1b allowed\nmore\n"};
  });
  EXPECT_EQ(whyItStayed(), "flatpak did not remove it: Not\uFFFD allowed");
  world.tools.answer(line, "all is well");
  EXPECT_EQ(whyItStayed(), "flatpak did not remove it.");
  EXPECT_EQ(unexpectedSince(before, {}), "");
}

TEST_F(LinuxUninstalling, AsksSnapdOnlyWhereItRuns) {
  installSnap("inkpot", "3");
  const AppInfo app = appCalled("inkpot");
  EXPECT_EQ(engine.remove(app, {}).whyItStayed, "snapd does not run on this computer.");
  EXPECT_THAT(world.tools.commandsRun(), ElementsAre("systemctl is-active snapd.socket"));
  world.tools.answer("systemctl is-active snapd.socket", "active\n");
  world.tools.act("snap remove inkpot", [&] {
    std::filesystem::remove_all(disk.onDisk("/var/lib/snapd/snaps"));
    return FakeToolRunner::printed("inkpot removed\n");
  });
  EXPECT_TRUE(engine.remove(app, {}).isGone);
}

TEST_F(LinuxUninstalling, HandsNoToolANameThatItMightTakeForMore) {
  for (const char* const name :
       {"-y", "--purge", "a b", "a;b", "../x", "", "app/-x", "a\nb", "$(x)"}) {
    for (const AppKind kind : {AppKind::flatpak, AppKind::snap, AppKind::systemPackage}) {
      const AppInfo app{.name = "Odd", .bundleID = "odd", .kind = kind, .package = name};
      if (kind == AppKind::flatpak && std::string_view(name) == "app/-x") continue;
      EXPECT_EQ(engine.plan(app).command, "");
      EXPECT_FALSE(engine.remove(app, {}).isGone);
    }
    for (const PackageManager& manager : layoutFor(home).applications.desktop->packageManagers) {
      const AppInfo app{.kind = AppKind::systemPackage, .package = name, .manager = &manager};
      EXPECT_EQ(engine.plan(app), RemovalPlan{});
    }
  }
  EXPECT_THAT(world.tools.commandsRun(), IsEmpty());
}

TEST_F(LinuxUninstalling, TellsWhatTheRemovalOfAPackageWouldTakeAlong) {
  installDebian("inkpot");
  const AppInfo app = appCalled("inkpot");
  EXPECT_EQ(engine.plan(app), (RemovalPlan{.command = "sudo apt remove inkpot"}))
      << "apt-get is not there";
  const std::string line = "apt-get --simulate remove inkpot";
  world.tools.answer(line,
                     "Reading package lists...\nThe following packages will be REMOVED:\n"
                     "  inkpot inkpot-data\nRemv inkpot-data [1.2]\nRemv inkpot:amd64 [1.2]\n"
                     "Purg x\n");
  EXPECT_EQ(engine.plan(app), (RemovalPlan{.command = "sudo apt remove inkpot",
                                           .alsoRemoved = {"inkpot-data"},
                                           .isSimulated = true}));
  world.tools.answer(line, "Remv inkpot [1]\nRemv task-gnome-desktop [2]\n");
  EXPECT_EQ(engine.plan(app).command, "");
  EXPECT_EQ(engine.plan(app).keptBecause,
            "Removing it would remove task-gnome-desktop, which this computer needs.");
  world.tools.answer(line, "Remv another [1]\n");
  EXPECT_FALSE(engine.plan(app).isSimulated);
  world.tools.end(line, ToolResult::End::timedOut);
  EXPECT_FALSE(engine.plan(app).isSimulated);
}

TEST_F(LinuxUninstalling, LeavesWhatRunsAsItIs) {
  installByHand("inkpot");
  leave({".config/inkpot"});
  const AppInfo app = appCalled("inkpot");
  const auto leftovers = engine.findResiduals(app);
  const auto before = snapshotOf(disk.path());
  world.programs.running.insert("inkpot");
  const UninstallOutcome outcome = engine.remove(app, leftovers);
  EXPECT_TRUE(outcome.isRunning);
  EXPECT_EQ(outcome.whyItStayed, "inkpot is running. Close it first.");
  EXPECT_EQ(unexpectedSince(before, {}), "");
}

TEST_F(LinuxUninstalling, LeavesWhatHasTakenThePlaceOfTheApplicationAndItsLeftoversToo) {
  installByHand("inkpot");
  leave({".config/inkpot"});
  const AppInfo app = appCalled("inkpot");
  const auto leftovers = engine.findResiduals(app);
  std::filesystem::rename(disk.onDisk(app.appURL), disk.onDisk(home / "kept"));
  disk.makeFile(app.appURL / "thesis", 5'000);
  const auto before = snapshotOf(disk.path());
  EXPECT_EQ(engine.remove(app, leftovers).whyItStayed, "It could not be moved to the Trash.");
  EXPECT_EQ(unexpectedSince(before, {}), "");
}

TEST_F(LinuxUninstalling, LeavesALeftoverThatAnotherApplicationNowHas) {
  installByHand("inkpot");
  leave({".config/inkpot"});
  const AppInfo app = appCalled("inkpot");
  const auto leftovers = engine.findResiduals(app);
  ASSERT_THAT(leftovers, SizeIs(1));
  installDebian("inkpot2", {}, "StartupWMClass=Inkpot\n");
  EXPECT_TRUE(engine.remove(app, leftovers).isGone);
  EXPECT_TRUE(disk.holds(home / ".config/inkpot/data"));
}

TEST_F(LinuxUninstalling, WhateverItIsToldTakesNothingThatTheRulesKeep) {
  installByHand("inkpot");
  AppInfo app = appCalled("inkpot");
  leave({"Documents/inkpot", ".ssh", ".config/other", ".local/share/Trash/files/inkpot"});
  disk.makeFile("/home/ben/.config/inkpot/x", 10);
  disk.makeFile("/usr/share/inkpot/x", 10);
  std::vector<ResidualFile> residuals;
  for (const Path& place :
       {home, Path("/"), home / ".config", home / "Documents/inkpot", home / ".ssh",
        home / ".config/other", home / ".config/inkpot/../other", Path("/home/ben/.config/inkpot"),
        Path("/usr/share/inkpot"), home / ".local/share", Path("relative"), Path()}) {
    residuals.push_back({.url = place, .size = 1, .identity = entryIdentity(files, place)});
  }
  for (const Path& place : {home / "Documents", home, home / ".local/share/icons", Path("/usr/bin"),
                            home / ".config/other", home / ".local"}) {
    app.parts.push_back({.path = place, .identity = entryIdentity(files, place)});
  }
  const auto before = snapshotOf(disk.path());
  EXPECT_TRUE(engine.remove(app, residuals).isGone);
  EXPECT_EQ(unexpectedSince(before, {app.appURL, app.parts[0].path, app.parts[1].path}), "");
  for (const Path& place : {home / "Documents", home / ".ssh", Path("/usr/share"), home}) {
    AppInfo odd = app;
    odd.appURL = place;
    odd.identity = entryIdentity(files, place);
    odd.parts.clear();
    EXPECT_FALSE(engine.remove(odd, residuals).isGone) << place;
  }
  EXPECT_EQ(unexpectedSince(before, {app.appURL, app.parts[0].path, app.parts[1].path}), "");
}

}  // namespace
}  // namespace klarvik
