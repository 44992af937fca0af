#!/usr/bin/env python3
"""The generator on catalogues made for the test: one line adds an entry point
everywhere it belongs, and a broken catalogue stops the generator with a
message that says where."""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
GENERATOR = os.path.join(ROOT, "tools", "generate.py")
CATALOGUE = os.path.join(ROOT, "catalogue")


def generate(catalogue, target, output):
    return subprocess.run([sys.executable, GENERATOR, target, catalogue, output],
                          capture_output=True, text=True)


class CatalogueTest(unittest.TestCase):
    def setUp(self):
        self.work = tempfile.mkdtemp()
        self.catalogue = os.path.join(self.work, "catalogue")
        shutil.copytree(CATALOGUE, self.catalogue)
        self.output = os.path.join(self.work, "out")

    def tearDown(self):
        shutil.rmtree(self.work)

    def edit(self, old, new):
        path = os.path.join(self.catalogue, "entry_points.txt")
        with open(path, encoding="utf-8") as f:
            text = f.read()
        self.assertIn(old, text)
        with open(path, "w", encoding="utf-8") as f:
            f.write(text.replace(old, new, 1))

    def read(self, name):
        with open(os.path.join(self.output, name), encoding="utf-8") as f:
            return f.read()

    def run_all(self):
        for target in ("entrypoints", "operations"):
            result = generate(self.catalogue, target, self.output)
            self.assertEqual(0, result.returncode, result.stderr)

    def count(self, name):
        header = self.read("extensionator/CatalogueCounts.h")
        line = next(l for l in header.splitlines() if " %s = " % name in l)
        return int(line.split("=")[1].strip(" ;"))

    def test_one_line_adds_an_entry_point_everywhere(self):
        self.run_all()
        before = {name: self.count(name) for name in ("kGLEntryPointCount", "kGLOperationCount")}
        self.edit("@ 300 GL_WIN_swap_hint\n",
                  "@ 300 GL_WIN_swap_hint\nvoid glFrobnicateWIN(GLenum mode, const GLfloat *weights);\n")
        self.run_all()
        self.assertEqual(before["kGLEntryPointCount"] + 1, self.count("kGLEntryPointCount"))
        self.assertEqual(before["kGLOperationCount"] + 1, self.count("kGLOperationCount"))
        operations = self.read("extensionator/Operations.def")
        self.assertIn("ORU_GL_OPERATION(void, FrobnicateWIN, 300, Loaded, Unsupported, "
                      "(, GLenum mode, const GLfloat *weights), (, mode, weights), (EnumName, Address))\n",
                      operations)
        # Its extension's block comes last among the extensions, so it is the operation before the last.
        rows = [l for l in operations.splitlines() if l.startswith("ORU_GL_OPERATION(")]
        self.assertIn("FrobnicateWIN", rows[-2])
        self.assertIn("extern PFN_cgmFrobnicateWIN _cgmFrobnicateWIN;", self.read("extensionator/EntryPoints.h"))
        self.assertIn('{ "glFrobnicateWIN", &_cgmFrobnicateWIN }', self.read("extensionator/ExtensionCatalogueTables.cpp"))

    def test_a_broken_catalogue_names_its_line(self):
        cases = [
            ("@ 300 GL_WIN_swap_hint\n", "@ 300 GL_WIN_swap_hint\nvoid glAddSwapHintRectWIN(GLint x);\n",
             "glAddSwapHintRectWIN already listed"),
            ("@ 300 GL_WIN_swap_hint\n", "@ 301 GL_WIN_swap_hint\n", "id 301 out of order (expected 300)"),
            ("@ 300 GL_WIN_swap_hint\n", "@ 300 GL_WIN_swap_hint\nvoid glOdd(GLenum);\n", "unnamed or odd parameter"),
            ("@ 300 GL_WIN_swap_hint\n", "@ 300 GL_WIN_swap_hint\nvoid glOdd(GLenum file);\n",
             "parameter 'file' clashes"),
            ("@ 300 GL_WIN_swap_hint\n", "@ 300 GL_WIN_swap_hint\nvoid glOdd(GLfixed x);\n",
             "no formatting for parameter type 'GLfixed'"),
        ]
        for old, new, message in cases:
            with self.subTest(message=message):
                shutil.rmtree(self.catalogue)
                shutil.copytree(CATALOGUE, self.catalogue)
                self.edit(old, new)
                results = [generate(self.catalogue, t, self.output) for t in ("entrypoints", "operations")]
                failed = [r for r in results if r.returncode != 0]
                self.assertTrue(failed, message)
                self.assertIn(message, failed[0].stderr)

    def test_the_generator_lists_what_it_writes(self):
        for target in ("tokens", "entrypoints", "operations", "replay"):
            listing = subprocess.run([sys.executable, GENERATOR, "--outputs", target],
                                     capture_output=True, text=True, check=True).stdout.splitlines()
            outputs = listing[0].split(":")
            out = os.path.join(self.work, target)
            self.assertEqual(0, generate(self.catalogue, target, out).returncode)
            written = sorted(os.path.relpath(os.path.join(d, f), out).replace(os.sep, "/")
                             for d, _, files in os.walk(out) for f in files)
            self.assertEqual(sorted(outputs), written, target)


if __name__ == "__main__":
    unittest.main()
