"""How long Klarvik takes from its start to the first picture in its window, seen from outside: by
looking at the screen."""

import ctypes
import subprocess
import time

from harness import Run
from virtual_desktop import Klarvik, SampleHome, VirtualDesktop, end, wait_until


class Screen:
    """Looks at one row of pixels in the middle of an X display."""

    ALL_PLANES, Z_PIXMAP = ctypes.c_ulong(-1), 2

    class Image(ctypes.Structure):
        _fields_ = [
            ("width", ctypes.c_int),
            ("height", ctypes.c_int),
            ("xoffset", ctypes.c_int),
            ("format", ctypes.c_int),
            ("data", ctypes.POINTER(ctypes.c_char)),
        ]

    def __init__(self, desktop):
        self._x11 = ctypes.CDLL("libX11.so.6")
        self._x11.XOpenDisplay.restype = ctypes.c_void_p
        self._x11.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
        self._x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self._x11.XGetImage.restype = ctypes.POINTER(self.Image)
        self._x11.XDestroyImage.argtypes = [ctypes.POINTER(self.Image)]
        self._x11.XCloseDisplay.argtypes = [ctypes.c_void_p]
        self._display = self._x11.XOpenDisplay(desktop.environment["DISPLAY"].encode())
        self._root = ctypes.c_ulong(self._x11.XDefaultRootWindow(self._display))
        self._width, self._row = desktop.WIDTH, desktop.HEIGHT // 2

    def colours(self):
        """How many different pixels the row has."""
        image = self._x11.XGetImage(
            ctypes.c_void_p(self._display),
            self._root,
            0,
            self._row,
            self._width,
            1,
            self.ALL_PLANES,
            self.Z_PIXMAP,
        )
        pixels = ctypes.string_at(image.contents.data, self._width * 4)
        self._x11.XDestroyImage(image)
        return len({pixels[at : at + 4] for at in range(0, len(pixels), 4)})

    def close(self):
        self._x11.XCloseDisplay(self._display)


def first_picture(desktop, screen, program):
    """Seconds until the row shows more than a plain window on a plain screen."""
    wait_until(lambda: screen.colours() == 1, "An empty screen", 30)
    started = time.perf_counter()
    process = subprocess.Popen([program], env=desktop.environment, stderr=subprocess.DEVNULL)
    while screen.colours() <= 3:
        if time.perf_counter() - started > 60 or process.poll() is not None:
            end(process)
            raise SystemExit("start: no window was seen")
        time.sleep(0.001)
    seconds = time.perf_counter() - started
    end(process)
    return Run(seconds, 0)


def wait_until_quiet(process):
    def busy_ticks():
        with open(f"/proc/{process.pid}/stat", encoding="ascii") as stat:
            return sum(map(int, stat.read().rsplit(")", 1)[1].split()[11:13]))

    def quiet():
        before = busy_ticks()
        time.sleep(2)
        return busy_ticks() - before <= 10

    wait_until(quiet, "An idle program", 120)


def idle_memory(klarvik):
    """Resident bytes of the program once its scans are over and it has nothing to do."""
    wait_until_quiet(klarvik.process)
    with open(f"/proc/{klarvik.process.pid}/status", encoding="ascii") as status:
        kilobytes = next(line.split()[1] for line in status if line.startswith("VmRSS"))
    return int(kilobytes) * 1024


def measure_starts(build, workshop, rounds):
    home = SampleHome(workshop.fresh("sample"), build)
    with VirtualDesktop(home.path) as desktop:
        screen = Screen(desktop)
        starts = [first_picture(desktop, screen, build / "klarvik") for _ in range(rounds + 1)][1:]
        screen.close()
        with Klarvik(desktop, home, build) as klarvik:
            klarvik.wait_for_scan()
            return starts, idle_memory(klarvik)
