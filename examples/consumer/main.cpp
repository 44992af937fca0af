// A first program on oru_ogl: an offscreen context, the layer started for it,
// a GLSL program painting a texture through a framebuffer object, the pixels
// read back, and a GL error reported with the file and line of the call.
// Prints each step; exits with 0 when all of them did what they should.

#include "oru_ogl/ExceptionOGL.h"
#include "oru_ogl/LibraryOGL.h"
#include "oru_ogl/Version.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/extensionator/GLCall.h" // ORU_GL: a GL call checked through the interception chain
#include "oru_ogl/ogl/ContextOffscreen.h"
#include "oru_ogl/ogl/Framebuffer.h"
#include "oru_ogl/ogl/Program.h"
#include "oru_ogl/ogl/Texture2.h"
#include "oru_ogl/ogl/TextureUnit.h"

#include "oru_core/Exceptions.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

using namespace Oru::OGL;

namespace
{

const char* const kVertexShader = "void main() { gl_Position = gl_Vertex; }\n";
const char* const kFragmentShader = "uniform vec4 colour;\n"
                                    "void main() { gl_FragColor = colour; }\n";
const float kColour[4] = {1.0f, 0.5f, 0.25f, 1.0f};

void check(bool condition, std::string const& what)
{
    if (!condition)
        throw std::runtime_error(what);
}

// A quad over the whole viewport, in checked calls.
void drawQuad()
{
    ORU_GL glBegin(GL_QUADS);
    ORU_GL glVertex2f(-1.0f, -1.0f);
    ORU_GL glVertex2f(1.0f, -1.0f);
    ORU_GL glVertex2f(1.0f, 1.0f);
    ORU_GL glVertex2f(-1.0f, 1.0f);
    ORU_GL glEnd();
}

// The layer's GLSL wrapper: compile, link (throws with the driver's log),
// make current, set the uniform, draw.
// [program]
void paintWithProgram()
{
    const char* vertex = kVertexShader;
    const char* fragment = kFragmentShader;
    Program program;
    program.loadVertexShader(1, &vertex, nullptr);
    program.loadFragmentShader(1, &fragment, nullptr);
    program.link(true);
    program.enable();
    program.setUniform("colour", kColour[0], kColour[1], kColour[2], kColour[3]);
    drawQuad();
    program.disable();
}
// [program]

// A driver that reports OpenGL 3.0 or later gets no core-version mark from
// the layer, so its GLSL wrappers refuse; the 2.0 functions are still there.
// ExtensionManager::initialize() fetches them, and checked calls do the rest.
// [initialize 2.0]
void paintWithCheckedCalls()
{
    check(ExtensionManager::Instance()->initialize(OPEN_GL_2_0), "the driver lacks OpenGL 2.0 functions");
    const GLuint program = ORU_GL glCreateProgram();
    const GLenum types[2] = {GL_VERTEX_SHADER, GL_FRAGMENT_SHADER};
    const char* sources[2] = {kVertexShader, kFragmentShader};
    for (int i = 0; i < 2; ++i)
    {
        const GLuint shader = ORU_GL glCreateShader(types[i]);
        ORU_GL glShaderSource(shader, 1, &sources[i], nullptr);
        ORU_GL glCompileShader(shader);
        ORU_GL glAttachShader(program, shader);
        ORU_GL glDeleteShader(shader); // the program keeps it alive
    }
    ORU_GL glLinkProgram(program);
    GLint linked = GL_FALSE;
    ORU_GL glGetProgramiv(program, GL_LINK_STATUS, &linked);
    check(linked == GL_TRUE, "the program did not link");
    ORU_GL glUseProgram(program);
    ORU_GL glUniform4fv(ORU_GL glGetUniformLocation(program, "colour"), 1, kColour);
    drawQuad();
    ORU_GL glUseProgram(0);
    ORU_GL glDeleteProgram(program);
}
// [initialize 2.0]

} // namespace

