"""Pointer parameters: direction and size of the data behind every pointer
parameter of the GL and WGL operations (catalogue/pointer_parameters.tsv, derived
from the Khronos registry, and catalogue/pointer_rules.tsv, written by hand),
with the number of values per enum (catalogue/enum_counts.tsv).

Checked against the catalogue on every run; writes the tables the capture reads:
extensionator/PointerParameters.inc and extensionator/EnumCounts.inc."""
import collections
import os
import re

from . import catalogue, tokens
from .output import write_if_changed

DERIVED = "pointer_parameters.tsv"
RULES = "pointer_rules.tsv"
ENUM_COUNTS = "enum_counts.tsv"
SOURCES = (catalogue.SOURCE, tokens.SOURCE, DERIVED, RULES, ENUM_COUNTS)
OUTPUTS = ("extensionator/PointerParameters.inc", "extensionator/EnumCounts.inc")

COLUMNS = ["function", "parameter", "direction", "size", "when", "binding", "source"]
RULE_COLUMNS = COLUMNS[:-1] + ["why"]
DIRECTIONS = ("in", "out", "inout")
WHEN = ("call", "draw", "later")
BINDINGS = ("-", "pixel_unpack_buffer", "pixel_pack_buffer", "array_buffer", "element_array_buffer")
ENUM_TABLES = ("values", "maps")

# The size language. A size is `string`, `unknown`, a product of integers and
# scalar parameters (`n`, `count*4`), or a rule over arguments of these kinds:
#   count   a scalar parameter or an integer
#   enum    a scalar parameter or a GL token name
#   pointer another pointer parameter of the function
RULE_ARGUMENTS = collections.OrderedDict([
    ("values", ("enum",)),                                   # enum_counts.tsv, table values
    ("typed", ("count", "enum")),                            # count values of a GL type
    ("strings", ("count", "pointer")),                       # count strings, lengths or zero-terminated
    ("pointer_arrays", ("pointer", "enum", "count")),        # count[i] values of type behind each of n pointers
    ("image1d", ("count", "enum", "enum")),                  # width, format, type
    ("image2d", ("count", "count", "enum", "enum")),         # width, height, format, type
    ("image3d", ("count", "count", "count", "enum", "enum")),
    ("vertex_array", ("count", "enum", "count")),            # components, type, stride; range known at draw
    ("interleaved", ("enum", "count")),                      # format, stride
    ("map1", ("enum", "count", "count")),                    # target (enum_counts.tsv, table maps), stride, order
    ("map2", ("enum", "count", "count", "count", "count")),  # target, ustride, uorder, vstride, vorder
    # The sizes below need GL state that the call does not carry.
    ("pixel_map", ("enum",)),
    ("map_query", ("enum", "enum")),
    ("tex_image", ("enum", "count", "enum", "enum")),
    ("compressed_tex_image", ("enum", "count")),
    ("table_image", ("enum", "enum", "enum")),
    ("uniform", ("count", "count")),
])
WORDS = ("string", "unknown")
MAX_ARGUMENTS = max(len(kinds) for kinds in RULE_ARGUMENTS.values())

Row = collections.namedtuple("Row", COLUMNS + ["where"])
Row.__new__.__defaults__ = ("",)

_RULE = re.compile(r"^(?P<name>[a-z_0-9]+)\((?P<args>[^()]*)\)$")
_NAME = re.compile(r"^[A-Za-z_]\w*$")


def rule_name(size):
    """image2d for "image2d(width,height,format,type)"; count for a product."""
    m = _RULE.match(size)
    return m.group("name") if m else (size if size in WORDS else "count")


def read_rows(catalogue_dir, source):
    path = os.path.join(catalogue_dir, source)
    header = RULE_COLUMNS if source == RULES else COLUMNS
    rows = []
    with open(path, encoding="utf-8") as f:
        if f.readline().rstrip("\n").split("\t") != header:
            raise SystemExit("%s: the header must be %s" % (path, "<TAB>".join(header)))
        for number, line in enumerate(f, start=2):
            line = line.rstrip("\n")
            if not line or line.startswith("#"):
                continue
            fields = line.split("\t")
            if len(fields) != len(header):
                raise SystemExit("%s:%d: expected %d columns" % (path, number, len(header)))
            rows.append(Row(*fields, where="%s:%d" % (source, number)))
    return rows


def write_rows(path, rows):
    lines = ["\t".join(COLUMNS)] + ["\t".join(r[:len(COLUMNS)]) for r in rows]
    with open(path, "w", encoding="utf-8", newline="\n") as f:
        f.write("\n".join(lines) + "\n")


EnumCount = collections.namedtuple("EnumCount", "table name count where")


