"""What a replay program needs to compile a recording: every token name that the
recorder can write, and the GL functions beyond OpenGL 1.1 under their plain
names, bound to the library's entry-point pointers."""
import os

from . import catalogue as cat
from . import tokens
from .output import banner, write_if_changed


def replay_header(c, token_rows):
    guard = "ORU_OGL_REPLAY_REPLAYGL_H"
    out = [banner("%s and catalogue/%s" % (cat.SOURCE, tokens.SOURCE)),
           "#ifndef %s\n#define %s\n\n" % (guard, guard),
           "// Include after every system GL header: the names below become macros.\n\n",
           '#include "oru_ogl/extensionator/EntryPoints.h"\n\n',
           "// The %d token names that TokenName returns, where the GL headers lack them.\n" % len(token_rows)]
    for value, name in sorted(token_rows, key=lambda row: row[1]):
        out.append("#ifndef %s\n#define %s 0x%04X\n#endif\n" % (name, name, value))
    functions = c.gl_entry_points()
    out.append("\n// The %d GL functions beyond OpenGL 1.1, called through the pointers that\n" % len(functions))
    out.append("// the loaders fill.\n")
    for f in functions:
        out.append("#define %s %s\n" % (f.name, f.pointer))
    out.append("\n#endif\n")
    return "".join(out)


SOURCES = (cat.SOURCE, tokens.SOURCE)
OUTPUTS = ("replay/ReplayGL.h",)


def generate(catalogue_dir, output_dir):
    c = cat.load(catalogue_dir)
    rows = tokens.read_tokens(catalogue_dir)
    write_if_changed(os.path.join(output_dir, OUTPUTS[0]), replay_header(c, rows))
