#ifndef ORU_OGL_EXTENSIONATOR_OPERATIONLIST_H
#define ORU_OGL_EXTENSIONATOR_OPERATIONLIST_H

/// \file
/// Helpers for expanding the operations lists (Operations.def for GL,
/// windows/WglOperations.def for WGL). A row's parameters and arguments each
/// stand behind a comma, "(, GLenum target, GLint param)", so that they can
/// follow the caller's file and line:
///
///     cgm##Stem(const char* file, unsigned int line ORU_OP_TAIL Params)
///
/// and ORU_OP_PLAIN gives them without the leading comma, for a GL signature or
/// call of their own.

/// The row's list as it stands, each item behind a comma.
#define ORU_OP_TAIL(...) __VA_ARGS__
/// The row's list without its leading comma.
#define ORU_OP_PLAIN(leadingComma, ...) __VA_ARGS__

#endif
