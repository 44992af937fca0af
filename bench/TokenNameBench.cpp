// 4. TokenName, the generated switch, against a std::unordered_map holding the
// same table, over a mix of values like those a trace names.

#include "Bench.h"

#include "oru_ogl/TokenName.h"

#include <cstdint>
#include <cstdlib>
#include <string>
#include <unordered_map>
#include <vector>

namespace bench
{

namespace
{

const char* const kFigure = "4. `TokenName`";

struct Token
{
    unsigned int value;
    char const* name;
};

const Token kTable[] = {
#define ORU_TOKEN(value, name) { value, #name },
#include "oru_ogl/TokenNames.inc"
#undef ORU_TOKEN
};

// What programs pass most: targets, formats, types, parameter names and
// values, capabilities, buffer usages and errors.
const unsigned int kCommon[] = {
    0x0DE1, 0x0DE0, 0x806F, 0x8513, 0x84F5, // texture targets
    0x1908, 0x1907, 0x1909, 0x190A, 0x8058, 0x8051, 0x8814, 0x881A, 0x1902, 0x80E1, // formats
    0x1401, 0x1406, 0x1405, 0x1403, 0x140B, 0x8367, // types
    0x2800, 0x2801, 0x2802, 0x2803, 0x8072, 0x2600, 0x2601, 0x2703, 0x812F, 0x2901, // texture parameters
    0x0B71, 0x0BE2, 0x0B44, 0x0B50, 0x0C11, 0x0BC0, 0x0B90, // capabilities
    0x8892, 0x8893, 0x88E4, 0x88E8, 0x88EA, 0x88B8, 0x88BA, // buffers
    0x8D40, 0x8CE0, 0x8D41, 0x8CD5, 0x8D00, // framebuffers
    0x0500, 0x0501, 0x0502, 0x0505, 0x0506, // errors
    0x0004, 0x0005, 0x0001, 0x0302, 0x0303, 0x0201, 0x0203, // primitives, blending, depth
    0x8B31, 0x8B30, 0x8B81, 0x8B82, 0x8B84, 0x84C0, 0x84C1, 0x1700, 0x1701, 0x1702, // shaders, units, matrices
};

// A fixed pseudo-random sequence, so that every run names the same values.
struct Lcg
{
    std::uint32_t state = 12345u;
    std::uint32_t next()
    {
        state = state * 1664525u + 1013904223u;
        return state >> 8;
    }
};

std::vector<unsigned int> mixOfValues()
{
    const unsigned int tableSize = sizeof(kTable) / sizeof(kTable[0]);
    const unsigned int commonSize = sizeof(kCommon) / sizeof(kCommon[0]);
    std::vector<unsigned int> values;
    Lcg random;
    for (unsigned int i = 0; i < 4096; ++i)
    {
        const unsigned int pick = random.next() % 100;
        if (pick < 75)
            values.push_back(kCommon[random.next() % commonSize]);
        else if (pick < 98)
            values.push_back(kTable[random.next() % tableSize].value);
        else
            values.push_back(0x7F000000u + random.next() % 1000); // no such token
    }
    return values;
}

volatile std::uintptr_t gSink;

} // namespace

void tokenNameSection(Environment&, Rows& rows)
{
    std::unordered_map<unsigned int, char const*> map;
    for (Token const& token : kTable)
        map.emplace(token.value, token.name);
    const std::vector<unsigned int> values = mixOfValues();

    // Both answer the same for every value of the mix.
    for (unsigned int value : values)
    {
        auto found = map.find(value);
        const std::string expected = found != map.end() ? found->second : "Unknown Token";
        if (expected != TokenName(value))
        {
            log("TokenName(0x%X) differs from the table", value);
            std::exit(2);
        }
    }

    const std::size_t mask = values.size() - 1; // a power of two
    std::vector<Variant> variants = {
        { "TokenName", [&](unsigned int n) {
             std::uintptr_t sink = 0;
             const double t = timed(n, [&](unsigned int i) { sink ^= reinterpret_cast<std::uintptr_t>(TokenName(values[i & mask])); });
             gSink = sink;
             return t;
         } },
        { "call floor", [&](unsigned int n) {
             std::uintptr_t sink = 0;
             const double t = timed(n, [&](unsigned int i) { sink ^= reinterpret_cast<std::uintptr_t>(boolToString(values[i & mask] & 1u)); });
             gSink = sink;
             return t;
         } },
        { "map", [&](unsigned int n) {
             std::uintptr_t sink = 0;
             const double t = timed(n, [&](unsigned int i) {
                 auto found = map.find(values[i & mask]);
                 sink ^= reinterpret_cast<std::uintptr_t>(found != map.end() ? found->second : "Unknown Token");
             });
             gSink = sink;
             return t;
         } },
    };
    const std::vector<Timing> t = compare(variants, Plan{ 21, 5, 40960 });
    const double r = ratio(t[0], t[2]);
    const std::string size = std::to_string(sizeof(kTable) / sizeof(kTable[0]));
    rows.push_back({ kFigure, "`std::unordered_map<unsigned, char const*>` of the same " + size + " names",
                     format(t[2].perOperation, "ns", 2) + "/look-up", "", "", "" });
    rows.push_back({ kFigure, "call floor: `boolToString`, the library's cheapest function, over the same values",
                     format(t[1].perOperation, "ns", 2) + "/call", "", "", "" });
    rows.push_back({ kFigure, "`TokenName` (75% common values, 23% any token, 2% unknown)",
                     format(t[0].perOperation, "ns", 2) + "/look-up", formatRatio(r, "the map"),
                     "faster than the map, no allocation", yesNo(r < 1.0) });
}

} // namespace bench
