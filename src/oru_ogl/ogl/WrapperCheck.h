#ifndef ORU_OGL_OGL_WRAPPERCHECK_H
#define ORU_OGL_OGL_WRAPPERCHECK_H

// Checked wrappers (ExtensionManager::InitOptions::setCheckedWrappers): every
// wrapper member that calls GL ends with ORU_CHECK_GL(Class), which, with the
// option on, asks glGetError and throws ExceptionOGL naming the member,
// "Texture2::subImage: invalid value" (the text after the colon is
// gluErrorString of the code), from the file and line of the check. With the
// option off (the default) it is one test of a flag and nothing else.
//
// The check runs at the member's end, so an error that an earlier raw GL call
// left pending is reported by the member as well: glGetError cannot tell the
// two apart. Code that mixes raw GL calls with checked wrappers checks its own
// calls (through ORU_GL) to keep the blame where it belongs.
//
// Between glBegin and glEnd GL refuses every call the wrappers make, the
// glGetError of the check included: it answers no error there and flags
// GL_INVALID_OPERATION, which the member's own call has flagged already. The
// check therefore neither invents nor hides an error there; the error
// surfaces at the caller's next check after glEnd, as without the option.
// Destructors do not check: they must not throw while an exception unwinds.
// Private to the library.

namespace Oru
{
namespace OGL
{

class WrapperCheck
{
public:
    /// Throws ExceptionOGL("owner::member: text", code) from file and line
    /// when checked wrappers are on and GL has an error pending.
    static void after(char const* file, int line, char const* owner, char const* member)
    {
        if (bOn_)
            raisePending(file, line, owner, member);
    }

    /// Set from the options at start-up and cleared at shutdown.
    static void switchOn(bool on);

private:
    static void raisePending(char const* file, int line, char const* owner, char const* member);

    static bool bOn_;
};

} // namespace OGL
} // namespace Oru

/// The check at the end of a member of Class that called GL.
#define ORU_CHECK_GL(Class) ::Oru::OGL::WrapperCheck::after(__FILE__, __LINE__, #Class, __func__)

#endif
