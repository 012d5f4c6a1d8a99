"""A clean that is killed half-way: every item is whole, in one place, and the next start tells the
truth."""

import os
import unittest

from pointer import Pointer
from process_test import ProcessTest, picture_of


class KilledClean(ProcessTest):
    ITEMS = 600

    def setUp(self):
        super().setUp()
        self.pointer = Pointer(self.desktop)
        self.trash_folder = self.home.path / ".local/share/Trash"
        self.caches = self.home.path / "Library/Caches"
        for number in range(self.ITEMS):
            cache = self.caches / f"com.example.cache-{number}"
            cache.mkdir()
            with open(cache / "data", "wb") as data:
                data.write(f"content of {number}".encode())
                os.posix_fallocate(data.fileno(), 0, 1_100_000)

    def content_of(self, folder):
        return {
            path.name: picture_of(path, [])
            for path in folder.glob("com.example.cache-*")
        }

    def test_leaves_every_item_whole_in_one_place(self):
        before = self.content_of(self.caches)
        klarvik = self.start()
        klarvik.wait_for_scan()
        self.pointer.click(klarvik, "Clean ")
        files = self.trash_folder / "files"
        while not (files.is_dir() and any(files.glob("com.example.cache-*"))):
            self.assertIsNone(klarvik.process.poll(), klarvik.said())
        klarvik.kill()

        kept, trashed = self.content_of(self.caches), self.content_of(files)
        self.assertEqual(kept | trashed, before)
        self.assertEqual(kept.keys() & trashed.keys(), set())
        records = {path.stem for path in (self.trash_folder / "info").glob("*.trashinfo")}
        self.assertLessEqual(trashed.keys(), records)
        self.assertLess(len(trashed), self.ITEMS, "the clean was over before the kill")

        again = self.start()
        found = again.wait_for_scan()
        self.assertGreaterEqual(found["categories"]["App Caches"], len(kept) * 1_100_000)
        self.assertEqual(self.home.cleans(), [])
        self.assertEqual(self.content_of(self.caches), kept)


if __name__ == "__main__":
    unittest.main(verbosity=2)
