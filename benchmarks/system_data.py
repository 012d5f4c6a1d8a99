"""What the walks of the two tools that explain the disk cost beside a bare loop over the same places,
and how the time of the engines grows with the number of files."""

from harness import peak_megabytes, report, run, take_turns
from workshop import BUILD, make_tree

HOME = "/Users/ann"

# Thousands of files by place: 200,000 in all.
SAMPLE_HOME = {
    "Library/Application Support/Acme": 40,
    "Library/Containers/com.acme.writer": 25,
    "Library/Caches/com.acme.writer": 30,
    "Library/Caches/Homebrew": 5,
    "Library/Developer/Xcode/DerivedData": 30,
    "Library/Android/sdk": 10,
    "Library/Mail": 10,
    "Library/Logs": 5,
    "Library/Fonts": 5,
    ".npm": 15,
    "go": 5,
    "Documents": 10,
    "Pictures": 10,
}

# What each tool walks of these, in its order. Some places lie in others, and are walked twice by
# both sides.
SYSTEM_DATA_PLACES = [
    "Library/Application Support",
    "Library/Containers",
    "Library/Caches",
    "Library/Developer/Xcode/DerivedData",
    "Library/Android",
    "Library/Android/sdk",
    ".npm",
    "go",
    "Library/Mail",
    "Library/Caches/Homebrew",
    "Library/Logs",
    "Library/Android",
    "Library/Fonts",
]
COMPOSITION_PLACES = [
    "Documents",
    "Pictures",
    "Library/Developer",
    "Library/Mail",
    "Library/Containers",
    "Library/Application Support",
    "Library/Caches",
]

# A place that every engine walks.
GROWING_PLACE = f"{HOME}/Library/Caches/com.acme.writer"


def probe(root, *command):
    return [BUILD / "klarvik-probe", "--root", root, "--home", HOME, *command]


def sample_disk(workshop):
    """A disk whose home holds 200,000 files, made when first used."""
    root = workshop.folder / "sample-200k"
    if not root.exists():
        for place, thousands in SAMPLE_HOME.items():
            folder = root / HOME[1:] / place
            folder.parent.mkdir(parents=True, exist_ok=True)
            make_tree(folder, thousands * 1_000)
    return root


def against_loop(name, command, places):
    def benchmark(workshop):
        root = sample_disk(workshop)
        folders = [root / HOME[1:] / place for place in places]
        ours, theirs = take_turns(
            lambda: run(probe(root, command)),
            lambda: run([BUILD / "bare_loop", *folders]),
            15,
        )
        report(name, "a bare walk", ours, theirs, 1.1)

    return benchmark


def growth(workshop):
    """Seconds and peak memory of each engine on 10,000 to 1,000,000 files in one folder's tree."""
    engines = {
        "measure": ["measure", GROWING_PLACE],
        "composition": ["composition"],
        "system-data": ["system-data"],
        "large": ["large", "104857600"],
        "duplicates": ["duplicates", "1", GROWING_PLACE],
    }
    print(f"growth  {'engine':12}{'files':>10}{'seconds':>10}{'MB':>8}{'each, of that at 10,000':>26}")
    roots = {files: disk_of(workshop, files) for files in (10_000, 100_000, 1_000_000)}
    for name, command in engines.items():
        first = None
        for files, root in roots.items():
            runs = [run(probe(root, *command)) for _ in range(4)][1:]
            seconds = sorted(each.seconds for each in runs)[1]
            first = first or seconds / files
            print(
                f"growth  {name:12}{files:>10,}{seconds:>10.3f}{peak_megabytes(runs):>8.1f}"
                f"{seconds / files / first:>26.2f}",
                flush=True,
            )


def disk_of(workshop, files):
    root = workshop.folder / f"disk-{files}"
    if not root.exists():
        folder = root / GROWING_PLACE[1:]
        folder.parent.mkdir(parents=True)
        make_tree(folder, files)
    return root


BENCHMARKS = {
    "system-data-loop": against_loop("system-data-loop", "system-data", SYSTEM_DATA_PLACES),
    "composition-loop": against_loop("composition-loop", "composition", COMPOSITION_PLACES),
    "growth": growth,
}
