"""What every comparison needs: runs of programs with their time and peak memory, and rounds in which
ours and theirs take turns."""

import datetime
import json
import os
import pathlib
import statistics
import subprocess
import tempfile
import time
from dataclasses import dataclass

RESULTS = pathlib.Path(__file__).resolve().parents[1] / "docs/benchmarks.json"


@dataclass
class Run:
    seconds: float
    peak_bytes: int


def run(command, environment=None, stdin=None):
    """Runs `command` to its end; a failure ends the benchmark with what it printed."""
    # A child asked for its peak by us would answer with ours, which it began with; `time` is small.
    with tempfile.NamedTemporaryFile("r") as peak:
        started = time.perf_counter()
        done = subprocess.run(
            ["/usr/bin/time", "--quiet", "-f", "%M", "-o", peak.name, *command],
            env=environment,
            stdin=stdin or subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.PIPE,
            check=False,
        )
        seconds = time.perf_counter() - started
        if done.returncode != 0:
            said = done.stderr.decode(errors="replace")
            raise SystemExit(f"{command[0]} ended with {done.returncode}: {said}")
        return Run(seconds, int(peak.read()) * 1024)


def take_turns(ours, theirs, rounds, warm_up=True):
    """Calls both `rounds` times, changing who goes first, after one round that does not count."""
    if warm_up:
        ours()
        theirs()
    results = ([], [])
    for number in range(rounds):
        turns = [(0, ours), (1, theirs)]
        for side, call in turns if number % 2 == 0 else reversed(turns):
            results[side].append(call())
    return results


def median_seconds(runs):
    return statistics.median(run.seconds for run in runs)


def peak_megabytes(runs):
    return max(run.peak_bytes for run in runs) / 1e6


def results():
    """The latest figures of each comparison that has been run on this machine."""
    return json.loads(RESULTS.read_text(encoding="utf-8")) if RESULTS.exists() else {}


def keep(name, figures):
    about = {
        "day": datetime.date.today().isoformat(),
        "processors": len(os.sched_getaffinity(0)),
        "load": round(os.getloadavg()[0], 1),
    }
    text = json.dumps({**results(), name: {**figures, **about}}, indent=2, sort_keys=True)
    RESULTS.write_text(text + "\n", encoding="utf-8")


def report(name, against, ours, theirs, goal):
    """Tells of a comparison with `against`, and keeps it for the plot of the ratios."""
    our_seconds, their_seconds = median_seconds(ours), median_seconds(theirs)
    ratio = our_seconds / their_seconds
    keep(name, {"against": against, "ours": round(our_seconds, 3), "theirs": round(their_seconds, 3),
                "goal": goal, "rounds": len(ours)})  # fmt: skip
    print(
        f"{name} ours {our_seconds:.3f} theirs {their_seconds:.3f} ratio {ratio:.2f} goal {goal}",
        flush=True,
    )
    print(
        f"  peak memory ours {peak_megabytes(ours):.1f} MB, theirs {peak_megabytes(theirs):.1f} MB; "
        f"seconds of ours {spread(ours)}, of theirs {spread(theirs)}",
        flush=True,
    )


def spread(runs):
    seconds = sorted(run.seconds for run in runs)
    return f"{seconds[0]:.3f} to {seconds[-1]:.3f}"
