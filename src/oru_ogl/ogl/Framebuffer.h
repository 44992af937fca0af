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
    /// @return true when the extension manager marked it
    /// @throws Oru::InternalException "Enforce pInstance_ != NULL" while the layer is not started
    static bool isSupported();
    /// GL_MAX_COLOR_ATTACHMENTS_EXT, read from GL every time.
    /// @return the number of colour attachment points
    /// @throws Oru::OGL::ExceptionOGL "Framebuffer::maxColorAttachments: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    static unsigned int maxColorAttachments();

    /// Creates the name; nothing is bound.
    /// @throws Oru::InternalException
    ///         "Oru::OGL::ExtensionManager::Instance()->isSupported(GL_EXT_FRAMEBUFFER_OBJECT)"
    ///         without the extension; "n_ObjectID != 0" when GL gives no name;
    ///         "Enforce pInstance_ != NULL" while the layer is not started
    /// @throws Oru::OGL::ExceptionOGL "Framebuffer::Framebuffer: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    Framebuffer();
    /// Deletes the name; deleting the bound framebuffer binds the window's again.
    virtual ~Framebuffer();

    /// Binds the framebuffer: drawing and reading go to its attachments.
    /// @throws Oru::OGL::ExceptionOGL "Framebuffer::bind: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void bind();
    /// Binds the window's framebuffer again.
    /// @throws Oru::InternalException "Framebuffer object must be bound before calling unbind()"
    /// @throws Oru::OGL::ExceptionOGL "Object::getBoundID: <gluErrorString text>" or
    ///         "Framebuffer::unbind: <gluErrorString text>" with checked wrappers on,
    ///         when GL has an error pending after a step
    void unbind();
    /// Whether the bound framebuffer is complete (glCheckFramebufferStatusEXT).
    /// @param status receives the status, GL_FRAMEBUFFER_COMPLETE_EXT say, unless null
    /// @return true for GL_FRAMEBUFFER_COMPLETE_EXT
    /// @throws Oru::InternalException
    ///         "Framebuffer object must be bound before calling statusOkay()"
    /// @throws Oru::OGL::ExceptionOGL "Object::getBoundID: <gluErrorString text>" or
    ///         "Framebuffer::statusOkay: <gluErrorString text>" with checked wrappers
    ///         on, when GL has an error pending after a step
    bool statusOkay(unsigned int* status) const;

    /// Attaches a level of a texture at a colour attachment point, then checks
    /// that the framebuffer is complete.
    /// @param texture the texture, not bound itself (it would be read and
    ///                written at once); not null
    /// @param level   the mip level to render into
    /// @param index   the colour attachment, below maxColorAttachments()
    /// @throws Oru::InternalException in this order:
    ///         "Texture cannot be bound during attachment to framebuffer object";
    ///         "Framebuffer Objects must be bound to attach objects";
    ///         "Invalid color buffer attachment only <limit> attachments supported with <index> requested";
    ///         after the attachment, for an incomplete framebuffer,
    ///         "Unsupported texture format (<target>,<format>) for framebuffer object rendering."
    ///         (TokenName of the target and of the layer's own format value) for
    ///         GL_FRAMEBUFFER_UNSUPPORTED_EXT, else
    ///         "Framebuffer attachment error: <status>" (TokenName of the status)
    /// @throws Oru::OGL::ExceptionOGL "<Class>::<member>: <gluErrorString text>"
    ///         (Object::getBoundID, Framebuffer::maxColorAttachments, attach or
    ///         statusOkay) with checked wrappers on, when GL has an error pending
    ///         after a step
    void attach(Texture2* texture, unsigned int level, unsigned int index);
    /// Attaches a renderbuffer at the point its format calls for, then checks
    /// that the framebuffer is complete. A depth-stencil renderbuffer takes the
    /// depth and the stencil point.
    /// @param renderbuffer the renderbuffer; not null
    /// @param index        the colour attachment for a colour renderbuffer, 0 for
    ///                     a depth or stencil one; below maxColorAttachments()
    /// @throws Oru::InternalException in this order:
    ///         "Framebuffer Objects must be bound to attach objects";
    ///         "Invalid color buffer attachment only <limit> attachments supported with <index> requested";
    ///         "Color buffer index is not supported with attachment:<point>"
    ///         (TokenName of the point) for a non-zero index with a depth or
    ///         stencil renderbuffer; after the attachment, for an incomplete
    ///         framebuffer,
    ///         "Unsupported renderbuffer format (<target>,<format>) for framebuffer object rendering."
    ///         for GL_FRAMEBUFFER_UNSUPPORTED_EXT, else
    ///         "Framebuffer attachment error: <status>" (TokenName of the status)
    /// @throws Oru::OGL::ExceptionOGL "<Class>::<member>: <gluErrorString text>"
    ///         (Object::getBoundID, Framebuffer::maxColorAttachments, attach or
    ///         statusOkay) with checked wrappers on, when GL has an error pending
    ///         after a step
    void attach(Renderbuffer* renderbuffer, unsigned int index);
    /// Detaches the texture from a colour attachment point. No completeness
    /// check: a framebuffer is often incomplete between two attachments.
    /// @param texture the attached texture; not null
    /// @param index   the colour attachment, below maxColorAttachments()
    /// @throws Oru::InternalException
    ///         "Framebuffer Object must be bound before detaching objects";
    ///         "Invalid color buffer attachment only <limit> attachments supported with <index> requested"
    /// @throws Oru::OGL::ExceptionOGL "<Class>::<member>: <gluErrorString text>"
    ///         (Object::getBoundID, Framebuffer::maxColorAttachments or detach)
    ///         with checked wrappers on, when GL has an error pending after a step
    void detach(Texture2* texture, unsigned int index);
    /// Detaches the renderbuffer from its point. A depth-stencil renderbuffer
    /// leaves the depth point only; its stencil attachment stays.
    /// @param renderbuffer the attached renderbuffer; not null
    /// @param index        as for attach()
    /// @throws Oru::InternalException
    ///         "Framebuffer Object must be bound before detaching objects";
    ///         "Invalid color buffer attachment only <limit> attachments supported with <index> requested";
    ///         "Color buffer index is not supported with attachment:<point>" for a
    ///         non-zero index with a depth or stencil renderbuffer
    /// @throws Oru::OGL::ExceptionOGL "<Class>::<member>: <gluErrorString text>"
    ///         (Object::getBoundID, Framebuffer::maxColorAttachments or detach)
    ///         with checked wrappers on, when GL has an error pending after a step
    void detach(Renderbuffer* renderbuffer, unsigned int index);
};

} // namespace OGL
} // namespace Oru

#endif
