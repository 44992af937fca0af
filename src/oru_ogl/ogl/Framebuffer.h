#ifndef ORU_OGL_OGL_FRAMEBUFFER_H
#define ORU_OGL_OGL_FRAMEBUFFER_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/ogl/Object.h"

namespace Oru
{
namespace OGL
{

class Renderbuffer;
class Texture2;

/// One framebuffer object of GL_EXT_framebuffer_object. Attaching and
/// detaching need it bound; every attachment is followed by a completeness
/// check that turns an incomplete framebuffer into an exception. It does not
/// remember what is attached.
class ORU_OGL_API Framebuffer : public Object
{
public:
    /// Whether GL_EXT_framebuffer_object is supported.
    static bool isSupported();
    /// GL_MAX_COLOR_ATTACHMENTS_EXT.
    static unsigned int maxColorAttachments();

    /// Creates the name; nothing is bound.
    Framebuffer();
    virtual ~Framebuffer();

    /// Binds the framebuffer.
    void bind();
    /// Refuses while not bound; binds the window's framebuffer.
    void unbind();
    /// Whether the bound framebuffer is complete; the status goes to *status
    /// unless status is null. Refuses while not bound.
    bool statusOkay(unsigned int* status) const;

    /// Colour attachment index; the texture must not be bound.
    void attach(Texture2* texture, unsigned int level, unsigned int index);
    /// At the renderbuffer's point; index only for colour renderbuffers. A
    /// depth-stencil renderbuffer takes the depth and the stencil point.
    void attach(Renderbuffer* renderbuffer, unsigned int index);
    /// Detaches the texture from a colour attachment; the texture must not be bound.
    void detach(Texture2* texture, unsigned int index);
    /// A depth-stencil renderbuffer leaves the depth point only.
    void detach(Renderbuffer* renderbuffer, unsigned int index);
};

} // namespace OGL
} // namespace Oru

#endif
