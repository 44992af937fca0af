#ifndef ORU_OGL_EXTENSIONATOR_CAPTURECALL_H
#define ORU_OGL_EXTENSIONATOR_CAPTURECALL_H

// Internal to the library: how OpenGLCapture and wglCapture write one call.
// captureCall<Operation, Ret>(stream, forward, args...) makes the call through
// `forward`, then writes its record. Calls without data pointers take the
// short way: one lock, the scalars' bytes, the result. The others size each
// pointer's data from the catalogue's pointer table; a few operations have
// work of their own (draws capture client arrays, unmaps the mapped bytes,
// SwapBuffers the frame), chosen at compile time by operation number.

#include "oru_ogl/extensionator/CaptureStream.h"

#include <cstdint>
#include <cstring>
#include <tuple>
#include <type_traits>

namespace Oru
{
namespace OGL
{
namespace detail
{

template <class T>
struct IsHandle : std::false_type
{
};
template <>
struct IsHandle<HDC> : std::true_type
{
};
template <>
struct IsHandle<HGLRC> : std::true_type
{
};
#ifdef GL_ARB_sync
template <>
struct IsHandle<GLsync> : std::true_type
{
};
#endif

/// A pointer to data, as opposed to a scalar, a handle or a function.
template <class T>
constexpr bool kDataPointer =
    std::is_pointer<T>::value && !std::is_function<std::remove_pointer_t<T>>::value && !IsHandle<T>::value;

/// A scalar as it is written: its own bytes, pointers and handles as 64 bits.
template <class T>
using Stored = std::conditional_t<std::is_pointer<T>::value, std::uint64_t, T>;

template <class T>
Stored<T> stored(T value)
{
    if constexpr (std::is_pointer<T>::value)
        return static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(value));
    else
        return value;
}

/// An argument as the pointer table's size rules read it.
template <class T>
long long asNumber(T value)
{
    if constexpr (std::is_pointer<T>::value)
        return static_cast<long long>(reinterpret_cast<std::uintptr_t>(value));
    else
        return static_cast<long long>(value);
}

/// Makes the call, then writes its record with `record(result)`; when the call
/// throws, the record is written with a zero result and the exception goes on.
template <class Ret, class Forward, class Record>
Ret forwardAndRecord(Forward& forward, Record const& record)
{
    if constexpr (std::is_void<Ret>::value)
    {
        try
        {
            forward();
        }
        catch (...)
        {
            record(0);
            throw;
        }
        record(0);
    }
    else
    {
        Ret result{};
        try
        {
            result = forward();
        }
        catch (...)
        {
            record(result);
            throw;
        }
        record(result);
        return result;
    }
}

/// Writes the pointer arguments of one call; the slow path's state.
class ORU_OGL_API PointerArguments
{
public:
    PointerArguments(CaptureStream& stream, unsigned int operation, long long const* values);

    /// The catalogue's row of each pointer parameter, by parameter index.
    static PointerParameter const* const* rows(unsigned int operation);

    template <class T>
    void put(unsigned int index, T value)
    {
        if constexpr (kDataPointer<T>)
            pointer(index, reinterpret_cast<void const*>(value));
        else
            stream_.writer().put(stored(value));
    }
    /// The bytes glGen* wrote, after the result.
    void putKept();

    CaptureStream::ContextState& context();

private:
    void pointer(unsigned int index, void const* data);
    void strings(PointerParameter const& row, void const* data);

