#include "oru_ogl/ogl/Framebuffer.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/TokenName.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/GLConstants.h"
#include "oru_ogl/ogl/Renderbuffer.h"
#include "oru_ogl/ogl/Texture2.h"
#include "oru_ogl/ogl/WrapperCall.h"
#include "oru_ogl/ogl/WrapperCheck.h"

// Framebuffer objects of GL_EXT_framebuffer_object: render into textures and
// renderbuffers instead of the window. Everything that changes attachments
// acts on the bound framebuffer, as GL does, and refuses when this one is not
// bound rather than change another. Completeness is checked after every
// attachment, so that a format the driver cannot render to is reported where
// it was attached; the attachment is not undone then.

namespace Oru
{
namespace OGL
{

namespace
{

void checkIndex(unsigned int index)
{
    const unsigned int limit = Framebuffer::maxColorAttachments();
    if (index >= limit)
        ORU_THROW("Invalid color buffer attachment only " << limit << " attachments supported with " << index << " requested");
}

} // namespace

bool Framebuffer::isSupported()
{
    return ExtensionManager::Instance()->isSupported(GL_EXT_FRAMEBUFFER_OBJECT);
}

unsigned int Framebuffer::maxColorAttachments()
{
    GLint count = 0;
    ORU_WRAPPER_GL glGetIntegerv(GL_MAX_COLOR_ATTACHMENTS_EXT, &count);
    ORU_CHECK_GL(Framebuffer);
    return static_cast<unsigned int>(count);
}

Framebuffer::Framebuffer()
    : Object(GL_FRAMEBUFFER_EXT, GL_FRAMEBUFFER_BINDING_EXT)
{
    ORU_VERIFY(Oru::OGL::ExtensionManager::Instance()->isSupported(GL_EXT_FRAMEBUFFER_OBJECT));
    ORU_WRAPPER_GL glGenFramebuffersEXT(1, &n_ObjectID);
    ORU_VERIFY(n_ObjectID != 0);
    ORU_CHECK_GL(Framebuffer);
}

// Deleting the bound framebuffer binds the window's framebuffer again.
Framebuffer::~Framebuffer()
{
    ORU_WRAPPER_GL_NOTHROW glDeleteFramebuffersEXT(1, &n_ObjectID);
}

void Framebuffer::bind()
{
    ORU_WRAPPER_GL glBindFramebufferEXT(target(), n_ObjectID);
    ORU_CHECK_GL(Framebuffer);
}

void Framebuffer::unbind()
{
    if (!isBound())
        ORU_THROW("Framebuffer object must be bound before calling unbind()");
    ORU_WRAPPER_GL glBindFramebufferEXT(target(), 0);
    ORU_CHECK_GL(Framebuffer);
}

bool Framebuffer::statusOkay(unsigned int* status) const
{
    if (!isBound())
        ORU_THROW("Framebuffer object must be bound before calling statusOkay()");
    const GLenum result = ORU_WRAPPER_GL glCheckFramebufferStatusEXT(GL_FRAMEBUFFER_EXT);
    ORU_CHECK_GL(Framebuffer);
    if (status != NULL)
        *status = result;
    return result == GL_FRAMEBUFFER_COMPLETE_EXT;
}

// A texture bound while it is attached would be read and written at once;
// that check comes first, before the framebuffer's own binding is looked at.
// The unsupported-format message names the texture's format by the layer's
// own value.
void Framebuffer::attach(Texture2* texture, unsigned int level, unsigned int index)
{
    if (texture->isBound())
        ORU_THROW("Texture cannot be bound during attachment to framebuffer object");
    if (!isBound())
        ORU_THROW("Framebuffer Objects must be bound to attach objects");
    checkIndex(index);
    ORU_WRAPPER_GL glFramebufferTexture2DEXT(target(), GL_COLOR_ATTACHMENT0_EXT + index, texture->target(), texture->objectID(),
                                static_cast<GLint>(level));
    ORU_CHECK_GL(Framebuffer);
    unsigned int status = 0;
    if (statusOkay(&status))
        return;
    if (status == GL_FRAMEBUFFER_UNSUPPORTED_EXT)
        ORU_THROW("Unsupported texture format (" << TokenName(texture->target()) << ","
                                                 << TokenName(texture->format()) << ") for framebuffer object rendering.");
    ORU_THROW("Framebuffer attachment error: " << TokenName(status));
}

// Depth and stencil renderbuffers have one point each, so an index is refused
// for them. A depth-stencil renderbuffer serves both points.
void Framebuffer::attach(Renderbuffer* renderbuffer, unsigned int index)
{
    if (!isBound())
        ORU_THROW("Framebuffer Objects must be bound to attach objects");
    checkIndex(index);
    if (index != 0 && renderbuffer->attachment() != GL_COLOR_ATTACHMENT0_EXT)
        ORU_THROW("Color buffer index is not supported with attachment:" << TokenName(renderbuffer->attachment()));
    ORU_WRAPPER_GL glFramebufferRenderbufferEXT(target(), renderbuffer->attachment() + index, renderbuffer->target(),
                                   renderbuffer->objectID());
    if (renderbuffer->format() == GL_DEPTH_STENCIL_EXT)
        ORU_WRAPPER_GL glFramebufferRenderbufferEXT(target(), GL_STENCIL_ATTACHMENT_EXT, renderbuffer->target(),
                                       renderbuffer->objectID());
    ORU_CHECK_GL(Framebuffer);
    unsigned int status = 0;
    if (statusOkay(&status))
        return;
    if (status == GL_FRAMEBUFFER_UNSUPPORTED_EXT)
        ORU_THROW("Unsupported renderbuffer format (" << TokenName(renderbuffer->target()) << ","
                                                      << TokenName(renderbuffer->format())
                                                      << ") for framebuffer object rendering.");
    ORU_THROW("Framebuffer attachment error: " << TokenName(status));
}

// No completeness check: a framebuffer is often incomplete between detaching
// one image and attaching the next.
void Framebuffer::detach(Texture2* texture, unsigned int index)
{
    if (!isBound())
        ORU_THROW("Framebuffer Object must be bound before detaching objects");
    checkIndex(index);
    ORU_WRAPPER_GL glFramebufferTexture2DEXT(target(), GL_COLOR_ATTACHMENT0_EXT + index, texture->target(), 0, 0);
    ORU_CHECK_GL(Framebuffer);
}

// A depth-stencil renderbuffer is detached from the depth point only; its
// stencil attachment stays until the caller detaches it with GL or deletes
// the renderbuffer. Kept so: callers rely on the stencil surviving.
void Framebuffer::detach(Renderbuffer* renderbuffer, unsigned int index)
{
    if (!isBound())
        ORU_THROW("Framebuffer Object must be bound before detaching objects");
    checkIndex(index);
    if (index != 0 && renderbuffer->attachment() != GL_COLOR_ATTACHMENT0_EXT)
        ORU_THROW("Color buffer index is not supported with attachment:" << TokenName(renderbuffer->attachment()));
    ORU_WRAPPER_GL glFramebufferRenderbufferEXT(target(), renderbuffer->attachment() + index, renderbuffer->target(), 0);
    ORU_CHECK_GL(Framebuffer);
}

} // namespace OGL
} // namespace Oru
