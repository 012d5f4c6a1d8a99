"""docs/architecture.md has a line for every file of the folders it maps, and for no others."""

import pathlib
import re
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
MAPPED = ("src", "tests/support")


def named_files(text):
    """The files a map names: below a heading with a folder in backquotes, each list item opens with
    a name, or with several that differ in what stands in braces."""
    folder, files = None, []
    for line in text.splitlines():
        if heading := re.match(r"#+ .*`([^`]+?)/?`", line):
            folder = heading[1]
        elif line.startswith("#"):
            folder = None
        elif folder and (item := re.match(r"- `([^`]+)`", line)):
            stem, braces, rest = re.match(r"([^{]*)(?:\{([^}]*)\}(.*))?$", item[1]).groups()
            endings = braces.split(",") if braces else [""]
            files += [f"{folder}/{stem}{ending}{rest or ''}" for ending in endings]
    return files


def files_on_disk():
    return {
        path.relative_to(ROOT).as_posix()
        for folder in MAPPED
        for path in (ROOT / folder).rglob("*")
        if path.is_file() and path.name != "CMakeLists.txt"
    }


class TheMapOfTheHouse(unittest.TestCase):
    def setUp(self):
        self.named = named_files((ROOT / "docs/architecture.md").read_text(encoding="utf-8"))
        self.present = files_on_disk()

    def test_has_a_line_for_every_file(self):
        self.assertEqual(sorted(self.present - set(self.named)), [])

    def test_names_no_file_that_does_not_exist(self):
        self.assertEqual(sorted(set(self.named) - self.present), [])

    def test_names_no_file_twice(self):
        self.assertEqual(len(self.named), len(set(self.named)))


if __name__ == "__main__":
    sys.exit(unittest.main(verbosity=2))
