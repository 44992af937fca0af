#!/usr/bin/env python3
"""The routed-calls header against the operations lists generated from the same
catalogue: one macro per GL and WGL operation, each calling that operation with
the caller's file and line, and a new catalogue line reaching the header too."""
import os
import re
import shutil
import tempfile
import unittest

from test_catalogue import CATALOGUE, generate

ROW = re.compile(r"^ORU_(GL|WGL)_OPERATION\((.*)\)$")
MACRO = re.compile(r"^#define (\w+)\(([^)]*)\) (.*)$")


def rows(text):
    """(kind, name, argument names) of each row of a list."""
    for line in text.splitlines():
        m = ROW.match(line)
        if not m:
            continue
        fields = m.group(2)
        args = re.findall(r"\((, [^()]*|)\)", fields)
        stem = fields.split(", ")[1]
        if m.group(1) == "GL":
            yield "GL", "gl" + stem, args[1]
        else:
            yield "WGL", fields.split(", ")[2], args[1]


class RoutedTest(unittest.TestCase):
    def setUp(self):
        self.work = tempfile.mkdtemp()
        self.catalogue = os.path.join(self.work, "catalogue")
        shutil.copytree(CATALOGUE, self.catalogue)

    def tearDown(self):
        shutil.rmtree(self.work)

    def generated(self):
        out = os.path.join(self.work, "out")
        for target in ("operations", "routed"):
            result = generate(self.catalogue, target, out)
            self.assertEqual(0, result.returncode, result.stderr)
        texts = {}
        for name in ("extensionator/Operations.def", "extensionator/windows/WglOperations.def",
                     "extensionator/CatalogueCounts.h", "RoutedCalls.inc"):
            with open(os.path.join(out, name), encoding="utf-8") as f:
                texts[name] = f.read()
        macros = {}
        for line in texts["RoutedCalls.inc"].splitlines():
            m = MACRO.match(line)
            if m:
                self.assertNotIn(m.group(1), macros, "two macros for " + m.group(1))
                macros[m.group(1)] = (m.group(2), m.group(3))
        listed = list(rows(texts["extensionator/Operations.def"])) + \
            list(rows(texts["extensionator/windows/WglOperations.def"]))
        counts = dict(re.findall(r"constexpr unsigned int (k\w+OperationCount) = (\d+);", texts["extensionator/CatalogueCounts.h"]))
        self.assertEqual(int(counts["kGLOperationCount"]) + int(counts["kWGLOperationCount"]), len(listed))
        return listed, macros

    def test_every_operation_has_its_macro(self):
        listed, macros = self.generated()
        self.assertEqual(sorted(name for _, name, _ in listed), sorted(macros))
        for kind, name, args in listed:
            params, body = macros[name]
            if kind == "GL":
                self.assertEqual(("...", "ORU_GL %s(__VA_ARGS__)" % name), (params, body))
                continue
            # Named parameters, as many as the function has; none for none, and
            # then no comma after the line either.
            stem = name[3:] if name.startswith("wgl") else name
            self.assertEqual(args[2:], params)
            self.assertEqual("::Oru::OGL::wglInterceptor::Instance()->wcgm%s(__FILE__, __LINE__%s)" % (stem, args),
                             body)
        self.assertEqual(("", "::Oru::OGL::wglInterceptor::Instance()->wcgmGetCurrentDC(__FILE__, __LINE__)"),
                         macros["wglGetCurrentDC"])
        self.assertIn("wcgmSwapBuffers(__FILE__, __LINE__, hdc)", macros["SwapBuffers"][1])

    def test_a_new_catalogue_line_is_routed(self):
        path = os.path.join(self.catalogue, "entry_points.txt")
        with open(path, encoding="utf-8") as f:
            text = f.read()
        with open(path, "w", encoding="utf-8") as f:
            f.write(text.replace("@ 300 GL_WIN_swap_hint\n",
                                 "@ 300 GL_WIN_swap_hint\nvoid glFrobnicateWIN(GLenum mode);\n", 1))
        listed, macros = self.generated()
        self.assertIn("glFrobnicateWIN", [name for _, name, _ in listed])
        self.assertEqual(("...", "ORU_GL glFrobnicateWIN(__VA_ARGS__)"), macros["glFrobnicateWIN"])


if __name__ == "__main__":
    unittest.main()
