"""TokenName: one switch over the value, a static string per case."""
import os

from .output import banner, write_if_changed

SOURCE = "gl_tokens.tsv"


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


def generate(catalogue_dir, output_dir):
    rows = sorted(read_tokens(catalogue_dir))
    out = [banner(SOURCE),
           '#include "oru_ogl/TokenName.h"\n\n',
           "// %d values. The compiler turns the switch into jump tables over the dense\n" % len(rows),
           "// ranges and a comparison tree between them: no search, no allocation.\n",
           "extern \"C\" char const* TokenName(unsigned int token)\n{\n    switch (token)\n    {\n"]
    for value, name in rows:
        out.append("    case 0x%04Xu: return \"%s\";\n" % (value, name))
    out.append("    default: return \"Unknown Token\";\n    }\n}\n")
    write_if_changed(os.path.join(output_dir, "TokenNameTable.cpp"), "".join(out))

    # The same rows as an X-macro table, for the tests.
    rows_def = [banner(SOURCE), "// ORU_TOKEN(value, name); no include guard.\n"]
    rows_def += ["ORU_TOKEN(0x%04Xu, %s)\n" % (value, name) for value, name in rows]
    write_if_changed(os.path.join(output_dir, "TokenNames.inc"), "".join(rows_def))
