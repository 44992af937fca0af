"""The tracer and the recorder of the GL interception chain: their generated
members, split in translation units that build in parallel, and test helpers
that drive every operation of the chain.

How an argument is written depends only on its GL type in the catalogue; the
table ARGUMENT_WRITERS names the CallText member for each scalar type. A type
that is not in the table stops the generator, so that a new catalogue type gets
a deliberate formatting rather than a guessed one."""
import os

from . import catalogue as cat
from .interceptors import HAND_WRITTEN, CHUNKS, check_names, signature, _chunks
from .output import banner, write_if_changed

# Scalar GL type -> the CallText member that writes it.
ARGUMENT_WRITERS = {
    "GLenum": "enumName",
    "GLboolean": "boolean",
    "GLbitfield": "unsignedNumber",
    "GLuint": "unsignedNumber",
    "GLushort": "unsignedNumber",
    "GLhalfNV": "unsignedNumber",
    "GLint": "signedNumber",
    "GLsizei": "signedNumber",
    "GLshort": "signedNumber",
    "GLintptr": "signedNumber",
    "GLsizeiptr": "signedNumber",
    "GLintptrARB": "signedNumber",
    "GLsizeiptrARB": "signedNumber",
    "GLbyte": "character",
    "GLubyte": "character",
    "GLfloat": "glFloat",
    "GLclampf": "glFloat",
    "GLdouble": "number",
    "GLclampd": "number",
    "GLhandleARB": "handleARB",
}

# Pointees that the tracer shows as zero-terminated text rather than an address.
TEXT_POINTEES = {"GLchar", "GLcharARB", "GLubyte", "GLbyte", "GLboolean"}

TWIN_SUFFIXES = ("ARB", "EXT")

UNSUPPORTED = ("OpenGLRekorderUnsupported(\\\"Capturing an OpenGL function (%s) with pointer parameter "
               "requires a specialized implementation!\\\");\\n")


def specialised(operations):
    """The entry points the recorder records by hand: the named ones, and the
    ARB or EXT twin of a named one when it takes the same parameters."""
    named = HAND_WRITTEN["OpenGLRekorder"]
    by_name = {f.name: f for f in operations}
    missing = sorted(n for n in named if n not in by_name)
    if missing:
        raise SystemExit("recorder: hand-written members not in the catalogue: %s" % ", ".join(missing))
    result = set(named)
    for f in operations:
        for suffix in TWIN_SUFFIXES:
            core = by_name.get(f.name[:-len(suffix)]) if f.name.endswith(suffix) else None
            if core is not None and core.name in named and _param_types(core) == _param_types(f):
                result.add(f.name)
    return result


def unsupported(operations):
    """Entry points whose pointer data the recorder cannot capture: it writes a
    call of OpenGLRekorderUnsupported for them instead."""
    special = specialised(operations)
    return [f for f in operations if f.takes_pointer() and f.name not in special]


# The generated members' own local name; no GL parameter may take it.
TEXT_VARIABLE = "oruText"


def _param_types(f):
    return [p.type for p in f.params]


def _scalar_writer(param, where):
    ctype = param.type[len("const "):] if param.type.startswith("const ") else param.type
    try:
        return ARGUMENT_WRITERS[ctype]
    except KeyError:
        raise SystemExit("%s: no formatting for parameter type '%s'" % (where, param.type))


def _argument_statements(f, pointer_writer):
    out = []
    for index, p in enumerate(f.params):
        if index:
            out.append('    oruText.put(", ");\n')
        if p.is_pointer:
            out.append("    oruText.%s(%s);\n" % (pointer_writer(p), p.name))
        else:
            out.append("    oruText.%s(%s);\n" % (_scalar_writer(p, f.name), p.name))
    return out


def _forward(f):
    args = "file, line" + (", " + f.argument_list() if f.params else "")
    return "    return pInterceptor_->%s(%s);\n}\n\n" % (f.operation, args)


def _tracer_pointer_writer(p):
    pointee = p.type.replace("const ", "").replace("*", "").strip()
    return "text" if p.type.count("*") == 1 and pointee in TEXT_POINTEES else "address"


def _unit(class_name, header, body):
    return "".join([banner(cat.SOURCE),
                    '#include "oru_ogl/extensionator/%s.h"\n\n' % header,
                    '#include "oru_ogl/extensionator/CallText.h"\n\n',
                    "namespace Oru\n{\nnamespace OGL\n{\n\n",
                    "using detail::CallText;\nusing detail::writeLiteral;\n\n"] + body +
                   ["} // namespace OGL\n} // namespace Oru\n"])


