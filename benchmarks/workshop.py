"""Where benchmarks run: the programs of the release build, and folders with the trees they need."""

import pathlib
import shutil

from harness import run

ROOT = pathlib.Path(__file__).resolve().parents[1]
BUILD = ROOT / "build/release/bin"


def make_tree(folder, files):
    run([BUILD / "make_tree", folder, str(files)])


class Workshop:
    """A temporary folder with the trees that several benchmarks share, each made when first used."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)

    def tree(self, files):
        tree = self.folder / f"tree-{files}"
        if not tree.exists():
            make_tree(tree, files)
        return tree

    def fresh(self, name):
        folder = self.folder / name
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir()
        return folder


def probe(tree, *command):
    return [BUILD / "klarvik-probe", "--root", "/", "--home", str(tree), *command]
