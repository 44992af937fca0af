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
    static bool isSupported();

    /// Creates a store of size bytes filled from data (undefined when data is
    /// null). Usage 0 makes an unpack buffer, 1 a pack buffer, 2 an array
    /// buffer, anything else an unpack buffer; the type is not consulted. The
    /// name bound to the unpack target before is bound to the buffer's final
    /// target afterwards.
    Buffer(long long size, Type type, Usage usage, const void* data);
    virtual ~Buffer();

    /// Size in bytes.
    unsigned long long size() const;
    /// The usage hint.
    Usage usagePolicy();
    /// Whether the buffer is mapped.
    bool isMapped() const;

    /// Binds the buffer to its binding point.
    void bind();
    /// Binds no buffer to the pixel-unpack point.
    static void bindDefaultUnpackBuffer();
    /// Binds no buffer to the pixel-pack point.
    static void bindDefaultPackBuffer();
    /// Binds no buffer to the array point.
    static void bindDefaultArrayBuffer();
    /// Binds no buffer to the element-array point.
    static void bindDefaultElementArrayBuffer();

    /// Whether the role is pixel unpack.
    bool isUnpackBuffer() const;
    /// Whether the role is pixel pack.
    bool isPackBuffer() const;
    /// Whether the role is vertex array.
    bool isArrayBuffer() const;
    /// Whether the role is element array.
    bool isElementArrayBuffer() const;

    /// Each refuses while the buffer is bound to its current target.
    void convertToUnpackBuffer();
    /// Serves as pixel-pack buffer from now on.
    void convertToPackBuffer();
    /// Serves as vertex-array buffer from now on.
    void convertToArrayBuffer();
    /// Serves as element-array buffer from now on.
    void convertToElementArrayBuffer();

    /// The buffer must be bound by the caller. access is GL's (GL_READ_ONLY, ...).
    void* map(unsigned int access);
    /// Unmaps the buffer; refuses a buffer that is not mapped.
    void unmap();

    /// Neither binds the buffer nor checks the range against the store.
    void subData(long long offset, long long size, const void* data);
    /// Copies size bytes from offset into data.
    void getSubData(long long offset, long long size, void* data);

    /// Throws InternalException unless this buffer is bound at its binding point.
    void verifyCurrentBufferObject() const;

    /// The GL binding point of a Type.
    static unsigned int Type2GL(Type type);
    /// The GL usage of a Usage.
    static unsigned int Usage2GL(Usage usage);
    /// The Type of a GL binding point.
    static Type GL2Type(unsigned int type);
    /// The Usage of a GL usage.
    static Usage GL2Usage(unsigned int usage);

private:
    long long nSize_;
    Usage eUsage_;
    bool bMapped_;
};

} // namespace OGL
} // namespace Oru

#endif
