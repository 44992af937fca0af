"""The operations lists: one X-macro row per operation of the GL and the WGL
interception chains, in their fixed order. Every class of the chains (interface,
error checker, tracer, recorder, call sites, test doubles) is hand-written C++
that includes a list and expands its rows; this module decides only what a row
says. It also writes the catalogue's numbers as constants.

A GL row:

    ORU_GL_OPERATION(Ret, Stem, Owner, Call, Record, Params, Args, Kinds)

    Ret     the result type                              const GLubyte *
    Stem    the name without "gl"                        TexParameteri
    Owner   the id whose loader fetches it; -1 for GL 1.1
    Call    Direct (GL 1.1, called through the system library), Loaded (through
            its _cgm pointer) or Bracket (glBegin/glEnd, whose checks are special)
    Record  how the recorder writes it: Text (its call as text), Unsupported (pointer data
            it cannot capture), or the block kind of a specialised member
    Params  the parameters, each behind a comma          (, GLenum target, GLint param)
    Args    the arguments, each behind a comma           (, target, param)
    Kinds   how the tracer writes each argument          (EnumName, SignedNumber)

Params and Args lead with a comma so that they follow the caller's file and
line directly: cgm##Stem(const char* file, unsigned int line ORU_OPERATION_TAIL Params).
"""
from . import catalogue as cat
from .output import banner, write_all

# Scalar GL type -> how its value is written (a member of CallText).
ARGUMENT_KINDS = {
    "GLenum": "EnumName",
    "GLboolean": "Boolean",
    "GLbitfield": "UnsignedNumber",
    "GLuint": "UnsignedNumber",
    "GLushort": "UnsignedNumber",
    "GLhalfNV": "UnsignedNumber",
    "GLint": "SignedNumber",
    "GLsizei": "SignedNumber",
    "GLshort": "SignedNumber",
    "GLintptr": "SignedNumber",
    "GLsizeiptr": "SignedNumber",
    "GLintptrARB": "SignedNumber",
    "GLsizeiptrARB": "SignedNumber",
    "GLbyte": "Character",
    "GLubyte": "Character",
    "GLfloat": "GlFloat",
    "GLclampf": "GlFloat",
    "GLdouble": "Number",
    "GLclampd": "Number",
    "GLhandleARB": "HandleARB",
}

# Pointees that a trace shows as zero-terminated text rather than an address.
TEXT_POINTEES = {"GLchar", "GLcharARB", "GLubyte", "GLbyte", "GLboolean"}

# The error checker's two operations with checks of their own.
BRACKET = {"glBegin", "glEnd"}

# The recorder's specialised operations, by the kind of record they write. The
# ARB and EXT twins of a named function, with the same parameters, are recorded
# like it (see recorder_rules()). Every other operation is recorded as its call
# text, or refused when it takes a pointer.
RECORDER_RULES = {
    "Matrix": ["glLoadMatrixf", "glMultMatrixf", "glMultMatrixd"],
    "NameArray": ["glDeleteTextures", "glDeleteFramebuffersEXT", "glDrawBuffersARB"],
    "GeneratedNames": ["glGenTextures", "glGenFramebuffersEXT"],
    "ShaderSources": ["glShaderSource", "glShaderSourceARB"],
    "UniformName": ["glGetUniformLocation", "glGetUniformLocationARB"],
    "Uniform": ["glUniform1fv", "glUniform2fv", "glUniform3fv", "glUniform4fv",
                "glUniform1iv", "glUniform2iv", "glUniform3iv", "glUniform4iv", "glUniformMatrix2fv"],
    "Scratch": ["glGetBooleanv", "glGetFloatv", "glGetIntegerv", "glGetObjectParameterfvARB",
                "glGetObjectParameterivARB", "glGetTexLevelParameterfv", "glGetTexLevelParameteriv",
                "glGetProgramiv", "glGetShaderiv", "glGetProgramInfoLog", "glGetAttachedShaders",
                "glGetAttachedObjectsARB", "glGetActiveUniformARB", "glGetInfoLogARB"],
    "Vector": ["glVertex2fv", "glMultiTexCoord1fv", "glMultiTexCoord2fv", "glMultiTexCoord3fv",
               "glMultiTexCoord4fv", "glMultiTexCoord1iv", "glMultiTexCoord2iv", "glMultiTexCoord3iv",
               "glMultiTexCoord4iv", "glTexParameterfv"],
    "Pixels": ["glTexImage2D", "glTexSubImage2D"],
    "Comment": ["glReadPixels"],
}

TWIN_SUFFIXES = ("ARB", "EXT")

# Names the chains' members use for themselves; no GL parameter may take them.
RESERVED = {"file", "line", "result", "oruText"}


def _param_types(f):
    return [p.type for p in f.params]


def recorder_rules(operations):
    """Function name -> the kind of record its specialised recorder member writes."""
    by_name = {f.name: f for f in operations}
    rules = {}
    for rule, names in RECORDER_RULES.items():
        for name in names:
            if name not in by_name:
                raise SystemExit("recorder rule %s: %s is not in the catalogue" % (rule, name))
            rules[name] = rule
    for f in operations:
        for suffix in TWIN_SUFFIXES:
            core = by_name.get(f.name[:-len(suffix)]) if f.name.endswith(suffix) else None
            if core is not None and core.name in rules and _param_types(core) == _param_types(f):
                rules[f.name] = rules[core.name]
    return rules


