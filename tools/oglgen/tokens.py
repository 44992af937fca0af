"""TokenName: a two-level table over the value, a static string per row; and the
library's GL constants, one per name of the same table."""
import os

from .output import banner, write_if_changed

SOURCE = "gl_tokens.tsv"
SOURCES = (SOURCE,)
OUTPUTS = ("TokenNameTable.cpp", "TokenNames.inc", "ogl/GLConstants.h")


def read_tokens(catalogue_dir):
    """Rows of (value, name) in file order; a value or a name may appear only once."""
    rows = []
    seen_values, seen_names = set(), set()
    path = os.path.join(catalogue_dir, SOURCE)
    with open(path, encoding="utf-8") as f:
        header = f.readline().rstrip("\n").split("\t")
        if header[:2] != ["value", "name"]:
            raise SystemExit("%s: header must start with value<TAB>name" % path)
        for number, line in enumerate(f, start=2):
            line = line.rstrip("\n")
            if not line:
                continue
            fields = line.split("\t")
            value, name = int(fields[0], 16), fields[1]
            if value in seen_values or name in seen_names:
                raise SystemExit("%s:%d: %s (0x%X) is listed twice" % (path, number, name, value))
            if not (0 <= value <= 0xFFFFFFFF):
                raise SystemExit("%s:%d: value out of range" % (path, number))
            seen_values.add(value)
            seen_names.add(name)
            rows.append((value, name))
    return rows


PAGE_BITS = 5  # 32 values per page: the smallest page table whose page numbers fit a byte
PAGE = 1 << PAGE_BITS
UNKNOWN = "Unknown Token"


def generate(catalogue_dir, output_dir):
    rows = sorted(read_tokens(catalogue_dir))
    small = [(v, n) for v, n in rows if v < 0x10000]
    large = [(v, n) for v, n in rows if v >= 0x10000]

    # All names in one pool, "Unknown Token" first: a value's entry is the offset
    # of its name, and 0 names every value without one.
    offset, pool = {}, [UNKNOWN]
    position = len(UNKNOWN) + 1
    for value, name in rows:
        offset[value] = position
        pool.append(name)
        position += len(name) + 1
    pages = sorted({v >> PAGE_BITS for v, _ in small})
    if position > 0xFFFF or len(pages) > 255:
        raise SystemExit("%s: the names or values outgrow the look-up table" % SOURCE)
    page_number = {p: i + 1 for i, p in enumerate(pages)}  # page 0 names nothing

    out = [banner(SOURCE),
           '#include "oru_ogl/TokenName.h"\n\n',
           "// %d values. A value below 0x10000 (all but %d) is found in two table reads,\n" % (len(rows), len(large)),
           "// its page by the high bits, then its name's offset by the low %d bits: no\n" % PAGE_BITS,
           "// comparisons to mispredict, no search, no allocation, about 12 KB of tables.\n",
           "// Page 0 holds only offset 0, \"%s\", so a value on no page needs no test.\n" % UNKNOWN,
           "namespace\n{\n\n",
           "const char kPool[] =\n"]
    for name in pool:
        out.append('    "%s\\0"\n' % name)
    out.append("    ;\n\n")

    index_size = 0x10000 >> PAGE_BITS
    page_of = [page_number.get(high, 0) for high in range(index_size)]
    out.append("const unsigned char kPageOf[%d] = {\n" % index_size)
    for i in range(0, index_size, 32):
        out.append("    " + ", ".join("%d" % x for x in page_of[i:i + 32]) + ",\n")
    out.append("};\n\n")

    out.append("const unsigned short kPages[%d][%d] = {\n" % (len(pages) + 1, PAGE))
    for page in [None] + pages:
        entries = [offset.get((page << PAGE_BITS) + low, 0) if page is not None else 0 for low in range(PAGE)]
        label = "no names" if page is None else "0x%04X" % (page << PAGE_BITS)
        out.append("    { %s }, // %s\n" % (", ".join("%d" % x for x in entries), label))
    out.append("};\n\n")

    out.append("// The few values of 0x10000 and above: bit masks and vendor ranges.\n")
    out.append("unsigned int largeOffset(unsigned int token)\n{\n    switch (token)\n    {\n")
    for value, name in large:
        out.append("    case 0x%04Xu: return %d; // %s\n" % (value, offset[value], name))
    out.append("    default: return 0;\n    }\n}\n\n} // namespace\n\n")

    out.append("extern \"C\" char const* TokenName(unsigned int token)\n{\n"
               "    if (token >= 0x10000u)\n"
               "        return kPool + largeOffset(token);\n"
               "    return kPool + kPages[kPageOf[token >> %d]][token & %du];\n}\n" % (PAGE_BITS, PAGE - 1))
    write_if_changed(os.path.join(output_dir, OUTPUTS[0]), "".join(out))

    # The same rows as an X-macro table, for the tests.
    rows_def = [banner(SOURCE), "// ORU_TOKEN(value, name); no include guard.\n"]
    rows_def += ["ORU_TOKEN(0x%04Xu, %s)\n" % (value, name) for value, name in rows]
    write_if_changed(os.path.join(output_dir, OUTPUTS[1]), "".join(rows_def))

    write_if_changed(os.path.join(output_dir, OUTPUTS[2]), constants_header(rows))


