"""Code generator for oru_ogl: reads the catalogue, writes C++ into the build tree."""
import sys

from . import entrypoints, interceptors, recorders, replay, tokens
from . import pointers

TARGETS = {
    "tokens": tokens.generate,
    "entrypoints": entrypoints.generate,
    "interceptors": interceptors.generate,
    "recorders": recorders.generate,
    "replay": replay.generate,
    "pointers": pointers.generate,
}


def main(argv):
    if len(argv) != 3 or argv[0] not in TARGETS:
        sys.stderr.write("usage: generate.py {%s} CATALOGUE_DIR OUTPUT_DIR\n" % ",".join(sorted(TARGETS)))
        return 2
    target, catalogue_dir, output_dir = argv
    TARGETS[target](catalogue_dir, output_dir)
    return 0