def unsupported(operations):
    """Operations whose pointer data the recorder cannot capture."""
    rules = recorder_rules(operations)
    return [f for f in operations if f.takes_pointer() and f.name not in rules]


def argument_kind(f, p):
    if p.is_pointer:
        pointee = p.type.replace("const ", "").replace("*", "").strip()
        return "Text" if p.type.count("*") == 1 and pointee in TEXT_POINTEES else "Address"
    scalar = p.type[len("const "):] if p.type.startswith("const ") else p.type
    try:
        return ARGUMENT_KINDS[scalar]
    except KeyError:
        raise SystemExit("%s: no formatting for parameter type '%s'" % (f.name, p.type))


def _tail(items):
    return "(%s)" % "".join(", " + item for item in items)


def _check_names(functions):
    for f in functions:
        for p in f.params:
            if p.name in RESERVED:
                raise SystemExit("%s: parameter '%s' clashes with the chain's own names" % (f.name, p.name))


def gl_row(f, rules):
    call = "Bracket" if f.name in BRACKET else ("Direct" if f.owner is None else "Loaded")
    if f.name in rules:
        record = rules[f.name]
    else:
        record = "Unsupported" if f.takes_pointer() else "Text"
    return "ORU_GL_OPERATION(%s, %s, %d, %s, %s, %s, %s, (%s))\n" % (
        f.ret, f.stem, -1 if f.owner is None else f.owner.id, call, record,
        _tail(p.declaration() for p in f.params), _tail(p.name for p in f.params),
        ", ".join(argument_kind(f, p) for p in f.params))


def _list(macro, legend, rows):
    return "".join([banner(cat.SOURCE),
                    "// No include guard: include it with %s defined to expand each row.\n" % macro,
                    "// %s\n\n" % legend,
                    "#ifndef %s\n#define %s(...)\n#endif\n\n" % (macro, macro)] + rows +
                   ["\n#undef %s\n" % macro])


def gl_list(c):
    ops = c.operations()
    _check_names(ops)
    rules = recorder_rules(ops)
    return _list("ORU_GL_OPERATION",
                 "ORU_GL_OPERATION(Ret, Stem, Owner, Call, Record, Params, Args, Kinds): tools/oglgen/operations.py",
                 [gl_row(f, rules) for f in ops])


def wgl_list(c):
    ops = c.wgl_operations()
    _check_names(ops)
    rows = ["ORU_WGL_OPERATION(%s, %s, %s, %s, %s)\n" % (
        f.ret, f.stem, f.name, _tail(p.declaration() for p in f.params), _tail(p.name for p in f.params))
        for f in ops]
    return _list("ORU_WGL_OPERATION",
                 "ORU_WGL_OPERATION(Ret, Stem, Function, Params, Args): Function is what the bottom calls",
                 rows)


def counts_header(c):
    guard = "ORU_OGL_EXTENSIONATOR_CATALOGUECOUNTS_H"
    wgl_ids = [e.id for e in c.wgl_extensions]
    constants = [
        ("kCoreVersionCount", cat.CORE_VERSION_COUNT, "core versions, ids 0 to kCoreVersionCount - 1"),
        ("kFirstWGLExtensionId", min(wgl_ids), "the first WGL extension id; GL ids lie below it"),
        ("kExtensionIdCount", len(c.extensions), "ids of core versions and extensions, 0 to kExtensionIdCount - 1"),
        ("kGL11FunctionCount", len(c.gl11), "GL 1.0/1.1 functions of the system library"),
        ("kGLEntryPointCount", len(c.gl_entry_points()), "exported _cgm pointers"),
        ("kWGLEntryPointCount", len(c.wgl_entry_points()), "exported _wcgm pointers"),
        ("kGLOperationCount", len(c.operations()), "operations of the GL interception chain"),
        ("kWGLOperationCount", len(c.wgl_operations()), "operations of the WGL interception chain"),
        ("kUnsupportedRecordCount", len(unsupported(c.operations())),
         "GL operations whose pointer data the recorder does not capture"),
    ]
    out = [banner(cat.SOURCE), "#ifndef %s\n#define %s\n\n" % (guard, guard),
           "/// \\file\n/// The catalogue's numbers, counted from it.\n\n",
           "namespace Oru\n{\nnamespace OGL\n{\nnamespace catalogue\n{\n\n"]
    for name, value, meaning in constants:
        out.append("/// %s%s.\nconstexpr unsigned int %s = %d;\n" % (meaning[0].upper(), meaning[1:], name, value))
    out.append("\n} // namespace catalogue\n} // namespace OGL\n} // namespace Oru\n\n#endif\n")
    return "".join(out)


SOURCES = (cat.SOURCE,)
OUTPUTS = {
    "extensionator/Operations.def": gl_list,
    "extensionator/windows/WglOperations.def": wgl_list,
    "extensionator/CatalogueCounts.h": counts_header,
}


def generate(catalogue_dir, output_dir):
    write_all(output_dir, OUTPUTS, cat.load(catalogue_dir))
