"""The generator's check of the pointer parameter tables against the operations:
what it refuses, with which message, and that the committed tables pass it and
follow from the registry."""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = os.path.abspath(os.path.join(os.path.dirname(__file__), "..", ".."))
CATALOGUE = os.path.join(ROOT, "catalogue")
sys.path.insert(0, os.path.join(ROOT, "tools"))

from oglgen import catalogue, pointers  # noqa: E402

GL_XML = "/usr/share/khronos-api/gl.xml"


class CommittedTablesTest(unittest.TestCase):
    def test_every_pointer_parameter_of_the_operations_has_one_row(self):
        operations, rows, _, _ = pointers.load(CATALOGUE)
        gl = [f for f in operations if f.name.startswith("gl")]
        wgl = [f for f in operations if not f.name.startswith("gl")]
        self.assertEqual((len(gl), len(wgl)), (1501, 20))
        pointer_params = [(f.name, p.name) for f in operations for p in f.params if p.is_pointer]
        self.assertEqual(sorted(pointer_params), sorted((r.function, r.parameter) for r in rows))
        # The WGL typedefs that hide a '*' are pointers too.
        self.assertEqual(sorted(n for n, _ in pointer_params if n.startswith("wgl")),
                         ["wglDescribeLayerPlane", "wglGetLayerPaletteEntries", "wglGetProcAddress",
                          "wglSetLayerPaletteEntries", "wglSwapMultipleBuffers", "wglUseFontOutlinesA",
                          "wglUseFontOutlinesW"])

    @unittest.skipUnless(os.path.exists(GL_XML), "the registry (Debian package khronos-api) is not installed")
    def test_the_derived_table_follows_from_the_registry_byte_for_byte(self):
        work = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, work)
        script = os.path.join(ROOT, "tools", "derive_pointer_parameters.py")
        output = os.path.join(work, pointers.DERIVED)
        subprocess.run([sys.executable, script, GL_XML, output], check=True, capture_output=True)
        with open(os.path.join(CATALOGUE, pointers.DERIVED), "rb") as committed, open(output, "rb") as derived:
            self.assertEqual(derived.read(), committed.read())


