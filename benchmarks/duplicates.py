"""The duplicate finder against what finds duplicates at a command line, with everything cached."""

import collections
import os
import pathlib
import statistics
import subprocess

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


def hash_rate(workshop):
    tree = tree_of(workshop)
    rates = []

    def one_core():
        command = [BUILD / "sha256_rate"]
        rates.append(float(subprocess.run(command, check=True, capture_output=True).stdout))

    scans, _ = take_turns(lambda: scan(tree), one_core, ROUNDS)
    ours = hashed_bytes(tree) / median_seconds(scans)
    cores = len(os.sched_getaffinity(0))
    possible = cores * statistics.median(rates)
    print(
        f"duplicates-hash-rate ours {ours / 1e6:.0f} MB/s of {possible / 1e6:.0f} MB/s "
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
