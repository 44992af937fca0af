#include "oru_ogl/extensionator/ExtensionCatalogue.h"

#include "oru_ogl/extensionator/ExtensionCatalogueTables.h"

#include <algorithm>
#include <cstring>

namespace Oru
{
namespace OGL
{

namespace
{

ExtensionCatalogue::ProcAddressResolver gResolver = &wglGetProcAddress;

// Binary search over names sorted by byte order; gives what a linear chain of
// whole-string comparisons gives, in a handful of comparisons.
teExtension lookUp(catalogue::NamedId const* first, catalogue::NamedId const* last, char const* name)
{
    if (!name)
        return UNKNOWN_EXTENSION;
    catalogue::NamedId const* found = std::lower_bound(
        first, last, name, [](catalogue::NamedId const& entry, char const* key) { return std::strcmp(entry.name, key) < 0; });
    return (found != last && std::strcmp(found->name, name) == 0) ? found->id : UNKNOWN_EXTENSION;
}

catalogue::ExtensionRow const* row(teExtension id)
{
    const unsigned int index = static_cast<unsigned int>(id);
    return index < catalogue::kExtensionCount ? &catalogue::kExtensions[index] : nullptr;
}

bool isNull(catalogue::EntryPointSlot const& slot)
{
    static const char zeros[sizeof(void*) * 2] = {};
    return std::memcmp(slot.address, zeros, slot.size) == 0;
}

} // namespace

namespace catalogue
{

bool fetchAll(EntryPoint const* entryPoints, unsigned int count)
{
    for (unsigned int i = 0; i < count; ++i)
    {
        const PROC address = gResolver(entryPoints[i].name);
        std::memcpy(entryPoints[i].slot.address, &address, entryPoints[i].slot.size);
        if (!address)
            return false;
    }
    return true;
}

} // namespace catalogue

teExtension ExtensionCatalogue::glExtension(char const* name)
{
    return lookUp(catalogue::kGLNames, catalogue::kGLNames + catalogue::kGLNameCount, name);
}

teExtension ExtensionCatalogue::wglExtension(char const* name)
{
    return lookUp(catalogue::kWGLNames, catalogue::kWGLNames + catalogue::kWGLNameCount, name);
}

bool ExtensionCatalogue::loadGL(teExtension id)
{
    const unsigned int index = static_cast<unsigned int>(id);
    return index < catalogue::kGLNameCount && catalogue::kExtensions[index].load();
}

bool ExtensionCatalogue::loadWGL(teExtension id)
{
    const unsigned int index = static_cast<unsigned int>(id);
    return index >= catalogue::kGLNameCount && index < catalogue::kExtensionCount && catalogue::kExtensions[index].load();
}

char const* ExtensionCatalogue::name(teExtension id)
{
    catalogue::ExtensionRow const* r = row(id);
    return r ? r->name : nullptr;
}

unsigned int ExtensionCatalogue::entryPointCount(teExtension id)
{
    catalogue::ExtensionRow const* r = row(id);
    return r ? r->entryPointCount : 0;
}

char const* ExtensionCatalogue::entryPointName(teExtension id, unsigned int index)
{
    catalogue::ExtensionRow const* r = row(id);
    return (r && index < r->entryPointCount) ? r->entryPoints[index].name : nullptr;
}

bool ExtensionCatalogue::isEntryPointLoaded(teExtension id, unsigned int index)
{
    catalogue::ExtensionRow const* r = row(id);
    return r && index < r->entryPointCount && !isNull(r->entryPoints[index].slot);
}

char const* ExtensionCatalogue::missingEntryPoint(teExtension id)
{
    catalogue::ExtensionRow const* r = row(id);
    for (unsigned int i = 0; r && i < r->entryPointCount; ++i)
    {
        if (isNull(r->entryPoints[i].slot))
            return r->entryPoints[i].name;
    }
    return nullptr;
}

PROC ExtensionCatalogue::resolve(char const* name)
{
    return gResolver(name);
}

ExtensionCatalogue::ProcAddressResolver ExtensionCatalogue::setProcAddressResolver(ProcAddressResolver resolver)
{
    const ProcAddressResolver previous = gResolver;
    gResolver = resolver ? resolver : &wglGetProcAddress;
    return previous;
}

} // namespace OGL
} // namespace Oru