class CheckRefusesTest(unittest.TestCase):
    """Each fault is made in a copy of the committed model; the check must name
    the function and the parameter."""

    @classmethod
    def setUpClass(cls):
        cls.operations, cls.rows, cls.enum_counts, cls.tokens = pointers.load(CATALOGUE)

    def fails(self, operations=None, rows=None, enum_counts=None):
        with self.assertRaises(pointers.PointerCheckError) as caught:
            pointers.check(operations or self.operations, rows if rows is not None else self.rows,
                           enum_counts if enum_counts is not None else self.enum_counts, self.tokens)
        return str(caught.exception)

    def with_row(self, function, parameter, **changes):
        """The rows with the one of function/parameter changed, and that row."""
        rows = []
        for row in self.rows:
            if (row.function, row.parameter) == (function, parameter):
                row = row._replace(**changes)
                changed = row
            rows.append(row)
        return rows, changed

    def test_a_pointer_parameter_more_in_the_catalogue(self):
        operations = []
        for f in self.operations:
            if f.name == "glTexImage2D":
                f = catalogue.Function(f.ret, f.name, f.params + [catalogue.Param("const GLint *", "extra")], f.owner)
            operations.append(f)
        self.assertEqual(self.fails(operations=operations),
                         "pointer_parameters.tsv: glTexImage2D extra: pointer parameter without a row "
                         "(add one to pointer_rules.tsv)")

    def test_rows_for_what_is_not_a_pointer_parameter(self):
        row = self.rows[0]
        for function, parameter, message in (("glTexImage2D", "pixelz", "no such parameter"),
                                             ("glTexImage2D", "width", "not a pointer parameter"),
                                             ("glTexImage9D", "pixels", "no such operation")):
            extra = row._replace(function=function, parameter=parameter, where="pointer_rules.tsv:99")
            self.assertEqual(self.fails(rows=self.rows + [extra]),
                             "pointer_rules.tsv:99: %s %s: %s" % (function, parameter, message))

    def test_a_parameter_described_twice(self):
        twice = [r for r in self.rows if r.function == "glBitmap"][0]._replace(where="pointer_rules.tsv:50")
        message = self.fails(rows=self.rows + [twice])
        self.assertRegex(message, r"^pointer_rules\.tsv:50: glBitmap bitmap: already described at "
                                  r"pointer_parameters\.tsv:\d+$")

    def test_sizes_that_do_not_parse_or_name_what_is_not_there(self):
        cases = (
            ("imag2d(width,height,format,type)", "unknown size rule 'imag2d'"),
            ("image2d(width,heigth,format,type)",
             "size 'image2d(width,heigth,format,type)' names no parameter 'heigth'"),
            ("image2d(width,height,format)", "image2d takes 4 arguments"),
            ("image2d(width,height,GL_RGBX,type)", "unknown token GL_RGBX"),
            ("width*pixels", "size 'width*pixels' reads 'pixels', a pointer"),
            ("width+height", "size 'width+height' is not a size"),
            ("strings(width,height)", "strings needs a pointer parameter, not 'height'"),
        )
        for size, message in cases:
            rows, row = self.with_row("glTexImage2D", "pixels", size=size)
            self.assertEqual(self.fails(rows=rows), "%s: glTexImage2D pixels: %s" % (row.where, message))

    def test_columns_outside_their_words(self):
        for column, value, allowed in (("direction", "both", "in, out, inout"), ("when", "soon", "call, draw, later"),
                                       ("binding", "pixel_buffer", ", ".join(pointers.BINDINGS))):
            rows, row = self.with_row("glReadPixels", "pixels", **{column: value})
            self.assertEqual(self.fails(rows=rows),
                             "%s: glReadPixels pixels: %s must be one of %s" % (row.where, column, allowed))

    def test_enum_counts_name_known_tokens_once_with_a_count(self):
        first = self.enum_counts[0]
        cases = (
            (first._replace(name="GL_MODELVIEW_MATRIXX"), "GL_MODELVIEW_MATRIXX is not a token of gl_tokens.tsv"),
            (first._replace(count="4.0"), "%s: count must be a positive number or unknown" % first.name),
            (first._replace(table="lights"), "%s: table must be one of values, maps" % first.name),
            (first, "%s is listed twice in table %s" % (first.name, first.table)),
        )
        for entry, message in cases:
            entry = entry._replace(where="enum_counts.tsv:700")
            self.assertEqual(self.fails(enum_counts=self.enum_counts + [entry]), "enum_counts.tsv:700: " + message)


class BuildStopsTest(unittest.TestCase):
    def test_the_generator_exits_with_the_message_and_writes_nothing(self):
        work = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, work)
        shutil.copytree(CATALOGUE, os.path.join(work, "catalogue"))
        rules = os.path.join(work, "catalogue", pointers.RULES)
        with open(rules, encoding="utf-8") as f:
            text = f.read()
        with open(rules, "w", encoding="utf-8") as f:
            f.write(text.replace("wglSwapMultipleBuffers\tps\t", "wglSwapMultipleBuffers\tpss\t"))
        result = subprocess.run([sys.executable, os.path.join(ROOT, "tools", "generate.py"), "pointers",
                                 os.path.join(work, "catalogue"), os.path.join(work, "out")],
                                capture_output=True, text=True)
        self.assertNotEqual(result.returncode, 0)
        self.assertRegex(result.stderr, r"pointer_rules\.tsv:\d+: wglSwapMultipleBuffers pss: no such parameter")
        self.assertFalse(os.path.exists(os.path.join(work, "out")))


if __name__ == "__main__":
    unittest.main()
