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
    static bool isSupported();
    /// The largest width and height the driver takes.
    static int maxSize();

    /// format is a GL internal format (GL_RGBA8, GL_DEPTH_COMPONENT24,
    /// GL_DEPTH_STENCIL_EXT, ...). The renderbuffer bound before stays bound.
    Renderbuffer(unsigned int format, int width, int height);
    virtual ~Renderbuffer();

    /// The internal format.
    unsigned int format() const;
    /// Width in pixels.
    int width() const;
    /// Height in pixels.
    int height() const;

    /// Binds the renderbuffer.
    void bind();
    /// Refuses while the renderbuffer is not bound.
    void unbind();

protected:
    friend class Framebuffer;
    /// The attachment point of the format: depth, stencil or colour 0.
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