def tracer_chunk(ops):
    body = []
    for f in ops:
        body.append(signature(f, "OpenGLTracer") + "\n{\n")
        body.append("    CallText oruText(*outputStream_, floatTexts_);\n    oruText.location(file, line);\n")
        body.append('    oruText.put("%s(");\n' % f.name)
        body += _argument_statements(f, _tracer_pointer_writer)
        body.append('    oruText.put(")\\n");\n    oruText.send();\n')
        body.append(_forward(f))
    return _unit("OpenGLTracer", "OpenGLTracer", body)


def recorder_chunk(ops, special, refused):
    refused = {f.name for f in refused}
    body = []
    for f in ops:
        if f.name in special:
            continue
        body.append(signature(f, "OpenGLRekorder") + "\n{\n")
        if f.name in refused:
            body.append('    writeLiteral(*outputStream_, "%s");\n' % (UNSUPPORTED % f.name))
        else:
            body.append("    CallText oruText(*outputStream_, floatTexts_);\n")
            body.append('    oruText.put("%s(");\n' % f.name)
            body += _argument_statements(f, None)
            body.append('    oruText.put(");");\n    oruText.lineEnd(lineComments_, file, line);\n    oruText.send();\n')
        body.append(_forward(f))
    return _unit("OpenGLRekorder", "OpenGLRekorder", body)


def operation_table(c):
    """Test helpers: the operations by slot, and a call of any of them with zero
    scalars and every pointer aimed at a caller's zeroed scratch buffer."""
    guard = "ORU_OGL_TESTING_OPERATIONTABLE_H"
    ops = c.operations()
    out = [banner(cat.SOURCE), "#ifndef %s\n#define %s\n\n" % (guard, guard),
           '#include "oru_ogl/extensionator/OpenGLInterceptor.h"\n\n',
           "namespace OruTest\n{\n\n",
           "struct OperationInfo\n{\n    char const* glName;\n    bool takesPointer;\n};\n\n",
           "const unsigned int operationCount = %du;\n\n" % len(ops),
           "const OperationInfo operations[operationCount] = {\n"]
    for f in ops:
        out.append('    { "%s", %s },\n' % (f.name, "true" if f.takes_pointer() else "false"))
    out.append("};\n\n")
    out.append("/// Calls operation `index` (its slot) on `target` with every scalar argument\n")
    out.append("/// zero and every pointer argument aimed at `scratch`.\n")
    out.append("inline void invokeOperation(Oru::OGL::OpenGLInterceptor& target, unsigned int index, "
               "char const* file, unsigned int line, void* scratch)\n{\n    (void)scratch;\n    switch (index)\n    {\n")
    for index, f in enumerate(ops):
        args = ["file", "line"] + ["(%s)scratch" % p.type if p.is_pointer else "{}" for p in f.params]
        out.append("    case %d: target.%s(%s); break;\n" % (index, f.operation, ", ".join(args)))
    out.append("    default: break;\n    }\n}\n\n")

    out.append("/// The bottom of a chain for tests without a GL context: performs nothing,\n")
    out.append("/// returns zero, and remembers the last operation that reached it.\n")
    out.append("class SilentInterceptor : public Oru::OGL::OpenGLInterceptor\n{\npublic:\n")
    out.append("    unsigned int calls = 0;\n    char const* lastOperation = nullptr;\n\n")
    for f in ops:
        out.append("    %s override\n    {\n" % signature(f))
        out.append('        (void)file; (void)line; ++calls; lastOperation = "%s";\n' % f.operation)
        for p in f.params:
            out.append("        (void)%s;\n" % p.name)
        if f.returns_value:
            out.append("        return {};\n")
        out.append("    }\n")
    out.append("};\n\n} // namespace OruTest\n\n#endif\n")
    return "".join(out)


def generate(catalogue_dir, output_dir):
    c = cat.load(catalogue_dir)
    ops = c.operations()
    check_names(ops)
    for f in ops:
        if any(p.name == TEXT_VARIABLE for p in f.params):
            raise SystemExit("%s: parameter '%s' clashes with the recorder's own names" % (f.name, TEXT_VARIABLE))
    special = specialised(ops)
    refused = unsupported(ops)
    ext = os.path.join(output_dir, "extensionator")
    for index, chunk in enumerate(_chunks(ops, CHUNKS)):
        write_if_changed(os.path.join(ext, "OpenGLTracer%d.cpp" % index), tracer_chunk(chunk))
        write_if_changed(os.path.join(ext, "OpenGLRekorder%d.cpp" % index), recorder_chunk(chunk, special, refused))
    write_if_changed(os.path.join(output_dir, "testing", "OperationTable.h"), operation_table(c))
