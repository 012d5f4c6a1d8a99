"""Each setting, changed with a pointer in its window: what it does to the disk, now and after a
restart."""

import shutil
import subprocess

from pointer import Pointer, each_test_by_itself
from process_test import BUILD, ProcessTest
from virtual_desktop import Klarvik, wait_until

DEVELOPER_CATEGORIES = {"Build Artifacts", "Package Caches", "Toolchains & Stores"}


class Settings(ProcessTest):
    def setUp(self):
        super().setUp()
        self.pointer = Pointer(self.desktop)

    def open_settings(self, klarvik):
        main_window = klarvik.wait_for_window()
        self.pointer.click(klarvik, "Settings")
        klarvik.wait_until(
            lambda: self.pointer.shows(klarvik, "Launch at login"), "The settings on the screen"
        )
        klarvik.wait_until(
            lambda: self.desktop.active_window() not in (None, main_window), "The settings in front"
        )

    def switch_off(self, klarvik, title, key):
        self.open_settings(klarvik)
        self.pointer.click(klarvik, title)
        klarvik.wait_until(lambda: self.home.preferences().get(key) is False, f"'{key}' on the disk")
        self.desktop.run("xdotool", "key", "Escape")
        klarvik.wait_until(
            lambda: not self.pointer.shows(klarvik, "Launch at login"), "The end of the settings"
        )

    def test_without_the_trash_a_confirmed_clean_removes_outright(self):
        cache = self.home.path / ".cache/org.gnome.outright"
        cache.mkdir(parents=True)
        (cache / "data").write_bytes(b"junk" * 500_000)
        klarvik = self.start()
        klarvik.wait_for_scan()
        self.switch_off(klarvik, "Move to Trash instead of deleting", "useTrash")

        self.pointer.click(klarvik, "Clean ")
        klarvik.wait_until(self.home.cleans, "The end of the clean")
        self.assertFalse(cache.exists())
        files = self.home.path / ".local/share/Trash/files"
        self.assertFalse((files / "org.gnome.outright").exists())
        klarvik.quit()
        self.start().wait_for_scan()
        self.assertIs(self.home.preferences()["useTrash"], False)

    def test_without_developer_caches_their_categories_stop_appearing(self):
        klarvik = self.start()
        first = klarvik.wait_for_scan()
        self.assertTrue(DEVELOPER_CATEGORIES & first["categories"].keys())
        self.switch_off(
            klarvik, "Include developer caches (builds, packages, containers)", "includeDeveloperJunk"
        )
        klarvik.quit()
        second = self.start().wait_for_scan()
        self.assertFalse(DEVELOPER_CATEGORIES & second["categories"].keys())
        self.assertTrue(second["categories"])

    def test_without_measuring_at_the_start_nothing_is_scanned(self):
        klarvik = self.start()
        klarvik.wait_for_scan()
        self.switch_off(
            klarvik, "Measure every tool when Klarvik opens", "backgroundScanOnLaunch"
        )
        klarvik.quit()
        again = self.start()
        again.wait_until(lambda: self.pointer.shows(again, "Scan"), "The window's content")
        # A scan begins with the window: it would be running, or be on record.
        self.assertFalse(self.pointer.shows(again, "Stop"))
        self.assertEqual(len(self.home.scans()), 1)

    def test_the_menu_bar_box_is_kept(self):
        klarvik = self.start()
        klarvik.wait_for_scan()
        self.switch_off(klarvik, "Show in the system tray", "showMenuBar")
        klarvik.quit()
        again = self.start()
        again.wait_for_window()
        self.assertIs(self.home.preferences()["showMenuBar"], False)

    def test_a_copy_that_was_only_built_cannot_be_started_at_login(self):
        klarvik = self.start()
        self.open_settings(klarvik)
        klarvik.wait_until(
            lambda: self.pointer.shows(klarvik, "Unavailable until Klarvik is installed"), "The note"
        )
        self.pointer.click(klarvik, "Launch at login")
        self.assertEqual(list(self.home.path.glob(".config/autostart/*larvik*")), [])

    def test_onboarding_comes_back_at_the_next_start_and_not_before(self):
        klarvik = self.start()
        klarvik.wait_for_scan()
        self.open_settings(klarvik)
        # It is the last thing on the page, and may be below its lower edge.
        self.desktop.run("xdotool", "key", "shift+Tab")
        self.pointer.click(klarvik, "Show onboarding again")
        klarvik.wait_until(
            lambda: "onboarding_complete" not in self.home.preferences(), "The key's removal"
        )
        self.assertTrue(self.pointer.shows(klarvik, "Smart Scan"))
        klarvik.quit()
        again = self.start()
        again.wait_until(
            lambda: self.pointer.shows(again, "Klarvik finds what file managers hide"),
            "The onboarding",
        )


class LaunchAtLogin(ProcessTest):
    """An installed copy of the program, in a folder whose name needs every care."""

    def setUp(self):
        super().setUp()
        self.pointer = Pointer(self.desktop)
        self.entry = self.home.path / ".config/autostart/klarvik.desktop"
        self.prefix = self.disk / 'opt/My "own" $HOME `dir` \\'
        self.install()

    def install(self):
        (self.prefix / "bin").mkdir(parents=True)
        shutil.copy(BUILD / "klarvik", self.prefix / "bin/klarvik")
        entries = self.prefix / "share/applications"
        entries.mkdir(parents=True)
        (entries / "klarvik.desktop").write_text("[Desktop Entry]\n", encoding="utf-8")

    def test_writes_an_entry_that_really_starts_the_program(self):
        klarvik = self.enterContext(Klarvik(self.desktop, self.home, self.prefix / "bin"))
        klarvik.wait_for_scan()
        self.pointer.click(klarvik, "Settings")
        self.pointer.click(klarvik, "Launch at login")
        klarvik.wait_until(self.entry.exists, "The autostart entry")
        subprocess.run(["desktop-file-validate", self.entry], check=True)
        klarvik.quit()

        self.addCleanup(self.end_what_runs)
        # What it starts would hold a pipe open.
        quiet = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        command = ["gio", "launch", self.entry]
        subprocess.run(command, env=self.desktop.environment, check=True, **quiet)
        wait_until(self.running, "The start by the entry")
        wait_until(lambda: len(self.home.scans()) == 2, "The scan of what was started")

    def test_the_box_takes_the_entry_away_again(self):
        klarvik = self.enterContext(Klarvik(self.desktop, self.home, self.prefix / "bin"))
        self.pointer.click(klarvik, "Settings")
        self.pointer.click(klarvik, "Launch at login")
        klarvik.wait_until(self.entry.exists, "The autostart entry")
        self.pointer.click(klarvik, "Launch at login")
        klarvik.wait_until(lambda: not self.entry.exists(), "The end of the entry")


if __name__ == "__main__":
    each_test_by_itself()
