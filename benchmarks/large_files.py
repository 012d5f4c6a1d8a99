"""The large file walk against `find`, on a home with 200,000 files, links, hidden and skipped folders."""

import json
import os
import subprocess

from harness import report, run, take_turns
from workshop import make_tree, probe

FILES = 200_000
MEBIBYTE = 1_048_576
LIMIT = 100 * MEBIBYTE
ROOTS = [
    "Documents",
    "Downloads",
    "Desktop",
    "Movies",
    "Music",
    "Pictures",
    "Library/Developer",
    "Library/Caches",
]
SKIPPED = ["node_modules", ".git", ".build", "DerivedData", "Pods", ".gradle", "build", "__pycache__"]
LIBRARIES = [
    "photoslibrary",
    "musiclibrary",
    "tvlibrary",
    "aplibrary",
    "photolibrary",
    "migratedphotolibrary",
    "imovielibrary",
    "theater",
    "logicx",
    "band",
]
PACKAGES = ["app", "sparsebundle"]


def make_large(file, size):
    with open(file, "wb") as large:
        large.truncate(size)


def furnish(root, skipped, library):
    """Two in 27 folders become such as the walk passes over; large files lie in them and elsewhere."""
    parent = root / "folder-0/folder-0"
    (parent / "folder-0").rename(parent / skipped)
    (parent / "folder-1").rename(parent / ".hidden")
    passed_over = [parent / skipped, parent / ".hidden", root / f"x.{library}", root / "Acme.app"]
    places = [root, root / "folder-1", root / "folder-2/folder-0", parent / "folder-2"]
    for number, place in enumerate(places + passed_over):
        place.mkdir(exist_ok=True)
        make_large(place / f"large-{number}.mov", LIMIT + number * MEBIBYTE)
        make_large(place / f"nearly-{number}.mov", LIMIT - 1)
        for link in range(25):
            (place / f"link-{link}").symlink_to(f"large-{number}.mov")


def make_home(workshop):
    home = workshop.folder / "large-home"
    if not home.exists():
        for place, skipped, library in zip(ROOTS, SKIPPED, LIBRARIES):
            (home / place).parent.mkdir(parents=True, exist_ok=True)
            make_tree(home / place, FILES // len(ROOTS))
            furnish(home / place, skipped, library)
    return home


def found_by_probe(home):
    printed = subprocess.run(
        probe(home, "large", str(LIMIT)), check=True, stdout=subprocess.PIPE
    ).stdout.splitlines()
    return [file["path"] for file in json.loads(printed[-1])["files"]]


def found_by_find(home):
    """With the same rules told to `find`."""
    names = [["-name", name] for name in [".*", *SKIPPED]]
    names += [["-iname", f"*.{extension}"] for extension in LIBRARIES]
    names += [["-type", "d", "-iname", f"*.{extension}"] for extension in PACKAGES]
    pruned = names[0]
    for name in names[1:]:
        pruned = [*pruned, "-o", *name]
    command = ["find", *(home / root for root in ROOTS), "(", *pruned, ")", "-prune"]
    command += ["-o", "-type", "f", "-size", f"+{LIMIT - 1}c", "-print0"]
    printed = subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout
    return [os.fsdecode(name) for name in printed.split(b"\0")[:-1]]


def check_same_files(home):
    ours, theirs = found_by_probe(home), found_by_find(home)
    if not ours or sorted(ours) != sorted(theirs):
        raise SystemExit(f"{len(ours)} large files by ours, {len(theirs)} by find")
    print(f"  the same {len(ours)} files by both when find is told the rules", flush=True)


def large_find(workshop):
    home = make_home(workshop)
    ours, theirs = take_turns(
        lambda: run(probe(home, "large", str(LIMIT))),
        lambda: run(["find", *(home / root for root in ROOTS), "-type", "f", "-size", "+100M"]),
        15,
    )
    report("large-find", "find", ours, theirs, 0.9)
    check_same_files(home)


BENCHMARKS = {"large-find": large_find}
