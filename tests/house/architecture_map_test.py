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


def files_on_disk(root):
    return {
        path.relative_to(root).as_posix()
        for folder in MAPPED
        for path in (root / folder).rglob("*")
        if path.is_file() and path.name != "CMakeLists.txt"
    }


def missing_from_map(text, present):
    return sorted(present - set(named_files(text)))


def only_on_map(text, present):
    return sorted(set(named_files(text)) - present)


class ReadingAMap(unittest.TestCase):
    MAP = "### `src/core`: rules\n- `guard.{h,cpp}`: refuses\n- `bytes.h`: sums\n## Rest\n- `no.h`\n"

    def test_names_one_file_for_each_ending_in_braces(self):
        self.assertEqual(
            named_files(self.MAP), ["src/core/guard.h", "src/core/guard.cpp", "src/core/bytes.h"]
        )

    def test_tells_a_file_that_the_map_leaves_out(self):
        present = {"src/core/guard.h", "src/core/new.h"}
        self.assertEqual(missing_from_map(self.MAP, present), ["src/core/new.h"])

    def test_tells_a_line_whose_file_is_gone(self):
        present = {"src/core/guard.h", "src/core/guard.cpp"}
        self.assertEqual(only_on_map(self.MAP, present), ["src/core/bytes.h"])


class TheMapOfTheHouse(unittest.TestCase):
    def setUp(self):
        self.text = (ROOT / "docs/architecture.md").read_text(encoding="utf-8")
        self.present = files_on_disk(ROOT)

    def test_has_a_line_for_every_file(self):
        self.assertEqual(missing_from_map(self.text, self.present), [])

    def test_names_no_file_that_does_not_exist(self):
        self.assertEqual(only_on_map(self.text, self.present), [])

    def test_names_no_file_twice(self):
        names = named_files(self.text)
        self.assertEqual(len(names), len(set(names)))


if __name__ == "__main__":
    sys.exit(unittest.main(verbosity=2))
