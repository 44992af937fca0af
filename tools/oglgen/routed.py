"""The macros that route a translation unit's GL and WGL calls through the
interception chains (included by oru_ogl/Routed.h, after every header that
declares the functions, so that no declaration is rewritten).

A GL call goes through ORU_GL, which supplies the caller's file and line:

    #define glTexParameteri(...) ORU_GL glTexParameteri(__VA_ARGS__)

A WGL or GDI call of the WGL chain goes to the chain's top with the file and
line first. Those need named parameters, one macro per arity, since a call
without arguments must not leave a comma behind:

    #define wglGetCurrentDC() ::Oru::OGL::wglInterceptor::Instance()->wcgmGetCurrentDC(__FILE__, __LINE__)

The macros are function-like: a name that is not followed by "(" (a pointer
variable named after the function, a string) is left alone.
"""
from . import catalogue as cat
from .output import banner, write_all

WGL_TOP = "::Oru::OGL::wglInterceptor::Instance()"


def gl_macro(f):
    return "#define %s(...) ORU_GL %s(__VA_ARGS__)\n" % (f.name, f.name)


def wgl_macro(f):
    names = [p.name for p in f.params]
    arguments = "".join(", " + name for name in names)
    return "#define %s(%s) %s->wcgm%s(__FILE__, __LINE__%s)\n" % (
        f.name, ", ".join(names), WGL_TOP, f.stem, arguments)


def routed_calls(c):
    return "".join(
        [banner(cat.SOURCE),
         "// Include through oru_ogl/Routed.h only: it includes the declarations first.\n"
         "#ifndef ORU_OGL_ROUTEDCALLS_INC\n#define ORU_OGL_ROUTEDCALLS_INC\n\n",
         "// GL: through ORU_GL (oru_ogl/extensionator/GLCall.h).\n"]
        + [gl_macro(f) for f in c.operations()]
        + ["\n// WGL and GDI: through the WGL chain's top.\n"]
        + [wgl_macro(f) for f in c.wgl_operations()]
        + ["\n#endif\n"])


SOURCES = (cat.SOURCE,)
OUTPUTS = {"RoutedCalls.inc": routed_calls}


def generate(catalogue_dir, output_dir):
    write_all(output_dir, OUTPUTS, cat.load(catalogue_dir))
