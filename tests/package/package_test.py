"""What `cmake --install` and the Debian package bring to a machine, and that the program is whole there.
`KLARVIK_BUILD` names the folder that the programs were built in."""

import configparser
import gzip
import os
import pathlib
import shlex
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.append(str(ROOT / "scripts"))

from virtual_desktop import Klarvik, SampleHome, VirtualDesktop  # noqa: E402

BUILD = pathlib.Path(os.environ["KLARVIK_BUILD"])
VERSION = os.environ["KLARVIK_VERSION"]
SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)
METAINFO = "usr/share/metainfo/local.klarvik.klarvik.metainfo.xml"
FILES = {
    "usr/bin/klarvik",
    "usr/share/applications/klarvik.desktop",
    "usr/share/doc/klarvik/changelog.Debian.gz",
    "usr/share/doc/klarvik/copyright",
    "usr/share/icons/hicolor/scalable/apps/klarvik-symbolic.svg",
    "usr/share/icons/hicolor/scalable/apps/klarvik.svg",
    "usr/share/man/man1/klarvik.1.gz",
    METAINFO,
} | {f"usr/share/icons/hicolor/{size}x{size}/apps/klarvik.png" for size in SIZES}


def outcome(*command, **options):
    return subprocess.run(
        [str(word) for word in command], capture_output=True, text=True, check=False, **options
    )


def files_in(folder):
    return {path.relative_to(folder).as_posix() for path in folder.rglob("*") if not path.is_dir()}


class PackageTest(unittest.TestCase):
    def fresh_folder(self):
        folder = self.enterContext(tempfile.TemporaryDirectory(prefix="klarvik-package-"))
        return pathlib.Path(folder)

    def assert_succeeds(self, *command, **options):
        result = outcome(*command, **options)
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        return result.stdout

    def install(self):
        place = self.fresh_folder()
        environment = {**os.environ, "DESTDIR": str(place)}
        self.assert_succeeds("cmake", "--install", BUILD.parent, "--prefix", "/usr", env=environment)
        return place


class Installed(PackageTest):
    def setUp(self):
        self.place = self.install()

    def test_is_what_a_user_needs_and_nothing_else(self):
        self.assertEqual(files_in(self.place), FILES)

    def test_desktop_entry_is_valid(self):
        entry = self.place / "usr/share/applications/klarvik.desktop"
        self.assertEqual(self.assert_succeeds("desktop-file-validate", entry), "")

    def test_metainfo_is_valid_and_agrees_with_the_desktop_entry(self):
        self.assert_succeeds("appstreamcli", "validate", "--no-net", self.place / METAINFO)
        self.assert_succeeds("appstreamcli", "validate-tree", "--no-net", self.place)

    def test_each_icon_has_the_size_of_its_folder(self):
        for size in SIZES:
            icon = self.place / f"usr/share/icons/hicolor/{size}x{size}/apps/klarvik.png"
            shown = self.assert_succeeds("identify", "-format", "%m %w %h", icon)
            self.assertEqual(shown, f"PNG {size} {size}")

    def test_the_licence_of_the_symbol_font_comes_along(self):
        licence = (ROOT / "node_modules/framework7-icons/LICENSE").read_text(encoding="utf-8")
        notes = (self.place / "usr/share/doc/klarvik/copyright").read_text(encoding="utf-8")
        for line in filter(None, map(str.strip, licence.splitlines())):
            self.assertIn(line, notes)

    def test_the_program_runs_where_its_sources_are_not(self):
        disk = self.fresh_folder()
        home = SampleHome(disk, BUILD)
        start = disk / "start"
        start.mkdir()
        self.write_start_with_hidden_sources(start / "klarvik")
        with VirtualDesktop(home.path) as desktop, Klarvik(desktop, home, start) as klarvik:
            klarvik.wait_for_window()
            klarvik.wait_for_scan()
            self.assertEqual(klarvik.said(), "sources: 0\n")

    def write_start_with_hidden_sources(self, script):
        sources = shlex.quote(str(ROOT))
        program = shlex.quote(str(self.place / "usr/bin/klarvik"))
        hidden = f"mount -t tmpfs none {sources} && echo sources: $(ls -A {sources} | wc -l) && exec {program}"
        script.write_text(
            "#!/bin/sh\ncd /\n"
            f"exec unshare --map-root-user --mount sh -c {shlex.quote(hidden)}\n",
            encoding="utf-8",
        )
        script.chmod(0o755)


