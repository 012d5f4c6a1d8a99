"""An application that the real flatpak has installed: Klarvik lists it, has it removed by flatpak, and
moves what it has stored to the Trash."""

import json
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

BUILD = pathlib.Path(os.environ["KLARVIK_BUILD"])
ID = "org.acme.Ink"


@unittest.skipUnless(shutil.which("flatpak"), "flatpak is not installed")
class Flatpak(unittest.TestCase):
    def setUp(self):
        # Not where temporary files lie: the rules let go of nothing there.
        around = BUILD.parent / "run"
        around.mkdir(parents=True, exist_ok=True)
        folder = tempfile.TemporaryDirectory(prefix="flatpak-", dir=around)
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.home = self.folder / "ann"
        self.home.mkdir()
        self.environment = {"PATH": "/usr/bin:/bin", "HOME": str(self.home), "LC_ALL": "C.UTF-8"}
        self.install()

    def run_tool(self, *command):
        done = subprocess.run(command, cwd=self.folder, env=self.environment, capture_output=True,
                              text=True, timeout=120, stdin=subprocess.DEVNULL, check=False)
        self.assertEqual(done.returncode, 0, f"{command}\n{done.stdout}{done.stderr}")
        return done.stdout

    def install(self):
        """From a repository of its own, which needs no network."""
        files = {
            "app/metadata": f"[Application]\nname={ID}\nruntime=org.acme.Platform/x86_64/stable\n"
                            "sdk=org.acme.Sdk/x86_64/stable\ncommand=ink\n",
            "app/files/bin/ink": "#!/bin/sh\n",
            f"app/export/share/applications/{ID}.desktop":
                "[Desktop Entry]\nType=Application\nName=Ink\nExec=ink %F\n",
        }
        for name, text in files.items():
            (self.folder / name).parent.mkdir(parents=True, exist_ok=True)
            (self.folder / name).write_text(text, encoding="utf-8")
        self.run_tool("flatpak", "build-export", "--disable-sandbox", "repository", "app", "stable")
        self.run_tool("flatpak", "--user", "remote-add", "--no-gpg-verify", "local", "repository")
        self.run_tool("flatpak", "--user", "install", "--noninteractive", "--no-deps", "local", ID)

    def probe(self, *command):
        printed = self.run_tool(BUILD / "klarvik-probe", "--root", "/", "--home", self.home, *command)
        return [json.loads(line) for line in printed.splitlines()]

    def test_is_listed_and_removed_by_flatpak_and_its_data_goes_to_the_trash(self):
        stored = self.home / ".var/app" / ID / "data/letter"
        stored.parent.mkdir(parents=True)
        stored.write_text("x" * 50_000, encoding="utf-8")
        listed = {app["bundleID"]: app for app in self.probe("apps")}
        self.assertEqual(listed[ID]["name"], "Ink")
        self.assertEqual(listed[ID]["path"], str(self.home / ".local/share/flatpak/app" / ID))

        result = self.probe("uninstall", ID)[-1]
        self.assertGreater(result["freed"], 50_000)
        self.assertNotIn(ID, self.run_tool("flatpak", "--user", "list"))
        self.assertNotIn(ID, {app["bundleID"] for app in self.probe("apps")})
        self.assertFalse(stored.exists())
        trashed = self.home / ".local/share/Trash/files" / ID / "data/letter"
        self.assertEqual(trashed.read_text(encoding="utf-8"), "x" * 50_000)


if __name__ == "__main__":
    unittest.main()
