"""The catalogue's C++ side: teExtension, the exported _cgm/_wcgm pointer
variables, the name look-ups, one loader per id and the two dispatch functions."""
from . import catalogue as cat
from .output import banner, write_all

GUARD = "ORU_OGL_EXTENSIONATOR_%s_H"


def _ret(function):
    """The return type ready to be followed by a name."""
    return function.ret if function.ret.endswith("*") else function.ret + " "


def _calling_convention(function):
    return "WINAPI" if function.is_wgl else "APIENTRY"


def pointer_typedef(function):
    return "typedef %s(%s *PFN%s)(%s);" % (_ret(function), _calling_convention(function), function.pointer,
                                            function.parameter_list() or "void")


def extensions_header(c):
    versions, gl, wgl = c.core_versions, c.gl_extensions, c.wgl_extensions
    gl = [e for e in gl if e not in versions]
    out = [banner(cat.SOURCE), "#ifndef %s\n#define %s\n\n" % (GUARD % "EXTENSIONS", GUARD % "EXTENSIONS"),
           "/// \\file\n/// teExtension: the ids of the core versions and extensions the layer knows.\n\n",
           "namespace Oru\n{\nnamespace OGL\n{\n\n",
           "/// Ids of the core versions (%d to %d), GL extensions (%d to %d) and WGL\n"
           % (versions[0].id, versions[-1].id, gl[0].id, gl[-1].id),
           "/// extensions (%d to %d) that the layer knows. The enumerator is the name\n" % (wgl[0].id, wgl[-1].id),
           "/// string in capitals; the core versions are OPEN_GL_1_2 to OPEN_GL_2_1.\n",
           "enum teExtension\n{\n"]
    for e in c.extensions:
        out.append("    %s = %d, ///< %s\n" % (e.enumerator, e.id, e.name))
    out.append("    /// Returned by the name look-ups for a name they do not know.\n")
    out.append("    UNKNOWN_EXTENSION = %d\n};\n\n" % cat.UNKNOWN_EXTENSION)
    out.append("} // namespace OGL\n} // namespace Oru\n\n#endif\n")
    return "".join(out)


def _pointer_header(functions, guard, title, c_linkage):
    out = [banner(cat.SOURCE), "#ifndef %s\n#define %s\n\n" % (guard, guard),
           '#include "oru_ogl/OglExport.h"\n#include "oru_ogl/extensionator/GLTypes.h"\n\n',
           "/// \\file\n/// %s\n" % title,
           "/// Filled by the loaders at start-up; null until then and wherever the driver\n",
           "/// lacks the entry point. Writable, so that a test can put a fake in place.\n\n"]
    if c_linkage:
        out.append('extern "C"\n{\n\n')
    for f in functions:
        out.append("/// The type of %s, the pointer to %s.\n" % (f.pointer, f.name))
        out.append(pointer_typedef(f) + "\n")
        out.append("/// %s of %s; null until its loader has run.\n" % (f.name, f.owner.name))
        out.append("ORU_OGL_API extern PFN%s %s;\n" % (f.pointer, f.pointer))
    if c_linkage:
        out.append('\n} // extern "C"\n')
    out.append("\n#endif\n")
    return "".join(out)


def gl_pointer_header(c):
    return _pointer_header(c.gl_entry_points(), GUARD % "ENTRYPOINTS",
                           "The %d GL entry points beyond OpenGL 1.1, exported under their plain names."
                           % len(c.gl_entry_points()), True)


def wgl_pointer_header(c):
    return _pointer_header(c.wgl_entry_points(), "ORU_OGL_EXTENSIONATOR_WINDOWS_WGLENTRYPOINTS_H",
                           "The %d WGL extension entry points (C++ linkage)." % len(c.wgl_entry_points()), False)


def pointer_definitions(c):
    out = [banner(cat.SOURCE), '#include "oru_ogl/extensionator/EntryPoints.h"\n',
           '#include "oru_ogl/extensionator/windows/WglEntryPoints.h"\n\n', 'extern "C"\n{\n']
    out += ["PFN%s %s = nullptr;\n" % (f.pointer, f.pointer) for f in c.gl_entry_points()]
    out.append('} // extern "C"\n\n')
    out += ["PFN%s %s = nullptr;\n" % (f.pointer, f.pointer) for f in c.wgl_entry_points()]
    return "".join(out)