class Package(PackageTest):
    @classmethod
    def setUpClass(cls):
        folder = cls.enterClassContext(tempfile.TemporaryDirectory(prefix="klarvik-package-"))
        made = outcome("cpack", "--config", BUILD.parent / "CPackConfig.cmake", "-B", folder)
        if made.returncode != 0:
            raise AssertionError(made.stdout + made.stderr)
        cls.package = next(pathlib.Path(folder).glob("*.deb"))

    def field(self, name):
        return self.assert_succeeds("dpkg-deb", "--field", self.package, name).strip()

    def test_is_named_after_its_version_and_machine(self):
        machine = self.assert_succeeds("dpkg", "--print-architecture").strip()
        self.assertEqual(self.package.name, f"klarvik_{VERSION}-1_{machine}.deb")
        self.assertEqual(self.field("Package"), "klarvik")
        self.assertEqual(self.field("Version"), f"{VERSION}-1")
        self.assertEqual(self.field("Architecture"), machine)

    def test_holds_what_an_installation_holds_owned_by_root(self):
        listing = self.assert_succeeds("dpkg-deb", "--contents", self.package).splitlines()
        files = [line.split() for line in listing if not line.startswith("d")]
        self.assertEqual({words[-1].removeprefix("./") for words in files}, FILES)
        self.assertEqual({words[1] for words in files}, {"root/root"})
        for line in listing:
            executable = line.startswith("d") or line.endswith("/klarvik") and "/bin/" in line
            self.assertEqual(line.split()[0][1:], "rwxr-xr-x" if executable else "rw-r--r--", line)

    def test_depends_on_what_the_program_is_linked_to_and_on_what_its_window_imports(self):
        depends = {entry.split()[0] for entry in self.field("Depends").split(",")}
        linked = ("libc6", "libqt6quick6", "libexpat1", "libicu", "libplist", "libsqlite3", "libssl")
        for library in linked:
            self.assertTrue(any(name.startswith(library) for name in depends), library)
        self.assertLessEqual({f"qml6-module-{name}" for name in imported_modules()}, depends)
        self.assertLessEqual({"fonts-inter", "hicolor-icon-theme", "xdg-utils"}, depends)
        self.assertEqual([name for name in depends if name.endswith("-dev")], [])

    def test_its_scripts_change_nothing_of_the_machine(self):
        place = self.fresh_folder()
        self.assert_succeeds("dpkg-deb", "--control", self.package, place)
        self.assertEqual(files_in(place), {"control", "md5sums"})

    def test_installed_started_from_the_menu_and_removed_it_leaves_only_the_folder_of_its_preferences(self):
        machine = self.fresh_folder()
        self.dpkg(machine, "--install", self.package)
        self.assertLessEqual(FILES, files_in(machine))

        disk = self.fresh_folder()
        home = SampleHome(disk, BUILD)
        before = files_in(home.path)
        start = disk / "start"
        start.mkdir()
        self.write_start_from_the_menu(start / "klarvik", machine)
        with VirtualDesktop(home.path) as desktop, Klarvik(desktop, home, start) as klarvik:
            klarvik.wait_for_window()
            klarvik.wait_for_scan()
            self.assertEqual(klarvik.said(), "")
        self.dpkg(machine, "--purge", "klarvik")

        of_dpkg = {name for name in files_in(machine) if name.startswith("var/lib/dpkg/")}
        self.assertEqual(files_in(machine), of_dpkg)
        left = {name for name in files_in(home.path) - before if not name.startswith(".config/klarvik/")}
        self.assertEqual(left, set())
        self.assertFalse((home.path / ".cache/Klarvik").exists())
        self.assertIn("scan_history", home.preferences())

    def dpkg(self, machine, *command):
        """On a machine of its own, whose other packages are those of this one."""
        for folder in ("info", "updates"):
            (machine / "var/lib/dpkg" / folder).mkdir(parents=True, exist_ok=True)
        (machine / "var/lib/dpkg/status").touch()
        self.assert_succeeds(
            *("unshare", "--map-root-user", "dpkg", "--root", machine),
            *("--force-depends", "--log", machine / "var/lib/dpkg/log", *command),
        )

    def write_start_from_the_menu(self, script, machine):
        entry = configparser.ConfigParser(interpolation=None)
        entry.read(machine / "usr/share/applications/klarvik.desktop", encoding="utf-8")
        command = entry["Desktop Entry"]["Exec"]
        binaries = shlex.quote(str(machine / "usr/bin"))
        script.write_text(f"#!/bin/sh\nPATH={binaries}:$PATH exec {command}\n", encoding="utf-8")
        script.chmod(0o755)

    def test_its_changelog_opens_with_its_version(self):
        place = self.fresh_folder()
        self.assert_succeeds("dpkg-deb", "--extract", self.package, place)
        changelog = gzip.decompress((place / "usr/share/doc/klarvik/changelog.Debian.gz").read_bytes())
        self.assertTrue(changelog.decode().startswith(f"klarvik ({VERSION}-1) "))


def imported_modules():
    """Qt's own QML modules that the sources import, as Debian spells them."""
    modules = set()
    for source in (ROOT / "src").rglob("*.qml"):
        for line in source.read_text(encoding="utf-8").splitlines():
            words = line.split()
            if words[:1] == ["import"] and words[1].startswith("Qt"):
                modules.add(words[1].lower().replace(".", "-"))
    return modules


if __name__ == "__main__":
    unittest.main(verbosity=2)
