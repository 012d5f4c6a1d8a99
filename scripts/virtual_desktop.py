"""A desktop for a program that is looked at by no one: a display, a window manager, a message bus,
and Klarvik on it over a home of its own. For ./run, the process tests and the benchmarks."""

import base64
import contextlib
import json
import os
import pathlib
import signal
import subprocess
import tempfile
import time


class Failure(Exception):
    """Says in one sentence what could not be done."""


def wait_until(condition, what, seconds=120):
    """The first true answer of `condition`, asked again and again."""
    deadline = time.monotonic() + seconds
    while True:
        if answer := condition():
            return answer
        if time.monotonic() > deadline:
            raise Failure(f"{what} did not happen within {seconds} seconds.")
        time.sleep(0.1)


def read_line(path):
    """The line that a file of /proc holds; empty where it cannot be read."""
    try:
        return path.read_text(encoding="utf-8").strip()
    except OSError:
        return ""


def end(process):
    """Asks a process that was started here to end, and makes sure that it does."""
    if process.poll() is None:
        process.terminate()
        try:
            process.wait(10)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


class VirtualDesktop:
    """The desktop of the user who lives in `home`. Use in a `with` statement; `environment` is what
    programs on it are started with."""

    WIDTH, HEIGHT = 1280, 900

    def __init__(self, home):
        self._ending = contextlib.ExitStack()
        self._home = home
        self.environment = {}

    def __enter__(self):
        with contextlib.ExitStack() as ending:
            runtime = ending.enter_context(tempfile.TemporaryDirectory(prefix="klarvik-desktop-"))
            self.environment = {
                "PATH": os.environ.get("PATH", "/usr/bin:/bin"),
                "LANG": "C.UTF-8",
                "HOME": str(self._home),
                "XDG_CONFIG_HOME": str(self._home / ".config"),
                "XDG_DATA_HOME": str(self._home / ".local/share"),
                "XDG_CACHE_HOME": str(self._home / ".cache"),
                "XDG_STATE_HOME": str(self._home / ".local/state"),
                "XDG_RUNTIME_DIR": runtime,
                "QT_QUICK_BACKEND": "software",
                "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
                # Whether this machine has these tools must not change what Klarvik offers here.
                "GOMODCACHE": str(self._home / "no such folder"),
                "UV_CACHE_DIR": str(self._home / "no such folder"),
            }
            self.environment["DISPLAY"] = self._start_display(ending)
            self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._start_bus(ending)
            self._start_window_manager(ending, runtime)
            self._ending = ending.pop_all()
        return self

    def __exit__(self, *_):
        self._ending.close()

    def _start(self, ending, command, **options):
        quiet = {"stdin": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        process = subprocess.Popen(command, **{"env": self.environment, **quiet, **options})
        ending.callback(end, process)
        return process

    def _start_display(self, ending):
        reading, writing = os.pipe()
        screen = f"{self.WIDTH}x{self.HEIGHT}x24"
        command = ["Xvfb", "-displayfd", str(writing), "-screen", "0", screen, "-nolisten", "tcp"]
        command += ["-noreset"]
        self._start(ending, command, pass_fds=[writing])
        os.close(writing)
        with open(reading, encoding="ascii") as answer:
            number = answer.readline().strip()
        if not number:
            raise Failure("The virtual display did not start.")
        return f":{number}"

    def _start_bus(self, ending):
        command = ["dbus-daemon", "--session", "--nofork", "--print-address"]
        bus = self._start(ending, command, stdout=subprocess.PIPE, text=True)
        ending.callback(bus.stdout.close)
        address = bus.stdout.readline().strip()
        if not address:
            raise Failure("The message bus did not start.")
        return address

    def _start_window_manager(self, ending, runtime):
        own = {**self.environment, "HOME": runtime, "XDG_CACHE_HOME": runtime}
        # A window that is opened while it starts may never come.
        started = pathlib.Path(runtime, "window-manager-started")
        command = ["openbox", "--sm-disable", "--startup", f"touch {started}"]
        self._start(ending, command, env=own, stdout=subprocess.DEVNULL)
        wait_until(started.exists, "The start of the window manager")

    def run(self, *command):
        """What `command` prints, run on this desktop."""
        return subprocess.run(
            command, env=self.environment, check=True, capture_output=True, text=True
        ).stdout

    def ask(self, *question):
        """What xdotool answers; nothing where it does not find what it is asked about."""
        answer = subprocess.run(
            ["xdotool", *question], env=self.environment, capture_output=True, text=True, check=False
        )
        return answer.stdout

    def windows_of(self, process):
        return self.ask("search", "--onlyvisible", "--pid", str(process.pid)).split()

    def active_window(self):
        """The one that keys go to; None while there is none."""
        return self.ask("getactivewindow").strip() or None

    def geometry_of(self, window):
        """Where its upper left corner is, its width and its height, in pixels; None once it has gone."""
        lines = self.ask("getwindowgeometry", "--shell", window).splitlines()
        fields = dict(line.split("=", 1) for line in lines)
        return tuple(int(fields[key]) for key in ("X", "Y", "WIDTH", "HEIGHT")) if fields else None

    def take_picture(self, window, path):
        path.parent.mkdir(parents=True, exist_ok=True)
        self.run("import", "-window", window, "-strip", str(path))


class SampleHome:
    """The home of a sample disk, whose user has been through the first run already."""

    USER = "home/ann"

    def __init__(self, disk, build, scale=1):
        command = [build / "klarvik-sample-disk", disk, "--home", f"/{self.USER}", "--scale", str(scale)]
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
        self.path = disk / self.USER
        self._preferences = self.path / ".config/klarvik/preferences.json"
        self.prefer({"onboarding_complete": True, "fda_prompt_shown": True})

    def preferences(self):
        if not self._preferences.exists():
            return {}
        return json.loads(self._preferences.read_text(encoding="utf-8"))

    def prefer(self, values):
        """Like an editor: what the program stores at the same moment is lost."""
        self._preferences.parent.mkdir(parents=True, exist_ok=True)
        self._preferences.write_text(json.dumps({**self.preferences(), **values}), encoding="utf-8")

    def forget_preferences(self):
        """The home is then one that the program has never run in."""
        self._preferences.unlink()

    def scans(self):
        return self._history("scan_history")

    def cleans(self):
        return self._history("clean_history")

    def _history(self, key):
        stored = self.preferences().get(key)
        return json.loads(base64.b64decode(stored["base64"])) if stored else []


class Klarvik:
    """The program, started on a desktop. Use in a `with` statement."""

    def __init__(self, desktop, home, build):
        self._desktop, self._home = desktop, home
        self._scans_before = len(home.scans())
        self._said = tempfile.TemporaryFile("w+", encoding="utf-8")
        self.process = subprocess.Popen(
            [build / "klarvik"],
            env=desktop.environment,
            stdin=subprocess.DEVNULL,
            stdout=self._said,
            stderr=self._said,
        )

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.quit()
        self._said.close()

    def said(self):
        """All that the program has printed."""
        self._said.seek(0)
        return self._said.read()

    def quit(self):
        end(self.process)

    def kill(self):
        self.process.send_signal(signal.SIGKILL)
        self.process.wait()

    def _while_it_runs(self, condition):
        if (code := self.process.poll()) is not None:
            raise Failure(f"Klarvik ended with code {code}: {self.said()}")
        return condition()

    def wait_until(self, condition, what):
        try:
            return wait_until(lambda: self._while_it_runs(condition), what)
        except Failure as failure:
            raise Failure(f"{failure} {self._waits_for()}") from failure

    def _waits_for(self):
        """What the program has printed last, and in which call of the kernel each of its threads is."""
        threads = pathlib.Path(f"/proc/{self.process.pid}/task").glob("*")
        calls = [f"{read_line(each / 'comm')}: {read_line(each / 'syscall')}" for each in threads]
        return "; ".join([f"It said {self.said()[-1000:]!r}", *calls])

    def wait_for_window(self):
        return self.wait_until(lambda: self._desktop.windows_of(self.process), "A window")[-1]

    def wait_for_scan(self):
        """The history's entry of the first scan since the start of the program."""
        self.wait_until(lambda: len(self._home.scans()) > self._scans_before, "The end of a scan")
        return self._home.scans()[0]
