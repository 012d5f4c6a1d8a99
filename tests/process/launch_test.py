"""The built program from its start to its end, as a user's session starts it."""

import json
import subprocess
import unittest

from process_test import BUILD, ProcessTest


class Launch(ProcessTest):
    def test_scans_by_itself_and_records_what_the_probe_finds_too(self):
        klarvik = self.start()
        klarvik.wait_for_window()
        recorded = klarvik.wait_for_scan()

        self.assertEqual(recorded["totalJunk"], sum(recorded["categories"].values()))
        self.assertEqual(
            self.without_the_machines_own(recorded["categories"]),
            self.without_the_machines_own(self.found_by_the_probe()),
        )
        self.assertEqual(klarvik.said(), "")

    def found_by_the_probe(self):
        probe = [str(BUILD / "klarvik-probe"), "--root", "/", "--home", str(self.home.path), "scan"]
        events = [json.loads(line) for line in self.desktop.run(*probe).splitlines()]
        result = next(event for event in events if event["event"] == "result")
        return {row["type"]: row["totalSize"] for row in result["categories"]}

    @staticmethod
    def without_the_machines_own(categories):
        """The logs of the machine that the test runs on count too, and grow meanwhile."""
        self_made = dict(categories)
        self_made.pop("System Logs")
        return self_made

    def test_after_a_restart_the_history_is_still_there(self):
        first = self.start()
        earlier = first.wait_for_scan()
        first.quit()

        second = self.start()
        second.wait_for_scan()
        self.assertEqual(len(self.home.scans()), 2)
        self.assertEqual(self.home.scans()[1], earlier)

    def test_a_termination_request_ends_it_at_once_and_cleanly(self):
        klarvik = self.start()
        klarvik.wait_for_window()
        klarvik.process.terminate()
        self.assertIn(klarvik.process.wait(20), (0, -15))
        self.assertIsNotNone(self.home.preferences())


class RefusedLaunch(ProcessTest):
    def outcome(self, **changes):
        environment = {**self.desktop.environment, **changes}
        environment = {name: value for name, value in environment.items() if value is not None}
        return subprocess.run(
            [BUILD / "klarvik"],
            env=environment,
            stdin=subprocess.DEVNULL,
            capture_output=True,
            text=True,
            timeout=60,
            check=False,
        )

    def assert_one_sentence_and_code_1(self, outcome):
        self.assertEqual(outcome.returncode, 1, outcome.stderr)
        self.assertRegex(outcome.stderr, r"\A[^\n]{10,}\.\n\Z")

    def test_without_a_display_it_says_so(self):
        outcome = self.outcome(DISPLAY=None, WAYLAND_DISPLAY=None)
        self.assert_one_sentence_and_code_1(outcome)
        self.assertIn("display", outcome.stderr)

    def test_with_a_display_that_does_not_answer_it_says_so(self):
        outcome = self.outcome(DISPLAY=":987")
        self.assert_one_sentence_and_code_1(outcome)

    def test_without_a_home_it_says_so(self):
        for home in ("", "/", "//", "some/folder"):
            with self.subTest(home=home):
                outcome = self.outcome(HOME=home)
                self.assert_one_sentence_and_code_1(outcome)
                self.assertIn("home", outcome.stderr.lower())


if __name__ == "__main__":
    unittest.main(verbosity=2)
