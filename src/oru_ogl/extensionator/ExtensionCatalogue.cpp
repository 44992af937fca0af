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
// advertises, hundreds of them, between the driver's own look-ups: the slots
// are four bytes, so that the table takes few cache lines.
template <unsigned int Slots>
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
            while (slots_[slot] != 0)
                slot = (slot + 1) & kMask;
            slots_[slot] = pack(check(h), i + 1, static_cast<unsigned int>(length));
        }
    }

    // A whole, case-sensitive match, byte for byte.
    teExtension find(char const* name) const
    {
        return name ? find(name, std::strlen(name)) : UNKNOWN_EXTENSION;
    }

    teExtension find(char const* name, std::size_t length) const
    {
        if (!name || length > kLongest)
            return UNKNOWN_EXTENSION;
        const std::uint64_t h = hash(name, length);
        // What a matching slot holds, but for its entry.
        const std::uint32_t wanted = pack(check(h), 0, static_cast<unsigned int>(length));
        for (unsigned int slot = static_cast<unsigned int>(h) & kMask; slots_[slot] != 0; slot = (slot + 1) & kMask)
        {
            const std::uint32_t s = slots_[slot];
            if ((s & ~kEntryBits) != wanted)
                continue;
            // The stored length equals the entry's strlen, so a match is whole.
            catalogue::NamedId const& entry = names_[((s & kEntryBits) >> kLengthBits) - 1];
            if (equal(entry.name, name, length))
                return entry.id;
        }
        return UNKNOWN_EXTENSION;
    }

private:
    // A slot: 16 bits of the hash's upper half, the index + 1 in the list
    // (0 for a free slot), the length.
    static const unsigned int kLengthBits = 6;
    static const unsigned int kLongest = (1u << kLengthBits) - 1;
    static const std::uint32_t kEntryBits = 0x3FFu << kLengthBits;

    static std::uint32_t check(std::uint64_t h) { return static_cast<std::uint32_t>(h >> 48); }
    static std::uint32_t pack(std::uint32_t check, unsigned int entry, unsigned int length)
    {
        return check << 16 | entry << kLengthBits | length;
    }

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

    // Eight bytes at a time, the last eight overlapping the ones before.
    static bool equal(char const* a, char const* b, std::size_t length)
    {
        if (length < 8)
            return std::memcmp(a, b, length) == 0;
        for (std::size_t i = 0; i + 8 < length; i += 8)
            if (load(a + i) != load(b + i))
                return false;
        return load(a + length - 8) == load(b + length - 8);
    }

    static const unsigned int kMask = Slots - 1;
    static_assert((Slots & kMask) == 0, "the slot count is a power of two");

    catalogue::NamedId const* names_;
    std::uint32_t slots_[Slots];
};

// Over three times the names of each list, and room in a slot for their number
// and lengths (the generator refuses longer names).
typedef NameIndex<1024> GLNameIndex;
typedef NameIndex<128> WGLNameIndex;
static_assert(catalogue::kGLNameCount * 3 < 1024 && catalogue::kWGLNameCount * 3 < 128,
              "a name index needs more slots");
static_assert(catalogue::kGLNameCount < 0x3FF && catalogue::kWGLNameCount < 0x3FF, "a slot numbers up to 1022 names");

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

GLNameIndex const& glIndex()
{
    static const GLNameIndex index(catalogue::kGLNames, catalogue::kGLNameCount);
    return index;
}

WGLNameIndex const& wglIndex()
{
    static const WGLNameIndex index(catalogue::kWGLNames, catalogue::kWGLNameCount);
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
