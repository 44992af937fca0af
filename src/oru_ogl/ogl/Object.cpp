#include "oru_ogl/ogl/Object.h"

#include "oru_ogl/extensionator/GLTypes.h"
#include "oru_ogl/ogl/WrapperCall.h"
#include "oru_ogl/ogl/WrapperCheck.h"

// The binding query is answered by GL itself, not by a flag kept here: code outside the
// layer binds and unbinds objects directly, and the wrappers' refusals must see that.

namespace Oru
{
namespace OGL
{

Object::Object(unsigned int target, unsigned int bindingQuery)
    : n_ObjectID(0)
    , nTarget_(target)
    , nBindingQuery_(bindingQuery)
{
}

// The name belongs to the derived class, which knows the matching delete call.
Object::~Object() = default;

// A GL name is owned once; copying would delete it twice. Declared private and
// kept harmless should a member of a derived class ever call it.
Object::Object(Object const&)
    : n_ObjectID(0)
    , nTarget_(0)
    , nBindingQuery_(0)
{
}

Object& Object::operator=(Object const&)
{
    return *this;
}

unsigned int Object::target() const
{
    return nTarget_;
}

unsigned int Object::objectID() const
{
    return n_ObjectID;
}

bool Object::isInitialized() const
{
    return n_ObjectID != 0;
}

unsigned int Object::getBoundID() const
{
    GLint bound = 0;
    ORU_WRAPPER_GL glGetIntegerv(nBindingQuery_, &bound);
    ORU_CHECK_GL(Object);
    return static_cast<unsigned int>(bound);
}

// An object without a name counts as bound when nothing is bound to its target.
bool Object::isBound() const
{
    return getBoundID() == objectID();
}

void Object::changeTarget(unsigned int target, unsigned int bindingQuery)
{
    nTarget_ = target;
    nBindingQuery_ = bindingQuery;
}

} // namespace OGL
} // namespace Oru
