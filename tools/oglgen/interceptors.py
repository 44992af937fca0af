"""The GL interception chain: the 1501 operations of OpenGLInterceptor in their
fixed order, the error checker that performs the calls, and ORU_GL's call sites.

Members written by hand are left out of the generated definitions and named in
HAND_WRITTEN, class by class."""
import os

from . import catalogue as cat
from .output import banner, write_if_changed

# Operations whose definitions are written by hand, per class. For the recorder
# these are the entry points with a recording of their own (pointer data copied
# to the binary stream, scratch arrays, ...); the ARB and EXT twins of these
# names, with the same parameters, are added by recorders.specialised().
HAND_WRITTEN = {
    "OpenGLErrorChecker": {"glBegin", "glEnd"},
    "OpenGLRekorder": {
        # matrices
        "glLoadMatrixf", "glMultMatrixf", "glMultMatrixd",
        # name arrays
        "glDeleteTextures", "glDeleteFramebuffersEXT", "glDrawBuffersARB",
        "glGenTextures", "glGenFramebuffersEXT",
        # shaders and uniforms
        "glShaderSource", "glShaderSourceARB", "glGetUniformLocation", "glGetUniformLocationARB",
        "glUniform1fv", "glUniform2fv", "glUniform3fv", "glUniform4fv",
        "glUniform1iv", "glUniform2iv", "glUniform3iv", "glUniform4iv", "glUniformMatrix2fv",
        # queries into scratch storage
        "glGetBooleanv", "glGetFloatv", "glGetIntegerv", "glGetObjectParameterfvARB", "glGetObjectParameterivARB",
        "glGetTexLevelParameterfv", "glGetTexLevelParameteriv", "glGetProgramiv", "glGetShaderiv",
        "glGetProgramInfoLog", "glGetAttachedShaders", "glGetAttachedObjectsARB",
        "glGetActiveUniformARB", "glGetInfoLogARB",
        # small vectors written inline
        "glVertex2fv", "glMultiTexCoord1fv", "glMultiTexCoord2fv", "glMultiTexCoord3fv", "glMultiTexCoord4fv",
        "glMultiTexCoord1iv", "glMultiTexCoord2iv", "glMultiTexCoord3iv", "glMultiTexCoord4iv",
        "glTexParameterfv",
        # pixels
        "glTexImage2D", "glTexSubImage2D", "glReadPixels",
    },
}

# Translation units per generated class: the build runs them in parallel.
CHUNKS = 4

RESERVED = {"file", "line", "result"}


def check_names(operations):
    for f in operations:
        for p in f.params:
            if p.name in RESERVED:
                raise SystemExit("%s: parameter '%s' clashes with the interceptor's own names" % (f.name, p.name))


def signature(f, qualified_class=None):
    """cgmAccum(const char* file, unsigned int line, GLenum op, GLfloat value)"""
    params = "const char* file, unsigned int line"
    if f.params:
        params += ", " + f.parameter_list()
    name = f.operation if not qualified_class else "%s::%s" % (qualified_class, f.operation)
    ret = f.ret if f.ret.endswith("*") else f.ret + " "
    return "%s%s(%s)" % (ret, name, params)


def operations_inc(c):
    ops = c.operations()
    out = [banner(cat.SOURCE),
           "// The %d operations of the GL interception chain, in their fixed order; no\n" % len(ops),
           "// include guard. Each class of the chain includes this inside its body with\n",
           "// ORU_GL_OPERATION_TAIL defined as \"= 0\" or \"override\".\n"]
    for f in ops:
        out.append("/// %s through the interception chain, called from file and line.\n" % f.name)
        out.append("virtual %s ORU_GL_OPERATION_TAIL;\n" % signature(f))
    return "".join(out)


def _chunks(items, count):
    size = (len(items) + count - 1) // count
    return [items[i:i + size] for i in range(0, len(items), size)]


def error_checker_chunk(ops):
    out = [banner(cat.SOURCE),
           '#include "oru_ogl/extensionator/OpenGLErrorChecker.h"\n\n',
           '#include "oru_ogl/extensionator/EntryPoints.h"\n\n',
           "namespace Oru\n{\nnamespace OGL\n{\n\n"]
    skip = HAND_WRITTEN["OpenGLErrorChecker"]
    for f in ops:
        if f.name in skip:
            continue
        out.append(signature(f, "OpenGLErrorChecker") + "\n{\n")
        out.append("".join("    %s\n" % line for line in checked_call(f, "checkError", "file", "line")))
        out.append("}\n\n")
    out.append("} // namespace OGL\n} // namespace Oru\n")
    return "".join(out)


def checked_call(f, check, file, line):
    """The error checker's work for one operation as C++ statements: the call
    (through its pointer, refused when never loaded) and then `check`, with the
    caller's file and line named `file` and `line`."""
    out = []
    if f.owner is None:
        callee = "::" + f.name
    else:
        callee = f.pointer
        out.append("if (!%s)" % f.pointer)
        out.append('    OpenGLErrorChecker::raiseNotLoaded(%s, %s, "%s");' % (file, line, f.name))
    call = "%s(%s)" % (callee, f.argument_list())
    checked = "%s(%s, %s);" % (check, file, line)
    if f.returns_value:
        out += ["%s result = %s;" % (f.ret, call), checked, "return result;"]
    else:
        out += ["%s;" % call, checked]
    return out


