"""The status item on real trays, on none, and on one that comes and goes; and the program's life without a
window."""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

from pointer import Pointer, each_test_by_itself
from process_test import ProcessTest
from virtual_desktop import Failure, end, wait_until

HERE = pathlib.Path(__file__).parent


class MenuBarTest(ProcessTest):
    def setUp(self):
        super().setUp()
        self.pointer = Pointer(self.desktop)
        self.home.prefer({"backgroundScanOnLaunch": False})

    def start_beside(self, command, **options):
        """A program of the desktop, for the time of the test."""
        quiet = {"stdin": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        process = subprocess.Popen(command, env=self.desktop.environment, **quiet, **options)
        self.addCleanup(end, process)
        return process

    def open_windows(self, klarvik):
        """Those that a user would call windows, by their size."""
        found = []
        for window in self.desktop.windows_of(klarvik.process):
            geometry = self.desktop.geometry_of(window)
            if geometry is None:
                continue
            _, _, width, height = geometry
            if width >= 250 and height >= 100:
                found.append((window, width, height))
        return found

    def main_windows(self, klarvik):
        return [window for window, width, _ in self.open_windows(klarvik) if width > 600]

    def popovers(self, klarvik):
        return [window for window, width, _ in self.open_windows(klarvik) if width == 260]

    def wait_for_main_window(self, klarvik):
        return klarvik.wait_until(lambda: self.main_windows(klarvik), "The main window")[0]

    def close(self, window):
        self.desktop.run("xdotool", "windowactivate", "--sync", window, "key", "alt+F4")

    def close_main_window(self, klarvik):
        self.close(self.wait_for_main_window(klarvik))
        klarvik.wait_until(lambda: not self.main_windows(klarvik), "The end of the window")

    def assert_closing_ends_it(self, klarvik):
        self.close(self.wait_for_main_window(klarvik))
        self.assertEqual(klarvik.process.wait(60), 0, klarvik.said())


class WithoutATray(MenuBarTest):
    def test_the_program_works_all_the_same_and_closing_the_window_ends_it(self):
        klarvik = self.start()
        self.pointer.click(klarvik, "Duplicates")
        self.pointer.click(klarvik, "Smart Scan")
        self.assert_closing_ends_it(klarvik)
        self.assertEqual(klarvik.said(), "")


class OnATrayThatEmbedsIcons(MenuBarTest):
    def setUp(self):
        super().setUp()
        self.tray = self.start_tray()

    def start_tray(self):
        options = "--edge top --align right --widthtype request --height 28 --SetPartialStrut true"
        return self.start_beside(["trayer", *options.split()], stdout=subprocess.DEVNULL)

    def icon_place(self):
        """The middle of the icon in the tray; the tray has no other."""
        for window in self.desktop.ask("search", "--onlyvisible", "--class", "trayer").split():
            shape = self.desktop.run("xwininfo", "-id", window, "-tree", "-stats")
            icon = re.search(r'"[Kk]larvik".*?(\d+)x(\d+)\+-?\d+\+-?\d+ +\+(\d+)\+(\d+)', shape)
            if icon:
                width, height, x, y = map(int, icon.groups())
                return x + width // 2, y + height // 2
        return None

    def press_icon(self, klarvik, button="1"):
        x, y = klarvik.wait_until(self.icon_place, "The icon in the tray")
        self.desktop.run("xdotool", "mousemove", "--sync", str(x), str(y), "click", button)
        return x, y

    def open_popover(self, klarvik):
        """Presses again where the tray still moved its icon at the first press."""
        for _ in range(6):
            self.press_icon(klarvik)
            try:
                return wait_until(lambda: self.popovers(klarvik), "The popover", seconds=5)[0]
            except Failure:
                continue
        raise Failure("The popover did not come at any of six presses.")

    def wait_until_popover_is_closed(self, klarvik):
        klarvik.wait_until(lambda: not self.popovers(klarvik), "The end of the popover")

    def test_the_icon_opens_the_popover_near_itself_and_closes_it_again(self):
        klarvik = self.start()
        popover = self.open_popover(klarvik)
        x, y, _, _ = self.desktop.geometry_of(popover)
        self.assertEqual(x, self.desktop.WIDTH - 260)
        self.assertTrue(20 <= y <= 60, y)
        self.press_icon(klarvik)
        self.wait_until_popover_is_closed(klarvik)
        self.open_popover(klarvik)

    def test_a_press_outside_and_escape_close_the_popover(self):
        klarvik = self.start()
        self.open_popover(klarvik)
        self.desktop.run("xdotool", "mousemove", "--sync", "100", "800", "click", "1")
        self.wait_until_popover_is_closed(klarvik)
        popover = self.open_popover(klarvik)
        self.desktop.run("xdotool", "windowfocus", "--sync", popover, "key", "Escape")
        self.wait_until_popover_is_closed(klarvik)

    def test_the_closed_window_comes_back_with_its_panes_as_they_were(self):
        klarvik = self.start()
        self.pointer.click(klarvik, "Duplicates")
        klarvik.wait_until(lambda: self.shows_duplicates(klarvik), "The pane")
        klarvik.wait_until(self.icon_place, "The icon in the tray")
        self.close_main_window(klarvik)
        self.open_popover(klarvik)
        self.pointer.click(klarvik, "Open Klarvik")
        self.wait_for_main_window(klarvik)
        self.wait_until_popover_is_closed(klarvik)
        klarvik.wait_until(lambda: self.shows_duplicates(klarvik), "The same pane")

    def shows_duplicates(self, klarvik):
        return self.pointer.can_press(klarvik, "Add a folder")

    def test_a_tray_that_goes_while_no_window_is_open_brings_the_window_back(self):
        klarvik = self.start()
        klarvik.wait_until(self.icon_place, "The icon in the tray")
        self.close_main_window(klarvik)
        end(self.tray)
        self.wait_for_main_window(klarvik)
        self.tray = self.start_tray()
        klarvik.wait_until(self.icon_place, "The icon in the new tray")
        self.close_main_window(klarvik)
        self.open_popover(klarvik)
        end(self.tray)
        self.assert_closing_ends_it(klarvik)

    def test_the_preference_is_followed_when_it_is_edited_by_hand(self):
        klarvik = self.start()
        klarvik.wait_until(self.icon_place, "The icon in the tray")
        self.home.prefer({"showMenuBar": False})
        klarvik.wait_until(lambda: not self.icon_place(), "The end of the icon")
        self.home.prefer({"showMenuBar": "garbage"})
        klarvik.wait_until(self.icon_place, "The icon again")
        self.close_main_window(klarvik)
        self.home.prefer({"showMenuBar": False})
        self.assert_closing_ends_it(klarvik)

    def test_quit_ends_the_program_also_without_a_window(self):
        klarvik = self.start()
        klarvik.wait_until(self.icon_place, "The icon in the tray")
        self.close_main_window(klarvik)
        self.open_popover(klarvik)
        self.pointer.click(klarvik, "Quit")
        self.assertEqual(klarvik.process.wait(60), 0, klarvik.said())
        self.assertEqual(klarvik.said(), "")


class OnAPanelThatShowsNotifiers(MenuBarTest):
    def start_panel(self):
        self.registered = tempfile.TemporaryFile("w+", encoding="utf-8")
        self.addCleanup(self.registered.close)
        command = [sys.executable, str(HERE / "notifier_host.py")]
        return self.start_beside(command, stdout=self.registered)

    def item(self, klarvik):
        """The address of what has registered itself with the panel that was started last."""
        return klarvik.wait_until(self.first_registered, "An item on the panel")

    def first_registered(self):
        self.registered.seek(0)
        return self.registered.readline().strip()

    def test_a_panel_colours_the_icon_where_the_theme_has_it(self):
        icons = self.home.path / ".local/share/icons/hicolor"
        apps = icons / "scalable/apps"
        apps.mkdir(parents=True, exist_ok=True)
        shutil.copy("/usr/share/icons/hicolor/index.theme", icons)
        shutil.copy(HERE.parents[1] / "packaging/klarvik-symbolic.svg", apps)
        self.start_panel()
        klarvik = self.start()
        self.assertEqual(self.property(self.item(klarvik), "IconName"), "klarvik-symbolic")

    def property(self, item, name):
        told = self.call(
            item, "/StatusNotifierItem", "org.freedesktop.DBus.Properties.Get",
            "org.kde.StatusNotifierItem", name,
        )
        return re.search(r"'(.*)'", told).group(1)

    def call(self, item, path, method, *arguments):
        target = ["--dest", item, "--object-path", path, "--method", method]
        return self.desktop.run("gdbus", "call", "--session", *target, *arguments)

    def menu(self, item):
        everything = ["0", "9", "[]"]
        return self.call(item, "/MenuBar", "com.canonical.dbusmenu.GetLayout", *everything)

    def labels(self, item):
        return re.findall(r"'label': <'([^']*)'>, 'visible': <true>", self.menu(item))

    def take(self, item, label):
        layout = self.menu(item)
        number = re.search(r"\((\d+), \{[^{}]*'label': <'%s'>" % re.escape(label), layout)[1]
        method = "com.canonical.dbusmenu.Event"
        event = ["--method", method, number, "clicked", "<0>", "0"]
        # A program that is told to quit may have ended before it has answered.
        subprocess.run(
            ["gdbus", "call", "--session", "--dest", item, "--object-path", "/MenuBar", *event],
            env=self.desktop.environment, capture_output=True, check=False,
        )  # fmt: skip

    def test_a_panel_that_starts_after_the_program_gets_the_item_with_every_action(self):
        klarvik = self.start()
        self.wait_for_main_window(klarvik)
        self.start_panel()
        item = self.item(klarvik)
        scan, trash, *rest = self.labels(item)
        self.assertEqual([scan, *rest], ["Scan Now", "Open Klarvik", "Preferences", "Quit"])
        self.assertIn("Trash", trash)

        activate = ["/StatusNotifierItem", "org.kde.StatusNotifierItem.Activate", "0", "0"]
        self.call(item, *activate)
        klarvik.wait_until(lambda: self.popovers(klarvik), "The popover")
        # While it is open it takes the keys that are to close the window.
        self.call(item, *activate)
        klarvik.wait_until(lambda: not self.popovers(klarvik), "The end of the popover")
        self.close_main_window(klarvik)
        self.take(item, "Open Klarvik")
        self.wait_for_main_window(klarvik)

    def test_a_panel_that_crashes_while_no_window_is_open_brings_the_window_back(self):
        panel = self.start_panel()
        klarvik = self.start()
        self.item(klarvik)
        self.close_main_window(klarvik)
        panel.kill()
        self.wait_for_main_window(klarvik)
        self.start_panel()
        item = self.item(klarvik)
        self.close_main_window(klarvik)
        self.take(item, "Quit")
        self.assertEqual(klarvik.process.wait(60), 0, klarvik.said())


if __name__ == "__main__":
    each_test_by_itself()
