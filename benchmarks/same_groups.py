"""Shows that our groups of duplicates are those of fdupes and of rdfind.

What the programs are meant to see differently is set aside: files below hidden folders and packages,
hidden files, files of the names that we leave out, and empty files. Two names of one file count as two
copies everywhere, and no link is followed.
"""

import json
import os
import re
import subprocess
import tempfile
from collections import defaultdict

from workshop import ROOT, probe

SKIPPED_NAMES = {b"node_modules", b".git", b".build", b"Pods", b"__pycache__"}


def package_extensions():
    source = (ROOT / "src/platform/packages.cpp").read_text()
    table = source[source.index("kPackageExtensions[]") :]
    words = re.findall(r'"([a-z0-9]+)"', table[: table.index(";")])
    return {word.encode() for word in words}


PACKAGES = package_extensions()


def is_package(name):
    stem, dot, extension = name.rpartition(b".")
    return bool(stem and dot) and extension.lower() in PACKAGES


def is_seen(folder, path):
    *folders, name = os.path.relpath(path, folder).split(b"/")
    if name in SKIPPED_NAMES or any(part.startswith(b".") for part in (*folders, name)):
        return False
    return not any(map(is_package, folders))


def as_groups(folder, lists):
    seen = (frozenset(path for path in paths if is_seen(folder, path)) for paths in lists)
    return {group for group in seen if len(group) > 1}


def output(command):
    return subprocess.run(command, check=True, capture_output=True, stdin=subprocess.DEVNULL).stdout


def bytes_of(text):
    return bytes.fromhex(text["bytes"]) if isinstance(text, dict) else os.fsencode(text)


def ours(folder):
    reports = map(json.loads, output(probe(folder, "duplicates", "1", folder)).splitlines())
    groups = (report for report in reports if report["event"] == "group")
    return {frozenset(bytes_of(file["path"]) for file in group["files"]) for group in groups}


def fdupes(folder):
    text = output(["fdupes", "-r", "-q", "-H", "-n", folder])
    return [block.splitlines() for block in text.split(b"\n\n")]


def rdfind(folder):
    with tempfile.NamedTemporaryFile() as results:
        output(["rdfind", "-checksum", "sha256", "-dryrun", "true", "-removeidentinode", "false",
                "-outputname", results.name, folder])  # fmt: skip
        lines = results.read().splitlines()
    groups = defaultdict(list)
    for line in lines:
        if line and not line.startswith(b"#"):
            _, number, *_, path = line.split(b" ", 7)
            groups[abs(int(number))].append(path)
    return list(groups.values())


def show_same_groups(folder):
    """Ends the program where a group of ours is none of theirs, or the other way round."""
    mine = ours(folder)
    for peer in (fdupes, rdfind):
        theirs = as_groups(os.fsencode(folder), peer(folder))
        different = mine ^ theirs
        if different:
            example = b"\n".join(sorted(next(iter(different)))).decode(errors="replace")
            raise SystemExit(f"{len(different)} groups differ from {peer.__name__}'s:\n{example}")
        print(f"  {len(mine)} groups in {folder}, the same as {peer.__name__}'s", flush=True)
