"""The language of the desktop is that of the program, and a history is read in every language."""

from pointer import Pointer, each_test_by_itself
from process_test import ProcessTest


class Language(ProcessTest):
    def setUp(self):
        super().setUp()
        self.pointer = Pointer(self.desktop)

    def start_in(self, **environment):
        for name in ("LANGUAGE", "LC_ALL", "LC_MESSAGES"):
            self.desktop.environment.pop(name, None)
        self.desktop.environment.update({"LANG": "C.UTF-8", **environment})
        return self.start()

    def assert_says(self, klarvik, text, other):
        klarvik.wait_until(lambda: self.pointer.shows(klarvik, text), f"'{text}' on the screen")
        self.assertFalse(self.pointer.shows(klarvik, other))
        klarvik.quit()

    def test_the_environment_chooses_it(self):
        german = ("Speicher", "Storage")
        english = german[::-1]
        self.assert_says(self.start_in(LANGUAGE="de"), *german)
        self.assert_says(self.start_in(LANG="de_DE.UTF-8"), *german)
        self.assert_says(self.start_in(LANG="de_AT.UTF-8", LANGUAGE="fr:de"), *german)
        self.assert_says(self.start_in(LANG="de_DE.UTF-8", LANGUAGE="en:de"), *english)
        self.assert_says(self.start_in(LANG="fr_FR.UTF-8"), *english)
        self.assert_says(self.start_in(), *english)

    def test_what_one_language_has_stored_the_other_reads(self):
        german = self.start_in(LANGUAGE="de")
        first = german.wait_for_scan()
        german.quit()
        english = self.start_in()
        second = english.wait_for_scan()
        english.quit()
        self.assertEqual(first["categories"].keys(), second["categories"].keys())
        self.assertIn("Package Caches", first["categories"])
        self.assertEqual(len(self.home.scans()), 2)


if __name__ == "__main__":
    each_test_by_itself()
