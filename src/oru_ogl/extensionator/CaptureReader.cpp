#include "oru_ogl/extensionator/CaptureReader.h"

#include "oru_ogl/extensionator/CaptureCall.h"
#include "oru_ogl/extensionator/OpenGLInterceptor.h"
#include "oru_ogl/extensionator/windows/wglInterceptor.h"

#include <fstream>
#include <iterator>
#include <sstream>
#include <type_traits>

namespace Oru
{
namespace OGL
{

using namespace capture;

CaptureError::CaptureError(std::string const& text, std::uint64_t offset, std::uint64_t callIndex)
    : std::runtime_error(text), offset_(offset), callIndex_(callIndex)
{
}

long long CapturedArgument::integer() const
{
    if (floating)
        return static_cast<long long>(number());
    switch (size)
    {
    case 1: return isSigned ? as<std::int8_t>() : as<std::uint8_t>();
    case 2: return isSigned ? as<std::int16_t>() : as<std::uint16_t>();
    case 4: return isSigned ? as<std::int32_t>() : as<std::uint32_t>();
    default: return as<long long>();
    }
}

double CapturedArgument::number() const
{
    if (floating)
        return size == 4 ? as<float>() : as<double>();
    return static_cast<double>(integer());
}

std::string CapturedArgument::text(std::uint32_t i) const
{
    unsigned char const* at = data;
    for (std::uint32_t n = 0; n <= i && n < count; ++n)
    {
        std::uint64_t length = 0;
        std::memcpy(&length, at, 8);
        if (n == i)
            return std::string(reinterpret_cast<char const*>(at + 8), static_cast<std::size_t>(length));
        at += 8 + length;
    }
    return std::string();
}

namespace
{

// Bounds-checked reading of one record; failures name where the record began.
class Cursor
{
public:
    Cursor(std::vector<unsigned char> const& bytes, std::size_t at, std::uint64_t call, bool isCall)
        : bytes_(bytes), start_(at), at_(at), call_(call), isCall_(isCall)
    {
    }
    unsigned char const* take(std::uint64_t n)
    {
        if (n > bytes_.size() - at_)
        {
            std::ostringstream text;
            text << "capture truncated: the file ends at byte " << bytes_.size() << ", inside the "
                 << (isCall_ ? "call" : "record") << " at byte offset " << start_ << " (call index " << call_ << ")";
            throw CaptureError(text.str(), start_, call_);
        }
        unsigned char const* here = bytes_.data() + at_;
        at_ += static_cast<std::size_t>(n);
        return here;
    }
    template <class T>
    T read()
    {
        T value;
        std::memcpy(&value, take(sizeof(T)), sizeof(T));
        return value;
    }
    [[noreturn]] void corrupt(std::string const& what) const
    {
        std::ostringstream text;
        text << "corrupt capture: " << what << " in the " << (isCall_ ? "call" : "record") << " at byte offset "
             << start_ << " (call index " << call_ << ")";
        throw CaptureError(text.str(), start_, call_);
    }
    std::size_t at() const { return at_; }
    // No window or frame of a capture is larger than GL's largest viewport.
    void checkSize(char const* what, int width, int height) const
    {
        if (width < 0 || height < 0 || width > 65536 || height > 65536)
            corrupt(std::string(what) + " size " + std::to_string(width) + "x" + std::to_string(height));
    }

private:
    std::vector<unsigned char> const& bytes_;
    std::size_t start_;
    std::size_t at_;
    std::uint64_t call_;
    bool isCall_;
};

template <class T>
void readArgument(Cursor& cursor, CapturedArgument& argument)
{
    argument = CapturedArgument();
    if constexpr (detail::kDataPointer<T>)
    {
        argument.pointer = true;
        const auto kind = cursor.read<std::uint8_t>();
        if (kind > static_cast<std::uint8_t>(PointerKind::Unsized))
            cursor.corrupt("pointer kind " + std::to_string(kind));
        argument.kind = static_cast<PointerKind>(kind);
        if (argument.kind == PointerKind::Null)
            return;
        argument.address = cursor.read<std::uint64_t>();
        switch (argument.kind)
        {
        case PointerKind::Data:
            argument.length = cursor.read<std::uint64_t>();
            argument.data = cursor.take(argument.length);
            break;
        case PointerKind::Output:
        case PointerKind::OutputKept:
            argument.length = cursor.read<std::uint64_t>();
            break;
        case PointerKind::Strings:
            argument.count = cursor.read<std::uint32_t>();
            argument.data = cursor.take(0);
            for (std::uint32_t i = 0; i < argument.count; ++i)
                cursor.take(cursor.read<std::uint64_t>());
            break;
        default:
            break;
        }
    }
    else
    {
        using S = detail::Stored<T>;
        argument.size = sizeof(S);
        argument.floating = std::is_floating_point<S>::value;
        argument.isSigned = std::is_signed<S>::value;
        std::memcpy(argument.raw, cursor.take(sizeof(S)), sizeof(S));
    }
}

template <class F>
struct Decoder;
template <class C, class Ret, class... P>
struct Decoder<Ret (C::*)(char const*, unsigned int, P...)>
{
    static void read(Cursor& cursor, CaptureRecord& record)
    {
        static_assert(sizeof...(P) <= CaptureRecord::kMaxArguments, "room for the arguments");
        record.argumentCount = sizeof...(P);
        unsigned int index = 0;
        (readArgument<P>(cursor, record.arguments[index++]), ...);
        record.hasResult = !std::is_void<Ret>::value;
        if constexpr (!std::is_void<Ret>::value)
            readArgument<detail::Stored<Ret>>(cursor, record.result);
        for (unsigned int i = 0; i < record.argumentCount; ++i)
            if (record.arguments[i].kind == PointerKind::OutputKept)
                record.arguments[i].kept = cursor.take(record.arguments[i].length);
    }
};

using Read = void (*)(Cursor&, CaptureRecord&);
const Read kReaders[] = {
#define ORU_GL_OPERATION(Ret, Stem, ...) &Decoder<decltype(&OpenGLInterceptor::cgm##Stem)>::read,
#include "oru_ogl/extensionator/Operations.def"
#define ORU_WGL_OPERATION(Ret, Stem, ...) &Decoder<decltype(&wglInterceptor::wcgm##Stem)>::read,
#include "oru_ogl/extensionator/windows/WglOperations.def"
};
static_assert(sizeof(kReaders) / sizeof(kReaders[0]) == kOperationCount, "one reader per operation");

} // namespace

CaptureReader::CaptureReader(std::string const& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw CaptureError("cannot open the capture '" + path + "'", 0, 0);
    bytes_.assign(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    readHeader();
}

CaptureReader::CaptureReader(std::vector<unsigned char> bytes) : bytes_(std::move(bytes))
{
    readHeader();
}

void CaptureReader::readHeader()
{
    if (bytes_.size() < kHeaderSize || std::memcmp(bytes_.data(), kMagic, sizeof(kMagic)) != 0)
        throw CaptureError("not a capture: the file does not begin with the ORUCAPT header", 0, 0);
    std::memcpy(&version_, bytes_.data() + 8, 4);
    std::memcpy(&flags_, bytes_.data() + 12, 4);
    if (version_ > kFormatVersion)
        throw CaptureError("the capture has format version " + std::to_string(version_) +
                               ", newer than the versions this reader knows (up to " +
                               std::to_string(kFormatVersion) + "): read it with a newer oru_ogl",
                           8, 0);
    rewind();
}

void CaptureReader::rewind()
{
    at_ = kHeaderSize;
    calls_ = 0;
    operations_.assign(kFirstControlTag, kOperationCount);
}

bool CaptureReader::next(CaptureRecord& record)
{
    for (;;)
    {
        if (at_ == bytes_.size())
            return false;
        // Each kind of record sets all its fields: the record is not cleared
        // as a whole, which would cost more than reading a call.
        record.offset = at_;
        record.callIndex = calls_;
        Cursor tagCursor(bytes_, at_, calls_, false);
        const auto tag = tagCursor.read<std::uint16_t>();
        Cursor cursor(bytes_, at_, calls_, tag < kFirstControlTag);
        cursor.take(2);
        try
        {
            if (tag < kFirstControlTag)
            {
                const unsigned int operation = operations_[tag];
                if (operation == kOperationCount)
                    cursor.corrupt("operation number " + std::to_string(tag) + " without a Define record");
                record.kind = CaptureRecord::Kind::Call;
                record.operation = operation;
                kReaders[operation](cursor, record);
                ++calls_;
                at_ = cursor.at();
                return true;
            }
            switch (tag)
            {
            case kDefine:
            {
                const auto number = cursor.read<std::uint16_t>();
                const auto length = cursor.read<std::uint16_t>();
                const std::string name(reinterpret_cast<char const*>(cursor.take(length)), length);
                if (number >= kFirstControlTag)
                    cursor.corrupt("operation number " + std::to_string(number));
                const unsigned int operation = operationNumber(name.c_str());
                if (operation == kOperationCount)
                    cursor.corrupt("operation '" + name + "', which this reader's catalogue does not know,");
                operations_[number] = operation;
                at_ = cursor.at();
                continue;
            }
            case kSurface:
                record.kind = CaptureRecord::Kind::Surface;
                record.device = cursor.read<std::uint64_t>();
                record.width = cursor.read<std::int32_t>();
                record.height = cursor.read<std::int32_t>();
                std::memcpy(record.pixelFormat, cursor.take(8), 8);
                cursor.checkSize("window", record.width, record.height);
                break;
            case kFrame:
                record.kind = CaptureRecord::Kind::Frame;
                record.device = cursor.read<std::uint64_t>();
                record.frame = cursor.read<std::uint32_t>();
                record.width = static_cast<int>(cursor.read<std::uint32_t>());
                record.height = static_cast<int>(cursor.read<std::uint32_t>());
                record.checksum = cursor.read<std::uint64_t>();
                cursor.checkSize("frame", record.width, record.height);
                record.data = nullptr;
                if (cursor.read<std::uint8_t>())
                    record.data = cursor.take(std::uint64_t(record.width) * record.height * 4);
                break;
            case kClientArray:
                record.kind = CaptureRecord::Kind::ClientArray;
                record.array = static_cast<ArrayKind>(cursor.read<std::uint8_t>());
                if (record.array > ArrayKind::Attribute)
                    cursor.corrupt("array kind " + std::to_string(static_cast<int>(record.array)));
                record.unit = cursor.read<std::uint32_t>();
                record.size = cursor.read<std::int32_t>();
                record.type = cursor.read<std::uint32_t>();
                record.stride = cursor.read<std::int32_t>();
                record.normalized = cursor.read<std::uint8_t>() != 0;
                record.first = cursor.read<std::uint64_t>();
                record.length = cursor.read<std::uint64_t>();
                record.data = cursor.take(record.length);
                break;
            case kBufferContents:
                record.kind = CaptureRecord::Kind::BufferContents;
                record.type = cursor.read<std::uint32_t>();
                record.first = cursor.read<std::uint64_t>();
                record.length = cursor.read<std::uint64_t>();
                record.data = cursor.take(record.length);
                break;
            case kThread:
                record.kind = CaptureRecord::Kind::Thread;
                record.thread = cursor.read<std::uint32_t>();
                break;
            case kCurrentContext:
                record.kind = CaptureRecord::Kind::CurrentContext;
                record.device = cursor.read<std::uint64_t>();
                record.context = cursor.read<std::uint64_t>();
                break;
            default:
            {
                std::ostringstream what;
                what << "record tag 0x" << std::hex << tag;
                cursor.corrupt(what.str());
            }
            }
            at_ = cursor.at();
            return true;
        }
        catch (CaptureError const&)
        {
            at_ = bytes_.size();
            throw;
        }
    }
}

} // namespace OGL
} // namespace Oru
