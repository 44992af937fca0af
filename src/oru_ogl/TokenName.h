#ifndef ORU_OGL_TOKENNAME_H
#define ORU_OGL_TOKENNAME_H

#include "oru_ogl/OglExport.h"

extern "C"
{

/// The symbolic name of a GL value ("GL_TEXTURE_2D" for 0x0DE1), or
/// "Unknown Token". Never null; the text is static and must not be freed.
/// @param token a GL enumerant
/// @return its name, or "Unknown Token"
ORU_OGL_API char const* TokenName(unsigned int token);

/// "GL_FALSE" for 0 and "GL_TRUE" for every other value.
/// @param value a GLboolean
/// @return "GL_FALSE" or "GL_TRUE", static text
ORU_OGL_API char const* boolToString(unsigned char value);

}

#endif
