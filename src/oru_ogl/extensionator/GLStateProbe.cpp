#include "oru_ogl/extensionator/GLStateProbe.h"

#include "oru_ogl/extensionator/EntryPoints.h"

#include <cstdio>
#include <cstring>

namespace Oru
{
namespace OGL
{

namespace
{

bool hasExtension(char const* extensions, char const* name)
{
    if (!extensions)
        return false;
    const std::size_t length = std::strlen(name);
    for (char const* at = std::strstr(extensions, name); at; at = std::strstr(at + 1, name))
        if ((at == extensions || at[-1] == ' ') && (at[length] == ' ' || at[length] == '\0'))
            return true;
    return false;
}

GLint integer(GLenum query)
{
    GLint value = 0;
    glGetIntegerv(query, &value);
    return value;
}

} // namespace

ContextFeatures GLStateProbe::features()
{
    ContextFeatures features;
    int major = 1, minor = 0;
    if (char const* version = reinterpret_cast<char const*>(glGetString(GL_VERSION)))
        std::sscanf(version, "%d.%d", &major, &minor);
    char const* extensions = reinterpret_cast<char const*>(glGetString(GL_EXTENSIONS));
    const int level = major * 10 + minor;
    features.multitexture = level >= 13 || hasExtension(extensions, "GL_ARB_multitexture");
    features.fogAndSecondary = level >= 14;
    features.buffers = (level >= 15 || hasExtension(extensions, "GL_ARB_vertex_buffer_object")) && _cgmBindBuffer;
    features.attributes = level >= 20 && _cgmGetVertexAttribiv && _cgmGetVertexAttribPointerv;
    features.pixelBuffers = features.buffers && (level >= 21 || hasExtension(extensions, "GL_ARB_pixel_buffer_object") ||
                                                 hasExtension(extensions, "GL_EXT_pixel_buffer_object"));
    features.framebuffers = _cgmBindFramebufferEXT && (level >= 30 || hasExtension(extensions, "GL_ARB_framebuffer_object") ||
                                                       hasExtension(extensions, "GL_EXT_framebuffer_object"));
    if (features.multitexture)
        features.textureCoordUnits = integer(level >= 20 ? GL_MAX_TEXTURE_COORDS : GL_MAX_TEXTURE_UNITS);
    if (features.attributes)
        features.vertexAttributes = integer(GL_MAX_VERTEX_ATTRIBS);
    return features;
}

PixelStore GLStateProbe::pixelStore(bool pack)
{
    PixelStore store;
    store.rowLength = integer(pack ? GL_PACK_ROW_LENGTH : GL_UNPACK_ROW_LENGTH);
    store.skipPixels = integer(pack ? GL_PACK_SKIP_PIXELS : GL_UNPACK_SKIP_PIXELS);
    store.skipRows = integer(pack ? GL_PACK_SKIP_ROWS : GL_UNPACK_SKIP_ROWS);
    store.alignment = integer(pack ? GL_PACK_ALIGNMENT : GL_UNPACK_ALIGNMENT);
    store.imageHeight = integer(pack ? GL_PACK_IMAGE_HEIGHT : GL_UNPACK_IMAGE_HEIGHT);
    store.skipImages = integer(pack ? GL_PACK_SKIP_IMAGES : GL_UNPACK_SKIP_IMAGES);
    return store;
}

GLuint GLStateProbe::boundBuffer(ContextFeatures const& features, GLenum bindingQuery)
{
    const bool pixel = bindingQuery == GL_PIXEL_PACK_BUFFER_BINDING || bindingQuery == GL_PIXEL_UNPACK_BUFFER_BINDING;
    if (!features.buffers || (pixel && !features.pixelBuffers))
        return 0;
    return static_cast<GLuint>(integer(bindingQuery));
}

std::vector<unsigned char> GLStateProbe::backBuffer(ContextFeatures const& features, int width, int height)
{
    std::vector<unsigned char> pixels(static_cast<std::size_t>(width) * height * 4);
    if (pixels.empty())
        return pixels;
    const GLint framebuffer = features.framebuffers ? integer(GL_FRAMEBUFFER_BINDING_EXT) : 0;
    const GLint packBuffer = features.pixelBuffers ? integer(GL_PIXEL_PACK_BUFFER_BINDING) : 0;
    if (framebuffer)
        _cgmBindFramebufferEXT(GL_FRAMEBUFFER_EXT, 0);
    if (packBuffer)
        _cgmBindBuffer(GL_PIXEL_PACK_BUFFER, 0);
    const GLint readBuffer = integer(GL_READ_BUFFER);
    const PixelStore store = pixelStore(true);
    glReadBuffer(GL_BACK);
    glPixelStorei(GL_PACK_ALIGNMENT, 4);
    glPixelStorei(GL_PACK_ROW_LENGTH, 0);
    glPixelStorei(GL_PACK_SKIP_PIXELS, 0);
    glPixelStorei(GL_PACK_SKIP_ROWS, 0);
    glReadPixels(0, 0, width, height, GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
    glPixelStorei(GL_PACK_ALIGNMENT, static_cast<GLint>(store.alignment));
    glPixelStorei(GL_PACK_ROW_LENGTH, static_cast<GLint>(store.rowLength));
    glPixelStorei(GL_PACK_SKIP_PIXELS, static_cast<GLint>(store.skipPixels));
    glPixelStorei(GL_PACK_SKIP_ROWS, static_cast<GLint>(store.skipRows));
    glReadBuffer(static_cast<GLenum>(readBuffer));
    if (packBuffer)
        _cgmBindBuffer(GL_PIXEL_PACK_BUFFER, static_cast<GLuint>(packBuffer));
    if (framebuffer)
        _cgmBindFramebufferEXT(GL_FRAMEBUFFER_EXT, static_cast<GLuint>(framebuffer));
    return pixels;
}

} // namespace OGL
} // namespace Oru
