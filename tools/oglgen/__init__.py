"""Code generator for oru_ogl: reads the catalogue, writes C++ into the build tree.

    generate.py TARGET CATALOGUE_DIR OUTPUT_DIR   writes a target's files
    generate.py --outputs TARGET                  lists them, then the catalogue files they read
"""
import sys

from . import entrypoints, objects, operations, pointers, replay, routed, tokens

TARGETS = {
    "tokens": tokens,
    "entrypoints": entrypoints,
    "operations": operations,
    "replay": replay,
    "pointers": pointers,
    "objects": objects,
    "routed": routed,
}


def main(argv):
    if len(argv) == 2 and argv[0] == "--outputs" and argv[1] in TARGETS:
        module = TARGETS[argv[1]]
        sys.stdout.write(":".join(module.OUTPUTS) + "\n" + ":".join(module.SOURCES) + "\n")
        return 0
    if len(argv) != 3 or argv[0] not in TARGETS:
        sys.stderr.write("usage: generate.py {%s} CATALOGUE_DIR OUTPUT_DIR\n"
                         "       generate.py --outputs TARGET\n" % ",".join(sorted(TARGETS)))
        return 2
    target, catalogue_dir, output_dir = argv
    TARGETS[target].generate(catalogue_dir, output_dir)
    return 0
