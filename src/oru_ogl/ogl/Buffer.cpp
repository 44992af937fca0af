#include "oru_ogl/ogl/Buffer.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/GLConstants.h"
#include "oru_ogl/ogl/TwoWayTable.h"
#include "oru_ogl/ogl/WrapperCall.h"
#include "oru_ogl/ogl/WrapperCheck.h"

// Buffer objects through the GL 1.5 entry points, the same functions as the extensions'
// the constructor requires. A driver that reports 3.0 or later gets no core-version id at
// start-up, so those pointers may still be null at the first buffer: they are fetched then.

namespace Oru
{
namespace OGL
{

namespace
{

void loadBufferEntryPoints()
{
    if (!_cgmGenBuffers || !_cgmBindBuffer || !_cgmMapBuffer || !_cgmGetBufferSubData)
        ExtensionManager::Instance()->initialize(OPEN_GL_1_5);
}

// The usage tables share the type tables' text.
const char* const kUntranslated = "!\"Buffer type enums are not all properly translated.\"";

const TwoWayTable<Buffer::Type>::Row kTypeRows[] = {
    { Buffer::eUnpack, GL_PIXEL_UNPACK_BUFFER },
    { Buffer::ePack, GL_PIXEL_PACK_BUFFER },
    { Buffer::eArray, GL_ARRAY_BUFFER },
    { Buffer::eElementArray, GL_ELEMENT_ARRAY_BUFFER },
};
const TwoWayTable<Buffer::Type> kTypes(kTypeRows, __FILE__, __LINE__, kUntranslated);

const TwoWayTable<Buffer::Usage>::Row kUsageRows[] = {
    { Buffer::eStreamDraw, GL_STREAM_DRAW },   { Buffer::eStreamRead, GL_STREAM_READ },
    { Buffer::eStreamCopy, GL_STREAM_COPY },   { Buffer::eStaticDraw, GL_STATIC_DRAW },
    { Buffer::eStaticRead, GL_STATIC_READ },   { Buffer::eStaticCopy, GL_STATIC_COPY },
    { Buffer::eDynamicDraw, GL_DYNAMIC_DRAW }, { Buffer::eDynamicRead, GL_DYNAMIC_READ },
    { Buffer::eDynamicCopy, GL_DYNAMIC_COPY },
};
const TwoWayTable<Buffer::Usage> kUsages(kUsageRows, __FILE__, __LINE__, kUntranslated);

} // namespace

bool Buffer::isSupported()
{
    return ExtensionManager::Instance()->isSupported(GL_ARB_PIXEL_BUFFER_OBJECT) &&
           ExtensionManager::Instance()->isSupported(GL_ARB_VERTEX_BUFFER_OBJECT);
}

// The role comes from the usage's number (0 unpack, 1 pack, 2 array, else
// unpack) and never from the type: callers rely on eStaticDraw giving an unpack
// buffer whatever type they pass. The binding put back at the end is the one
// the unpack target had, bound to the final target; for an unpack buffer that
// restores the caller's binding.
Buffer::Buffer(long long nSize, Type /*type*/, Usage usage, const void* data)
    : Object(GL_PIXEL_UNPACK_BUFFER, GL_PIXEL_UNPACK_BUFFER_BINDING)
    , nSize_(nSize)
    , eUsage_(usage)
    , bMapped_(false)
{
    ORU_VERIFY(Oru::OGL::ExtensionManager::Instance()->isSupported(GL_ARB_PIXEL_BUFFER_OBJECT));
    ORU_VERIFY(Oru::OGL::ExtensionManager::Instance()->isSupported(GL_ARB_VERTEX_BUFFER_OBJECT));
    ORU_ENFORCE_RANGE(nSize > 0);
    const GLenum glUsage = Usage2GL(usage); // an unknown usage is refused before a name exists
    loadBufferEntryPoints();

    ORU_WRAPPER_GL glGenBuffers(1, &n_ObjectID);
    const unsigned int previous = getBoundID();
    ORU_VERIFY(n_ObjectID != 0);
    switch (static_cast<int>(usage))
    {
    case 0:
        convertToUnpackBuffer();
        break;
    case 1:
        convertToPackBuffer();
        break;
    case 2:
        convertToArrayBuffer();
        break;
    case 3:
        changeTarget(GL_PIXEL_UNPACK_BUFFER, GL_PIXEL_UNPACK_BUFFER_BINDING);
        break;
    default:
        break;
    }
    bind();
    ORU_WRAPPER_GL glBufferData(target(), static_cast<GLsizeiptr>(nSize), data, glUsage);
    ORU_WRAPPER_GL glBindBuffer(target(), previous);
    ORU_CHECK_GL(Buffer);
}

Buffer::~Buffer()
{
    ORU_WRAPPER_GL_NOTHROW glDeleteBuffers(1, &n_ObjectID);
}

unsigned long long Buffer::size() const
{
    return static_cast<unsigned long long>(nSize_);
}

Buffer::Usage Buffer::usagePolicy()
{
    return eUsage_;
}

bool Buffer::isMapped() const
{
    return bMapped_;
}

void Buffer::bind()
{
    ORU_WRAPPER_GL glBindBuffer(target(), n_ObjectID);
    ORU_CHECK_GL(Buffer);
}

void Buffer::bindDefaultUnpackBuffer()
{
    loadBufferEntryPoints();
    ORU_WRAPPER_GL glBindBuffer(GL_PIXEL_UNPACK_BUFFER, 0);
    ORU_CHECK_GL(Buffer);
}

void Buffer::bindDefaultPackBuffer()
{
    loadBufferEntryPoints();
    ORU_WRAPPER_GL glBindBuffer(GL_PIXEL_PACK_BUFFER, 0);
    ORU_CHECK_GL(Buffer);
}

void Buffer::bindDefaultArrayBuffer()
{
    loadBufferEntryPoints();
    ORU_WRAPPER_GL glBindBuffer(GL_ARRAY_BUFFER, 0);
    ORU_CHECK_GL(Buffer);
}

void Buffer::bindDefaultElementArrayBuffer()
{
    loadBufferEntryPoints();
    ORU_WRAPPER_GL glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, 0);
    ORU_CHECK_GL(Buffer);
}

bool Buffer::isUnpackBuffer() const
{
    return target() == GL_PIXEL_UNPACK_BUFFER;
}

bool Buffer::isPackBuffer() const
{
    return target() == GL_PIXEL_PACK_BUFFER;
}

bool Buffer::isArrayBuffer() const
{
    return target() == GL_ARRAY_BUFFER;
}

bool Buffer::isElementArrayBuffer() const
{
    return target() == GL_ELEMENT_ARRAY_BUFFER;
}

// A bound buffer stays where it is: GL would keep it bound to the old target
// while the wrapper answered for the new one.
void Buffer::convertToUnpackBuffer()
{
    if (isBound())
        ORU_THROW("Buffer::convertToUnpackBuffer cannot convert buffer target while bound");
    changeTarget(GL_PIXEL_UNPACK_BUFFER, GL_PIXEL_UNPACK_BUFFER_BINDING);
}

void Buffer::convertToPackBuffer()
{
    if (isBound())
        ORU_THROW("Buffer::convertToPackBuffer cannot convert buffer target while bound");
    changeTarget(GL_PIXEL_PACK_BUFFER, GL_PIXEL_PACK_BUFFER_BINDING);
}

void Buffer::convertToArrayBuffer()
{
    if (isBound())
        ORU_THROW("Buffer::convertToArrayBuffer cannot convert buffer target while bound");
    changeTarget(GL_ARRAY_BUFFER, GL_ARRAY_BUFFER_BINDING);
}

void Buffer::convertToElementArrayBuffer()
{
    if (isBound())
        ORU_THROW("Buffer::convertToElementArrayBuffer cannot convert buffer target while bound");
    changeTarget(GL_ELEMENT_ARRAY_BUFFER, GL_ELEMENT_ARRAY_BUFFER_BINDING);
}

// The buffer counts as mapped even when GL returned null: GL keeps it mapped
// only on success, but an unmap() is then refused by GL rather than by us,
// which keeps the two calls strictly paired for the caller.
void* Buffer::map(unsigned int access)
{
    if (bMapped_)
        ORU_THROW("Buffer is already mapped (this will cause a GL error)");
    void* pointer = ORU_WRAPPER_GL glMapBuffer(target(), access);
    bMapped_ = true;
    ORU_CHECK_GL(Buffer);
    return pointer;
}

// GL_FALSE from glUnmapBuffer means the store was corrupted while mapped (a
// mode switch, for instance); the buffer stays marked mapped so that the
// caller may try again.
void Buffer::unmap()
{
    if (!bMapped_)
        ORU_THROW("Buffer must be mapped before umapping it (this will cause a GL error)");
    if (ORU_WRAPPER_GL glUnmapBuffer(target()) == GL_FALSE)
        ORU_THROW("Cannot unmap buffer");
    bMapped_ = false;
    ORU_CHECK_GL(Buffer);
}

void Buffer::subData(long long offset, long long size, const void* data)
{
    if (bMapped_)
        ORU_THROW("Buffer::subData buffer cannot be mapped");
    if (data == NULL)
        ORU_THROW("Buffer::subData pointer to data must not be NULL");
    if (offset < 0)
        ORU_THROW("Buffer::subData offset must not be negative");
    ORU_WRAPPER_GL glBufferSubData(target(), static_cast<GLintptr>(offset), static_cast<GLsizeiptr>(size), data);
    ORU_CHECK_GL(Buffer);
}

void Buffer::getSubData(long long offset, long long size, void* data)
{
    if (bMapped_)
        ORU_THROW("Buffer::getSubData buffer cannot be mapped");
    if (data == NULL)
        ORU_THROW("Buffer::getSubData pointer to data must not be NULL");
    if (offset < 0)
        ORU_THROW("Buffer::getSubData offset must not be negative");
    ORU_WRAPPER_GL glGetBufferSubData(target(), static_cast<GLintptr>(offset), static_cast<GLsizeiptr>(size), data);
    ORU_CHECK_GL(Buffer);
}

// Kept as the place for a check of the current buffer object; it has none.
void Buffer::verifyCurrentBufferObject() const
{
}

unsigned int Buffer::Type2GL(Type type) { return kTypes.toGL(type); }
Buffer::Type Buffer::GL2Type(unsigned int type) { return kTypes.fromGL(type); }
unsigned int Buffer::Usage2GL(Usage usage) { return kUsages.toGL(usage); }
Buffer::Usage Buffer::GL2Usage(unsigned int usage) { return kUsages.fromGL(usage); }

} // namespace OGL
} // namespace Oru
