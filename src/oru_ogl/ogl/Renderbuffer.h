#ifndef ORU_OGL_OGL_RENDERBUFFER_H
#define ORU_OGL_OGL_RENDERBUFFER_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/ogl/Object.h"

namespace Oru
{
namespace OGL
{

/// One renderbuffer of GL_EXT_framebuffer_object: storage of a format and
/// size that a Framebuffer attaches at the point its format calls for
/// (depth, stencil or colour).
class ORU_OGL_API Renderbuffer : public Object
{
public:
    /// Whether GL_EXT_framebuffer_object is supported.
    /// @return true when the extension manager marked it
    /// @throws Oru::InternalException "Enforce pInstance_ != NULL" while the layer is not started
    static bool isSupported();
    /// The largest width and height the driver takes (GL_MAX_RENDERBUFFER_SIZE_EXT).
    /// @return the limit in pixels
    /// @throws Oru::OGL::ExceptionOGL "Renderbuffer::maxSize: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    static int maxSize();

    /// Creates the renderbuffer and its storage. The renderbuffer bound before
    /// stays bound.
    /// @param format a GL internal format: GL_RGBA8, GL_DEPTH_COMPONENT24,
    ///               GL_STENCIL_INDEX8_EXT, GL_DEPTH_STENCIL_EXT, ...; it picks the
    ///               attachment point
    /// @param width  in pixels, at most maxSize() (0 or below is left to GL)
    /// @param height in pixels, at most maxSize()
    /// @throws Oru::InternalException
    ///         "Oru::OGL::ExtensionManager::Instance()->isSupported(GL_EXT_FRAMEBUFFER_OBJECT)"
    ///         without the extension;
    ///         "Can't create renderbuffer of width <width>, a max width of <limit> is supported"
    ///         for a width too large and
    ///         "Can't create renderbuffer of width <height>, a max height of <limit> is supported"
    ///         (sic) for a height too large; "n_ObjectID != 0" when GL gives no
    ///         name; "Enforce pInstance_ != NULL" while the layer is not started
    /// @throws Oru::OGL::ExceptionOGL "<Class>::<member>: <gluErrorString text>"
    ///         (Renderbuffer::maxSize, Object::getBoundID, Renderbuffer::bind,
    ///         Renderbuffer::unbind or Renderbuffer::Renderbuffer) with checked
    ///         wrappers on, when GL has an error pending after a step
    Renderbuffer(unsigned int format, int width, int height);
    /// Deletes the name.
    virtual ~Renderbuffer();

    /// The internal format.
    /// @return the GL format given at construction
    unsigned int format() const;
    /// Width in pixels.
    /// @return the width given at construction
    int width() const;
    /// Height in pixels.
    /// @return the height given at construction
    int height() const;

    /// Binds the renderbuffer.
    /// @throws Oru::OGL::ExceptionOGL "Renderbuffer::bind: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void bind();
    /// Binds no renderbuffer.
    /// @throws Oru::InternalException "Framebuffer object must be bound before calling
    ///         unbind()" (the framebuffer's text) while this renderbuffer is not bound
    /// @throws Oru::OGL::ExceptionOGL "Object::getBoundID: <gluErrorString text>" or
    ///         "Renderbuffer::unbind: <gluErrorString text>" with checked wrappers on,
    ///         when GL has an error pending after a step
    void unbind();

protected:
    friend class Framebuffer;
    /// The attachment point of the format.
    /// @return GL_DEPTH_ATTACHMENT_EXT, GL_STENCIL_ATTACHMENT_EXT or GL_COLOR_ATTACHMENT0_EXT
    unsigned int attachment() const;

private:
    unsigned int nFormat_;
    unsigned int nAttachment_;
    int nWidth_;
    int nHeight_;
};

} // namespace OGL
} // namespace Oru

#endif
