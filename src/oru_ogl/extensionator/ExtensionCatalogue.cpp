#include "oru_ogl/extensionator/ExtensionCatalogue.h"

#include "oru_ogl/extensionator/ExtensionCatalogueTables.h"

#include <cstdint>
#include <cstring>

namespace Oru
{
namespace OGL
{

namespace
{

ExtensionCatalogue::ProcAddressResolver gResolver = &wglGetProcAddress;

// A hash table over a list of names, built on first use: a look-up hashes the
// name once and compares it with the one entry whose hash and length match
// (rarely two), where a search by comparison would compare it with a dozen
// names sharing long prefixes. Start-up looks up every name the driver
// advertises, hundreds of them.
class NameIndex
{
public:
    NameIndex(catalogue::NamedId const* names, unsigned int count)
        : names_(names)
        , slots_()
    {
        for (unsigned int i = 0; i < count; ++i)
        {
            const std::size_t length = std::strlen(names[i].name);
            const std::uint64_t h = hash(names[i].name, length);
            unsigned int slot = static_cast<unsigned int>(h) & kMask;
            while (slots_[slot].entry != 0)
                slot = (slot + 1) & kMask;
            slots_[slot] = Slot{ static_cast<std::uint32_t>(h >> 32), static_cast<std::uint16_t>(i + 1),
                                 static_cast<std::uint16_t>(length) };
        }
    }

    // A whole, case-sensitive match, byte for byte.
    teExtension find(char const* name) const
    {
        return name ? find(name, std::strlen(name)) : UNKNOWN_EXTENSION;
    }

    teExtension find(char const* name, std::size_t length) const
    {
        if (!name)
            return UNKNOWN_EXTENSION;
        const std::uint64_t h = hash(name, length);
        const std::uint32_t check = static_cast<std::uint32_t>(h >> 32);
        for (unsigned int slot = static_cast<unsigned int>(h) & kMask; slots_[slot].entry != 0; slot = (slot + 1) & kMask)
        {
            Slot const& s = slots_[slot];
            // The stored length equals the entry's strlen, so a match is whole.
            if (s.check == check && s.length == length && equal(names_[s.entry - 1].name, name, length))
                return names_[s.entry - 1].id;
        }
        return UNKNOWN_EXTENSION;
    }

private:
    struct Slot
    {
        std::uint32_t check;  // the hash's upper half
        std::uint16_t entry;  // index + 1 in the list, 0 for a free slot
        std::uint16_t length;
    };

    static std::uint64_t load(char const* p)
    {
        std::uint64_t value;
        std::memcpy(&value, p, sizeof(value));
        return value;
    }

    // The length and the last eight and first eight bytes: the names share
    // prefixes ("GL_ARB_texture_") and differ towards the end. Collisions
    // cost a probe, never a wrong answer.
    static std::uint64_t hash(char const* name, std::size_t length)
    {
        std::uint64_t h = length * 0x9E3779B97F4A7C15ull;
        if (length >= 8)
        {
            h ^= load(name + length - 8) * 0xC2B2AE3D27D4EB4Full;
            h ^= (load(name) + h) * 0x165667B19E3779F9ull;
        }
        else
        {
            for (std::size_t i = 0; i < length; ++i)
                h = (h ^ static_cast<unsigned char>(name[i])) * 0x100000001B3ull;
        }
        return h ^ (h >> 29);
    }

    static bool equal(char const* a, char const* b, std::size_t length)
    {
        std::size_t i = 0;
        for (; i + 8 <= length; i += 8)
            if (load(a + i) != load(b + i))
                return false;
        for (; i < length; ++i)
            if (a[i] != b[i])
                return false;
        return true;
    }

    static const unsigned int kSlots = 1024; // a power of two, over three times the names of either list
    static const unsigned int kMask = kSlots - 1;
    static_assert(catalogue::kGLNameCount * 3 < kSlots && catalogue::kWGLNameCount * 3 < kSlots,
                  "the name index needs more slots");

    catalogue::NamedId const* names_;
    Slot slots_[kSlots];
};

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
        // Pointer variables have the size of PROC: a fixed-size copy is one
        // store, where a copy of a run-time size calls the C library's memcpy
        // for each of the hundreds of entry points start-up fetches.
        if (entryPoints[i].slot.size == sizeof(address))
            std::memcpy(entryPoints[i].slot.address, &address, sizeof(address));
        else
            std::memcpy(entryPoints[i].slot.address, &address, entryPoints[i].slot.size);
        if (!address)
            return false;
    }
    return true;
}

} // namespace catalogue

NameIndex const& glIndex()
{
    static const NameIndex index(catalogue::kGLNames, catalogue::kGLNameCount);
    return index;
}

NameIndex const& wglIndex()
{
    static const NameIndex index(catalogue::kWGLNames, catalogue::kWGLNameCount);
    return index;
}

teExtension ExtensionCatalogue::glExtension(char const* name)
{
    return glIndex().find(name);
}

teExtension ExtensionCatalogue::wglExtension(char const* name)
{
    return wglIndex().find(name);
}

teExtension ExtensionCatalogue::glExtension(char const* name, std::size_t length)
{
    return glIndex().find(name, length);
}

teExtension ExtensionCatalogue::wglExtension(char const* name, std::size_t length)
{
    return wglIndex().find(name, length);
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
