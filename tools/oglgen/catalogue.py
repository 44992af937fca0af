"""The entry-point catalogue: catalogue/entry_points.txt parsed into a model.

The model checks what the rest of the generator relies on: ids from 0 without
gaps, the core versions first, then GL ids named GL_*, then WGL ids named WGL_*,
no function under two ids, the GL 1.1 list in byte order. The counts that
follow from the file are its own: the generator writes them as constants."""
import os
import re

SOURCE = "entry_points.txt"
# The id the name look-ups return for a name they do not know; above every id.
UNKNOWN_EXTENSION = 378
# Core versions come first among the ids: OPEN_GL_1_2 to OPEN_GL_2_1.
CORE_VERSION_COUNT = 6

# Section names of the functions that no loader fetches: the system library's
# GL 1.0/1.1 exports, and the WGL and GDI functions of the WGL chain.
GL11_SECTION = "GL_1_1"
WGL10_SECTION = "WGL_1_0"

_PROTOTYPE = re.compile(r"^(?P<ret>.+?)\s*\b(?P<name>[A-Za-z][A-Za-z0-9_]*)\((?P<params>.*)\);$")
_PARAM = re.compile(r"^(?P<type>.*?)\s*\b(?P<name>[A-Za-z_]\w*)$")


class Param:
    def __init__(self, ctype, name):
        self.type = ctype   # as written, e.g. "const GLvoid *"
        self.name = name

    @property
    def is_pointer(self):
        return "*" in self.type

    def declaration(self):
        return "%s %s" % (self.type, self.name) if not self.type.endswith("*") else "%s%s" % (self.type, self.name)


class Function:
    def __init__(self, ret, name, params, owner):
        self.ret = ret          # "void", "GLboolean", "const GLubyte *"
        self.name = name        # "glDrawRangeElements"
        self.params = params    # [Param]
        self.owner = owner      # the Extension, or None for GL 1.1

    @property
    def is_wgl(self):
        return self.name.startswith("wgl")

    @property
    def stem(self):
        """The name without its gl/wgl prefix: DrawRangeElements; GDI's SwapBuffers
        stays as it is."""
        if self.is_wgl:
            return self.name[3:]
        return self.name[2:] if self.name.startswith("gl") else self.name

    @property
    def pointer(self):
        """The exported pointer variable: _cgmDrawRangeElements, _wcgmSwapIntervalEXT."""
        return ("_wcgm" if self.is_wgl else "_cgm") + self.stem

    @property
    def operation(self):
        """The interceptor operation: cgmDrawRangeElements, wcgmMakeCurrent."""
        return ("wcgm" if self.is_wgl or not self.name.startswith("gl") else "cgm") + self.stem

    @property
    def returns_value(self):
        return self.ret not in ("void", "VOID")

    def parameter_list(self):
        return ", ".join(p.declaration() for p in self.params)

    def argument_list(self):
        return ", ".join(p.name for p in self.params)

    def takes_pointer(self):
        return any(p.is_pointer for p in self.params)


# The library's name index keeps a name's length in six bits.
MAX_NAME_LENGTH = 63


class Extension:
    def __init__(self, ident, name):
        self.id = ident
        self.name = name
        self.functions = []

    @property
    def is_wgl(self):
        return self.name.startswith("WGL_")

    @property
    def enumerator(self):
        """OPEN_GL_1_2 for GL_VERSION_1_2; the name in capitals otherwise."""
        if self.name.startswith("GL_VERSION_"):
            return "OPEN_GL_" + self.name[len("GL_VERSION_"):]
        return self.name.upper()


class Catalogue:
    def __init__(self, gl11, wgl10, extensions):
        self.gl11 = gl11                # [Function], byte order
        self.wgl10 = wgl10              # [Function], the WGL chain's order
        self.extensions = extensions    # [Extension], by id

    @property
    def core_versions(self):
        return self.extensions[:CORE_VERSION_COUNT]

    @property
    def gl_extensions(self):
        return [e for e in self.extensions if not e.is_wgl]

    @property
    def wgl_extensions(self):
        return [e for e in self.extensions if e.is_wgl]

    def gl_entry_points(self):
        return [f for e in self.gl_extensions for f in e.functions]

    def wgl_entry_points(self):
        return [f for e in self.wgl_extensions for f in e.functions]

    def operations(self):
        """Every GL function in interceptor order: GL 1.1 by name, the core
        versions in version order, then the extensions by the byte order of
        their names."""
        versions = [e for e in self.gl_extensions if e.name.startswith("GL_VERSION_")]
        others = sorted((e for e in self.gl_extensions if not e.name.startswith("GL_VERSION_")),
                        key=lambda e: e.name.encode("ascii"))
        return list(self.gl11) + [f for e in versions + others for f in e.functions]

    def wgl_operations(self):
        """The WGL and GDI functions of the WGL chain, in its fixed order."""
        return list(self.wgl10)


