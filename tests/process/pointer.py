"""A user's hand on the running program: finds what can be pressed by the name that a screen reader
would say, and clicks there with the real pointer."""

import os
import subprocess
import sys
import unittest

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402


def unless_gone(look):
    """What `look` finds; None where what it looked at has just gone."""
    try:
        return look()
    except GLib.Error:
        return None


class Pointer:
    """Only one a process: the library below binds to the first message bus it meets. A file with
    several tests is run by `each_test_by_itself`."""

    def __init__(self, desktop):
        self._desktop = desktop
        self._aim = None
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
        """Moves there first, and presses at the next look: not while the window is still being laid out."""
        aim = unless_gone(lambda: self._place(klarvik, name))
        is_there = aim is not None and aim == self._aim
        self._aim = None if is_there else aim
        if is_there:
            self._desktop.run("xdotool", "click", "1")
        elif aim is not None:
            self._desktop.run("xdotool", "mousemove", "--window", *aim)
        return is_there

    def _place(self, klarvik, name):
        """The window of that button on the display, and the button's middle in it. None before the window
        manager has put the window there: the program tells of its content before."""
        button = self._find(klarvik, name, Atspi.StateType.SENSITIVE)
        frame = button
        while frame and frame.get_role() != Atspi.Role.FRAME:
            frame = frame.get_parent()
        if frame is None:
            return None
        outside = Atspi.Component.get_extents(frame, Atspi.CoordType.SCREEN)
        for window in self._desktop.windows_of(klarvik.process):
            geometry = self._desktop.geometry_of(window)
            if geometry is not None and geometry[2:] == (outside.width, outside.height):
                place = Atspi.Component.get_extents(button, Atspi.CoordType.SCREEN)
                x, y = place.x - outside.x, place.y - outside.y
                return window, str(x + place.width // 2), str(y + place.height // 2)
        return None

    def _find(self, klarvik, name, state):
        return unless_gone(lambda: self._search(self._application(klarvik), name, state))

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


def what_a_failing_test_says(name):
    """Nothing, where it does not fail."""
    run = subprocess.run([sys.executable, sys.argv[0], name], stderr=subprocess.PIPE, text=True)
    if run.returncode:
        return f"Failed: {name}\n{run.stderr}"
    print(run.stderr, file=sys.stderr, flush=True)
    return ""


def each_test_by_itself():
    """Runs every test of the program in a process of its own, or the one that is named to it."""
    if len(sys.argv) > 1:
        unittest.main(verbosity=2)
    cases = unittest.defaultTestLoader.loadTestsFromModule(sys.modules["__main__"])
    names = [test.id().removeprefix("__main__.") for case in cases for test in case]
    failed = [said for name in names if (said := what_a_failing_test_says(name))]
    sys.exit("\n".join(failed) if failed or not names else 0)
