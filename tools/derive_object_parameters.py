#!/usr/bin/env python3
"""Derives catalogue/object_parameters.tsv: the parameters and results of the
GL operations that are names of GL objects, or locations, with their name space.

    derive_object_parameters.py [GL_XML [OUTPUT]]

GL_XML defaults to /usr/share/khronos-api/gl.xml (Debian package khronos-api).
Development time only: the build reads the committed result. The registry's
`class` attributes give most rows; the families below add what it leaves out
(display lists, the ARB_shader_objects handles, uniform and attribute
locations). A replayer maps every value of these parameters from the names the
captured driver gave to the names its own driver gives.
"""
import os
import re
import sys
import xml.etree.ElementTree as ET

TOOLS = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, TOOLS)

from oglgen import catalogue, objects  # noqa: E402

CATALOGUE_DIR = os.path.join(os.path.dirname(TOOLS), "catalogue")
DEFAULT_GL_XML = "/usr/share/khronos-api/gl.xml"

# The registry's classes -> the name spaces a replayer keeps. GL 2.0 gives
# shaders and programs one name space, and ARB_shader_objects handles are the
# same objects.
SPACES = {
    "texture": "texture", "buffer": "buffer", "framebuffer": "framebuffer",
    "renderbuffer": "renderbuffer", "query": "query", "display list": "list",
    "vertex array": "vertex_array", "program": "shader_object", "shader": "shader_object",
}
# (function pattern, parameter name or "return", name space) the registry misses.
FAMILIES = (
    (r"^gl(NewList|CallList)$", "list", "list"),
    (r"^gl\w+ARB$", r"^(programObj|shaderObj|containerObj|obj|attachedObj)$", "shader_object"),
    (r"^glCreate(Shader|Program)ObjectARB$", "return", "shader_object"),
    (r"^glUseProgram$", "program", "shader_object"),
    (r"^gl(Get)?Uniform\w*$", "location", "uniform_location"),
    (r"^glGetUniformLocation(ARB)?$", "return", "uniform_location"),
    (r"^glGetAttribLocation(ARB)?$", "return", "attribute_location"),
    (r"^gl(VertexAttrib\w*|(Enable|Disable)VertexAttribArray|GetVertexAttrib\w*)(ARB)?$", "index",
     "attribute_location"),
    (r"^gl(Bind|Delete|Gen|Is)ProgramsARB$|^glBindProgramARB$|^glIsProgramARB$", r"^(program|programs)$",
     "arb_program"),
    (r"^glGenProgramsARB$|^glDeleteProgramsARB$", "programs", "arb_program"),
)


def derive(gl_xml):
    cat = catalogue.load(CATALOGUE_DIR)
    commands = {c.find("proto/name").text: c for c in ET.parse(gl_xml).getroot().find("commands")}
    rows = {}
    for function in cat.operations():
        command = commands.get(function.name)
        if command is not None:
            space = SPACES.get(command.find("proto").get("class"))
            if space and function.returns_value:
                rows[(function.name, "return")] = space
            params = command.findall("param")
            if len(params) == len(function.params):
                for param, mine in zip(params, function.params):
                    space = SPACES.get(param.get("class"))
                    if space:
                        rows[(function.name, mine.name)] = space
        for pattern, parameter, space in FAMILIES:
            if not re.search(pattern, function.name):
                continue
            if parameter == "return":
                if function.returns_value:
                    rows[(function.name, "return")] = space
                continue
            for mine in function.params:
                if re.fullmatch(parameter.strip("^$"), mine.name):
                    rows[(function.name, mine.name)] = space
    order = {f.name: n for n, f in enumerate(cat.operations())}
    return [objects.Row(f, p, s) for (f, p), s in sorted(rows.items(), key=lambda kv: (order[kv[0][0]], kv[0][1]))]


def main(argv):
    gl_xml = argv[0] if argv else DEFAULT_GL_XML
    output = argv[1] if len(argv) > 1 else os.path.join(CATALOGUE_DIR, objects.TABLE)
    objects.write_rows(output, derive(gl_xml))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
