"""The first run on a home that has never seen the program, from its first page to the first clean, and
the start after it."""

from pointer import Pointer, each_test_by_itself
from process_test import ProcessTest


class FirstRun(ProcessTest):
    def setUp(self):
        super().setUp()
        self.home.forget_preferences()
        self.pointer = Pointer(self.desktop)

    def go_to_the_last_page(self, klarvik):
        self.pointer.click(klarvik, "Continue")
        self.wait_for(klarvik, "Ready when you are")

    def wait_for(self, klarvik, name):
        klarvik.wait_until(lambda: self.pointer.shows(klarvik, name), f"'{name}' on the screen")

    def size_of_the_window(self, klarvik):
        return self.desktop.geometry_of(klarvik.wait_for_window())[2:]

    def test_leads_from_the_first_page_to_the_first_clean_and_is_not_shown_again(self):
        cache = self.home.path / ".cache/org.gnome.first-run"
        cache.mkdir(parents=True)
        (cache / "data").write_bytes(b"junk" * 500_000)

        self.skip_where_a_clean_would_take_more()
        klarvik = self.start()
        self.wait_for(klarvik, "Klarvik finds what file managers hide")
        self.assertEqual(self.size_of_the_window(klarvik), (520, 560))
        self.go_to_the_last_page(klarvik)
        self.assertEqual(self.home.scans(), [])
        self.assertNotIn("onboarding_complete", self.home.preferences())

        self.pointer.click(klarvik, "Run first scan")
        klarvik.wait_for_scan()
        klarvik.wait_until(
            lambda: self.size_of_the_window(klarvik) == (1080, 720), "The size of the main window"
        )
        self.assertIs(self.home.preferences()["onboarding_complete"], True)
        self.assertIs(self.home.preferences()["fda_prompt_shown"], True)

        self.pointer.click(klarvik, "Clean ")
        klarvik.wait_until(self.home.cleans, "The end of the clean")
        self.assertFalse(cache.exists())
        trashed = self.home.path / ".local/share/Trash/files/org.gnome.first-run/data"
        self.assertEqual(trashed.read_bytes(), b"junk" * 500_000)
        klarvik.quit()
        self.assertEqual(klarvik.said(), "")

        again = self.start()
        again.wait_for_scan()
        self.assertTrue(self.pointer.shows(again, "Smart Scan"))
        self.assertGreaterEqual(self.size_of_the_window(again), (920, 640))
        self.assertEqual(len(self.home.scans()), 2)
        self.assertEqual(len(self.home.cleans()), 1)

    def test_put_off_it_scans_nothing_and_is_not_shown_again(self):
        klarvik = self.start()
        self.go_to_the_last_page(klarvik)
        self.pointer.click(klarvik, "Keep Klarvik in the system tray")
        klarvik.wait_until(
            lambda: self.home.preferences().get("showMenuBar") is False, "The box on the disk"
        )
        self.assertNotIn("onboarding_complete", self.home.preferences())
        self.pointer.click(klarvik, "Later")
        self.wait_for(klarvik, "Scan")
        # A scan begins with the window at the latest: it would be running, or be on record.
        self.assertFalse(self.pointer.shows(klarvik, "Stop"))
        self.assertEqual(self.home.scans(), [])
        klarvik.quit()

        again = self.start()
        again.wait_for_scan()
        self.assertIs(self.home.preferences()["showMenuBar"], False)

    def test_quit_in_the_middle_begins_anew(self):
        klarvik = self.start()
        self.pointer.click(klarvik, "Continue")
        self.wait_for(klarvik, "Ready when you are")
        klarvik.quit()
        again = self.start()
        self.wait_for(again, "Klarvik finds what file managers hide")


if __name__ == "__main__":
    each_test_by_itself()
