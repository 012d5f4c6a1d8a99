"""Every engine answers on the Mac-shaped sample disk what it has always answered there.

The answers stand beside this file, one for each command. An answer that is meant to be another one
is written anew by `golden_answers_test.py --write`, and read before it is committed.
"""

import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent
PROGRAMS = pathlib.Path(os.environ["KLARVIK_BUILD"])
HOME = "/Users/ann"
# The tools of this machine are not asked, and texts are those of one language and time zone.
ENVIRONMENT = {"PATH": "/nowhere", "LC_ALL": "en_US.UTF-8", "TZ": "UTC", "HOME": "/nowhere"}

# What tells of this run or of this machine: identifiers, and figures of the volume that the disk
# lies on.
BLANKED = {"lastOpenedNanoseconds", "displayBuckets", "freeBytes", "freeBytesAtMeasurement", "totalBytes",
           "usedBytes", "availableBytes"}
# What depends on the order in which a file system lists a folder.
BLANKED_WHILE_RUNNING = {"currentPath", "currentName", "partialItems", "partialBytes", "count",
                         "groupsFound"}
REST_OF_THE_VOLUME = "macOS and everything else"

GUARDED = [
    "/", "//", "/.", "/..", "", "Users/ann", "/System/Library", "/Library/Caches/x", "/private/var/vm",
    "/Applications/Writer.app", "/Users", "/Users/ann", "/Users/ann/", "/Users/ann2/Library/Caches/x",
    "/Users/ann/Library", "/Users/ann/Library/Caches", "/Users/ann/Library/Caches/com.acme",
    "/Users/ann/Library/Caches/../../Documents", "/Users/ann/Library/Preferences/com.acme.plist",
    "/Users/ann/Library/Logs/app.log", "/Users/ann/Library/Mail", "/Users/ann/Library/Keychains/x",
    "/Users/ann/Documents", "/Users/ann/Documents/letter", "/Users/ann/.Trash", "/Users/ann/.Trash/x",
    "/Users/ann/.ssh/id_ed25519", "/Users/ann/Projects/app/build", "/Users/ann/Movies/film.mov",
    "/var/log", "/var/log/system.log", "/tmp/x", "/usr/local/bin/docker", "/opt/homebrew/Caches",
    "/.MobileBackups/2026-01-01-000000", "/home/ann/.cache/x", "/home/ann/.local/share/Trash/files/x",
]

COMMANDS = {
    "scan": (["scan"], ""),
    "system-data": (["system-data"], ""),
    "privacy": (["privacy"], ""),
    "composition": (["composition"], ""),
    "apps": (["apps"], ""),
    "residuals-of-writer": (["residuals", "com.acme.writer"], ""),
    "residuals-of-note": (["residuals", "com.note.app"], ""),
    "large": (["large", "1048576"], ""),
    "duplicates": (["duplicates", "4096", HOME + "/Documents", HOME + "/Downloads",
                    HOME + "/Pictures"], ""),
    "guard-general": (["guard", "general"], "\n".join(GUARDED)),
    "guard-picked-file": (["guard", "pickedFile"], "\n".join(GUARDED)),
    "guard-residual": (["guard", "residual", "com.acme", "writer"], "\n".join(GUARDED)),
}


def is_made_up(key, part):
    return key == "id" and re.fullmatch(r"[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}", part)


def size(part):
    return part.get("size", part.get("totalSize", part.get("reclaimableBytes")))


def in_order(parts):
    """As they are, but for things of one size, and for those that no size puts in order: these come
    as the file system lists them."""
    if not parts or not isinstance(parts[0], dict) or size(parts[0]) is None:
        return parts
    sizes = [size(part) for part in parts]
    is_by_size = sizes == sorted(sizes, reverse=True)
    return sorted(parts, key=lambda part: (-size(part) if is_by_size else 0,
                                           json.dumps(part, sort_keys=True)))


def comparable(value, is_running):
    """Without what differs from run to run."""
    if isinstance(value, dict):
        blanked = BLANKED | (BLANKED_WHILE_RUNNING if is_running else set())
        if value.get("label") == REST_OF_THE_VOLUME:
            blanked = blanked | {"bytes"}
        return {key: comparable(part, is_running) for key, part in value.items()
                if key not in blanked and not is_made_up(key, part)}
    if isinstance(value, list):
        return in_order([comparable(part, is_running) for part in value])
    return value


def answer(disk, command):
    arguments, entries = COMMANDS[command]
    run = subprocess.run(
        [PROGRAMS / "klarvik-probe", "--root", disk, "--home", HOME, *arguments], input=entries,
        env=ENVIRONMENT, capture_output=True, text=True, check=True)
    lines = []
    for line in run.stdout.splitlines():
        report = json.loads(line)
        is_running = report.get("event") in ("update", "progress")
        if is_running and not report.get("line", "Done").endswith(("...", "Done")):
            report["line"] = "the name of a file"
        line = json.dumps(comparable(report, is_running), ensure_ascii=False, sort_keys=True)
        # How often is told while a folder is read depends on its order as well.
        if not (is_running and lines and lines[-1] == line):
            lines.append(line)
    # Some versions of ICU write a narrow space before AM and PM.
    return "\n".join(lines).replace("\u202f", " ") + "\n"


class GoldenAnswers(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.disk = pathlib.Path(cls.folder.name) / "disk"
        subprocess.run([PROGRAMS / "klarvik-sample-disk", cls.disk], check=True,
                       stdout=subprocess.DEVNULL)

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def test_each_engine_answers_on_a_mac_shaped_disk_what_it_has_always_answered(self):
        for command in COMMANDS:
            with self.subTest(command):
                file = HERE / "answers" / (command + ".jsonl")
                now = answer(self.disk, command)
                if "--write" in sys.argv:
                    file.write_text(now, encoding="utf-8")
                self.assertEqual(file.read_text(encoding="utf-8"), now)

    def test_there_is_no_answer_without_a_question(self):
        answers = {file.stem for file in (HERE / "answers").iterdir()}
        self.assertEqual(answers, set(COMMANDS))


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0]])
