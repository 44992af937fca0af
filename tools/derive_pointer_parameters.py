#!/usr/bin/env python3
"""Derives catalogue/pointer_parameters.tsv from the Khronos registry (gl.xml).

    derive_pointer_parameters.py [GL_XML [OUTPUT]]

GL_XML defaults to /usr/share/khronos-api/gl.xml (Debian package khronos-api),
OUTPUT to catalogue/pointer_parameters.tsv.

Development time only: the build reads the committed result, never gl.xml.
A function of the catalogue is matched to a registry command by its name, a
parameter by its position (the catalogue keeps the types and names of 2007);
the registry's `len` gives the size, its `const` the direction. Where the
registry writes COMPSIZE(...) the table below names the rule that computes it.
Parameters that catalogue/pointer_rules.tsv covers are left out, so that the
two files hold exactly one row per pointer parameter; rerunning this script
rewrites the same file byte for byte.
"""
import os
import re
import sys
import xml.etree.ElementTree as ET

TOOLS = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, TOOLS)

from oglgen import catalogue, pointers  # noqa: E402

CATALOGUE_DIR = os.path.join(os.path.dirname(TOOLS), "catalogue")
DEFAULT_GL_XML = "/usr/share/khronos-api/gl.xml"

# COMPSIZE(...) by its arguments (in the catalogue's names) -> the size rule.
COMPSIZE_RULES = {
    ("pname",): "values(pname)",
    ("count", "type"): "typed(count,type)",
    ("n", "type"): "typed(n,type)",
    ("program", "location"): "uniform(program,location)",
    ("programObj", "location"): "uniform(programObj,location)",
    ("format", "type", "width"): "image1d(width,format,type)",
    ("format", "type", "count"): "image1d(count,format,type)",
    ("target", "format", "type", "width"): "image1d(width,format,type)",
    ("target", "format", "type", "height"): "image1d(height,format,type)",
    ("format", "type", "width", "height"): "image2d(width,height,format,type)",
    ("format", "type", "width", "height", "depth"): "image3d(width,height,depth,format,type)",
    ("width", "height"): "image2d(width,height,GL_COLOR_INDEX,GL_BITMAP)",
    ("target", "format", "type"): "table_image(target,format,type)",
    ("target", "level", "format", "type"): "tex_image(target,level,format,type)",
    ("target", "level"): "compressed_tex_image(target,level)",
    ("map",): "pixel_map(map)",
    ("target", "query"): "map_query(target,query)",
    ("target", "stride", "order"): "map1(target,stride,order)",
    ("target", "ustride", "uorder", "vstride", "vorder"): "map2(target,ustride,uorder,vstride,vorder)",
    ("name",): "string",
    ("length",): "length",
    ("format", "stride"): "interleaved(format,stride)",
}
# The same arguments mean different things in these families.
FAMILY_RULES = (
    (r"^glPolygonStipple$|^glGetPolygonStipple$", (), "image2d(32,32,GL_COLOR_INDEX,GL_BITMAP)"),
    (r"^glGet(Boolean|Integer)IndexedvEXT$", ("target",), "values(target)"),
    (r"^gl(Get)?Map(Parameter)[fi]vNV$", ("target", "pname"), "values(pname)"),
    (r"^glTransformFeedbackAttribsNV$", ("count",), "count*3"),
)
# Vertex arrays without a size parameter: their fixed number of components.
FIXED_COMPONENTS = {
    "Normal": 3, "Binormal": 3, "Tangent": 3,
    "Index": 1, "FogCoord": 1, "VertexWeight": 1, "ReplacementCode": 1, "EdgeFlag": 1, "Element": 1,
}


def _vertex_array_rule(function, args):
    """vertex_array(components,type,stride) for glVertexPointer and its kin,
    whose COMPSIZE lists some of size, type, stride and count."""
    if "Pointer" not in function.name or "List" in function.name or not args \
            or not set(args) <= {"size", "fsize", "type", "stride", "count"}:
        return None
    size = args[0] if args[0] in ("size", "fsize") else FIXED_COMPONENTS.get(re.sub(r"Pointer.*$", "", function.stem))
    if size is None:
        return None
    return "vertex_array(%s,%s,%s)" % (size, "type" if "type" in args else "GL_UNSIGNED_BYTE",
                                       "stride" if "stride" in args else "0")


def _compsize_rule(function, args):
    """The size rule for COMPSIZE(args); None where none models it (the row
    then says `unknown`, and the capture refuses the call)."""
    for pattern, signature, rule in FAMILY_RULES:
        if re.search(pattern, function.name) and tuple(args) == signature:
            return rule
    return COMPSIZE_RULES.get(tuple(args)) or _vertex_array_rule(function, args)


def _binding_and_when(function, direction, rule):
    """The buffer binding that makes the pointer an offset, and when the data is there."""
    kind = pointers.rule_name(rule)
    if kind == "vertex_array" or kind == "interleaved":
        return "array_buffer" if "Element" not in function.name else "element_array_buffer", "draw"
    if kind == "typed" and "Elements" in function.name:
        return "element_array_buffer", "call"
    pixel = kind in ("image1d", "image2d", "image3d", "tex_image", "compressed_tex_image", "table_image", "pixel_map") \
        or re.match(r"gl(Get)?(CompressedTex|PixelMap)", function.name)
    if pixel:
        return ("pixel_pack_buffer" if direction == "out" else "pixel_unpack_buffer"), "call"
    return "-", "call"


def _translate(expression, names):
    """gl.xml parameter names -> the catalogue's, by position."""
    return re.sub(r"[A-Za-z_]\w*", lambda m: names.get(m.group(0), m.group(0)), expression)


def derive(gl_xml):
    cat = catalogue.load(CATALOGUE_DIR)
    covered = {(r.function, r.parameter) for r in pointers.read_rows(CATALOGUE_DIR, pointers.RULES)}
    commands = {}
    for command in ET.parse(gl_xml).getroot().find("commands"):
        commands[command.find("proto/name").text] = command.findall("param")

    rows, missing = [], []
    for function in cat.operations():
        for index, param in enumerate(function.params):
            if not param.is_pointer or (function.name, param.name) in covered:
                continue
            registry = commands.get(function.name)
            if registry is None or len(registry) != len(function.params):
                missing.append("%s %s" % (function.name, param.name))
                continue
            names = {p.find("name").text: mine.name for p, mine in zip(registry, function.params)}
            entry = registry[index]
            text = "".join(entry.itertext())
            direction = "in" if text.split("*")[0].split().count("const") else "out"
            length = entry.get("len")
            if length is None:
                missing.append("%s %s" % (function.name, param.name))
                continue
            compsize = re.match(r"^COMPSIZE\((.*)\)$", length)
            if compsize:
                args = [_translate(a, names) for a in compsize.group(1).split(",") if a]
                size = _compsize_rule(function, args) or "unknown"
                source = "COMPSIZE"
            else:
                size, source = _translate(length, names), "len"
            binding, when = _binding_and_when(function, direction, size)
            rows.append(pointers.Row(function.name, param.name, direction, size, when, binding, source))
    return rows, missing


def main(argv):
    gl_xml = argv[0] if argv else DEFAULT_GL_XML
    output = argv[1] if len(argv) > 1 else os.path.join(CATALOGUE_DIR, pointers.DERIVED)
    rows, missing = derive(gl_xml)
    pointers.write_rows(output, rows)
    if missing:
        sys.stderr.write("no registry size, add a row to %s:\n  %s\n" % (pointers.RULES, "\n  ".join(missing)))
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
