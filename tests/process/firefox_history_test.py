"""The history of a real Firefox: taken out of its profile while it is closed, and not before. The rest of the
profile stays to the byte, and Firefox goes on with it."""

import json
import pathlib
import shutil
import sqlite3
import subprocess
import tempfile
import threading
import unittest

from process_test import BUILD, picture_of
from virtual_desktop import wait_until
from real_tools_test import HOME, Site, become_an_ordinary_user, live_on, run, site

DATABASES = {"places.sqlite", "favicons.sqlite"}


class WatchedSite(Site):
    """Tells when a page is opened that is not left again."""

    is_open = threading.Event()

    def do_GET(self):
        super().do_GET()
        if self.path == "/open.html":
            self.is_open.set()


@unittest.skipUnless(shutil.which("firefox-esr"), "Firefox is not installed")
class FirefoxHistory(unittest.TestCase):
    def setUp(self):
        with open(BUILD / "klarvik-probe", "rb") as built:
            become_an_ordinary_user()
            self.disk = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory(prefix="klarvik-firefox-")))
            self.probe = self.disk / "klarvik-probe"
            with open(self.probe, "wb") as own:
                shutil.copyfileobj(built, own)
        self.probe.chmod(0o700)
        self.home = live_on(self.disk)
        folder = self.disk / "srv"
        folder.mkdir()
        self.address = self.enterContext(site(folder, WatchedSite))
        for name in ("kept", "visited", "open", "later"):
            (folder / f"{name}.html").write_text(f"<title>{name}</title>{name}", encoding="utf-8")

    def visit(self, page):
        run("firefox-esr", "--headless", "--screenshot", self.disk / "page.png", f"{self.address}/{page}.html")

    def profile(self):
        found = list(self.home.glob(".mozilla/firefox/*/places.sqlite")) + \
            list(self.home.glob(".config/mozilla/firefox/*/places.sqlite"))
        self.assertEqual(len(found), 1)
        return found[0].parent

    def ask(self, question, *values):
        with sqlite3.connect(self.profile() / "places.sqlite") as database:
            rows = database.execute(question, values).fetchall()
        database.close()
        return rows

    def mark(self, page):
        self.ask("INSERT INTO moz_bookmarks (type, fk, parent, position, title, guid) SELECT 1, id, 3, 99, "
                 "'My page', 'abcdefghijkl' FROM moz_places WHERE url LIKE ?", f"%/{page}.html")
        self.ask("UPDATE moz_places SET foreign_count = foreign_count + 1 WHERE url LIKE ?", f"%/{page}.html")

    def pages(self):
        return {url.rsplit("/", 1)[1] for (url,) in self.ask("SELECT url FROM moz_places WHERE url LIKE ?",
                                                             f"{self.address}%")}

    def privacy(self, *command):
        lines = run(self.probe, "--root", self.disk, "--home", HOME, "privacy", *command).splitlines()
        events = [json.loads(line) for line in lines]
        items = next(each["items"] for each in events if each["event"] == "result")
        return [each for each in items if each["name"] == "Browser History — Firefox"]

    def picture(self):
        """Without the databases of the history, the caches, and the cookies, which go as well."""
        profile = self.profile()
        own = [profile / name for name in DATABASES] + list(profile.glob("cookies.sqlite*"))
        logs = [profile / f"{name}-{ending}" for name in DATABASES for ending in ("wal", "shm")]
        return picture_of(profile, own + logs)

    def test_goes_while_firefox_is_closed_and_leaves_everything_else(self):
        self.visit("kept")
        self.visit("visited")
        self.mark("kept")
        (self.profile() / "logins.json").write_text('{"logins":[]}', encoding="utf-8")
        self.assertEqual(self.pages(), {"kept.html", "visited.html"})
        bookmarks = self.ask("SELECT * FROM moz_bookmarks ORDER BY id")

        with subprocess.Popen(["firefox-esr", "--headless", f"{self.address}/open.html"],
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as firefox:
            self.assertTrue(WatchedSite.is_open.wait(60), "Firefox has not started")
            told = self.privacy("clear")
            self.assertEqual([each["closeFirst"] for each in told], ["Firefox"])
            firefox.terminate()
        # Its own processes end a moment after it.
        wait_until(lambda: [each["closeFirst"] for each in self.privacy()] == [""], "The end of Firefox", 60)
        self.assertLessEqual({"kept.html", "visited.html"}, self.pages())

        before = self.picture()
        self.assertIn("key4.db", {path.name for path in before})
        found = self.privacy("clear")
        self.assertEqual([(each["closeFirst"], each["told"]) for each in found], [("", "")])
        self.assertGreaterEqual(found[0]["count"], 2)
        self.assertEqual(self.picture(), before)
        self.assertEqual(self.ask("SELECT * FROM moz_bookmarks ORDER BY id"), bookmarks)
        self.assertEqual(self.ask("SELECT * FROM moz_historyvisits"), [])
        self.assertEqual(self.pages(), {"kept.html"})
        self.assertEqual(self.ask("PRAGMA integrity_check"), [("ok",)])
        for name in DATABASES:
            self.assertNotIn(b"visited.html", (self.profile() / name).read_bytes())
        self.assertEqual(self.privacy(), [])

        self.visit("later")
        self.assertEqual(self.pages(), {"kept.html", "later.html"})
        self.assertEqual(self.ask("SELECT * FROM moz_bookmarks ORDER BY id"), bookmarks)


if __name__ == "__main__":
    unittest.main(verbosity=2)