def catalogue_tables(c):
    out = [banner(cat.SOURCE),
           '#include "oru_ogl/extensionator/ExtensionCatalogueTables.h"\n\n',
           '#include "oru_ogl/extensionator/EntryPoints.h"\n',
           '#include "oru_ogl/extensionator/windows/WglEntryPoints.h"\n\n',
           "namespace Oru\n{\nnamespace OGL\n{\nnamespace catalogue\n{\n\nnamespace\n{\n\n"]
    for e in c.extensions:
        if not e.functions:
            continue
        out.append("const EntryPoint kEntryPoints%d[] = { // %s\n" % (e.id, e.name))
        for f in e.functions:
            out.append('    { "%s", &%s },\n' % (f.name, f.pointer))
        out.append("};\n")
    out.append("\n")
    for e in c.extensions:
        if e.functions:
            out.append("bool load_%s() { return fetchAll(kEntryPoints%d, %d); }\n" % (e.name, e.id, len(e.functions)))
        else:
            out.append("bool load_%s() { return true; }\n" % e.name)
    out.append("\n} // namespace\n\n")

    out.append("const ExtensionRow kExtensions[kExtensionCount] = {\n")
    for e in c.extensions:
        entries = ("kEntryPoints%d" % e.id) if e.functions else "nullptr"
        out.append('    { "%s", %s, %d, load_%s },\n' % (e.name, entries, len(e.functions), e.name))
    out.append("};\n\n")

    for label, group in (("GL", c.gl_extensions), ("WGL", c.wgl_extensions)):
        ordered = sorted(group, key=lambda e: e.name.encode("ascii"))
        out.append("// Sorted by byte order, for a binary search.\n")
        out.append("const NamedId k%sNames[k%sNameCount] = {\n" % (label, label))
        out += ['    { "%s", %s },\n' % (e.name, e.enumerator) for e in ordered]
        out.append("};\n\n")
    out.append("} // namespace catalogue\n} // namespace OGL\n} // namespace Oru\n")
    return "".join(out)


def catalogue_tables_header(c):
    guard = GUARD % "EXTENSIONCATALOGUETABLES"
    gl = len(c.gl_extensions)
    return "".join([
        banner(cat.SOURCE), "#ifndef %s\n#define %s\n\n" % (guard, guard),
        '#include "oru_ogl/extensionator/Extensions.h"\n\n#include <windows.h>\n\n',
        "namespace Oru\n{\nnamespace OGL\n{\nnamespace catalogue\n{\n\n",
        "// The address of an entry point's pointer variable, whatever its type.\n",
        "struct EntryPointSlot\n{\n    template <class Pointer>\n",
        "    EntryPointSlot(Pointer* variable) : address(variable), size(sizeof(Pointer)) {}\n",
        "    void* address;\n    unsigned int size;\n};\n\n",
        "struct EntryPoint\n{\n    char const* name;\n    EntryPointSlot slot;\n};\n\n",
        "struct ExtensionRow\n{\n    char const* name;\n    EntryPoint const* entryPoints;\n",
        "    unsigned int entryPointCount;\n    bool (*load)();\n};\n\n",
        "struct NamedId\n{\n    char const* name;\n    teExtension id;\n};\n\n",
        "const unsigned int kExtensionCount = %d;\n" % len(c.extensions),
        "const unsigned int kGLNameCount = %d;\n" % gl,
        "const unsigned int kWGLNameCount = %d;\n\n" % (len(c.extensions) - gl),
        "extern const ExtensionRow kExtensions[kExtensionCount];\n",
        "extern const NamedId kGLNames[kGLNameCount];\n",
        "extern const NamedId kWGLNames[kWGLNameCount];\n\n",
        "// Fetches every entry point in order; stops at the first one the driver lacks.\n",
        "bool fetchAll(EntryPoint const* entryPoints, unsigned int count);\n\n",
        "} // namespace catalogue\n} // namespace OGL\n} // namespace Oru\n\n#endif\n"])


SOURCES = (cat.SOURCE,)
OUTPUTS = {
    "extensionator/Extensions.h": extensions_header,
    "extensionator/EntryPoints.h": gl_pointer_header,
    "extensionator/windows/WglEntryPoints.h": wgl_pointer_header,
    "extensionator/EntryPoints.cpp": pointer_definitions,
    "extensionator/ExtensionCatalogueTables.h": catalogue_tables_header,
    "extensionator/ExtensionCatalogueTables.cpp": catalogue_tables,
}


def generate(catalogue_dir, output_dir):
    write_all(output_dir, OUTPUTS, cat.load(catalogue_dir))
