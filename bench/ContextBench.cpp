// 6. Creating and destroying an offscreen rendering context: the classic path
// (ChoosePixelFormat; what ContextOffscreen takes) and the extended path
// (wglChoosePixelFormatARB; a context on the layer's hidden window asking for
// 0 samples), the latter both with a context current and without one, where
// a throw-away context is made for the query.

#include "Bench.h"

#include "oru_ogl/InternalWindow.h"
#include "oru_ogl/ogl/ContextOffscreen.h"
#include "oru_ogl/ogl/ContextWindowed.h"

#include <memory>

namespace bench
{

namespace
{

using Oru::OGL::BufferFormat;
using Oru::OGL::Context;
using Oru::OGL::ContextOffscreen;
using Oru::OGL::ContextWindowed;
using Oru::OGL::InternalWindow;

const char* const kFigure = "6. Context creation";

struct Phases
{
    std::vector<double> construction;
    std::vector<double> destruction;
};

// Times construction and destruction of whatever make() returns.
template <class Make>
Variant cycle(char const* name, Phases& phases, Make make)
{
    return { name, [&phases, make](unsigned int n) {
                double total = 0.0;
                for (unsigned int i = 0; i < n; ++i)
                {
                    const double start = now();
                    auto object = make();
                    const double built = now();
                    object.reset();
                    const double end = now();
                    phases.construction.push_back(built - start);
                    phases.destruction.push_back(end - built);
                    total += end - start;
                }
                return total;
            } };
}

// The extended path's context on a hidden window of its own.
struct ExtendedOffscreen
{
    InternalWindow window;
    ContextWindowed context;
    ExtendedOffscreen()
        : context(window.handle(), BufferFormat(BufferFormat::eRGB8), Context::eSingleBuffered,
                  static_cast<Context::teMultisample>(0), nullptr)
    {
    }
};

} // namespace

void contextSection(Environment& env, Rows& rows)
{
    Phases classic, extendedCurrent, extendedNone;
    std::vector<Variant> variants = {
        cycle("classic", classic, [] { return std::unique_ptr<ContextOffscreen>(new ContextOffscreen()); }),
        cycle("extended, a context current", extendedCurrent, [&env] {
            env.context->makeCurrent();
            return std::unique_ptr<ExtendedOffscreen>(new ExtendedOffscreen());
        }),
        cycle("extended, none current", extendedNone, [] {
            wglMakeCurrent(nullptr, nullptr);
            return std::unique_ptr<ExtendedOffscreen>(new ExtendedOffscreen());
        }),
    };
    const std::vector<Timing> t = compare(variants, Plan{ 9, 3, 2 });
    env.context->makeCurrent();

    Phases* phases[] = { &classic, &extendedCurrent, &extendedNone };
    char const* names[] = { "classic: `ContextOffscreen` (ChoosePixelFormat)",
                            "extended: hidden window + `ContextWindowed`, 0 samples, a context current",
                            "extended: the same with no context current (throw-away context for the query)" };
    for (int v = 0; v < 3; ++v)
    {
        rows.push_back({ kFigure, names[v],
                         format(median(phases[v]->construction), "ms", 2) + " create + " +
                             format(median(phases[v]->destruction), "ms", 2) + " destroy = " +
                             format(t[v].perOperation, "ms", 2),
                         v == 0 ? "" : formatRatio(ratio(t[v], t[0]), "classic"), "", "" });
    }
}

} // namespace bench
