"""The duplicate finder against what finds duplicates at a command line, with everything cached."""

import collections
import json
import os
import pathlib
import statistics
import subprocess
import time

from harness import median_seconds, report, run, take_turns
from same_groups import show_same_groups
from workshop import BUILD, probe

ROUNDS = 7


def tree_of(workshop):
    tree = workshop.folder / "duplicates"
    if not tree.exists():
        run([BUILD / "make_duplicates", tree])
    return tree


def scan(tree):
    return run(probe(tree, "duplicates", "1", tree))


def against(name, command, goal):
    def benchmark(workshop):
        tree = tree_of(workshop)
        ours, theirs = take_turns(lambda: scan(tree), lambda: run([*command, tree]), ROUNDS)
        report(name, command[0], ours, theirs, goal)

    return benchmark


def against_rdfind(workshop):
    for folder in (tree_of(workshop), pathlib.Path("/usr/share")):
        show_same_groups(str(folder))
    command = ["rdfind", "-checksum", "sha256", "-dryrun", "true", "-makeresultsfile", "false"]
    against("duplicates-rdfind", command, 0.5)(workshop)


def hashed_bytes(tree):
    """How much a scan has to read: all files of a size that others have as well."""
    counts = collections.Counter(
        os.stat(os.path.join(folder, name)).st_size
        for folder, _, names in os.walk(tree)
        for name in names
    )
    return sum(size * count for size, count in counts.items() if count > 1)


def seconds_of_hashing(tree):
    """Of a scan, from its first file that is hashed until all are."""
    begun = None
    with subprocess.Popen(probe(tree, "duplicates", "1", tree), stdout=subprocess.PIPE) as scanning:
        for line in scanning.stdout:
            now = time.perf_counter()
            report = json.loads(line)
            if report["event"] != "progress":
                continue
            if report["fraction"] == 0.15 and not report["line"].startswith("Grouping"):
                begun = now
            elif report["fraction"] == 0.97:
                hashed = now
    return hashed - begun


def hash_rate(workshop):
    tree = tree_of(workshop)
    scans, hashing, rates = [], [], []
    for _ in range(ROUNDS + 1):
        scans.append(scan(tree))
        hashing.append(seconds_of_hashing(tree))
        one_core = subprocess.run([BUILD / "sha256_rate"], check=True, capture_output=True)
        rates.append(float(one_core.stdout))
    cores = len(os.sched_getaffinity(0))
    possible = cores * statistics.median(rates[1:])
    bytes_of_files = hashed_bytes(tree)
    for name, seconds in (
        ("while it hashes", statistics.median(hashing[1:])),
        ("the whole scan", median_seconds(scans[1:])),
    ):
        ours = bytes_of_files / seconds
        print(
            f"duplicates-hash-rate, {name}: {ours / 1e6:.0f} MB/s of {possible / 1e6:.0f} MB/s "
            f"on {cores} cores ratio {ours / possible:.2f} goal 0.75 or more",
            flush=True,
        )


BENCHMARKS = {
    "duplicates-rdfind": against_rdfind,
    "duplicates-rmlint": against(
        "duplicates-rmlint", ["rmlint", "-T", "duplicates", "-a", "sha256", "-o", "fdupes"], 0.15
    ),
    "duplicates-fdupes": against("duplicates-fdupes", ["fdupes", "-r", "-q"], 0.3),
    "duplicates-hash-rate": hash_rate,
}
