#ifndef ORU_OGL_OGL_OBJECT_H
#define ORU_OGL_OGL_OBJECT_H

#include "oru_ogl/OglExport.h"

namespace Oru
{
namespace OGL
{

/// Base of the wrappers of named GL objects (buffers, framebuffers,
/// renderbuffers, textures): the GL name, the target it binds to and the
/// glGetIntegerv query that reports what is bound there. A GL name has one
/// owner, so wrappers are not copyable; each derived class creates its name in
/// its constructor and deletes it in its destructor.
class ORU_OGL_API Object
{
public:
    virtual ~Object();

    /// The bind target.
    unsigned int target() const;
    /// The GL name.
    unsigned int objectID() const;
    /// Whether a GL name exists (derived constructors refuse otherwise).
    bool isInitialized() const;
    /// The name bound to the target now, read from GL.
    unsigned int getBoundID() const;
    /// Whether this object is the one bound to its target now.
    bool isBound() const;

protected:
    /// An object of a bind target, with the query that reads its binding.
    Object(unsigned int target, unsigned int bindingQuery);

    /// Points the object at another target; the next isBound() asks about it.
    void changeTarget(unsigned int target, unsigned int bindingQuery);

    /// The GL name.
    unsigned int n_ObjectID;

private:
    Object(Object const&);
    Object& operator=(Object const&);

    unsigned int nTarget_;
    unsigned int nBindingQuery_;
};

} // namespace OGL
} // namespace Oru

#endif
