"""A clean that is killed half-way: every item is whole, in one place, and the next start tells the
truth."""

import os
import unittest

from pointer import Pointer
from process_test import ProcessTest, picture_of


class KilledClean(ProcessTest):
    ITEMS = 600
    ATTEMPTS = 5

    def setUp(self):
        super().setUp()
        self.pointer = Pointer(self.desktop)
        self.trash_folder = self.home.path / ".local/share/Trash"
        self.files = self.trash_folder / "files"
        self.caches = self.home.path / ".cache"
        for number in range(self.ITEMS):
            cache = self.caches / f"org.gnome.cache-{number}"
            cache.mkdir()
            with open(cache / "data", "wb") as data:
                data.write(f"content of {number}".encode())
                os.posix_fallocate(data.fileno(), 0, 1_100_000)

    def content_of(self, folder):
        return {
            path.name: picture_of(path, [])
            for path in folder.glob("org.gnome.cache-*")
        }

    def kill_as_soon_as_something_goes(self):
        klarvik = self.start()
        klarvik.wait_for_scan()
        self.pointer.click(klarvik, "Clean ")
        while not (self.files.is_dir() and any(self.files.glob("org.gnome.cache-*"))):
            self.assertIsNone(klarvik.process.poll(), klarvik.said())
        klarvik.kill()

    def put_everything_back(self):
        for item in self.files.glob("org.gnome.cache-*"):
            item.rename(self.caches / item.name)
        for record in (self.trash_folder / "info").glob("org.gnome.cache-*"):
            record.unlink()

    def test_leaves_every_item_whole_in_one_place(self):
        self.skip_where_a_clean_would_take_more()
        before = self.content_of(self.caches)
        for _ in range(self.ATTEMPTS):
            cleans = self.home.cleans()
            self.kill_as_soon_as_something_goes()
            kept, trashed = self.content_of(self.caches), self.content_of(self.files)
            self.assertEqual(kept | trashed, before)
            self.assertEqual(kept.keys() & trashed.keys(), set())
            records = {path.stem for path in (self.trash_folder / "info").glob("*.trashinfo")}
            self.assertLessEqual(trashed.keys(), records)
            if kept:
                break
            self.put_everything_back()
        self.assertTrue(kept, "each clean was over before the kill")

        again = self.start()
        found = again.wait_for_scan()
        self.assertGreaterEqual(found["categories"]["App Caches"], len(kept) * 1_100_000)
        self.assertEqual(self.home.cleans(), cleans)
        self.assertEqual(self.content_of(self.caches), kept)


if __name__ == "__main__":
    unittest.main(verbosity=2)
