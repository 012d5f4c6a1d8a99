"""Caches that the tools made themselves: what Klarvik finds of them, what a clean leaves, and how the
tools get on without them. An ordinary user runs all of it, in a home on a disk of its own."""

import base64
import contextlib
import functools
import http.server
import io
import json
import os
import pathlib
import pwd
import shutil
import subprocess
import sys
import tarfile
import tempfile
import threading
import unittest

from gi.repository import Gio, GLib

from process_test import BUILD, picture_of

HOME = "/home/ann"

# Where each tool keeps its cache, and the category that Klarvik shows it in.
CACHES = {
    ".npm/_cacache": "Package Caches",
    ".npm/_npx": "Package Caches",
    ".cache/pip": "Package Caches",
    ".cargo/git": "Package Caches",
    ".cache/ccache": "Package Caches",
    ".cache/thumbnails": "App Caches",
}
HAS_FIREFOX = shutil.which("firefox-esr") is not None  # not on every distribution
if HAS_FIREFOX:
    CACHES[".cache/mozilla/firefox/*.default-esr"] = "Browser Caches"
TRASHED_BEFORE = ".local/share/Trash/files/letter"

# More than the least that Klarvik shows of any of them, and so much that folders, which `du` counts
# as well, do not matter.
NOISE = 16_000_000


def become_an_ordinary_user():
    """For good: root may remove what an ordinary user may not, and browsers do not run as root."""
    if os.geteuid() == 0:
        nobody = pwd.getpwnam("nobody")
        os.setgroups([])
        os.setgid(nobody.pw_gid)
        os.setuid(nobody.pw_uid)


def live_on(disk):
    """Everything that is started from now on knows of that home only, and runs the tools of the machine,
    but for an npm that did not come with it."""
    npm = shutil.which("npm") or "/usr/bin/npm"
    home = disk / HOME[1:]
    home.mkdir(parents=True)
    for folder in ("tmp", "run"):
        (disk / folder).mkdir(mode=0o700)
    os.environ.clear()
    os.environ.update({
        "PATH": "/usr/local/bin:/usr/bin:/bin:" + os.path.dirname(npm),
        "LANG": "C.UTF-8",
        "HOME": str(home),
        "TMPDIR": str(disk / "tmp"),
        "XDG_RUNTIME_DIR": str(disk / "run"),
    })
    return home


def run(*command, folder=None):
    done = subprocess.run(command, cwd=folder, stdin=subprocess.DEVNULL, capture_output=True, text=True,
                          check=False)
    if done.returncode != 0:
        raise AssertionError(f"{command} failed:\n{done.stdout}{done.stderr}")
    return done.stdout


def allocated(folder):
    return int(run("du", "--summarize", "--block-size=1", folder).split()[0])


def write(folder, files):
    for name, content in files.items():
        path = folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)


def pack(archive, files):
    archive.parent.mkdir(parents=True, exist_ok=True)
    with tarfile.open(archive, "w:gz", compresslevel=1) as packed:
        for name, content in files.items():
            entry = tarfile.TarInfo(name)
            entry.size = len(content)
            entry.mode = 0o755
            packed.addfile(entry, io.BytesIO(content))


@contextlib.contextmanager
def message_bus():
    """With the services of the machine, which it starts when they are asked for."""
    bus = Gio.TestDBus.new(Gio.TestDBusFlags.NONE)
    bus.add_service_dir("/usr/share/dbus-1/services")
    bus.up()
    try:
        yield
    finally:
        bus.stop()


class Site(http.server.SimpleHTTPRequestHandler):
    """Serves files that may be kept."""

    def end_headers(self):
        self.send_header("Cache-Control", "max-age=86400")
        super().end_headers()

    def log_message(self, *_):
        pass


@contextlib.contextmanager
def site(folder, kind=Site):
    """The address that `folder` is served at."""
    handler = functools.partial(kind, directory=folder)
    with http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler) as server:
        thread = threading.Thread(target=server.serve_forever)
        thread.start()
        try:
            yield f"http://127.0.0.1:{server.server_port}"
        finally:
            server.shutdown()
            thread.join()


