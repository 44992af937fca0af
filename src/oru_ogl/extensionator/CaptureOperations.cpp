#include "oru_ogl/extensionator/CaptureOperations.h"

#include "oru_ogl/extensionator/GLTypes.h"

#include <cstring>
#include <string>
#include <unordered_map>

namespace Oru
{
namespace OGL
{
namespace capture
{

namespace
{

char const* const kNames[] = {
#define ORU_GL_OPERATION(Ret, Stem, ...) "gl" #Stem,
#include "oru_ogl/extensionator/Operations.def"
#define ORU_WGL_OPERATION(Ret, Stem, Function, ...) #Function,
#include "oru_ogl/extensionator/windows/WglOperations.def"
};
static_assert(sizeof(kNames) / sizeof(kNames[0]) == kOperationCount, "one name per operation");

} // namespace

char const* operationName(unsigned int operation)
{
    return operation < kOperationCount ? kNames[operation] : nullptr;
}

unsigned int operationNumber(char const* name)
{
    static const std::unordered_map<std::string, unsigned int> numbers = [] {
        std::unordered_map<std::string, unsigned int> map;
        for (unsigned int i = 0; i < kOperationCount; ++i)
            map.emplace(kNames[i], i);
        return map;
    }();
    const auto found = numbers.find(name);
    return found == numbers.end() ? static_cast<unsigned int>(kOperationCount) : found->second;
}

} // namespace capture
} // namespace OGL
} // namespace Oru
