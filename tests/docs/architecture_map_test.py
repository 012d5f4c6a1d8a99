"""docs/architecture.md has a row for every folder of the source, and names nothing that is not there."""

import pathlib
import re
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
MAPPED = ("src", "tests/support")


def folders_on_disk():
    """The folders that hold files of their own."""
    return {
        path.parent.relative_to(ROOT).as_posix()
        for folder in MAPPED
        for path in (ROOT / folder).rglob("*")
        if path.is_file() and path.name != "CMakeLists.txt"
    }


def rows(text):
    """The folder of each row of the table, and the files that its last column names."""
    for line in text.splitlines():
        if row := re.match(r"\| `([^`]+)` \|.*\|([^|]*)\|$", line):
            yield row[1], re.findall(r"`([^`]+)`", row[2])


class TheMapOfTheProject(unittest.TestCase):
    def setUp(self):
        self.text = (ROOT / "docs/architecture.md").read_text(encoding="utf-8")
        self.rows = list(rows(self.text))

    def test_has_one_row_for_every_folder(self):
        self.assertEqual(sorted(folder for folder, _ in self.rows), sorted(folders_on_disk()))

    def test_names_files_that_lie_in_their_folders(self):
        missing = [
            f"{folder}/{name}"
            for folder, files in self.rows
            for name in files
            if not (ROOT / folder / name).is_file()
        ]
        self.assertEqual(missing, [])

    def test_names_no_place_of_the_project_that_does_not_exist(self):
        named = set(re.findall(r"`((?:src|tests|docs|benchmarks|packaging)/[\w./]*)`", self.text))
        self.assertTrue(named)
        self.assertEqual(sorted(place for place in named if not (ROOT / place).exists()), [])


if __name__ == "__main__":
    sys.exit(unittest.main(verbosity=2))
