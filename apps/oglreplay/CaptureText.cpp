#include "CaptureText.h"

#include "oru_ogl/TokenName.h"
#include "oru_ogl/extensionator/GLTypes.h"
#include "oru_ogl/extensionator/OperationList.h"

#include <cctype>
#include <cstring>
#include <iomanip>
#include <string>
#include <vector>

namespace Oru
{
namespace OGL
{

using namespace capture;

namespace
{

// The argument kinds of each GL operation, as the operations list names them
// ("EnumName", "GlFloat", ...); WGL operations have none.
std::vector<std::vector<std::string>> const& kinds()
{
    static const std::vector<std::vector<std::string>> table = [] {
        std::vector<std::vector<std::string>> all(kOperationCount);
        char const* const lists[] = {
#define ORU_GL_OPERATION(Ret, Stem, Owner, Call, Record, Params, Args, Kinds) #Kinds,
#include "oru_ogl/extensionator/Operations.def"
        };
        for (std::size_t op = 0; op < sizeof(lists) / sizeof(lists[0]); ++op)
        {
            std::string word;
            for (char const* c = lists[op]; *c; ++c)
                if (std::isalnum(static_cast<unsigned char>(*c)))
                    word += *c;
                else if (!word.empty())
                {
                    all[op].push_back(word);
                    word.clear();
                }
        }
        return all;
    }();
    return table;
}

char const* arrayName(ArrayKind kind)
{
    static char const* const kNames[] = { "vertex", "normal", "color", "index", "edge flag", "fog coordinate",
                                          "secondary color", "texture coordinate", "attribute" };
    return kNames[static_cast<int>(kind)];
}

void writeScalar(CapturedArgument const& argument, std::string const& kind, std::ostream& out)
{
    if (kind == "EnumName")
    {
        const auto value = static_cast<unsigned int>(argument.integer());
        char const* name = TokenName(value);
        if (std::strcmp(name, "Unknown Token") == 0)
            out << value;
        else
            out << name;
    }
    else if (kind == "Boolean")
        out << (argument.integer() ? "GL_TRUE" : "GL_FALSE");
    else if (argument.floating)
        out << argument.number();
    else if (argument.size == 8 && !argument.isSigned)
        out << "0x" << std::hex << argument.as<std::uint64_t>() << std::dec;
    else
        out << argument.integer();
}

void writePointer(CapturedArgument const& argument, std::ostream& out)
{
    switch (argument.kind)
    {
    case PointerKind::Null: out << "NULL"; break;
    case PointerKind::Address: out << "0x" << std::hex << argument.address << std::dec; break;
    case PointerKind::Data:
    {
        // Zero-terminated text (names, version strings) reads as such.
        char const* text = reinterpret_cast<char const*>(argument.data);
        const std::size_t length = static_cast<std::size_t>(argument.length);
        bool printable = length > 1 && text[length - 1] == '\0';
        for (std::size_t i = 0; printable && i + 1 < length; ++i)
            printable = std::isprint(static_cast<unsigned char>(text[i])) != 0;
        if (printable)
            out << '"' << text << '"';
        else
            out << "<" << argument.length << " bytes>";
        break;
    }
    case PointerKind::Output: out << "<out " << argument.length << " bytes>"; break;
    case PointerKind::OutputKept:
    {
        out << "<out";
        for (std::uint64_t i = 0; i + sizeof(GLuint) <= argument.length; i += sizeof(GLuint))
        {
            GLuint name = 0;
            std::memcpy(&name, argument.kept + i, sizeof(name));
            out << " " << name;
        }
        out << ">";
        break;
    }
    case PointerKind::Strings:
    {
        std::size_t characters = 0;
        for (std::uint32_t i = 0; i < argument.count; ++i)
            characters += argument.text(i).size();
        out << "<" << argument.count << " strings, " << characters << " characters>";
        break;
    }
    case PointerKind::Unsized: out << "<data of unknown size at 0x" << std::hex << argument.address << std::dec << ">"; break;
    }
}

} // namespace

void CaptureText::writeRecord(CaptureRecord const& record, std::ostream& out)
{
    switch (record.kind)
    {
    case CaptureRecord::Kind::Call:
    {
        std::vector<std::string> const& kind = kinds()[record.operation];
        out << record.callIndex << " " << operationName(record.operation) << "(";
        for (unsigned int i = 0; i < record.argumentCount; ++i)
        {
            if (i)
                out << ", ";
            CapturedArgument const& argument = record.arguments[i];
            if (argument.pointer)
                writePointer(argument, out);
            else
                writeScalar(argument, i < kind.size() ? kind[i] : std::string(), out);
        }
        out << ")";
        if (record.hasResult)
        {
            out << " = ";
            writeScalar(record.result, std::string(), out);
        }
        break;
    }
    case CaptureRecord::Kind::Surface:
        out << "-- window of device context 0x" << std::hex << record.device << std::dec << ": " << record.width << "x"
            << record.height << ", " << int(record.pixelFormat[0]) << " colour bits, " << int(record.pixelFormat[5])
            << " depth bits, " << int(record.pixelFormat[6]) << " stencil bits"
            << (record.pixelFormat[7] ? ", double-buffered" : "");
        break;
    case CaptureRecord::Kind::Frame:
        out << "-- frame " << record.frame << " " << record.width << "x" << record.height << " checksum 0x" << std::hex
            << std::setw(16) << std::setfill('0') << record.checksum << std::setfill(' ') << std::dec
            << (record.data ? " (pixels stored)" : "");
        break;
    case CaptureRecord::Kind::ClientArray:
        out << "-- client " << arrayName(record.array) << " array";
        if (record.array == ArrayKind::TexCoord || record.array == ArrayKind::Attribute)
            out << " " << record.unit;
        out << ": " << record.size << " x " << TokenName(record.type) << ", stride " << record.stride << ", bytes "
            << record.first << " to " << record.first + record.length;
        break;
    case CaptureRecord::Kind::BufferContents:
        out << "-- mapped " << TokenName(record.type) << " written: " << record.length << " bytes";
        break;
    case CaptureRecord::Kind::Thread: out << "-- thread " << record.thread; break;
    case CaptureRecord::Kind::CurrentContext:
        out << "-- context 0x" << std::hex << record.context << " current on device context 0x" << record.device
            << std::dec;
        break;
    }
}

void CaptureText::write(CaptureReader& reader, std::ostream& out)
{
    CaptureRecord record;
    while (reader.next(record))
    {
        writeRecord(record, out);
        out << "\n";
    }
}

} // namespace OGL
} // namespace Oru