# Names the wrappers use for values that the table keeps under another name:
# the ARB float formats and half-float type (kept as their _APPLE twins) and
# the framebuffer binding query (kept as the blit extension's draw binding).
# Each takes the value of the table's name, so no value is written twice.
ALIASES = [
    ("GL_RGBA32F_ARB", "GL_RGBA_FLOAT32_APPLE"),
    ("GL_RGB32F_ARB", "GL_RGB_FLOAT32_APPLE"),
    ("GL_ALPHA32F_ARB", "GL_ALPHA_FLOAT32_APPLE"),
    ("GL_INTENSITY32F_ARB", "GL_INTENSITY_FLOAT32_APPLE"),
    ("GL_LUMINANCE32F_ARB", "GL_LUMINANCE_FLOAT32_APPLE"),
    ("GL_LUMINANCE_ALPHA32F_ARB", "GL_LUMINANCE_ALPHA_FLOAT32_APPLE"),
    ("GL_RGBA16F_ARB", "GL_RGBA_FLOAT16_APPLE"),
    ("GL_RGB16F_ARB", "GL_RGB_FLOAT16_APPLE"),
    ("GL_ALPHA16F_ARB", "GL_ALPHA_FLOAT16_APPLE"),
    ("GL_INTENSITY16F_ARB", "GL_INTENSITY_FLOAT16_APPLE"),
    ("GL_LUMINANCE16F_ARB", "GL_LUMINANCE_FLOAT16_APPLE"),
    ("GL_LUMINANCE_ALPHA16F_ARB", "GL_LUMINANCE_ALPHA_FLOAT16_APPLE"),
    ("GL_HALF_FLOAT_ARB", "GL_HALF_APPLE"),
    ("GL_FRAMEBUFFER_BINDING_EXT", "GL_DRAW_FRAMEBUFFER_BINDING_EXT"),
]


# Values the library needs that the table does not name (TokenName answers
# "Unknown Token" for them): 0x8D45 opens the stencil-index range of
# GL_EXT_framebuffer_object, the GL_STENCIL_INDEX_EXT of its early revisions
# that later headers dropped.
UNNAMED = [
    ("GL_STENCIL_INDEX_EXT", 0x8D45),
]


def constants_header(rows):
    """Every name of the table as a macro, defined only where the system's GL
    headers have not (MinGW's glext.h has most, MSVC ships none), then the aliases."""
    names = {name for _, name in rows}
    out = [banner(SOURCE),
           "#ifndef ORU_OGL_OGL_GLCONSTANTS_H\n#define ORU_OGL_OGL_GLCONSTANTS_H\n\n",
           "// The GL values of the library, private to it: clients use the layer's enumerations.\n",
           '#include "oru_ogl/extensionator/GLTypes.h"\n\n']
    for value, name in rows:
        out.append("#ifndef %s\n#define %s 0x%04X\n#endif\n" % (name, name, value))
    out.append("\n// Other names of values in the table.\n")
    for alias, name in ALIASES:
        if name not in names:
            raise SystemExit("%s: alias %s names %s, which is not in the table" % (SOURCE, alias, name))
        out.append("#ifndef %s\n#define %s %s\n#endif\n" % (alias, alias, name))
    out.append("\n// Values the table does not name.\n")
    values = {value for value, _ in rows}
    for name, value in UNNAMED:
        if name in names or value in values:
            raise SystemExit("%s: %s (0x%04X) is in the table now; drop it from UNNAMED" % (SOURCE, name, value))
        out.append("#ifndef %s\n#define %s 0x%04X\n#endif\n" % (name, name, value))
    out.append("\n#endif\n")
    return "".join(out)