def call_site_header(c):
    guard = "ORU_OGL_EXTENSIONATOR_GLCALL_H"
    out = [banner(cat.SOURCE), "#ifndef %s\n#define %s\n\n" % (guard, guard),
           "/// \\file\n/// ORU_GL: GL calls written as such and checked through the interception chain.\n\n",
           '#include "oru_ogl/extensionator/OpenGLErrorChecker.h"\n',
           '#include "oru_ogl/extensionator/EntryPoints.h"\n\n',
           "namespace Oru\n{\nnamespace OGL\n{\n\n",
           "/// One GL call made through the current interceptor, carrying the caller's\n",
           "/// file and line. Written through ORU_GL, so that a checked call reads like\n",
           "/// the call it replaces:  ORU_GL glTexParameteri(GL_TEXTURE_2D, pname, value);\n",
           "/// While the chain is the error checker alone, the checker's work is done\n",
           "/// in place, without the virtual call; with decorators pushed, the call\n",
           "/// goes down the chain.\n",
           "class CallSite\n{\npublic:\n",
           "    /// The call site: the caller's file and line.\n",
           "    CallSite(char const* file, unsigned int line) : file_(file), line_(line) {}\n\n"]
    through_chain = HAND_WRITTEN["OpenGLErrorChecker"]
    for f in c.operations():
        ret = f.ret if f.ret.endswith("*") else f.ret + " "
        args = "file_, line_" + (", " + f.argument_list() if f.params else "")
        chain = "%sOpenGLInterceptor::Instance()->%s(%s);" % ("return " if f.returns_value else "", f.operation, args)
        out.append("    /// %s through the interception chain, from this call site.\n" % f.name)
        if f.name in through_chain:
            out.append("    %s%s(%s) const { %s }\n" % (ret, f.name, f.parameter_list(), chain))
            continue
        out.append("    %s%s(%s) const\n    {\n" % (ret, f.name, f.parameter_list()))
        out.append("        if (OpenGLErrorChecker* checker = OpenGLInterceptor::loneChecker())\n")
        in_place = checked_call(f, "checker->checkError", "file_", "line_")
        out.append("        {\n%s        }\n" % "".join("            %s\n" % line for line in in_place))
        out.append("        else\n            %s\n    }\n" % chain)
    out.append("\nprivate:\n    char const* file_;\n    unsigned int line_;\n};\n\n")
    out.append("} // namespace OGL\n} // namespace Oru\n\n")
    out.append("/// Prefix for a GL call checked through the interception chain.\n")
    out.append("#define ORU_GL ::Oru::OGL::CallSite(__FILE__, __LINE__).\n\n#endif\n")
    return "".join(out)


def forwarding_decorator(c):
    """A decorator for tests: counts the calls it forwards and remembers the last."""
    guard = "ORU_OGL_TESTING_FORWARDINGDECORATOR_H"
    out = [banner(cat.SOURCE), "#ifndef %s\n#define %s\n\n" % (guard, guard),
           '#include "oru_ogl/extensionator/OpenGLInterceptorDecorator.h"\n\n',
           "namespace OruTest\n{\n\n",
           "class ForwardingDecorator : public Oru::OGL::OpenGLInterceptorDecorator\n{\npublic:\n",
           "    explicit ForwardingDecorator(Oru::OGL::OpenGLInterceptor* next = nullptr) : OpenGLInterceptorDecorator(next) {}\n\n",
           "    unsigned int calls = 0;\n    char const* lastOperation = nullptr;\n",
           "    char const* lastFile = nullptr;\n    unsigned int lastLine = 0;\n\n"]
    for f in c.operations():
        args = "file, line" + (", " + f.argument_list() if f.params else "")
        out.append("    %s override\n    {\n" % signature(f))
        out.append('        ++calls; lastOperation = "%s"; lastFile = file; lastLine = line;\n' % f.operation)
        out.append("        %spInterceptor_->%s(%s);\n    }\n" % ("return " if f.returns_value else "", f.operation, args))
    out.append("};\n\n} // namespace OruTest\n\n#endif\n")
    return "".join(out)


def generate(catalogue_dir, output_dir):
    c = cat.load(catalogue_dir)
    ops = c.operations()
    check_names(ops)
    ext = os.path.join(output_dir, "extensionator")
    write_if_changed(os.path.join(ext, "OpenGLInterceptorOperations.inc"), operations_inc(c))
    for index, chunk in enumerate(_chunks(ops, CHUNKS)):
        write_if_changed(os.path.join(ext, "OpenGLErrorChecker%d.cpp" % index), error_checker_chunk(chunk))
    write_if_changed(os.path.join(ext, "GLCall.h"), call_site_header(c))
    write_if_changed(os.path.join(output_dir, "testing", "ForwardingDecorator.h"), forwarding_decorator(c))