int main(int argc, char** argv)
{
    std::printf("oru_ogl %s consumer example\n", ORU_OGL_VERSION_STRING);
    // --compatibility-core-versions: a driver of 3.0 or later counts as 2.1.
    const bool compatibilityCoreVersions = argc > 1 && std::string(argv[1]) == "--compatibility-core-versions";
    try
    {
        // [start]
        // 1. A context on a hidden window of the layer's own. Creating it does
        //    not make it current.
        ContextOffscreen context;

        // 2. Start the layer for it: the context is made current, the driver's
        //    version and extensions are read and the entry points loaded.
        //    Every current driver reports 3.0 or later: with compatibility
        //    core versions on, its compatibility context gets the 1.2 to 2.1
        //    marks and the GLSL wrappers work there.
        ExtensionManager::InitOptions options;
        options.setCompatibilityCoreVersions(compatibilityCoreVersions);
        Library::initializeExtensionator(&context, options);
        ExtensionManager* manager = ExtensionManager::Instance();
        std::printf("started on OpenGL %u.%u %s\n", manager->majorVersion(), manager->minorVersion(),
                    manager->additionalVersionInfo().c_str());
        // [start]

        // 3. An 8 x 8 RGBA texture as the colour attachment of a framebuffer
        //    object; attach() throws if the framebuffer is not complete.
        check(Framebuffer::isSupported(), "no framebuffer objects (GL_EXT_framebuffer_object)");
        const int size = 8;
        Texture2D target(Texture::RGBA8, size, size, false);
        Framebuffer framebuffer;
        framebuffer.bind();
        framebuffer.attach(&target, 0, 0);
        ORU_GL glViewport(0, 0, size, size);
        ORU_GL glClearColor(0.0f, 0.0f, 0.0f, 0.0f);
        ORU_GL glClear(GL_COLOR_BUFFER_BIT);

        // 4. Paint it with a GLSL program.
        if (Program::isSupported())
        {
            std::printf("painting with Oru::OGL::Program\n");
            paintWithProgram();
        }
        else
        {
            std::printf("no OpenGL 2.0 mark on a %u.x driver: painting through ExtensionManager::initialize(OPEN_GL_2_0) "
                        "and checked calls\n",
                        manager->majorVersion());
            paintWithCheckedCalls();
        }
        framebuffer.unbind();

        // 5. Read the texture back and compare every pixel with the colour.
        TextureUnit::Unit(0)->bind(&target);
        std::vector<unsigned char> pixels(target.pixelDataSize(0, Texture::Format::RGBA, Texture::UNSIGNED_BYTE));
        target.getPixelData(pixels.data(), 0, Texture::Format::RGBA, Texture::UNSIGNED_BYTE, 4);
        TextureUnit::Unit(0)->bind2DDefault();
        check(pixels.size() == size * size * 4, "unexpected read-back size");
        for (std::size_t i = 0; i < pixels.size(); ++i)
        {
            const int expected = static_cast<int>(kColour[i % 4] * 255.0f + 0.5f);
            check(std::abs(pixels[i] - expected) <= 1, "pixel " + std::to_string(i / 4) + " channel " +
                                                           std::to_string(i % 4) + " is " +
                                                           std::to_string(pixels[i]) + ", not " +
                                                           std::to_string(expected));
        }
        std::printf("read back %d x %d pixels of RGBA %u %u %u %u\n", size, size, pixels[0], pixels[1], pixels[2],
                    pixels[3]);

        // [checked call]
        // 6. A GL error in a checked call becomes an ExceptionOGL that names
        //    the file and line of the call: 0 is no capability of glEnable.
        int callLine = 0;
        try
        {
            callLine = __LINE__; ORU_GL glEnable(0);
            check(false, "glEnable(0) raised no exception");
        }
        catch (ExceptionOGL const& e)
        {
            std::printf("caught ExceptionOGL: %s\n", e.what());
            check(e.line() == callLine, "the exception names line " + std::to_string(e.line()) + ", not " +
                                            std::to_string(callLine));
            check(std::string(e.file()).find("main.cpp") != std::string::npos, "the exception names another file");
            check(e.errorNumber() == GL_INVALID_ENUM, "the error is not GL_INVALID_ENUM");
        }
        // [checked call]
        Library::terminateExtensionator();
    }
    catch (Oru::ExceptionBase const& e)
    {
        std::printf("FAILED: %s\n", e.what());
        return 1;
    }
    catch (std::exception const& e)
    {
        std::printf("FAILED: %s\n", e.what());
        return 1;
    }
    std::printf("all steps passed\n");
    return 0;
}