def read_enum_counts(catalogue_dir):
    path = os.path.join(catalogue_dir, ENUM_COUNTS)
    counts = []
    with open(path, encoding="utf-8") as f:
        if f.readline().rstrip("\n").split("\t") != ["table", "name", "count"]:
            raise SystemExit("%s: the header must be table<TAB>name<TAB>count" % path)
        for number, line in enumerate(f, start=2):
            line = line.rstrip("\n")
            if line and not line.startswith("#"):
                fields = line.split("\t")
                if len(fields) != 3:
                    raise SystemExit("%s:%d: expected 3 columns" % (path, number))
                counts.append(EnumCount(*fields, where="%s:%d" % (ENUM_COUNTS, number)))
    return counts


# The WGL operations' pointer types that are typedefs rather than '*'.
WGL_POINTER_TYPES = {
    "LPCSTR": "const char *",
    "LPGLYPHMETRICSFLOAT": "GLYPHMETRICSFLOAT *",
    "LPLAYERPLANEDESCRIPTOR": "LAYERPLANEDESCRIPTOR *",
}


def wgl_operations(cat):
    """The WGL operations of the catalogue, their pointer typedefs spelled as pointers."""
    functions = []
    for f in cat.wgl_operations():
        params = []
        for p in f.params:
            if p.type.startswith("LP") and p.type not in WGL_POINTER_TYPES:
                raise SystemExit("%s: %s: add %s to WGL_POINTER_TYPES" % (catalogue.SOURCE, f.name, p.type))
            params.append(catalogue.Param(catalogue._normalise_type(WGL_POINTER_TYPES.get(p.type, p.type)), p.name))
        functions.append(catalogue.Function(f.ret, f.name, params, None))
    return functions


class PointerCheckError(SystemExit):
    pass


def _fail(where, function, parameter, message):
    raise PointerCheckError("%s: %s %s: %s" % (where, function, parameter, message))


def _check_size(row, function, token_names):
    params = {p.name: p for p in function.params}

    def scalar(name):
        if name not in params:
            _fail(row.where, row.function, row.parameter, "size '%s' names no parameter '%s'" % (row.size, name))
        if params[name].is_pointer:
            _fail(row.where, row.function, row.parameter, "size '%s' reads '%s', a pointer" % (row.size, name))

    if row.size in WORDS:
        return
    m = _RULE.match(row.size)
    if not m:
        for factor in row.size.split("*"):
            if not factor.isdigit():
                if not _NAME.match(factor):
                    _fail(row.where, row.function, row.parameter, "size '%s' is not a size" % row.size)
                scalar(factor)
        return
    name, args = m.group("name"), m.group("args").split(",")
    if name not in RULE_ARGUMENTS:
        _fail(row.where, row.function, row.parameter, "unknown size rule '%s'" % name)
    kinds = RULE_ARGUMENTS[name]
    if len(args) != len(kinds):
        _fail(row.where, row.function, row.parameter, "%s takes %d arguments" % (name, len(kinds)))
    for arg, kind in zip(args, kinds):
        if kind == "pointer":
            if arg not in params or not params[arg].is_pointer:
                _fail(row.where, row.function, row.parameter, "%s needs a pointer parameter, not '%s'" % (name, arg))
        elif arg.isdigit() and kind == "count":
            continue
        elif arg.startswith("GL_") and kind == "enum":
            if arg not in token_names:
                _fail(row.where, row.function, row.parameter, "unknown token %s" % arg)
        else:
            scalar(arg)


def check(operations, rows, enum_counts, token_names):
    """Raises PointerCheckError naming the first function and parameter at fault."""
    by_name = {f.name: f for f in operations}
    seen = {}
    for row in rows:
        function = by_name.get(row.function)
        if function is None:
            _fail(row.where, row.function, row.parameter, "no such operation")
        param = next((p for p in function.params if p.name == row.parameter), None)
        if param is None:
            _fail(row.where, row.function, row.parameter, "no such parameter")
        if not param.is_pointer:
            _fail(row.where, row.function, row.parameter, "not a pointer parameter")
        if (row.function, row.parameter) in seen:
            _fail(row.where, row.function, row.parameter, "already described at %s" % seen[(row.function, row.parameter)])
        seen[(row.function, row.parameter)] = row.where
        for column, allowed in (("direction", DIRECTIONS), ("when", WHEN), ("binding", BINDINGS)):
            if getattr(row, column) not in allowed:
                _fail(row.where, row.function, row.parameter, "%s must be one of %s" % (column, ", ".join(allowed)))
        _check_size(row, function, token_names)
    for function in operations:
        for param in function.params:
            if param.is_pointer and (function.name, param.name) not in seen:
                _fail(DERIVED, function.name, param.name, "pointer parameter without a row (add one to %s)" % RULES)
    seen_counts = set()
    for entry in enum_counts:
        if entry.table not in ENUM_TABLES:
            raise PointerCheckError("%s: %s: table must be one of %s" % (entry.where, entry.name, ", ".join(ENUM_TABLES)))
        if entry.name not in token_names:
            raise PointerCheckError("%s: %s is not a token of %s" % (entry.where, entry.name, tokens.SOURCE))
        if not (entry.count.isdigit() and int(entry.count) > 0) and entry.count != "unknown":
            raise PointerCheckError("%s: %s: count must be a positive number or unknown" % (entry.where, entry.name))
        if (entry.table, entry.name) in seen_counts:
            raise PointerCheckError("%s: %s is listed twice in table %s" % (entry.where, entry.name, entry.table))
        seen_counts.add((entry.table, entry.name))


