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
    /// Derived destructors delete the GL name.
    virtual ~Object();

    /// The bind target.
    /// @return the GL target this object binds to now, GL_TEXTURE_2D say
    unsigned int target() const;
    /// The GL name.
    /// @return the name the derived constructor created
    unsigned int objectID() const;
    /// Whether a GL name exists (derived constructors refuse otherwise).
    /// @return true when the name is not 0
    bool isInitialized() const;
    /// The name bound to the target now, read from GL (glGetIntegerv of the
    /// binding query) every time.
    /// @return the bound name, 0 for none
    /// @throws Oru::OGL::ExceptionOGL "Object::getBoundID: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    unsigned int getBoundID() const;
    /// Whether this object is the one bound to its target now.
    /// @return true when getBoundID() is this object's name
    /// @throws Oru::OGL::ExceptionOGL "Object::getBoundID: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    bool isBound() const;

protected:
    /// An object of a bind target, with the query that reads its binding; the
    /// name is 0 until the derived constructor creates one.
    /// @param target       the GL bind target, GL_TEXTURE_2D say
    /// @param bindingQuery the glGetIntegerv query of that target, GL_TEXTURE_BINDING_2D say
    Object(unsigned int target, unsigned int bindingQuery);

    /// Points the object at another target; the next isBound() asks about it.
    /// @param target       the new GL bind target
    /// @param bindingQuery the glGetIntegerv query of that target
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