def _parse_prototype(text, where, owner):
    m = _PROTOTYPE.match(text)
    if not m:
        raise SystemExit("%s: not a prototype: %s" % (where, text))
    params = []
    body = m.group("params").strip()
    if body not in ("", "void", "GLvoid"):
        for piece in body.split(","):
            p = _PARAM.match(" ".join(piece.split()))
            if not p or not p.group("type"):
                raise SystemExit("%s: unnamed or odd parameter '%s'" % (where, piece.strip()))
            params.append(Param(_normalise_type(p.group("type")), p.group("name")))
    return Function(_normalise_type(m.group("ret")), m.group("name"), params, owner)


def _normalise_type(ctype):
    """"const GLvoid*" and "const GLvoid *" both become "const GLvoid *"."""
    ctype = " ".join(ctype.replace("*", " * ").split())
    return ctype.replace("* *", "**").replace("* const", "*const")


def load(catalogue_dir):
    path = os.path.join(catalogue_dir, SOURCE)
    gl11, wgl10, extensions, current = [], [], [], None
    seen = {}
    with open(path, encoding="utf-8") as f:
        for number, raw in enumerate(f, start=1):
            line = raw.strip()
            where = "%s:%d" % (path, number)
            if not line or line.startswith("#"):
                continue
            if line.startswith("@"):
                fields = line[1:].split()
                if fields == [GL11_SECTION]:
                    current = "gl11"
                    continue
                if fields == [WGL10_SECTION]:
                    current = "wgl10"
                    continue
                if len(fields) != 2 or not fields[0].isdigit():
                    raise SystemExit("%s: expected '@ <id> <name>'" % where)
                ident = int(fields[0])
                if ident != len(extensions):
                    raise SystemExit("%s: id %d out of order (expected %d)" % (where, ident, len(extensions)))
                if ident < CORE_VERSION_COUNT and not fields[1].startswith("GL_VERSION_"):
                    raise SystemExit("%s: ids below %d are core versions (GL_VERSION_...)" % (where, CORE_VERSION_COUNT))
                if not fields[1].startswith(("GL_", "WGL_")):
                    raise SystemExit("%s: %s is neither a GL_ nor a WGL_ name" % (where, fields[1]))
                if extensions and extensions[-1].name.startswith("WGL_") and not fields[1].startswith("WGL_"):
                    raise SystemExit("%s: GL ids come before every WGL id" % where)
                if len(fields[1]) > MAX_NAME_LENGTH:
                    raise SystemExit("%s: %s is longer than the name index takes (%d characters)"
                                     % (where, fields[1], MAX_NAME_LENGTH))
                current = Extension(ident, fields[1])
                extensions.append(current)
                continue
            if current is None:
                raise SystemExit("%s: prototype before any section" % where)
            function = _parse_prototype(line, where, current if isinstance(current, Extension) else None)
            if function.name in seen:
                raise SystemExit("%s: %s already listed at %s" % (where, function.name, seen[function.name]))
            seen[function.name] = where
            if current == "gl11":
                if not function.name.startswith("gl"):
                    raise SystemExit("%s: %s is not a GL function" % (where, function.name))
                gl11.append(function)
            elif current == "wgl10":
                wgl10.append(function)
            else:
                if not function.name.startswith(("gl", "wgl")):
                    raise SystemExit("%s: %s is neither a GL nor a WGL function" % (where, function.name))
                if function.is_wgl != current.is_wgl:
                    raise SystemExit("%s: %s does not belong under %s" % (where, function.name, current.name))
                current.functions.append(function)
    if len(extensions) >= UNKNOWN_EXTENSION:
        raise SystemExit("%s: %d ids reach the unknown id %d" % (path, len(extensions), UNKNOWN_EXTENSION))
    names = [f.name.encode("ascii") for f in gl11]
    if names != sorted(names):
        raise SystemExit("%s: the GL 1.1 functions must be in byte order" % path)
    return Catalogue(gl11, wgl10, extensions)