def load(catalogue_dir):
    """(operations, rows, enum counts, token name -> value), checked."""
    cat = catalogue.load(catalogue_dir)
    operations = cat.operations() + wgl_operations(cat)
    rows = read_rows(catalogue_dir, DERIVED) + read_rows(catalogue_dir, RULES)
    enum_counts = read_enum_counts(catalogue_dir)
    token_values = {name: value for value, name in tokens.read_tokens(catalogue_dir)}
    check(operations, rows, enum_counts, token_values)
    return operations, rows, enum_counts, token_values


def _camel(word):
    """pixel_unpack_buffer -> PixelUnpackBuffer, image2d -> Image2D, - -> None."""
    if word == "-":
        return "None"
    return re.sub(r"(\d)d$", r"\1D", "".join(part.capitalize() for part in word.split("_")))


def _pointee(param):
    """The element the size counts: the type with its last '*' removed; void counts bytes."""
    element = param.type[:param.type.rindex("*")].strip()
    bare = element[len("const "):] if element.startswith("const ") and "*" not in element else element
    return "1" if bare in ("void", "GLvoid", "VOID") else "sizeof(%s)" % bare


def _arguments(row, function, token_values):
    index = {p.name: i for i, p in enumerate(function.params)}
    m = _RULE.match(row.size)
    if m:
        args = m.group("args").split(",")
    elif row.size in WORDS:
        args = []
    else:
        args = row.size.split("*")
    out = []
    for arg in args:
        if arg in index:
            out.append("ORU_ARGUMENT(%d)" % index[arg])
        elif arg.isdigit():
            out.append("ORU_CONSTANT(%s)" % arg)
        else:
            out.append("ORU_CONSTANT(0x%04X)" % token_values[arg])
    return out


def generate(catalogue_dir, output_dir):
    operations, rows, enum_counts, token_values = load(catalogue_dir)
    by_name = {f.name: f for f in operations}
    order = {(f.name, p.name): (n, i) for n, f in enumerate(operations) for i, p in enumerate(f.params)}
    out = ["// Generated by tools/generate.py from catalogue/%s and %s. Do not edit.\n" % (DERIVED, RULES),
           "// One line per pointer parameter of the GL and WGL operations, in the chain's\n",
           "// order; no include guard.\n",
           "// ORU_POINTER_PARAMETER(operation, parameter index, element size, direction, when,\n",
           "//     binding, rule, argument count, five arguments): an argument is ORU_ARGUMENT(i),\n",
           "//     the call's parameter i, or ORU_CONSTANT(value); ORU_NONE fills the rest.\n"]
    for row in sorted(rows, key=lambda r: order[(r.function, r.parameter)]):
        function = by_name[row.function]
        param_index = order[(row.function, row.parameter)][1]
        fields = [function.operation, str(param_index), _pointee(function.params[param_index]), _camel(row.direction),
                  _camel(row.when), _camel(row.binding), _camel(rule_name(row.size))]
        arguments = _arguments(row, function, token_values)
        fields += [str(len(arguments))] + arguments + ["ORU_NONE"] * (MAX_ARGUMENTS - len(arguments))
        out.append("ORU_POINTER_PARAMETER(%s)\n" % ", ".join(fields))
    write_if_changed(os.path.join(output_dir, OUTPUTS[0]), "".join(out))

    counts = ["// Generated by tools/generate.py from catalogue/%s. Do not edit.\n" % ENUM_COUNTS,
              "// ORU_ENUM_COUNT(table, value, count), by table and value; a count of 0 is\n",
              "// unknown: the values depend on other state. No include guard.\n"]
    for entry in sorted(enum_counts, key=lambda e: (ENUM_TABLES.index(e.table), token_values[e.name])):
        count = "0" if entry.count == "unknown" else entry.count
        counts.append("ORU_ENUM_COUNT(%s, 0x%04X, %s) // %s\n" % (_camel(entry.table), token_values[entry.name],
                                                                 count, entry.name))
    write_if_changed(os.path.join(output_dir, OUTPUTS[1]), "".join(counts))
