"""A Smart Scan of a Linux home against a bare walk over the same folders: 200,000 files in caches, and as
many in projects, of which half lie in what builds have left there."""

import json
import subprocess

from harness import report, run, take_turns
from workshop import BUILD, make_tree

FILES = 200_000
HOME = "home/ann"
CACHES = [".npm/_cacache", ".cache/pip", ".cache/mozilla/firefox/a.default", ".cache/thumbnails",
          ".cache/of-nobody-known"]
PROJECTS = 8


def made(workshop, name, make):
    disk = workshop.folder / name
    if not disk.exists():
        make(disk / HOME)
    return disk


def make_caches(home):
    for cache in CACHES:
        (home / cache).parent.mkdir(parents=True, exist_ok=True)
        make_tree(home / cache, FILES // len(CACHES))


def make_projects(home):
    for number in range(PROJECTS):
        project = home / f"Projects/project-{number}"
        project.mkdir(parents=True)
        (project / "package.json").write_text("{}", encoding="utf-8")
        make_tree(project / "source", FILES // PROJECTS // 2)
        make_tree(project / "node_modules", FILES // PROJECTS // 2)


def make_sources(home):
    for number in range(PROJECTS):
        project = home / f"Projects/project-{number}"
        project.mkdir(parents=True)
        (project / "package.json").write_text("{}", encoding="utf-8")
        make_tree(project / "source", FILES // PROJECTS)


def make_home(home):
    make_caches(home)
    make_projects(home)


def scan(disk):
    return [BUILD / "klarvik-probe", "--root", disk, "--home", f"/{HOME}", "scan"]


def check_found(disk, items):
    printed = subprocess.run(scan(disk), check=True, stdout=subprocess.PIPE).stdout.splitlines()
    found = sum(len(category["items"]) for category in json.loads(printed[-1])["categories"])
    if found != items:
        raise SystemExit(f"{found} items found instead of {items}")


def compare(name, disk, folders, goal):
    ours, theirs = take_turns(
        lambda: run(scan(disk)),
        lambda: run([BUILD / "bare_loop", *(disk / HOME / folder for folder in folders)]),
        9,
    )
    report(name, "a bare walk", ours, theirs, goal)


def linux_scan(workshop):
    disk = made(workshop, "linux-disk", make_home)
    check_found(disk, len(CACHES) + PROJECTS)
    compare("linux-scan", disk, [*CACHES, "Projects"], 1.15)


def project_walk(workshop):
    disk = made(workshop, "linux-projects", make_sources)
    check_found(disk, 0)
    compare("project-walk", disk, ["Projects"], 1.2)


BENCHMARKS = {"linux-scan": linux_scan, "project-walk": project_walk}
