#ifndef ORU_OGL_OGL_BUFFER_H
#define ORU_OGL_OGL_BUFFER_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/ogl/Object.h"

namespace Oru
{
namespace OGL
{

/// One GL buffer object, usable as a pixel-unpack, pixel-pack, vertex-array or
/// element-array buffer and movable between those roles while it is unbound.
/// Needs GL_ARB_pixel_buffer_object and GL_ARB_vertex_buffer_object.
///
/// The role a new buffer starts in follows the numeric value of the usage
/// argument, not the type argument (see the constructor); convert it
/// afterwards when another role is wanted.
class ORU_OGL_API Buffer : public Object
{
public:
    /// The binding point a buffer serves.
    enum Type
    {
        eUnpack = 0,
        ePack = 1,
        eArray = 2,
        eElementArray = 3
    };

    /// The usage hint given to glBufferData.
    enum Usage
    {
        eStreamDraw = 0,
        eStreamRead = 1,
        eStreamCopy = 2,
        eStaticDraw = 3,
        eStaticRead = 4,
        eStaticCopy = 5,
        eDynamicDraw = 6,
        eDynamicRead = 7,
        eDynamicCopy = 8
    };

    /// GL_ARB_pixel_buffer_object and GL_ARB_vertex_buffer_object.
    /// @return true when the extension manager marked both
    /// @throws Oru::InternalException "Enforce pInstance_ != NULL" while the layer is not started
    static bool isSupported();

    /// Creates a store of size bytes filled from data (undefined when data is
    /// null). Usage 0 makes an unpack buffer, 1 a pack buffer, 2 an array
    /// buffer, anything else an unpack buffer; the type is not consulted. The
    /// name bound to the unpack target before is bound to the buffer's final
    /// target afterwards.
    /// @param size  the store's size in bytes, 1 or more
    /// @param type  not consulted (see above)
    /// @param usage the usage hint, which also picks the role
    /// @param data  size bytes to fill the store with, or null; not kept
    /// @throws Oru::InternalException
    ///         "Oru::OGL::ExtensionManager::Instance()->isSupported(GL_ARB_PIXEL_BUFFER_OBJECT)"
    ///         or "Oru::OGL::ExtensionManager::Instance()->isSupported(GL_ARB_VERTEX_BUFFER_OBJECT)"
    ///         without those extensions; "Range error: nSize > 0" for a size below 1;
    ///         "!\"Buffer type enums are not all properly translated.\"" for a usage
    ///         outside the enumeration, before a name exists; "n_ObjectID != 0" when
    ///         GL gives no name; "Enforce pInstance_ != NULL" while the layer is not
    ///         started
    /// @throws Oru::OGL::ExceptionOGL "<Class>::<member>: <gluErrorString text>"
    ///         (Object::getBoundID, Buffer::bind or Buffer::Buffer) with checked
    ///         wrappers on, when GL has an error pending after a step
    Buffer(long long size, Type type, Usage usage, const void* data);
    /// Deletes the GL buffer name.
    virtual ~Buffer();

    /// Size in bytes.
    /// @return the size given at construction
    unsigned long long size() const;
    /// The usage hint.
    /// @return the usage given at construction
    Usage usagePolicy();
    /// Whether the buffer is mapped, as this wrapper counts it (see map()).
    /// @return true between map() and a successful unmap()
    bool isMapped() const;

    /// Binds the buffer to the binding point of its role.
    /// @throws Oru::OGL::ExceptionOGL "Buffer::bind: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void bind();
    /// Binds no buffer to the pixel-unpack point.
    /// @throws Oru::OGL::ExceptionOGL "Buffer::bindDefaultUnpackBuffer: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    static void bindDefaultUnpackBuffer();
    /// Binds no buffer to the pixel-pack point.
    /// @throws Oru::OGL::ExceptionOGL "Buffer::bindDefaultPackBuffer: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    static void bindDefaultPackBuffer();
    /// Binds no buffer to the array point.
    /// @throws Oru::OGL::ExceptionOGL "Buffer::bindDefaultArrayBuffer: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    static void bindDefaultArrayBuffer();
    /// Binds no buffer to the element-array point.
    /// @throws Oru::OGL::ExceptionOGL "Buffer::bindDefaultElementArrayBuffer: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    static void bindDefaultElementArrayBuffer();

    /// Whether the role is pixel unpack.
    /// @return true when the buffer binds to GL_PIXEL_UNPACK_BUFFER
    bool isUnpackBuffer() const;
    /// Whether the role is pixel pack.
    /// @return true when the buffer binds to GL_PIXEL_PACK_BUFFER
    bool isPackBuffer() const;
    /// Whether the role is vertex array.
    /// @return true when the buffer binds to GL_ARRAY_BUFFER
    bool isArrayBuffer() const;
    /// Whether the role is element array.
    /// @return true when the buffer binds to GL_ELEMENT_ARRAY_BUFFER
    bool isElementArrayBuffer() const;

