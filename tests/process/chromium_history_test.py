"""The history of a real Chromium: taken out of its profile while it is closed, and not before. The rest of the
profile stays to the byte, and Chromium goes on with it."""

import contextlib
import json
import os
import pathlib
import shutil
import sqlite3
import subprocess
import tempfile
import unittest

from process_test import BUILD, picture_of
from real_tools_test import HOME, Site, become_an_ordinary_user, live_on, run, site

ICON = '<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16"><rect width="16" height="16" fill="red"/></svg>'


class SigningSite(Site):
    """Signs in whoever opens a page."""

    def end_headers(self):
        self.send_header("Set-Cookie", "signed=in; Max-Age=864000")
        super().end_headers()


class Chromium:
    """One that runs without a window, and is told what to open."""

    def __init__(self, profile):
        self.received = b""
        self.asked = 0
        answers, told = os.pipe()
        asked, self.orders = os.pipe()

        def place_pipes():
            # Copied out of the way first: either may have one of the two numbers already.
            for handle, number in ((os.dup(asked), 3), (os.dup(told), 4)):
                os.dup2(handle, number)

        # Its sandbox needs rights that a container does not give.
        self.process = subprocess.Popen(  # pylint: disable=consider-using-with,subprocess-popen-preexec-fn
            ["chromium", "--headless", "--no-sandbox", "--disable-gpu", "--no-first-run", "--password-store=basic",
             f"--user-data-dir={profile}", "--remote-debugging-pipe", "about:blank"],
            preexec_fn=place_pipes, pass_fds=(3, 4, asked, told), stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL)
        os.close(asked)
        os.close(told)
        self.answers = answers
        target = self.ask("Target.createTarget", url="about:blank")["targetId"]
        self.session = self.ask("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]
        self.ask("Page.enable", self.session)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.ask("Browser.close")
        self.process.wait(60)
        os.close(self.answers)
        os.close(self.orders)

    def message(self):
        while b"\0" not in self.received:
            piece = os.read(self.answers, 65536)
            if not piece:
                raise AssertionError("Chromium has ended")
            self.received += piece
        message, self.received = self.received.split(b"\0", 1)
        return json.loads(message)

    def ask(self, method, session=None, **parameters):
        self.asked += 1
        order = {"id": self.asked, "method": method, "params": parameters}
        if session:
            order["sessionId"] = session
        os.write(self.orders, json.dumps(order).encode() + b"\0")
        while (answer := self.message()).get("id") != self.asked:
            pass
        return answer["result"]

    def visit(self, address):
        self.ask("Page.navigate", self.session, url=address)
        while self.message().get("method") != "Page.loadEventFired":
            pass


@unittest.skipUnless(shutil.which("chromium"), "Chromium is not installed")
class ChromiumHistory(unittest.TestCase):
    def setUp(self):
        with open(BUILD / "klarvik-probe", "rb") as built:
            become_an_ordinary_user()
            self.disk = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory(prefix="klarvik-chromium-")))
            self.probe = self.disk / "klarvik-probe"
            with open(self.probe, "wb") as own:
                shutil.copyfileobj(built, own)
        self.probe.chmod(0o700)
        self.home = live_on(self.disk)
        self.folder = self.home / ".config/chromium"
        self.profile = self.folder / "Default"
        served = self.disk / "srv"
        served.mkdir()
        (served / "icon.svg").write_text(ICON, encoding="utf-8")
        for name in ("visited", "later"):
            (served / f"{name}.html").write_text(f"<link rel=icon href=icon.svg><title>{name}</title>{name}",
                                                 encoding="utf-8")
        self.address = self.enterContext(site(served, SigningSite))

    def rows(self, database, question):
        with contextlib.closing(sqlite3.connect(self.profile / database)) as opened:
            return [row for (row,) in opened.execute(question)]

    def pages(self):
        return [url.rsplit("/", 1)[1] for url in self.rows("History", "SELECT url FROM urls")]

    def privacy(self, *command):
        lines = run(self.probe, "--root", self.disk, "--home", HOME, "privacy", *command).splitlines()
        events = [json.loads(line) for line in lines]
        items = next(each["items"] for each in events if each["event"] == "result")
        return {each["name"]: each for each in items if each["name"].endswith(" — Chromium")}

    def naming(self, text):
        """The files of the browser in which the text stands, without what it would open again at its next start."""
        return {str(path.relative_to(self.folder)) for path in self.folder.rglob("*")
                if path.is_file() and text in path.read_bytes() and path.parent.name != "Sessions"}

    def test_goes_while_chromium_is_closed_and_leaves_everything_else(self):
        with Chromium(self.folder) as browser:
            browser.visit(f"{self.address}/visited.html")
            told = self.privacy("clear")
            self.assertEqual({each["closeFirst"] for each in told.values()}, {"Chromium"})
        (self.profile / "Bookmarks").write_text('{"roots":{}}', encoding="utf-8")
        self.assertEqual(self.pages(), ["visited.html"])
        self.assertEqual(self.rows("Cookies", "SELECT name FROM cookies"), ["signed"])
        self.assertIn("Default/History", self.naming(b"visited.html"))

        before = picture_of(self.folder, [])
        found = self.privacy()
        self.assertLessEqual({"Browser History — Chromium", "Browser Cookies — Chromium"}, set(found))
        trails = {pathlib.Path(part).relative_to(f"{HOME}/.config/chromium")
                  for each in found.values() for part in each["parts"]}
        self.assertEqual([each["closeFirst"] for each in found.values()], [""] * len(found))
        self.privacy("clear")
        after = picture_of(self.folder, [])
        self.assertEqual({path for path in before if path not in after}, trails)
        self.assertEqual(after, {path: before[path] for path in after})
        self.assertEqual(self.naming(b"visited.html"), set())
        for name in ("Bookmarks", "Login Data", "Preferences", "Web Data"):
            self.assertIn(pathlib.Path("Default") / name, after)
        self.assertEqual(self.privacy(), {})

        with Chromium(self.folder) as browser:
            browser.visit(f"{self.address}/later.html")
        self.assertEqual(self.pages(), ["later.html"])
        self.assertEqual((self.profile / "Bookmarks").read_text(encoding="utf-8"), '{"roots":{}}')


if __name__ == "__main__":
    unittest.main(verbosity=2)
