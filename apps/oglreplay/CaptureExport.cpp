#include "CaptureExport.h"

#include "oru_ogl/TokenName.h"
#include "oru_ogl/extensionator/CaptureCall.h"
#include "oru_ogl/extensionator/OpenGLInterceptor.h"

#include "oru_replay/NameMaps.h"

#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <utility>

namespace Oru
{
namespace OGL
{

using namespace capture;

namespace
{

const char kDataFile[] = "capture.data";
const char kDataMagic[8] = { 'O', 'R', 'U', 'C', 'D', 'A', 'T', 'A' };
const std::size_t kAlignment = 16;

// NameMaps::Space in order, as the harness spells the spaces.
const char* const kSpaceNames[] = { "Texture",      "Buffer",      "Framebuffer", "Renderbuffer",
                                    "Query",        "List",        "VertexArray", "ShaderObject",
                                    "ArbProgram",   "UniformLocation", "AttributeLocation" };
static_assert(sizeof(kSpaceNames) / sizeof(kSpaceNames[0]) == NameMaps::kSpaceCount, "a name per space");

const char* const kArrayKinds[] = { "Vertex", "Normal",         "Color",    "Index",    "EdgeFlag",
                                    "FogCoord", "SecondaryColor", "TexCoord", "Attribute" };

std::string hex(std::uint64_t value)
{
    char text[24];
    std::snprintf(text, sizeof(text), "0x%llx", static_cast<unsigned long long>(value));
    return text;
}

std::string enumName(std::uint64_t value)
{
    char const* name = ::TokenName(static_cast<unsigned int>(value));
    return value <= 0xFFFFFFFFu && std::strncmp(name, "GL_", 3) == 0 ? name : hex(value);
}

std::string number(std::uint64_t value)
{
    return value > 0x7FFFFFFFu ? std::to_string(value) + "ull" : std::to_string(value);
}

std::string space(NameMaps::Space space)
{
    return kSpaceNames[space];
}

// One argument of a captured call as C++, by its parameter type and the kind
// the operations list gives it.
template <class P>
std::string argumentText(CaptureExport& exporter, CaptureRecord const& call, unsigned int index, std::string const& kind)
{
    CapturedArgument const& argument = call.arguments[index];
    if constexpr (detail::kDataPointer<P>)
        return exporter.pointer(call, index);
    else if constexpr (std::is_pointer<P>::value)
    {
        const std::uint64_t value = argument.as<std::uint64_t>();
        return value ? "address(" + hex(value) + ")" : "nullptr";
    }
    else if constexpr (std::is_same<P, float>::value)
        return CaptureExport::floatLiteral(argument.as<float>());
    else if constexpr (std::is_same<P, double>::value)
        return CaptureExport::doubleLiteral(argument.as<double>());
    else
    {
        const P value = argument.as<P>();
        if (kind == "EnumName")
            return enumName(static_cast<std::uint64_t>(value));
        if (kind == "Boolean" && (value == 0 || value == 1))
            return value ? "GL_TRUE" : "GL_FALSE";
        if constexpr (std::is_signed<P>::value)
            return std::to_string(static_cast<long long>(value));
        else
            return number(static_cast<std::uint64_t>(value));
    }
}

template <class F>
struct ArgumentWriter;
template <class C, class Ret, class... P>
struct ArgumentWriter<Ret (C::*)(char const*, unsigned int, P...)>
{
    static std::vector<std::string> write(CaptureExport& exporter, CaptureRecord const& call,
                                          std::vector<std::string> const& kinds)
    {
        return write(exporter, call, kinds, std::index_sequence_for<P...>());
    }
    template <std::size_t... I>
    static std::vector<std::string> write(CaptureExport& exporter, CaptureRecord const& call,
                                          std::vector<std::string> const& kinds, std::index_sequence<I...>)
    {
        return { argumentText<P>(exporter, call, static_cast<unsigned int>(I),
                                 I < kinds.size() ? kinds[I] : std::string())... };
    }
};

using Writer = std::vector<std::string> (*)(CaptureExport&, CaptureRecord const&, std::vector<std::string> const&);
const Writer kWriters[] = {
#define ORU_GL_OPERATION(Ret, Stem, ...) &ArgumentWriter<decltype(&OpenGLInterceptor::cgm##Stem)>::write,
#include "oru_ogl/extensionator/Operations.def"
};
const unsigned int kGLOperations = sizeof(kWriters) / sizeof(kWriters[0]);

// "(EnumName, GlFloat)" of the operations list, per operation.
std::vector<std::vector<std::string>> argumentKinds()
{
    static const char* const kKinds[] = {
#define ORU_GL_OPERATION(Ret, Stem, Owner, Call, Record, Params, Args, Kinds) #Kinds,
#include "oru_ogl/extensionator/Operations.def"
    };
    std::vector<std::vector<std::string>> kinds;
    for (std::string list : kKinds)
    {
        kinds.emplace_back();
        list = list.substr(1, list.size() - 2);
        for (std::size_t at = 0; at < list.size();)
        {
            std::size_t end = list.find(',', at);
            if (end == std::string::npos)
                end = list.size();
            const std::size_t first = list.find_first_not_of(' ', at);
            kinds.back().push_back(list.substr(first, end - first));
            at = end + 1;
        }
    }
    return kinds;
}

NameMaps const& nameMaps()
{
    static const NameMaps maps;
    return maps;
}

std::string join(std::vector<std::string> const& texts)
{
    std::string joined;
    for (std::string const& text : texts)
        joined += (joined.empty() ? "" : ", ") + text;
    return joined;
}

void writeFile(std::string const& path, std::string const& text)
{
    std::ofstream file(path, std::ios::binary);
    file << text;
    if (!file)
        throw std::runtime_error("cannot write " + path);
}

} // namespace

CaptureExport::CaptureExport(Options const& options) : options_(options)
{
}

std::string CaptureExport::floatLiteral(float value)
{
    std::uint32_t bits;
    std::memcpy(&bits, &value, sizeof(bits));
    if (!std::isfinite(value))
        return "floatBits(" + hex(bits) + ")";
    return hexFloat(bits >> 31, (bits >> 23) & 0xFF, bits & 0x7FFFFF, 23, 127) + "f";
}

std::string CaptureExport::doubleLiteral(double value)
{
    std::uint64_t bits;
    std::memcpy(&bits, &value, sizeof(bits));
    if (!std::isfinite(value))
        return "doubleBits(" + hex(bits) + "ull)";
    return hexFloat(bits >> 63, static_cast<int>((bits >> 52) & 0x7FF), bits & 0xFFFFFFFFFFFFFull, 52, 1023);
}

// The C++ hex-float literal of a finite value, written here rather than by
// printf("%a"), whose spelling differs between C runtimes.
std::string CaptureExport::hexFloat(bool negative, int exponentField, std::uint64_t fraction, int fractionBits, int bias)
{
    std::string text = negative ? "-0x" : "0x";
    if (exponentField == 0 && fraction == 0)
        return text + "0p+0";
    int exponent = exponentField - bias;
    if (exponentField == 0) // subnormal: normalised here, the literal has no such limit
    {
        exponent = 1 - bias;
        while (!(fraction >> fractionBits))
        {
            fraction <<= 1;
            --exponent;
        }
        fraction &= (std::uint64_t(1) << fractionBits) - 1;
    }
    // The fraction in whole hex digits, trailing zeros dropped.
    const int digits = (fractionBits + 3) / 4;
    fraction <<= digits * 4 - fractionBits;
    std::string hexDigits;
    for (int i = digits - 1; i >= 0; --i)
        hexDigits += "0123456789abcdef"[(fraction >> (i * 4)) & 0xF];
    hexDigits.erase(hexDigits.find_last_not_of('0') + 1);
    text += hexDigits.empty() ? "1" : "1." + hexDigits;
    return text + "p" + (exponent >= 0 ? "+" : "") + std::to_string(exponent);
}

void CaptureExport::run(CaptureReader& reader)
{
    std::filesystem::create_directories(options_.directory);
    data_.assign(kAlignment, 0); // the header, written at the end
    CaptureRecord current;
    while (!finished_ && reader.next(current))
    {
        if (!part_.is_open())
            openPart();
        record(current);
        if (callsInPart_ >= options_.callsPerPart)
            closePart();
    }
    if (part_.is_open())
        closePart();
    writeProgram();
}

void CaptureExport::line(std::string const& text)
{
    part_ << "    " << text << "\n";
}

std::uint64_t CaptureExport::block(unsigned char const* bytes, std::uint64_t length)
{
    const std::uint64_t checksum = frameChecksum(bytes, static_cast<std::size_t>(length));
    std::vector<std::uint64_t>& same = blocksByChecksum_[checksum ^ length];
    for (std::uint64_t offset : same)
        if (std::memcmp(data_.data() + offset, bytes, static_cast<std::size_t>(length)) == 0)
            return offset;
    const std::uint64_t offset = data_.size();
    data_.insert(data_.end(), bytes, bytes + length);
    data_.resize((data_.size() + kAlignment - 1) / kAlignment * kAlignment, 0);
    same.push_back(offset);
    return offset;
}

std::string CaptureExport::pointer(CaptureRecord const& call, unsigned int index)
{
    CapturedArgument const& argument = call.arguments[index];
    switch (argument.kind)
    {
    case PointerKind::Null:
    case PointerKind::Unsized: return "nullptr";
    case PointerKind::Address: return argument.address ? "address(" + hex(argument.address) + ")" : "nullptr";
    case PointerKind::Data:
        for (NameMaps::Use const& use : nameMaps().uses(call.operation))
            if (use.index == static_cast<int>(index))
            {
                std::vector<std::string> captured;
                for (std::uint64_t i = 0; i < argument.length / sizeof(GLuint); ++i)
                {
                    GLuint name = 0;
                    std::memcpy(&name, argument.data + i * sizeof(GLuint), sizeof(name));
                    captured.push_back(number(name));
                }
                return "names(" + space(use.space) + ", {" + join(captured) + "})";
            }
        return "data(" + std::to_string(block(argument.data, argument.length)) + ")";
    case PointerKind::Output:
    case PointerKind::OutputKept:
        // Feedback and selection buffers are written by later calls.
        if (call.operation == kGLFeedbackBuffer || call.operation == kGLSelectBuffer)
            return "lasting(" + std::to_string(argument.length) + ")";
        return "output(" + std::to_string(index) + ", " + std::to_string(argument.length) + ")";
    case PointerKind::Strings:
    {
        std::uint64_t length = 0;
        for (std::uint32_t i = 0; i < argument.count; ++i)
        {
            std::uint64_t one = 0;
            std::memcpy(&one, argument.data + length, sizeof(one));
            length += sizeof(one) + one;
        }
        return "strings(" + std::to_string(block(argument.data, length)) + ", " + std::to_string(argument.count) + ")";
    }
    }
    return "nullptr";
}

void CaptureExport::record(CaptureRecord const& record)
{
    switch (record.kind)
    {
    case CaptureRecord::Kind::Call: call(record); break;
    case CaptureRecord::Kind::Surface:
        line("surface(" + hex(record.device) + ", " + std::to_string(record.width) + ", " +
             std::to_string(record.height) + ");");
        break;
    case CaptureRecord::Kind::Frame:
    {
        ++result_.frames;
        const std::string number = std::to_string(record.frame);
        if (record.frame < options_.firstFrame)
        {
            line("// frame " + number + ": presented, not compared (before the exported range)");
            break;
        }
        const std::uint64_t bytes = std::uint64_t(record.width) * std::uint64_t(record.height) * 4;
        line("frame(" + number + ", " + std::to_string(record.width) + ", " + std::to_string(record.height) + ", " +
             hex(record.checksum) + "ull, " +
             (record.data ? "data(" + std::to_string(block(record.data, bytes)) + ")" : std::string("nullptr")) +
             ");");
        if (record.frame >= options_.lastFrame)
            lastFrameSeen_ = true;
        break;
    }
    case CaptureRecord::Kind::ClientArray:
        line(std::string("clientArray(ArrayKind::") + kArrayKinds[static_cast<int>(record.array)] + ", " +
             std::to_string(record.unit) + ", " + std::to_string(record.size) + ", " + enumName(record.type) + ", " +
             std::to_string(record.stride) + ", " + (record.normalized ? "true" : "false") + ", " +
             std::to_string(record.first) + ", " + std::to_string(record.length) + ", data(" +
             std::to_string(block(record.data, record.length)) + "));");
        break;
    case CaptureRecord::Kind::BufferContents:
        line("bufferContents(" + enumName(record.type) + ", " + std::to_string(record.first) + ", " +
             std::to_string(record.length) + ", data(" + std::to_string(block(record.data, record.length)) + "));");
        break;
    case CaptureRecord::Kind::Thread: line("thread(" + std::to_string(record.thread) + ");"); break;
    case CaptureRecord::Kind::CurrentContext:
        line("currentContext(" + hex(record.device) + ", " + hex(record.context) + ");");
        break;
    }
}

void CaptureExport::call(CaptureRecord const& call)
{
    ++result_.calls;
    ++callsInPart_;
    if (call.operation >= kGLOperations)
        return wgl(call);
    const std::string function = operationName(call.operation);
    for (unsigned int i = 0; i < call.argumentCount; ++i)
        if (call.arguments[i].pointer && call.arguments[i].kind == PointerKind::Unsized)
            return line("skipped(" + std::to_string(call.callIndex) + ", \"" + function +
                        "\", \"the capture could not tell the size of its data\");");

    static const std::vector<std::vector<std::string>> kinds = argumentKinds();
    std::vector<std::string> arguments = kWriters[call.operation](*this, call, kinds[call.operation]);
    std::vector<NameMaps::Use> const& uses = nameMaps().uses(call.operation);
    for (NameMaps::Use const& use : uses)
    {
        if (use.index < 0 || static_cast<unsigned int>(use.index) >= call.argumentCount ||
            call.arguments[use.index].pointer)
            continue;
        const long long value = call.arguments[use.index].integer();
        if (value != 0 && value != -1) // the default object, or no location
            arguments[use.index] = "name(" + space(use.space) + ", " + std::to_string(value) + ")";
    }

    std::string expression = function + "(" + join(arguments) + ")";
    for (NameMaps::Use const& use : uses)
    {
        const long long captured = call.result.integer();
        if (use.index >= 0 || captured == 0 || captured == -1)
            continue;
        if (use.space == NameMaps::List)
            expression = "learnLists(" + std::to_string(captured) + ", " +
                         std::to_string(call.arguments[0].integer()) + ", " + expression + ")";
        else if (use.space == NameMaps::UniformLocation)
            expression = "learnLocation(" + arguments[0] + ", " + std::to_string(captured) + ", " + expression + ")";
        else
            expression = "learn(" + space(use.space) + ", " + std::to_string(captured) + ", " + expression + ")";
    }
    if (call.operation == kGLMapBuffer || call.operation == kGLMapBufferARB)
        expression = "mapped(" + arguments[0] + ", " + expression + ")";
    line(expression + ";");

    for (NameMaps::Use const& use : uses)
    {
        if (use.index < 0 || static_cast<unsigned int>(use.index) >= call.argumentCount)
            continue;
        CapturedArgument const& argument = call.arguments[use.index];
        if (argument.kind != PointerKind::OutputKept || !argument.kept ||
            call.operation == kGLFeedbackBuffer || call.operation == kGLSelectBuffer)
            continue;
        std::vector<std::string> captured;
        for (std::uint64_t i = 0; i < argument.length / sizeof(GLuint); ++i)
        {
            GLuint name = 0;
            std::memcpy(&name, argument.kept + i * sizeof(GLuint), sizeof(name));
            captured.push_back(number(name));
        }
        line("learnNames(" + space(use.space) + ", output(" + std::to_string(use.index) + "), {" + join(captured) +
             "});");
    }
    if (call.operation == kGLUseProgram || call.operation == kGLUseProgramObjectARB)
        line("useProgram(" + arguments[0] + ");");
}

void CaptureExport::wgl(CaptureRecord const& call)
{
    auto const handle = [&call](unsigned int i) { return hex(call.arguments[i].as<std::uint64_t>()); };
    switch (call.operation)
    {
    case kWGLCreateContext:
    case kWGLCreateLayerContext:
        line("createContext(" + handle(0) + ", " + hex(call.result.as<std::uint64_t>()) + ");");
        break;
    case kWGLMakeCurrent: line("makeCurrent(" + handle(0) + ", " + handle(1) + ");"); break;
    case kWGLDeleteContext: line("deleteContext(" + handle(0) + ");"); break;
    case kWGLShareLists: line("shareLists(" + handle(0) + ", " + handle(1) + ");"); break;
    case kWGLCopyContext:
        line("copyContext(" + handle(0) + ", " + handle(1) + ", " + number(call.arguments[2].as<std::uint32_t>()) + ");");
        break;
    case kWGLSwapBuffers:
    case kWGLSwapLayerBuffers:
        line("swapBuffers(" + handle(0) + ");");
        finished_ = lastFrameSeen_;
        break;
    case kWGLUseFontBitmapsA:
    case kWGLUseFontBitmapsW:
    case kWGLUseFontOutlinesA:
    case kWGLUseFontOutlinesW:
        line("skipped(" + std::to_string(call.callIndex) + ", \"" + operationName(call.operation) +
             "\", \"the fonts of the captured device context are not known here\");");
        break;
    default: break; // queries and palettes: nothing the frames depend on
    }
}

void CaptureExport::openPart()
{
    char name[32];
    std::snprintf(name, sizeof(name), "calls_%04u", result_.parts);
    const std::string path = options_.directory + "/" + name + ".cpp";
    part_.open(path, std::ios::binary);
    if (!part_)
        throw std::runtime_error("cannot write " + path);
    part_ << "// Calls of " << options_.captureName << " from call " << result_.calls
          << " on, written by oglreplay --export. Do not edit.\n"
          << "#include \"oru_replay/CapturedCalls.h\"\n\n"
          << "namespace Oru\n{\nnamespace Replay\n{\n\n"
          << "void capturedCalls" << name + 6 << "()\n{\n";
    callsInPart_ = 0;
}

void CaptureExport::closePart()
{
    part_ << "}\n\n} // namespace Replay\n} // namespace Oru\n";
    part_.close();
    if (!part_)
        throw std::runtime_error("cannot write a part of the export in " + options_.directory);
    ++result_.parts;
}

void CaptureExport::writeProgram()
{
    // The data file's header: its magic and its size, which the program checks.
    const std::uint64_t size = data_.size();
    std::memcpy(data_.data(), kDataMagic, sizeof(kDataMagic));
    std::memcpy(data_.data() + sizeof(kDataMagic), &size, sizeof(size));
    writeFile(options_.directory + "/" + kDataFile, std::string(data_.begin(), data_.end()));
    result_.dataBytes = size;

    std::string declarations, table;
    for (unsigned int i = 0; i < result_.parts; ++i)
    {
        char name[32];
        std::snprintf(name, sizeof(name), "capturedCalls%04u", i);
        declarations += std::string("void ") + name + "();\n";
        table += std::string("    &Oru::Replay::") + name + ",\n";
    }
    writeFile(options_.directory + "/capture.cpp",
              "// The parts of the export of " + options_.captureName +
                  ", written by oglreplay --export. Do not edit.\n"
                  "#include \"oru_replay/CapturedCalls.h\"\n\n"
                  "namespace Oru\n{\nnamespace Replay\n{\n" +
                  declarations + "} // namespace Replay\n} // namespace Oru\n\nnamespace\n{\n" +
                  "void (*const kParts[])() = {\n" + table + "};\n} // namespace\n\n" +
                  "const OruCapturedProgram oruCapturedProgram = { \"" + kDataFile + "\", " + std::to_string(size) +
                  "ull, " + std::to_string(result_.calls) + "ull, " + std::to_string(result_.parts) + ", kParts };\n");
    writeFile(options_.directory + "/CMakeLists.txt",
              "# The program that replays this export of " + options_.captureName +
                  ", written by oglreplay --export:\n"
                  "#   cmake -S <this folder> -B <build folder> -Doru_ogl_DIR=<oru_ogl's build tree or package>\n"
                  "#         -DCMAKE_TOOLCHAIN_FILE=<the toolchain oru_ogl was built with>\n"
                  "#   cmake --build <build folder>\n"
                  "cmake_minimum_required(VERSION 3.21)\n"
                  "project(capture_replay LANGUAGES CXX)\n"
                  "set(CMAKE_CXX_STANDARD 17)\n"
                  "set(CMAKE_CXX_STANDARD_REQUIRED ON)\n"
                  "find_package(oru_ogl CONFIG REQUIRED)\n"
                  "oru_add_capture_replay(capture_replay ${CMAKE_CURRENT_SOURCE_DIR})\n");
}

} // namespace OGL
} // namespace Oru
