#include "oru_ogl/ogl/Renderbuffer.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/GLConstants.h"
#include "oru_ogl/ogl/WrapperCall.h"
#include "oru_ogl/ogl/WrapperCheck.h"

namespace Oru
{
namespace OGL
{

namespace
{

// The stencil-index formats of GL_EXT_framebuffer_object.
const GLenum kFirstStencilIndex = GL_STENCIL_INDEX_EXT;
const GLenum kLastStencilIndex = GL_STENCIL_INDEX16_EXT;

GLenum attachmentOf(GLenum format)
{
    if (format == GL_DEPTH_STENCIL_EXT || format == GL_DEPTH_COMPONENT ||
        (format >= GL_DEPTH_COMPONENT16 && format <= GL_DEPTH_COMPONENT32))
        return GL_DEPTH_ATTACHMENT_EXT;
    if (format >= kFirstStencilIndex && format <= kLastStencilIndex)
        return GL_STENCIL_ATTACHMENT_EXT;
    return GL_COLOR_ATTACHMENT0_EXT;
}

} // namespace

bool Renderbuffer::isSupported()
{
    return ExtensionManager::Instance()->isSupported(GL_EXT_FRAMEBUFFER_OBJECT);
}

int Renderbuffer::maxSize()
{
    GLint size = 0;
    ORU_WRAPPER_GL glGetIntegerv(GL_MAX_RENDERBUFFER_SIZE_EXT, &size);
    ORU_CHECK_GL(Renderbuffer);
    return size;
}

// Sizes of 0 or below are left to GL. The name is checked after the storage
// call, as GL reports a failed creation only through the name.
Renderbuffer::Renderbuffer(unsigned int format, int width, int height)
    : Object(GL_RENDERBUFFER_EXT, GL_RENDERBUFFER_BINDING_EXT)
    , nFormat_(format)
    , nAttachment_(0)
    , nWidth_(width)
    , nHeight_(height)
{
    ORU_VERIFY(Oru::OGL::ExtensionManager::Instance()->isSupported(GL_EXT_FRAMEBUFFER_OBJECT));
    const int limit = maxSize();
    if (width > limit)
        ORU_THROW("Can't create renderbuffer of width " << width << ", a max width of " << limit << " is supported");
    if (height > limit)
        ORU_THROW("Can't create renderbuffer of width " << height << ", a max height of " << limit << " is supported");
    ORU_WRAPPER_GL glGenRenderbuffersEXT(1, &n_ObjectID);
    const GLuint previous = getBoundID();
    bind();
    ORU_WRAPPER_GL glRenderbufferStorageEXT(target(), format, width, height);
    ORU_VERIFY(n_ObjectID != 0);
    nAttachment_ = attachmentOf(format);
    unbind();
    ORU_WRAPPER_GL glBindRenderbufferEXT(target(), previous);
    ORU_CHECK_GL(Renderbuffer);
}

Renderbuffer::~Renderbuffer()
{
    ORU_WRAPPER_GL_NOTHROW glDeleteRenderbuffersEXT(1, &n_ObjectID);
}

unsigned int Renderbuffer::format() const
{
    return nFormat_;
}

int Renderbuffer::width() const
{
    return nWidth_;
}

int Renderbuffer::height() const
{
    return nHeight_;
}

unsigned int Renderbuffer::attachment() const
{
    return nAttachment_;
}

void Renderbuffer::bind()
{
    ORU_WRAPPER_GL glBindRenderbufferEXT(target(), n_ObjectID);
    ORU_CHECK_GL(Renderbuffer);
}

// The text speaks of a framebuffer object: the two classes share it.
void Renderbuffer::unbind()
{
    if (!isBound())
        ORU_THROW("Framebuffer object must be bound before calling unbind()");
    ORU_WRAPPER_GL glBindRenderbufferEXT(target(), 0);
    ORU_CHECK_GL(Renderbuffer);
}

} // namespace OGL
} // namespace Oru
