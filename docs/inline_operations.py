#!/usr/bin/env python3
"""Doxygen input filter: writes a header to standard output with the
interception operations inlined where a class includes them, so that they are
documented as members of that class. The operations come from the generated
lists (Operations.def, windows/WglOperations.def); ORU_GL_OPERATION_TAIL and
ORU_WGL_OPERATION_TAIL take the value the class defines for them, and their
#define and #undef lines are dropped. A class that expands the GL list itself
(ORU_GL's CallSite) gets one declaration per GL function instead of its macros."""
import os
import re
import sys

INCLUDE = re.compile(r'^\s*#\s*include\s+"oru_ogl/extensionator/(windows/wgl|OpenGL)InterceptorOperations\.inc"')
DEFINE = re.compile(r"^\s*#\s*define\s+(ORU_W?GL_OPERATION_TAIL)\b(.*)$")
UNDEF = re.compile(r"^\s*#\s*undef\s+ORU_W?GL_OPERATION_TAIL\b")
EXPANSION = re.compile(r'^\s*#\s*include\s+"oru_ogl/extensionator/Operations\.def"')
EXPANSION_MACRO = re.compile(r"^\s*#\s*(define|undef)\s+ORU_(CALL_SITE|GL_OPERATION)\w*\b")
LISTS = {"OpenGL": ("extensionator/Operations.def", "ORU_GL_OPERATION", "cgm", "gl"),
         "windows/wgl": ("extensionator/windows/WglOperations.def", "ORU_WGL_OPERATION", "wcgm", "wgl")}


def fields(row):
    """The top-level comma-separated fields of one list row."""
    out, depth, field = [], 0, ""
    for c in row:
        if c == "," and depth == 0:
            out.append(field.strip())
            field = ""
            continue
        depth += (c == "(") - (c == ")")
        field += c
    return out + [field.strip()]


def declarations(which, tail):
    path, macro, prefix, gl = LISTS[which]
    with open(os.path.join(os.environ["ORU_BUILD"], "generated", "oru_ogl", path), encoding="utf-8") as f:
        rows = [line for line in f.read().splitlines() if line.startswith(macro + "(")]
    out = []
    for row in rows:
        ret, stem = fields(row[len(macro) + 1:-1])[:2]
        params = fields(row[len(macro) + 1:-1])[3 if which == "windows/wgl" else 5][1:-1]
        name = gl + stem if which == "OpenGL" or stem != "SwapBuffers" else stem
        out.append("/// %s through the interception chain, called from file and line." % name)
        out.append("virtual %s %s%s(const char* file, unsigned int line%s) %s;" % (ret, prefix, stem, params, tail))
    return out


def call_sites():
    out = []
    for declaration in declarations("OpenGL", "const"):
        if declaration.startswith("///"):
            out.append(declaration.replace("the interception chain, called from file and line",
                                           "the interception chain, from this call site"))
            continue
        ret, rest = declaration[len("virtual "):].split(" cgm", 1)
        stem, params = rest.split("(const char* file, unsigned int line", 1)
        out.append("%s gl%s(%s" % (ret, stem, params.lstrip(", ")))
    return out


def main(path):
    tail = ""
    with open(path, encoding="utf-8") as f:
        lines = f.read().splitlines()
    out = []
    continued = False
    for line in lines:
        define = DEFINE.match(line)
        include = INCLUDE.match(line)
        if continued or EXPANSION_MACRO.match(line):
            continued = line.rstrip().endswith("\\")
            out.append("")
        elif EXPANSION.match(line):
            out += call_sites()
        elif define:
            tail = define.group(2).strip()
            out.append("")
        elif UNDEF.match(line):
            out.append("")
        elif include:
            out += declarations(include.group(1), tail)
        else:
            out.append(line)
    sys.stdout.write("\n".join(out) + "\n")


if __name__ == "__main__":
    main(sys.argv[1])
