"""A user's hand on the running program: finds what can be pressed by the name that a screen reader
would say, and clicks there with the real pointer."""

import os
import subprocess
import sys
import unittest

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402


class Pointer:
    """Only one a process: the library below binds to the first message bus it meets. A file with
    several tests is run by `each_test_by_itself`."""

    def __init__(self, desktop):
        self._desktop = desktop
        os.environ.update(desktop.environment)
        Atspi.init()

    def click(self, klarvik, name_begins_with):
        """Clicks the middle of the button of that name, once it is there and can be pressed."""
        klarvik.wait_until(
            lambda: self._click_now(klarvik, name_begins_with),
            f"A button '{name_begins_with}' that can be pressed",
        )

    def shows(self, klarvik, name_begins_with):
        return self._find(klarvik, name_begins_with, Atspi.StateType.SHOWING) is not None

    def can_press(self, klarvik, name_begins_with):
        return self._find(klarvik, name_begins_with, Atspi.StateType.SENSITIVE) is not None

    def _click_now(self, klarvik, name):
        button = self._find(klarvik, name, Atspi.StateType.SENSITIVE)
        if button is None:
            return False
        place = Atspi.Component.get_extents(button, Atspi.CoordType.SCREEN)
        x, y = place.x + place.width // 2, place.y + place.height // 2
        self._desktop.run("xdotool", "mousemove", "--sync", str(x), str(y), "click", "1")
        return True

    def _find(self, klarvik, name, state):
        try:
            return self._search(self._application(klarvik), name, state)
        except GLib.Error:  # What was looked at has just gone.
            return None

    def _application(self, klarvik):
        desktop = Atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(index)
            if child is not None and child.get_process_id() == klarvik.process.pid:
                child.set_cache_mask(Atspi.Cache.NONE)
                return child
        return None

    def _search(self, node, name, state):
        if node is None:
            return None
        if (node.get_name() or "").startswith(name) and self._is(node, state):
            return node
        for index in range(node.get_child_count()):
            if found := self._search(node.get_child_at_index(index), name, state):
                return found
        return None

    @staticmethod
    def _is(node, state):
        states = node.get_state_set()
        return states.contains(state) and states.contains(Atspi.StateType.SHOWING)


def each_test_by_itself():
    """Runs every test of the program in a process of its own, or the one that is named to it."""
    if len(sys.argv) > 1:
        unittest.main(verbosity=2)
    cases = unittest.defaultTestLoader.loadTestsFromModule(sys.modules["__main__"])
    names = [test.id().removeprefix("__main__.") for case in cases for test in case]
    failed = [
        name for name in names if subprocess.run([sys.executable, sys.argv[0], name]).returncode
    ]
    sys.exit(f"Failed: {', '.join(failed)}" if failed or not names else 0)
