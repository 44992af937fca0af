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
    enum Type
    {
        eUnpack = 0,
        ePack = 1,
        eArray = 2,
        eElementArray = 3
    };

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

    static bool isSupported();

    /// Creates a store of size bytes filled from data (undefined when data is
    /// null). Usage 0 makes an unpack buffer, 1 a pack buffer, 2 an array
    /// buffer, anything else an unpack buffer; the type is not consulted. The
    /// name bound to the unpack target before is bound to the buffer's final
    /// target afterwards.
    Buffer(long long size, Type type, Usage usage, const void* data);
    virtual ~Buffer();

    unsigned long long size() const;
    Usage usagePolicy();
    bool isMapped() const;

    void bind();
    static void bindDefaultUnpackBuffer();
    static void bindDefaultPackBuffer();
    static void bindDefaultArrayBuffer();
    static void bindDefaultElementArrayBuffer();

    bool isUnpackBuffer() const;
    bool isPackBuffer() const;
    bool isArrayBuffer() const;
    bool isElementArrayBuffer() const;

    /// Each refuses while the buffer is bound to its current target.
    void convertToUnpackBuffer();
    void convertToPackBuffer();
    void convertToArrayBuffer();
    void convertToElementArrayBuffer();

    /// The buffer must be bound by the caller. access is GL's (GL_READ_ONLY, ...).
    void* map(unsigned int access);
    void unmap();

    /// Neither binds the buffer nor checks the range against the store.
    void subData(long long offset, long long size, const void* data);
    void getSubData(long long offset, long long size, void* data);

    void verifyCurrentBufferObject() const;

    static unsigned int Type2GL(Type type);
    static unsigned int Usage2GL(Usage usage);
    static Type GL2Type(unsigned int type);
    static Usage GL2Usage(unsigned int usage);

private:
    long long nSize_;
    Usage eUsage_;
    bool bMapped_;
};

} // namespace OGL
} // namespace Oru

#endif
