#!/usr/bin/env python3
"""Doxygen input filter: writes a header to standard output with the
interception operations (GL: generated; WGL: in the sources) inlined where a
class includes them, so that they are documented as members of that class.
ORU_GL_OPERATION_TAIL and ORU_WGL_OPERATION_TAIL take the value the class
defines for them; their #define and #undef lines are dropped."""
import os
import re
import sys

INCLUDE = re.compile(r'^\s*#\s*include\s+"(oru_ogl/extensionator/(?:windows/wgl|OpenGL)InterceptorOperations\.inc)"')
DEFINE = re.compile(r"^\s*#\s*define\s+(ORU_W?GL_OPERATION_TAIL)\b(.*)$")
UNDEF = re.compile(r"^\s*#\s*undef\s+ORU_W?GL_OPERATION_TAIL\b")


def main(path):
    roots = [os.path.join(os.environ["ORU_BUILD"], "generated"), os.path.join(os.environ["ORU_ROOT"], "src")]
    macro, tail = "", ""
    with open(path, encoding="utf-8") as f:
        lines = f.read().splitlines()
    out = []
    for line in lines:
        define = DEFINE.match(line)
        include = INCLUDE.match(line)
        if define:
            macro, tail = define.group(1), define.group(2).strip()
            out.append("")
        elif UNDEF.match(line):
            out.append("")
        elif include:
            path = next(os.path.join(r, include.group(1)) for r in roots if os.path.exists(os.path.join(r, include.group(1))))
            with open(path, encoding="utf-8") as inc:
                for op in inc.read().splitlines():
                    if op.startswith("//") and not op.startswith("///"):
                        continue
                    out.append(op.replace(macro, tail))
        else:
            out.append(line)
    sys.stdout.write("\n".join(out) + "\n")


if __name__ == "__main__":
    main(sys.argv[1])