    CaptureStream& stream_;
    PointerParameter const* const* rows_;
    long long const* values_;
    bool generates_;
    CaptureStream::ContextState* context_ = nullptr;
    static constexpr int kMaxKept = 2;
    void const* kept_[kMaxKept] = {};
    std::uint64_t keptLength_[kMaxKept] = {};
    int keptCount_ = 0;
};

/// Operations with work of their own besides their record.
ORU_OGL_API void beforeUnmap(CaptureStream& stream, GLenum target);
ORU_OGL_API void afterMap(CaptureStream& stream, GLenum target, GLenum access, void* pointer);
ORU_OGL_API void drawnArrays(CaptureStream& stream, CaptureStream::ContextState& state, long long first, long long last);
ORU_OGL_API bool indexRange(CaptureStream::ContextState& state, long long count, GLenum type, void const* indices,
                            long long& first, long long& last);
ORU_OGL_API void multiRange(GLint const* firsts, GLsizei const* counts, GLsizei draws, long long& first,
                            long long& last);

/// The range of vertices a draw reads, or false for no draw (or none to capture).
template <unsigned int Id, class... A>
bool drawRange(CaptureStream::ContextState& state, long long& first, long long& last, A... args)
{
    using namespace capture;
    auto const all = std::make_tuple(args...);
    if constexpr (Id == kGLDrawArrays || Id == kGLDrawArraysEXT || Id == kGLDrawArraysInstancedEXT)
    {
        first = std::get<1>(all);
        last = first + std::get<2>(all) - 1;
        return std::get<2>(all) > 0;
    }
    else if constexpr (Id == kGLDrawElements || Id == kGLDrawElementsInstancedEXT)
        return indexRange(state, std::get<1>(all), std::get<2>(all), std::get<3>(all), first, last);
    else if constexpr (Id == kGLDrawRangeElements || Id == kGLDrawRangeElementsEXT)
    {
        first = std::get<1>(all);
        last = std::get<2>(all);
        return std::get<3>(all) > 0 && last >= first;
    }
    else if constexpr (Id == kGLMultiDrawArrays || Id == kGLMultiDrawArraysEXT)
    {
        multiRange(std::get<1>(all), std::get<2>(all), std::get<3>(all), first, last);
        return last >= first;
    }
    else
    {
        (void)all;
        (void)state;
        (void)first;
        (void)last;
        return false;
    }
}

template <unsigned int Id>
constexpr bool kDraws = Id == capture::kGLDrawArrays || Id == capture::kGLDrawArraysEXT ||
                        Id == capture::kGLDrawArraysInstancedEXT || Id == capture::kGLDrawElements ||
                        Id == capture::kGLDrawElementsInstancedEXT || Id == capture::kGLDrawRangeElements ||
                        Id == capture::kGLDrawRangeElementsEXT || Id == capture::kGLMultiDrawArrays ||
                        Id == capture::kGLMultiDrawArraysEXT;
template <unsigned int Id>
constexpr bool kMaps = Id == capture::kGLMapBuffer || Id == capture::kGLMapBufferARB;
template <unsigned int Id>
constexpr bool kUnmaps = Id == capture::kGLUnmapBuffer || Id == capture::kGLUnmapBufferARB;
template <unsigned int Id>
constexpr bool kPresents = Id == capture::kWGLSwapBuffers || Id == capture::kWGLSwapLayerBuffers;
template <unsigned int Id>
constexpr bool kShowsSurface = Id == capture::kWGLCreateContext || Id == capture::kWGLCreateLayerContext ||
                               Id == capture::kWGLMakeCurrent;

template <unsigned int Id, class Ret, class Forward, class... A>
Ret captureCall(CaptureStream& stream, Forward&& forward, A... args)
{
    constexpr bool kHooked = kDraws<Id> || kMaps<Id> || kUnmaps<Id> || kPresents<Id> || kShowsSurface<Id>;
    if constexpr (!kHooked && !(kDataPointer<A> || ...))
    {
        // The short way, for most calls: scalars only.
        return forwardAndRecord<Ret>(forward, [&](auto result) {
            stream.lock();
            stream.openCall(Id);
            constexpr std::size_t kBytes = (std::size_t(0) + ... + sizeof(Stored<A>));
            char* at = stream.writer().room(kBytes);
            auto const putOne = [&at](auto value) {
                std::memcpy(at, &value, sizeof(value));
                at += sizeof(value);
            };
            (putOne(stored(args)), ...);
            (void)putOne;
            stream.writer().advance(kBytes);
            if constexpr (!std::is_void<Ret>::value)
                stream.writer().put(stored(static_cast<Ret>(result)));
            stream.unlock();
        });
    }
    else
    {
        auto const all = std::make_tuple(args...);
        if constexpr (kUnmaps<Id>)
            beforeUnmap(stream, std::get<0>(all));
        if constexpr (kPresents<Id> || kShowsSurface<Id>)
            stream.surface(std::get<0>(all));
        if constexpr (kPresents<Id>)
            stream.frame(std::get<0>(all));
        return forwardAndRecord<Ret>(forward, [&](auto result) {
            if constexpr (kMaps<Id>)
                afterMap(stream, std::get<0>(all), std::get<1>(all), static_cast<Ret>(result));
            const long long values[] = { asNumber(args)..., 0 };
            stream.lock();
            PointerArguments pointers(stream, Id, values);
            if constexpr (kDraws<Id>)
            {
                CaptureStream::ContextState& state = pointers.context();
                long long first = 0, last = -1;
                if (state.clientArrays && drawRange<Id>(state, first, last, args...))
                    drawnArrays(stream, state, first, last);
            }
            stream.openCall(Id);
            unsigned int index = 0;
            (pointers.put(index++, args), ...);
            if constexpr (!std::is_void<Ret>::value)
                stream.writer().put(stored(static_cast<Ret>(result)));
            pointers.putKept();
            if constexpr (kPresents<Id>)
                stream.writer().flush();
            stream.unlock();
        });
    }
}

} // namespace detail
} // namespace OGL
} // namespace Oru

#endif
