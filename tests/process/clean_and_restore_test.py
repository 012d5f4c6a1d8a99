"""A clean and its undoing, with a pointer in the window, seen from the disk and from the desktop's own
Trash tools."""

import os
import unittest
import urllib.parse

from pointer import Pointer
from process_test import ProcessTest, picture_of


class CleanAndRestore(ProcessTest):
    def setUp(self):
        super().setUp()
        self.pointer = Pointer(self.desktop)
        self.add_caches_with_every_kind_of_entry()
        self.trash_folder = self.home.path / ".local/share/Trash"

    def add_caches_with_every_kind_of_entry(self):
        cache = self.home.path / ".cache/org.gnome.every kind"
        (cache / "deep/er").mkdir(parents=True)
        (cache / "deep/er/data").write_bytes(os.urandom(1_200_000))
        (cache / "deep/secret").write_text("for one reader", encoding="utf-8")
        (cache / "deep/secret").chmod(0o400)
        (cache / "tool").write_text("#!/bin/sh\n", encoding="utf-8")
        (cache / "tool").chmod(0o751)
        (cache / "link").symlink_to("/nowhere/at all")
        (cache / "100% ünï\ncode").write_text("odd name", encoding="utf-8")
        os.utime(cache / "tool", ns=(1_000_000_000_123_456_789, 1_100_000_000_987_654_321))

    def picture(self):
        own = [".config/klarvik", ".local/share/Trash", ".cache/fontconfig", ".cache/mesa_shader_cache"]
        return picture_of(self.home.path, [self.home.path / name for name in own])

    def trashed_paths(self):
        """Where the items that the Trash holds came from, by its own records."""
        paths = set()
        for record in (self.trash_folder / "info").glob("*.trashinfo"):
            lines = record.read_text(encoding="ascii").splitlines()
            encoded = next(line for line in lines if line.startswith("Path="))
            paths.add(urllib.parse.unquote(encoded.removeprefix("Path=")))
        return paths

    def test_moves_the_selected_items_to_the_trash_and_back(self):
        self.skip_where_a_clean_would_take_more()
        klarvik = self.start()
        klarvik.wait_for_scan()
        before = self.picture()

        self.pointer.click(klarvik, "Clean ")
        klarvik.wait_until(self.home.cleans, "The end of the clean")
        after = self.picture()
        gone = before.keys() - after.keys()
        self.assertIn("org.gnome.every kind", {path.name for path in gone})
        self.assertEqual(after, {path: before[path] for path in before if path not in gone})
        self.assert_what_is_gone_is_in_the_trash(gone)

        self.pointer.click(klarvik, "Restore")
        klarvik.wait_until(lambda: len(self.home.scans()) == 2, "The scan after the restore")
        self.assertEqual(self.picture(), before)
        self.assertEqual(self.trashed_paths(), set())
        self.assertEqual(list((self.trash_folder / "files").iterdir()), [])

    def assert_what_is_gone_is_in_the_trash(self, gone):
        home = self.home.path
        items = {str(home / path) for path in gone if path.parent not in gone}
        self.assertEqual(self.trashed_paths(), items)
        by_gio = self.desktop.run("gio", "trash", "--list").splitlines()
        self.assertEqual({line.split("\t")[1] for line in by_gio}, items)
        by_trash_cli = self.desktop.run("trash-list").splitlines()
        self.assertEqual({line.split(" ", 2)[2] for line in by_trash_cli}, items)


if __name__ == "__main__":
    unittest.main(verbosity=2)
