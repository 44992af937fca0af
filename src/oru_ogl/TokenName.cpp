#include "oru_ogl/TokenName.h"

// TokenName itself is generated from catalogue/gl_tokens.tsv (TokenNameTable.cpp).

extern "C" char const* boolToString(unsigned char value)
{
    return value ? "GL_TRUE" : "GL_FALSE";
}
