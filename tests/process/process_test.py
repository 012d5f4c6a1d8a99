"""What the tests of the built program share. `KLARVIK_BUILD` names the folder that the programs were built in."""

import hashlib
import json
import os
import pathlib
import signal
import stat
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.append(str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))

from virtual_desktop import Klarvik, SampleHome, VirtualDesktop  # noqa: E402

BUILD = pathlib.Path(os.environ["KLARVIK_BUILD"])


class ProcessTest(unittest.TestCase):
    """Has a desktop and a fresh sample home for each test."""

    def setUp(self):
        folder = self.enterContext(tempfile.TemporaryDirectory(prefix="klarvik-process-"))
        self.disk = pathlib.Path(folder)
        self.home = SampleHome(self.disk, BUILD)
        self.desktop = self.enterContext(VirtualDesktop(self.home.path))

    def running(self):
        """Every Klarvik over the home, whoever started it."""
        home = os.fsencode(f"HOME={self.home.path}")
        found = []
        for process in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                is_klarvik = pathlib.Path(os.readlink(process / "exe")).name == "klarvik"
                if is_klarvik and home in (process / "environ").read_bytes().split(b"\0"):
                    found.append(int(process.name))
            except OSError:  # It has just ended.
                continue
        return found

    def end_what_runs(self):
        for process in self.running():
            os.kill(process, signal.SIGKILL)

    def skip_where_a_clean_would_take_more(self):
        """The program looks at the machine's own root, where old temporary things may be safe to clean: no
        test takes them from whoever runs it."""
        home = str(self.home.path)
        scan = self.desktop.run(str(BUILD / "klarvik-probe"), "--root", "/", "--home", home, "scan")
        events = [json.loads(line) for line in scan.splitlines()]
        categories = next(each["categories"] for each in events if each["event"] == "result")
        safe = [each for each in categories if each["safety"] == "safe"]
        paths = [item["path"] for category in safe for item in category["items"]]
        if elsewhere := [path for path in paths if not path.startswith(home + "/")]:
            self.skipTest(f"A clean would take these along: {elsewhere}")

    def start(self):
        return self.enterContext(Klarvik(self.desktop, self.home, BUILD))


LARGE = 64 * 1024 * 1024


def picture_of(tree, leave_out):
    """Everything in `tree` by its path: kind, mode, time of the last change, size and content (not of
    large files, which are mostly holes). A folder's time is left out, for it changes with what
    happens to its children."""

    def look(path):
        status = path.lstat()
        if stat.S_ISLNK(status.st_mode):
            return ("link", os.readlink(path))
        if stat.S_ISDIR(status.st_mode):
            return ("folder", status.st_mode)
        if stat.S_ISREG(status.st_mode):
            small = status.st_size < LARGE
            content = hashlib.sha256(path.read_bytes()).hexdigest() if small else None
            return ("file", status.st_mode, status.st_mtime_ns, status.st_size, content)
        return ("other", status.st_mode)

    return {
        path.relative_to(tree): look(path)
        for path in tree.rglob("*")
        if not any(path.is_relative_to(left_out) for left_out in leave_out)
    }