    /// Serves as pixel-unpack buffer from now on. Each conversion refuses while
    /// the buffer is bound to its current target: GL would keep it bound there.
    /// @throws Oru::InternalException
    ///         "Buffer::convertToUnpackBuffer cannot convert buffer target while bound"
    /// @throws Oru::OGL::ExceptionOGL "Object::getBoundID: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending
    void convertToUnpackBuffer();
    /// Serves as pixel-pack buffer from now on.
    /// @throws Oru::InternalException
    ///         "Buffer::convertToPackBuffer cannot convert buffer target while bound"
    /// @throws Oru::OGL::ExceptionOGL "Object::getBoundID: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending
    void convertToPackBuffer();
    /// Serves as vertex-array buffer from now on.
    /// @throws Oru::InternalException
    ///         "Buffer::convertToArrayBuffer cannot convert buffer target while bound"
    /// @throws Oru::OGL::ExceptionOGL "Object::getBoundID: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending
    void convertToArrayBuffer();
    /// Serves as element-array buffer from now on.
    /// @throws Oru::InternalException
    ///         "Buffer::convertToElementArrayBuffer cannot convert buffer target while bound"
    /// @throws Oru::OGL::ExceptionOGL "Object::getBoundID: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending
    void convertToElementArrayBuffer();

    /// Maps the store (glMapBuffer) of the buffer bound at the binding point of
    /// its role: the caller binds it first. The buffer counts as mapped even
    /// when GL returns null, so that map() and unmap() stay paired.
    /// @param access GL_READ_ONLY, GL_WRITE_ONLY or GL_READ_WRITE
    /// @return the store's address, valid until unmap(); null when GL refused
    /// @throws Oru::InternalException "Buffer is already mapped (this will cause a GL error)"
    /// @throws Oru::OGL::ExceptionOGL "Buffer::map: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void* map(unsigned int access);
    /// Unmaps the buffer bound at the binding point of its role.
    /// @throws Oru::InternalException
    ///         "Buffer must be mapped before umapping it (this will cause a GL error)"
    ///         when not mapped; "Cannot unmap buffer" when GL reports the store
    ///         corrupted while mapped (the buffer then stays mapped, to try again)
    /// @throws Oru::OGL::ExceptionOGL "Buffer::unmap: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void unmap();

    /// Replaces size bytes of the store from offset on (glBufferSubData) in the
    /// buffer bound at the binding point of its role. Neither binds the buffer
    /// nor checks the range against the store: GL refuses one past its end.
    /// @param offset the first byte, 0 or more
    /// @param size   the number of bytes
    /// @param data   size bytes; not null; not kept
    /// @throws Oru::InternalException "Buffer::subData buffer cannot be mapped",
    ///         "Buffer::subData pointer to data must not be NULL" or
    ///         "Buffer::subData offset must not be negative"
    /// @throws Oru::OGL::ExceptionOGL "Buffer::subData: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void subData(long long offset, long long size, const void* data);
    /// Copies size bytes from offset on into data (glGetBufferSubData), from the
    /// buffer bound at the binding point of its role, as subData().
    /// @param offset the first byte, 0 or more
    /// @param size   the number of bytes
    /// @param data   receives size bytes; not null
    /// @throws Oru::InternalException "Buffer::getSubData buffer cannot be mapped",
    ///         "Buffer::getSubData pointer to data must not be NULL" or
    ///         "Buffer::getSubData offset must not be negative"
    /// @throws Oru::OGL::ExceptionOGL "Buffer::getSubData: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void getSubData(long long offset, long long size, void* data);

    /// A hook for checking that this buffer is bound at its binding point; it
    /// checks nothing and never throws.
    void verifyCurrentBufferObject() const;

    /// The GL binding point of a Type.
    /// @param type a role
    /// @return GL_PIXEL_UNPACK_BUFFER, GL_PIXEL_PACK_BUFFER, GL_ARRAY_BUFFER or
    ///         GL_ELEMENT_ARRAY_BUFFER
    /// @throws Oru::InternalException "!\"Buffer type enums are not all properly translated.\""
    ///         for a value outside the enumeration
    static unsigned int Type2GL(Type type);
    /// The GL usage of a Usage.
    /// @param usage a usage hint
    /// @return GL_STREAM_DRAW to GL_DYNAMIC_COPY
    /// @throws Oru::InternalException "!\"Buffer type enums are not all properly translated.\""
    ///         (the type table's text) for a value outside the enumeration
    static unsigned int Usage2GL(Usage usage);
    /// The Type of a GL binding point.
    /// @param type one of the four buffer binding points
    /// @return the role
    /// @throws Oru::InternalException "!\"Buffer type enums are not all properly translated.\""
    ///         for any other value
    static Type GL2Type(unsigned int type);
    /// The Usage of a GL usage.
    /// @param usage one of GL's nine usage hints
    /// @return the usage hint of the layer
    /// @throws Oru::InternalException "!\"Buffer type enums are not all properly translated.\""
    ///         for any other value
    static Usage GL2Usage(unsigned int usage);

private:
    long long nSize_;
    Usage eUsage_;
    bool bMapped_;
};

} // namespace OGL
} // namespace Oru

#endif
