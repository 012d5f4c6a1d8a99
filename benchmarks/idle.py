"""What Klarvik does while nothing happens: frames and wake-ups in ten seconds, with its window and
without it, when only its icon in the tray is left. The monitors of the disk and of the Trash look every
5 and every 10 seconds. A change of the disk that another program makes is drawn: as root, the home is on
a disk of its own."""

import contextlib
import os
import pathlib
import subprocess
import time

from virtual_desktop import Klarvik, SampleHome, VirtualDesktop, end, wait_until
from window import wait_until_quiet

SECONDS = 10
# After a scan a mark stands beside its section, which goes by itself.
SECONDS_OF_THE_MARK = 8


def wake_ups(process):
    """How often each of its threads has gone back to sleep so far."""
    counts = {}
    for thread in pathlib.Path(f"/proc/{process.pid}/task").iterdir():
        lines = (thread / "status").read_text(encoding="ascii").splitlines()
        status = dict(line.split(":\t", 1) for line in lines if ":\t" in line)
        counts[f"{status['Name']} {thread.name}"] = int(status["voluntary_ctxt_switches"])
    return counts


def frames(klarvik):
    return klarvik.said().count("Frame rendered")


def main_window(desktop, process):
    """Its icon in the tray is a window as well."""
    for window in desktop.windows_of(process):
        geometry = desktop.geometry_of(window)
        if geometry is not None and geometry[2] > 600:
            return window
    return None


@contextlib.contextmanager
def own_disk(folder):
    subprocess.run(["mount", "-t", "tmpfs", "klarvik-idle", folder], check=True)
    try:
        yield
    finally:
        subprocess.run(["umount", folder], check=True)


def idle(klarvik, where):
    """Waits until nothing is left to do, and counts from then on."""
    wait_until_quiet(klarvik.process)
    frames_before, before = frames(klarvik), wake_ups(klarvik.process)
    time.sleep(SECONDS)
    after = wake_ups(klarvik.process)
    woken = {name: count - before.get(name, 0) for name, count in after.items()}
    woken = {name: count for name, count in woken.items() if count > 0}
    total, drawn = sum(woken.values()), frames(klarvik) - frames_before
    print(f"idle {where} frames {drawn} wake-ups {total} in {SECONDS} s", flush=True)
    for name, count in woken.items():
        print(f"  {name}: {count}", flush=True)
    return {"frames": drawn, "wake-ups": total}


def measure_idle(build, workshop):
    disk = workshop.fresh("idle")
    with contextlib.ExitStack() as ending:
        if os.geteuid() == 0:
            ending.enter_context(own_disk(disk))
        home = SampleHome(disk, build)
        desktop = ending.enter_context(VirtualDesktop(home.path))
        tray = subprocess.Popen(
            ["trayer"], env=desktop.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL
        )
        ending.callback(end, tray)
        desktop.environment["QT_FORCE_STDERR_LOGGING"] = "1"
        desktop.environment["QT_LOGGING_RULES"] = "qt.scenegraph.time.renderloop=true"
        klarvik = ending.enter_context(Klarvik(desktop, home, build))
        window = klarvik.wait_until(
            lambda: main_window(desktop, klarvik.process), "The main window"
        )
        klarvik.wait_for_scan()
        if frames(klarvik) == 0:
            raise SystemExit("idle: the program tells of no frames")
        time.sleep(SECONDS_OF_THE_MARK)
        results = {"window": idle(klarvik, "window")}
        desktop.run("xdotool", "windowactivate", "--sync", window, "key", "alt+F4")
        wait_until(lambda: not main_window(desktop, klarvik.process), "The end of the window")
        return {**results, "tray": idle(klarvik, "tray")}
