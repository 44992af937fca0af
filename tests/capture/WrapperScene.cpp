// A program built on the layer's wrappers (Texture2D, Framebuffer, Program),
// started with its wrappers routed through the interception chain, captured
// whole:
//
//   capture_wrappers CAPTURE [--frames N]
//
// Without the routing the capture would miss every call the wrappers make and
// its replay would draw something else.
#include "oru_ogl/LibraryOGL.h"
#include "oru_ogl/extensionator/CaptureSession.h"
#include "oru_ogl/extensionator/GLCall.h"
#include "oru_ogl/extensionator/windows/wglInterceptor.h"
#include "oru_ogl/ogl/ContextWrapped.h"
#include "oru_ogl/ogl/Framebuffer.h"
#include "oru_ogl/ogl/PixelUnpackParameters.h"
#include "oru_ogl/ogl/Program.h"
#include "oru_ogl/ogl/Texture2.h"
#include "oru_ogl/ogl/TextureUnit.h"

#include "oru_replay/Window.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace OGL = Oru::OGL;

namespace
{

const int kSize = 96;

const char* const kVertexShader = "void main() { gl_TexCoord[0] = gl_MultiTexCoord0; gl_Position = gl_Vertex; }\n";
const char* const kFragmentShader = "uniform sampler2D picture;\n"
                                    "uniform vec4 tint;\n"
                                    "void main() { gl_FragColor = texture2D(picture, gl_TexCoord[0].st) * tint; }\n";

void quad(float x0, float y0, float x1, float y1)
{
    ORU_GL glBegin(GL_QUADS);
    ORU_GL glTexCoord2f(0, 0);
    ORU_GL glVertex2f(x0, y0);
    ORU_GL glTexCoord2f(1, 0);
    ORU_GL glVertex2f(x1, y0);
    ORU_GL glTexCoord2f(1, 1);
    ORU_GL glVertex2f(x1, y1);
    ORU_GL glTexCoord2f(0, 1);
    ORU_GL glVertex2f(x0, y1);
    ORU_GL glEnd();
}

void frames(int count, HDC device)
{
    // A picture uploaded by the wrapper, a target it renders into, a program.
    std::vector<unsigned char> pixels(16 * 16 * 4);
    for (std::size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = static_cast<unsigned char>((i * 29) ^ (i >> 4));
    OGL::Texture2D picture(OGL::Texture::RGBA8, 16, 16, false);
    OGL::TextureUnit::Unit(0)->bind(&picture);
    picture.setFilter(OGL::Texture::NEAREST, OGL::Texture::NEAREST);
    picture.subImage(0, 0, 0, 16, 16, OGL::Texture::Format::RGBA, OGL::Texture::UNSIGNED_BYTE, pixels.data(),
                     OGL::PixelUnpackParameters());
    OGL::Texture2D target(OGL::Texture::RGBA8, 32, 32, false);
    OGL::TextureUnit::Unit(0)->bind(&target);
    target.setFilter(OGL::Texture::NEAREST, OGL::Texture::NEAREST);
    OGL::TextureUnit::Unit(0)->bind2DDefault(); // the framebuffer takes only an unbound texture
    OGL::Framebuffer framebuffer;
    framebuffer.bind();
    framebuffer.attach(&target, 0, 0);
    framebuffer.unbind();
    const char* vertex = kVertexShader;
    const char* fragment = kFragmentShader;
    OGL::Program program;
    program.loadVertexShader(1, &vertex, nullptr);
    program.loadFragmentShader(1, &fragment, nullptr);
    program.link(true);

    for (int frame = 0; frame < count; ++frame)
    {
        // The picture, tinted, into the target.
        framebuffer.bind();
        ORU_GL glViewport(0, 0, 32, 32);
        ORU_GL glClearColor(0.0f, 0.0f, 0.2f, 1.0f);
        ORU_GL glClear(GL_COLOR_BUFFER_BIT);
        OGL::TextureUnit::Unit(0)->bind(&picture);
        program.enable();
        program.setUniform("picture", 0);
        program.setUniform("tint", 1.0f, 0.25f * static_cast<float>(frame + 1), 0.5f, 1.0f);
        quad(-0.8f, -0.8f, 0.8f, 0.8f);
        program.disable();
        framebuffer.unbind();

        // The target on the window, twice.
        ORU_GL glViewport(0, 0, kSize, kSize);
        ORU_GL glClearColor(0.3f, 0.3f, 0.3f, 1.0f);
        ORU_GL glClear(GL_COLOR_BUFFER_BIT);
        ORU_GL glEnable(GL_TEXTURE_2D);
        OGL::TextureUnit::Unit(0)->bind(&target);
        quad(-0.9f, -0.9f, 0.0f, 0.0f);
        OGL::TextureUnit::Unit(0)->bind(&picture);
        quad(0.1f, 0.1f, 0.9f, 0.9f);
        ORU_GL glDisable(GL_TEXTURE_2D);
        OGL::TextureUnit::Unit(0)->bind2DDefault();
        OGL::wglInterceptor::Instance()->wcgmSwapBuffers(__FILE__, __LINE__, device);
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2)
    {
        std::fprintf(stderr, "usage: capture_wrappers CAPTURE [--frames N]\n");
        return 2;
    }
    const int count = argc > 3 && std::string(argv[2]) == "--frames" ? std::atoi(argv[3]) : 3;
    Oru::Replay::Window window(kSize, kSize);
    if (!window.valid())
        return std::fprintf(stderr, "%s\n", window.error().c_str()), 1;
    try
    {
        OGL::CaptureSession capture(argv[1]);
        auto const wgl = [] { return OGL::wglInterceptor::Instance(); };
        const HGLRC context = wgl()->wcgmCreateContext(__FILE__, __LINE__, window.deviceContext());
        wgl()->wcgmMakeCurrent(__FILE__, __LINE__, window.deviceContext(), context);
        OGL::ContextWrapped wrapped(window.deviceContext(), context);
        OGL::ExtensionManager::InitOptions options;
        options.setCompatibilityCoreVersions(true);
        options.setWrappersThroughChain(true);
        OGL::Library::initializeExtensionator(&wrapped, options);
        frames(count, window.deviceContext());
        capture.stop();
        std::printf("captured %llu calls, %u frames\n", static_cast<unsigned long long>(capture.calls()),
                    capture.frames());
        OGL::Library::terminateExtensionator();
        wgl()->wcgmMakeCurrent(__FILE__, __LINE__, nullptr, nullptr);
        wgl()->wcgmDeleteContext(__FILE__, __LINE__, context);
    }
    catch (std::exception const& error)
    {
        std::fprintf(stderr, "capture_wrappers: %s\n", error.what());
        return 1;
    }
    return 0;
}
