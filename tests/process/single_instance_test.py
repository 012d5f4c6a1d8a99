"""A start while the program runs already: the window of the running one comes to the front, and never do
two run over one home."""

import signal
import subprocess
import unittest

from process_test import BUILD, ProcessTest
from virtual_desktop import VirtualDesktop, end, wait_until


class SingleInstance(ProcessTest):
    def again(self, desktop=None):
        """A further start."""
        return subprocess.Popen(
            [BUILD / "klarvik"],
            env=(desktop or self.desktop).environment,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            text=True,
        )

    def assert_ends(self, process, code, sentence):
        with process:
            self.addCleanup(end, process)
            said = process.communicate(timeout=120)[0]
            self.assertEqual((process.returncode, said), (code, sentence))

    def is_in_front(self, window):
        return self.desktop.active_window() == window

    def test_fronts_the_window_of_the_first_and_ends_in_silence(self):
        first = self.start()
        window = first.wait_for_window()
        first.wait_until(lambda: self.is_in_front(window), "The window in front")
        self.desktop.run("xdotool", "windowminimize", "--sync", window)
        first.wait_until(lambda: not self.is_in_front(window), "The window out of the way")

        self.assert_ends(self.again(), 0, "")
        first.wait_until(lambda: self.is_in_front(window), "The window in front again")
        self.assertEqual(self.desktop.windows_of(first.process), [window])

    def test_of_several_starts_at_once_one_runs(self):
        starts = [self.again() for _ in range(3)]
        for start in starts:
            self.addCleanup(end, start)
        ended = self.wait_for_all_but_one(starts)
        self.assertEqual([start.returncode for start in ended], [0, 0])
        for start in starts:
            end(start)
            start.stdout.close()

    def wait_for_all_but_one(self, starts):
        def ended():
            return [start for start in starts if start.poll() is not None]

        wait_until(lambda: len(ended()) == len(starts) - 1, "The end of all starts but one")
        return ended()

    def test_starts_after_the_first_was_killed(self):
        first = self.start()
        first.wait_for_window()
        first.kill()
        second = self.start()
        second.wait_for_window()
        self.assertEqual(second.said(), "")

    def test_says_so_where_the_first_hangs(self):
        first = self.start()
        first.wait_for_scan()
        first.process.send_signal(signal.SIGSTOP)
        self.addCleanup(first.process.send_signal, signal.SIGCONT)
        self.assert_ends(
            self.again(), 1, "Klarvik is running already and does not answer. End that one first.\n"
        )

    def test_says_so_where_the_first_is_on_another_display(self):
        first = self.start()
        first.wait_for_window()
        with VirtualDesktop(self.home.path) as elsewhere:
            self.assert_ends(
                self.again(elsewhere), 1, "Klarvik is running already, on another display of yours.\n"
            )
        self.assertIsNone(first.process.poll())


if __name__ == "__main__":
    unittest.main(verbosity=2)
