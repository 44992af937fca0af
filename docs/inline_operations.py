#!/usr/bin/env python3
"""Doxygen input filter: writes a header to standard output with the
interception operations inlined where a class includes them, so that they are
documented as members of that class, each with its parameters, result and the
exceptions the chain raises for it. The operations come from the generated
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


PARAMETER_NAME = re.compile(r"(\w+)\s*(\[[^\]]*\])?$")

# What the chain's bottom, the error checker, throws for an operation; the
# checker, every decorator above it and every call site pass it on.
GL_ERROR = ("@throws Oru::OGL::ExceptionOGL from file and line when GL reports an error after the call: "
            "the text of gluErrorString for the code (\"unknown OpenGL error\" where GLU has none, the "
            "driver's own message for it when DriverDebugOutput is on) and the code as errorNumber(); "
            "not asked between glBegin and glEnd")
NOT_LOADED = ('@throws Oru::InternalException "%s is not loaded: its entry-point pointer is null (the '
              'driver lacks it, or the layer has not loaded the core version or extension it belongs '
              'to)" when the entry point was not loaded at start-up')
UNBALANCED = ('@throws Oru::OGL::ExceptionOGL "Unbalanced %s()!" with error number 0 when %s; '
              "%s is then not called")
UNBALANCED_CASES = {"glBegin": ("a glBegin is already open", "glBegin"),
                    "glEnd": ("no glBegin is open", "glEnd")}


def parameter_names(params):
    """The names of a row's parameters, in order."""
    names = []
    for parameter in fields(params)[1:] if params.strip() else []:
        match = PARAMETER_NAME.search(parameter.strip())
        if match:
            names.append(match.group(1))
    return names


def operation_doc(which, ret, gl_name, call, names, lead):
    """The documentation block of one operation: its brief, its parameters,
    its result and, for GL, what the chain throws for it."""
    out = ["/// %s %s." % (gl_name, lead),
           "/// @param file the caller's source file, as its `__FILE__`; exceptions report it",
           "/// @param line the caller's line, as its `__LINE__`; exceptions report it"]
    for name in names:
        out.append("/// @param %s passed to %s unchanged" % (name, gl_name))
    if ret != "void":
        out.append("/// @return what %s returned" % gl_name)
    if which == "OpenGL":
        if call == "Bracket":
            out.append("/// " + UNBALANCED % ((gl_name,) + UNBALANCED_CASES[gl_name]))
            if gl_name == "glEnd":
                out.append("/// " + GL_ERROR.replace("; not asked between glBegin and glEnd", ""))
        else:
            out.append("/// " + GL_ERROR)
            if call == "Loaded":
                out.append("/// " + NOT_LOADED % gl_name)
    return out


def declarations(which, tail):
    path, macro, prefix, gl = LISTS[which]
    with open(os.path.join(os.environ["ORU_BUILD"], "generated", "oru_ogl", path), encoding="utf-8") as f:
        rows = [line for line in f.read().splitlines() if line.startswith(macro + "(")]
    out = []
    for row in rows:
        row_fields = fields(row[len(macro) + 1:-1])
        ret, stem = row_fields[:2]
        call = row_fields[3] if which == "OpenGL" else ""
        params = row_fields[3 if which == "windows/wgl" else 5][1:-1]
        name = gl + stem if which == "OpenGL" or stem != "SwapBuffers" else stem
        out += operation_doc(which, ret, name, call, parameter_names(params),
                             "through the interception chain, called from file and line")
        out.append("virtual %s %s%s(const char* file, unsigned int line%s) %s;" % (ret, prefix, stem, params, tail))
    return out


def call_sites():
    out = []
    for declaration in declarations("OpenGL", "const"):
        if declaration.startswith("///"):
            declaration = declaration.replace("the interception chain, called from file and line",
                                              "the interception chain, from this call site")
            if declaration.startswith(("/// @param file", "/// @param line")):
                continue
            out.append(declaration.replace("from file and line", "from this call site's file and line"))
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
