#!/usr/bin/env python3
"""Doxygen input filter: writes a header to standard output with the generated
interception operations inlined where a class includes them, so that they are
documented as members of that class. ORU_GL_OPERATION_TAIL takes the value the
class defines for it; its #define and #undef lines are dropped."""
import os
import re
import sys

INCLUDE = re.compile(r'^\s*#\s*include\s+"(oru_ogl/extensionator/OpenGLInterceptorOperations\.inc)"')
DEFINE = re.compile(r"^\s*#\s*define\s+ORU_GL_OPERATION_TAIL\b(.*)$")
UNDEF = re.compile(r"^\s*#\s*undef\s+ORU_GL_OPERATION_TAIL\b")


def main(path):
    generated = os.path.join(os.environ["ORU_BUILD"], "generated")
    tail = ""
    with open(path, encoding="utf-8") as f:
        lines = f.read().splitlines()
    out = []
    for line in lines:
        define = DEFINE.match(line)
        include = INCLUDE.match(line)
        if define:
            tail = define.group(1).strip()
            out.append("")
        elif UNDEF.match(line):
            out.append("")
        elif include:
            with open(os.path.join(generated, include.group(1)), encoding="utf-8") as inc:
                for op in inc.read().splitlines():
                    if op.startswith("//") and not op.startswith("///"):
                        continue
                    out.append(op.replace("ORU_GL_OPERATION_TAIL", tail))
        else:
            out.append(line)
    sys.stdout.write("\n".join(out) + "\n")


if __name__ == "__main__":
    main(sys.argv[1])