class Tools:
    """What a developer works with. Each use fills the cache of the tool when it is empty."""

    def __init__(self, work, site_folder, address):
        self._work = work
        self._address = address
        self._tarball = work / "noise.tgz"
        self._pictures = [work / f"picture-{number}.png" for number in range(40)]
        self._prepare_npm()
        self._prepare_pip(site_folder)
        self._prepare_cargo()
        self._prepare_ccache()
        self._prepare_pictures(site_folder)

    def use(self):
        self._use_npm()
        self._use_pip()
        self._use_cargo()
        self._use_ccache()
        if HAS_FIREFOX:
            self._use_firefox()
        self._use_thumbnailer()

    def _prepare_npm(self):
        about = {"name": "noise", "version": "1.0.0", "bin": {"noise": "noise.js"}}
        pack(self._tarball, {
            "package/package.json": json.dumps(about).encode(),
            "package/noise.js": b"#!/usr/bin/env node\nconsole.log('made some noise');\n",
            "package/noise": os.urandom(NOISE),
        })

    def _use_npm(self):
        run("npm", "cache", "add", self._tarball)
        run("npm", "exec", "--offline", "--yes", f"--package={self._tarball}", "--", "noise")

    def _prepare_pip(self, site_folder):
        setup = b"from setuptools import setup\n" \
                b"setup(name='noise', version='1.0', packages=['noise'], package_data={'noise': ['data']})\n"
        pack(site_folder / "index/noise/noise-1.0.tar.gz", {
            "noise-1.0/PKG-INFO": b"Metadata-Version: 2.1\nName: noise\nVersion: 1.0\n",
            "noise-1.0/setup.py": setup,
            "noise-1.0/noise/__init__.py": b"",
            "noise-1.0/noise/data": os.urandom(NOISE),
        })

    def _use_pip(self):
        """pip keeps what comes from a host that it trusts."""
        run(sys.executable, "-m", "pip", "wheel", "--no-build-isolation", "--trusted-host", "127.0.0.1",
            "--index-url", self._address + "/index", "--wheel-dir", self._work / "wheels", "noise")

    def _prepare_cargo(self):
        dependency = self._work / "noise"
        write(dependency, {
            "Cargo.toml": b'[package]\nname = "noise"\nversion = "1.0.0"\n',
            "src/lib.rs": b"",
            "data": os.urandom(NOISE),
        })
        run("git", "init", "--quiet", folder=dependency)
        run("git", "add", ".", folder=dependency)
        run("git", "-c", "user.name=Ann", "-c", "user.email=ann@localhost", "commit", "--quiet",
            "--message=Noise", folder=dependency)
        manifest = '[package]\nname = "project"\nversion = "1.0.0"\n\n' \
                   f'[dependencies]\nnoise = {{ git = "file://{dependency}" }}\n'
        write(self._work / "rust", {"Cargo.toml": manifest.encode(), "src/lib.rs": b""})

    def _use_cargo(self):
        run("cargo", "check", folder=self._work / "rust")

    def _prepare_ccache(self):
        for name in ("one", "two"):
            text = base64.b64encode(os.urandom(NOISE // 2))
            write(self._work, {f"{name}.c": b'const char noise[] = "' + text + b'";\n'})

    def _use_ccache(self):
        for name in ("one", "two"):
            run("ccache", "gcc", "-c", f"{name}.c", folder=self._work)

    def _prepare_pictures(self, site_folder):
        noise = ["xc:gray", "+noise", "Random"]
        run("convert", "-size", "2400x2400", *noise, site_folder / "large.png")
        (site_folder / "page.html").write_text("<img src=large.png>", encoding="utf-8")
        run("convert", "-size", "300x300", *noise, self._pictures[0])
        for picture in self._pictures[1:]:
            shutil.copy(self._pictures[0], picture)

    def _use_firefox(self):
        run("firefox-esr", "--headless", "--screenshot", self._work / "page.png",
            self._address + "/page.html")

    def _use_thumbnailer(self):
        """File managers ask over the message bus for the pictures that they show."""
        name = "org.freedesktop.thumbnails.Thumbnailer1"
        thumbnailer = Gio.DBusProxy.new_for_bus_sync(
            Gio.BusType.SESSION, Gio.DBusProxyFlags.NONE, None, name, "/" + name.replace(".", "/"), name)
        loop = GLib.MainLoop()
        thumbnailer.connect("g-signal",
                            lambda _proxy, _sender, signal, _values: signal == "Finished" and loop.quit())
        addresses = [picture.as_uri() for picture in self._pictures]
        types = ["image/png"] * len(addresses)
        asked = GLib.Variant("(asasssu)", (addresses, types, "large", "foreground", 0))
        thumbnailer.call_sync("Queue", asked, Gio.DBusCallFlags.NONE, -1)
        loop.run()


class RealTools(unittest.TestCase):
    def setUp(self):
        with open(BUILD / "klarvik-probe", "rb") as built:
            become_an_ordinary_user()
            folder = self.enterContext(tempfile.TemporaryDirectory(prefix="klarvik-tools-"))
            self.disk = pathlib.Path(folder)
            self.probe = self.disk / "klarvik-probe"
            with open(self.probe, "wb") as own:
                shutil.copyfileobj(built, own)
        self.probe.chmod(0o700)
        self.home = live_on(self.disk)
        self.enterContext(message_bus())
        site_folder = self.disk / "srv"
        address = self.enterContext(site(site_folder))
        self.tools = Tools(self.home / "Work", site_folder, address)

    def ask_klarvik(self, *command):
        """Klarvik sees no other disk: whatever else lies on the machine stays."""
        lines = run(self.probe, "--root", self.disk, "--home", HOME, *command).splitlines()
        return [json.loads(line) for line in lines]

    def safe_items(self):
        """The size and the category of each, by its place."""
        result = next(each for each in self.ask_klarvik("scan") if each["event"] == "result")
        return {
            self.place(item["path"]): (item["size"], category["type"])
            for category in result["categories"] if category["safety"] == "safe"
            for item in category["items"]
        }

    def place(self, path):
        return self.disk / path[1:]

    def caches(self):
        """The category of each cache that there is, by its place."""
        return {place: category for cache, category in CACHES.items() for place in self.home.glob(cache)}

    def assert_agree(self, one, other):
        self.assertAlmostEqual(one, other, delta=max(one, other) / 100)

    def trash_a_letter(self):
        letter = self.home / "letter"
        letter.write_text("Dear Bob", encoding="utf-8")
        run("gio", "trash", letter)
        self.assertTrue((self.home / TRASHED_BEFORE).exists())

    def assert_all_are_found(self):
        caches = self.caches()
        self.assertEqual(len(caches), len(CACHES))
        found = self.safe_items()
        for place, category in caches.items():
            with self.subTest(place=place):
                self.assertIn(place, found)
                self.assertEqual(found[place][1], category)
                self.assert_agree(found[place][0], allocated(place))
        return found

    def test_are_found_removed_and_filled_again(self):
        self.tools.use()
        self.trash_a_letter()
        found = self.assert_all_are_found()
        self.assertEqual(found.keys(), {*self.caches(), self.home / TRASHED_BEFORE})

        # The desktop may write its own notes on files at any time.
        own = [self.home / ".local/share"]
        before = picture_of(self.home, [*own, *found])
        self.assertIn("places.sqlite", {path.name for path in before})
        outcomes = [each for each in self.ask_klarvik("clean", "--only-safe") if each["event"] == "outcome"]
        self.assertEqual(picture_of(self.home, own), before)
        self.assertEqual({self.place(outcome["original"]) for outcome in outcomes}, found.keys())
        self.assert_agree(sum(outcome["reclaimed"] for outcome in outcomes),
                          sum(size for size, _ in found.values()))
        trashed = {line.split("\t")[1] for line in run("gio", "trash", "--list").splitlines()}
        self.assertEqual(trashed, {str(place) for place in found if place.name != "letter"})
        self.assertFalse((self.home / TRASHED_BEFORE).exists())

        self.tools.use()
        self.assert_all_are_found()


if __name__ == "__main__":
    unittest.main(verbosity=2)
