// Uniform setters against the driver: every member in its four flavours, read
// back with glGetUniformiv/glGetUniformfv; the enabled check; the deliberate
// irregularities of the array setters; active uniforms and validation.
#include "support/GLSLGLTest.h"

#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/ogl/Program.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

using Oru::OGL::Program;
using OruTest::FakeEntryPoint;
using OruTest::GLSLGLTest;
using OruTest::Raised;
using OruTest::raisedBy;

namespace
{

// Every uniform contributes to the colour, so that the compiler keeps it.
const char* kFragment = R"(#version 110
#extension GL_ARB_texture_rectangle : enable
uniform bool b1; uniform bvec2 b2; uniform bvec3 b3; uniform bvec4 b4;
uniform int c1; uniform ivec2 c2; uniform ivec3 c3; uniform ivec4 c4;
uniform int i1; uniform ivec2 i2; uniform ivec3 i3; uniform ivec4 i4;
uniform float f1; uniform vec2 f2; uniform vec3 f3; uniform vec4 f4;
uniform sampler1D s1; uniform sampler2D s2; uniform sampler3D s3; uniform sampler2DRect sr;
uniform mat2 m2; uniform mat3 m3; uniform mat4 m4;
uniform mat2 m2s[2]; uniform mat3 m3s[2]; uniform mat4 m4s[2];
uniform int ia[3]; uniform ivec2 i2a[2]; uniform ivec3 i3a[2]; uniform ivec4 i4a[2];
uniform float fa[3]; uniform vec2 f2a[2]; uniform vec3 f3a[2]; uniform vec3 f4a[2];
void main()
{
    vec4 a = vec4(float(b1), vec2(b2), 0.0) + vec4(vec3(b3), 0.0) + vec4(b4);
    a += vec4(float(c1 + i1), vec2(c2 + i2), 0.0) + vec4(vec3(c3 + i3), 0.0) + vec4(c4 + i4);
    a += vec4(f1) + vec4(f2, f2) + vec4(f3, 1.0) + f4;
    a += vec4(float(ia[0] + ia[1] + ia[2]), vec2(i2a[0] + i2a[1]), 0.0);
    a += vec4(vec3(i3a[0] + i3a[1]), 0.0) + vec4(i4a[0] + i4a[1]);
    a += vec4(fa[0] + fa[1] + fa[2], f2a[0] + f2a[1], 0.0) + vec4(f3a[0] + f3a[1] + f4a[0] + f4a[1], 0.0);
    a += vec4(m2 * f2 + m2s[0] * f2 + m2s[1] * f2, 0.0, 0.0) + vec4(m3 * f3 + m3s[0] * f3 + m3s[1] * f3, 0.0);
    a += m4 * f4 + m4s[0] * f4 + m4s[1] * f4;
    a += texture1D(s1, f1) + texture2D(s2, f2) + texture3D(s3, f3) + texture2DRect(sr, f2);
    gl_FragColor = a;
}
)";

const char* const kMustBeLinked = "Program must be linked to get active uniform count";

using Ints = std::vector<GLint>;
using Floats = std::vector<GLfloat>;
using Uploads = std::vector<std::pair<GLint, GLsizei>>;

Uploads gUploads;

void APIENTRY recordUniform1f(GLint location, GLfloat)
{
    gUploads.emplace_back(location, 1);
}
void APIENTRY recordUniformMatrix4fv(GLint location, GLsizei count, GLboolean, const GLfloat*)
{
    gUploads.emplace_back(location, count);
}
void APIENTRY recordUniform1iv(GLint location, GLsizei count, const GLint*)
{
    gUploads.emplace_back(location, count);
}
void APIENTRY recordUniform1fv(GLint location, GLsizei count, const GLfloat*)
{
    gUploads.emplace_back(location, count);
}

// n x n values given row by row, as GL stores them after a transposing upload.
Floats transposed(Floats const& rows, int n)
{
    Floats columns(rows.size());
    for (std::size_t m = 0; m < rows.size() / (n * n); ++m)
        for (int r = 0; r < n; ++r)
            for (int c = 0; c < n; ++c)
                columns[m * n * n + c * n + r] = rows[m * n * n + r * n + c];
    return columns;
}

// Values for the four flavours: count numbers from first + 10 * flavour on.
template <class T>
std::vector<std::vector<T>> flavours(int count, T first)
{
    std::vector<std::vector<T>> values(4);
    for (int flavour = 0; flavour < 4; ++flavour)
        for (int i = 0; i < count; ++i)
            values[flavour].push_back(first + static_cast<T>(10 * flavour + i));
    return values;
}

// The program above, linked and current in every test.
class UniformGLTest : public GLSLGLTest
{
protected:
    void SetUp() override
    {
        GLSLGLTest::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        program_.reset(new Program());
        OruTest::load(*program_, OruTest::kVertexSource, kFragment);
        ASSERT_NO_THROW(program_->link(true));
        program_->enable();
        gUploads.clear();
    }
    void TearDown() override
    {
        if (program_)
            program_->disable();
        program_.reset();
        GLSLGLTest::TearDown();
    }

    GLint loc(const char* name) const
    {
        return _cgmGetUniformLocation(program_->objectID(), name);
    }

    // The values of elements x components; array elements by their own names.
    template <class T>
    std::vector<T> readBack(std::string const& uniform, std::size_t components, std::size_t elements) const
    {
        std::vector<T> all;
        for (std::size_t e = 0; e < elements; ++e)
        {
            const std::string name = elements > 1 ? uniform + "[" + std::to_string(e) + "]" : uniform;
            std::vector<T> values(16);
            const GLint location = loc(name.c_str());
            EXPECT_NE(-1, location) << name;
            if (location == -1)
                return all;
            if constexpr (std::is_same<T, GLint>::value)
                _cgmGetUniformiv(program_->objectID(), location, values.data());
            else
                _cgmGetUniformfv(program_->objectID(), location, values.data());
            all.insert(all.end(), values.begin(), values.begin() + components);
        }
        return all;
    }

    // Calls set(where, checked, values) in the four flavours, each with its own
    // values: checked by location, checked by name, unchecked by location,
    // unchecked by name; reads the uniform back after each.
    template <class T, class Set>
    void expectFlavours(const char* uniform, std::size_t elements, std::vector<std::vector<T>> const& values,
                        Set set, std::vector<std::vector<T>> expected = {})
    {
        if (expected.empty())
            expected = values;
        const std::size_t components = values[0].size() / elements;
        const GLint location = loc(uniform);
        ASSERT_NE(-1, location) << uniform;
        set(location, true, values[0]);
        EXPECT_EQ(expected[0], readBack<T>(uniform, components, elements)) << uniform << ": checked, by location";
        set(uniform, true, values[1]);
        EXPECT_EQ(expected[1], readBack<T>(uniform, components, elements)) << uniform << ": checked, by name";
        set(location, false, values[2]);
        EXPECT_EQ(expected[2], readBack<T>(uniform, components, elements)) << uniform << ": unchecked, by location";
        set(uniform, false, values[3]);
        EXPECT_EQ(expected[3], readBack<T>(uniform, components, elements)) << uniform << ": unchecked, by name";
    }

    // The N-component setter, checked or not, with v converted.
    template <std::size_t... I, class At, class V, class Convert>
    static void setComponents(Program& p, At at, bool checked, V const& v, Convert convert, std::index_sequence<I...>)
    {
        checked ? p.setUniform(at, convert(v[I])...) : p.setUniform_Unsafe(at, convert(v[I])...);
    }

    // prefix1 to prefix4 in the four flavours, each with the first N components
    // of values[flavour].
    template <class T, class Convert, std::size_t... N>
    void expectVectors(std::string const& prefix, std::vector<std::vector<T>> const& values, Convert convert,
                       std::index_sequence<N...>)
    {
        auto firstOf = [&](std::size_t n) {
            std::vector<std::vector<T>> cut;
            for (auto const& v : values)
                cut.emplace_back(v.begin(), v.begin() + n);
            return cut;
        };
        (expectFlavours<T>((prefix + std::to_string(N + 1)).c_str(), 1, firstOf(N + 1),
                           [&](auto at, bool checked, std::vector<T> v) {
                               setComponents(*program_, at, checked, v, convert, std::make_index_sequence<N + 1>());
                           }),
         ...);
    }

    // The array name of count elements through setUniform (N = 1) to
    // setUniform4, in the four flavours.
    template <int N, class T>
    void expectArray(const char* name, GLsizei count, std::vector<std::vector<T>> const& values)
    {
        Program& p = *program_;
        expectFlavours<T>(name, count, values, [&](auto at, bool checked, std::vector<T> v) {
            if constexpr (N == 1)
                checked ? p.setUniform(at, count, v.data()) : p.setUniform_Unsafe(at, count, v.data());
            else if constexpr (N == 2)
                checked ? p.setUniform2(at, count, v.data()) : p.setUniform2_Unsafe(at, count, v.data());
            else if constexpr (N == 3)
                checked ? p.setUniform3(at, count, v.data()) : p.setUniform3_Unsafe(at, count, v.data());
            else
                checked ? p.setUniform4(at, count, v.data()) : p.setUniform4_Unsafe(at, count, v.data());
        });
    }

    std::unique_ptr<Program> program_;
};

} // namespace

// Bools upload 0 or 1; unsigned chars zero-extend (values above 127 would show
// a sign extension, none above 1 normalising).
TEST_F(UniformGLTest, ScalarAndVectorSetters)
{
    const auto four = std::make_index_sequence<4>();
    expectVectors<GLint>("b", {{1, 0, 1, 0}, {0, 1, 0, 1}, {1, 1, 0, 0}, {0, 0, 1, 1}},
                         [](GLint v) { return v != 0; }, four);
    expectVectors<GLint>("c", {{200, 1, 250, 9}, {255, 2, 129, 8}, {128, 3, 0, 254}, {7, 4, 190, 6}},
                         [](GLint v) { return static_cast<unsigned char>(v); }, four);
    expectVectors<GLint>("i", {{-5, 1, 9, 13}, {6, 2, 10, 14}, {-7, 3, 11, 15}, {8, 4, 12, 16}},
                         [](GLint v) { return v; }, four);
    expectVectors<GLfloat>("f", {{0.5f, 1, 5, 9}, {1.5f, 2, 6, 10}, {-2.5f, 3, 7, 11}, {3.5f, 4, 8, 12}},
                           [](GLfloat v) { return v; }, four);
}

// All samplers start on unit 0, where samplers of different kinds may not
// meet: validation fails until each has its own unit.
TEST_F(UniformGLTest, SamplerSettersAndValidation)
{
    Program& p = *program_;
    EXPECT_FALSE(p.validate());
    const std::vector<Ints> units = {{1}, {2}, {3}, {4}};
    expectFlavours<GLint>("s1", 1, units, [&](auto at, bool checked, Ints v) {
        checked ? p.setUniformSampler1D(at, v[0]) : p.setUniformSampler1D_Unsafe(at, v[0]);
    });
    expectFlavours<GLint>("s2", 1, units, [&](auto at, bool checked, Ints v) {
        checked ? p.setUniformSampler2D(at, v[0]) : p.setUniformSampler2D_Unsafe(at, v[0] + 1);
    }, {{1}, {2}, {4}, {5}});
    expectFlavours<GLint>("s3", 1, units, [&](auto at, bool checked, Ints v) {
        checked ? p.setUniformSampler3D(at, v[0]) : p.setUniformSampler3D_Unsafe(at, v[0] + 2);
    }, {{1}, {2}, {5}, {6}});
    expectFlavours<GLint>("sr", 1, units, [&](auto at, bool checked, Ints v) {
        checked ? p.setUniformSampler2DRECT(at, v[0]) : p.setUniformSampler2DRECT_Unsafe(at, v[0] + 3);
    }, {{1}, {2}, {6}, {7}});
    EXPECT_TRUE(p.validate()); // units 4, 5, 6 and 7
}

// Single matrices are given row by row (transposed); arrays of two column by
// column.
TEST_F(UniformGLTest, MatrixSetters)
{
    Program& p = *program_;
    for (int n = 2; n <= 4; ++n)
    {
        const std::vector<Floats> one = flavours<GLfloat>(n * n, 0.0f), two = flavours<GLfloat>(2 * n * n, 0.5f);
        std::vector<Floats> oneStored;
        for (Floats const& rows : one)
            oneStored.push_back(transposed(rows, n));
        const std::string single = "m" + std::to_string(n);
        const std::string array = single + "s";
        expectFlavours<GLfloat>(single.c_str(), 1, one, [&](auto at, bool checked, Floats v) {
            if (n == 2)
                checked ? p.setUniformMatrix2(at, v.data(), 1) : p.setUniformMatrix2_Unsafe(at, v.data(), 1);
            if (n == 3)
                checked ? p.setUniformMatrix3(at, v.data(), 1) : p.setUniformMatrix3_Unsafe(at, v.data(), 1);
            if (n == 4)
                checked ? p.setUniformMatrix4(at, v.data(), 1) : p.setUniformMatrix4_Unsafe(at, v.data(), 1);
        }, oneStored);
        expectFlavours<GLfloat>(array.c_str(), 2, two, [&](auto at, bool checked, Floats v) {
            if (n == 2)
                checked ? p.setUniformMatrices2(at, 2, v.data(), 0) : p.setUniformMatrices2_Unsafe(at, 2, v.data(), 0);
            if (n == 3)
                checked ? p.setUniformMatrices3(at, 2, v.data(), 0) : p.setUniformMatrices3_Unsafe(at, 2, v.data(), 0);
            if (n == 4)
                checked ? p.setUniformMatrices4(at, 2, v.data(), 0) : p.setUniformMatrices4_Unsafe(at, 2, v.data(), 0);
        });
    }
}

TEST_F(UniformGLTest, ArraySetters)
{
    expectArray<1>("ia", 3, flavours<GLint>(3, -25));
    expectArray<2>("i2a", 2, flavours<GLint>(4, -25));
    expectArray<3>("i3a", 2, flavours<GLint>(6, -25));
    expectArray<4>("i4a", 2, flavours<GLint>(8, -25));
    expectArray<1>("fa", 3, flavours<GLfloat>(3, 0.5f));
    expectArray<2>("f2a", 2, flavours<GLfloat>(4, 10.5f));
    expectArray<3>("f3a", 2, flavours<GLfloat>(6, 20.5f));
    // setUniform4 with floats: two vec3 values from six floats.
    expectArray<4>("f4a", 2, flavours<GLfloat>(6, 20.5f));
}

TEST_F(UniformGLTest, CheckedSettersRefuseAProgramThatIsNotCurrent)
{
    Program& p = *program_;
    p.disable();
    int n[8] = {};
    float f[16] = {};
    std::vector<std::function<void()>> checked;
    auto addVectors = [&](std::string const& prefix, auto value) {
        const std::vector<decltype(value)> v(4, value);
        auto add = [&](auto n) {
            const std::string name = prefix + std::to_string(n.value);
            checked.push_back([&p, v] { setComponents(p, 0, true, v, [](auto x) { return x; },
                                                      std::make_index_sequence<decltype(n)::value>()); });
            checked.push_back([&p, v, name] { setComponents(p, name.c_str(), true, v, [](auto x) { return x; },
                                                            std::make_index_sequence<decltype(n)::value>()); });
        };
        add(std::integral_constant<std::size_t, 1>());
        add(std::integral_constant<std::size_t, 2>());
        add(std::integral_constant<std::size_t, 3>());
        add(std::integral_constant<std::size_t, 4>());
    };
    addVectors("b", true);
    addVectors("c", static_cast<unsigned char>(1));
    addVectors("i", 1);
    addVectors("f", 1.0f);
    checked.insert(checked.end(), {
        [&] { p.setUniformSampler1D(0, 1); }, [&] { p.setUniformSampler1D("s1", 1); },
        [&] { p.setUniformSampler2D(0, 1); }, [&] { p.setUniformSampler2D("s2", 1); },
        [&] { p.setUniformSampler3D(0, 1); }, [&] { p.setUniformSampler3D("s3", 1); },
        [&] { p.setUniformSampler2DRECT(0, 1); }, [&] { p.setUniformSampler2DRECT("sr", 1); },
        [&] { p.setUniformMatrices2(0, 1, f, 0); }, [&] { p.setUniformMatrices3(0, 1, f, 0); },
        [&] { p.setUniformMatrices4(0, 1, f, 0); },
        [&] { p.setUniform(0, 1, n); }, [&] { p.setUniform2(0, 1, n); },
        [&] { p.setUniform3(0, 1, n); }, [&] { p.setUniform4(0, 1, n); },
        [&] { p.setUniform(0, 1, f); }, [&] { p.setUniform2(0, 1, f); },
        [&] { p.setUniform3(0, 1, f); }, [&] { p.setUniform4(0, 1, f); },
    });
    ASSERT_EQ(51u, checked.size());
    std::set<int> lines;
    for (std::size_t i = 0; i < checked.size(); ++i)
    {
        const Raised raised = raisedBy(checked[i]);
        EXPECT_EQ("ogl/Program.cpp", raised.file) << "setter " << i;
        EXPECT_EQ("Program must be enabled to set uniform parameter", raised.message) << "setter " << i;
        lines.insert(raised.line);
    }
    EXPECT_EQ(checked.size(), lines.size()) << "each checked setter checks on its own line";
    EXPECT_EQ(432, raisedBy([&] { p.setUniform("b3", true, false, true); }).line);

    // The by-name and single matrix members refuse through setUniformMatricesN.
    const int matrices4 = raisedBy([&] { p.setUniformMatrices4(0, 1, f, 0); }).line;
    EXPECT_EQ(matrices4, raisedBy([&] { p.setUniformMatrices4("m4", 1, f, 0); }).line);
    EXPECT_EQ(matrices4, raisedBy([&] { p.setUniformMatrix4(0, f, 0); }).line);
    EXPECT_EQ(matrices4, raisedBy([&] { p.setUniformMatrix4("m4", f, 0); }).line);
}

// No GL call for a name GL does not know, except where the array setters
// pass -1 on to GL; and the checked by-name array setters do not check.
TEST_F(UniformGLTest, UnknownLocationsAndTheArrayIrregularities)
{
    Program& p = *program_;
    EXPECT_NO_THROW(p.setUniform("missing", 1.0f)); // glUniform1f(-1, ...), which GL ignores
    FakeEntryPoint<PFN_cgmUniform1f> uniform1f(_cgmUniform1f, &recordUniform1f);
    FakeEntryPoint<PFN_cgmUniformMatrix4fv> matrix4(_cgmUniformMatrix4fv, &recordUniformMatrix4fv);
    FakeEntryPoint<PFN_cgmUniform1iv> uniform1iv(_cgmUniform1iv, &recordUniform1iv);
    FakeEntryPoint<PFN_cgmUniform1fv> uniform1fv(_cgmUniform1fv, &recordUniform1fv);
    float f[16] = {};
    int n[3] = {};

    p.setUniform_Unsafe("missing", 1.0f);
    p.setUniform_Unsafe(Program::nUnknownLocation, 1.0f);
    p.setUniformMatrix4_Unsafe("missing", f, 0);
    p.setUniformMatrices4_Unsafe(-1, 1, f, 0);
    p.setUniform_Unsafe(-1, 3, n);
    EXPECT_EQ(Uploads(), gUploads);

    p.setUniform("missing", 1.0f);
    p.setUniform_Unsafe(-1, 3, f);
    p.setUniform_Unsafe("missing", 3, n);
    p.setUniform_Unsafe("missing", 2, f);
    EXPECT_EQ((Uploads{{-1, 1}, {-1, 3}, {-1, 3}, {-1, 2}}), gUploads);

    p.disable();
    gUploads.clear();
    p.setUniform("ia", 3, n);
    p.setUniform("fa", 2, f);
    EXPECT_EQ((Uploads{{loc("ia"), 3}, {loc("fa"), 2}}), gUploads);
    EXPECT_TRUE(raisedBy([&] { p.setUniform(loc("ia"), 3, n); }).raised);
}

TEST_F(UniformGLTest, ActiveUniforms)
{
    Program& p = *program_;
    const unsigned int count = p.getActiveUniformCount();
    const int maxLength = p.getMaxUniformStringLength();
    std::vector<char> name(static_cast<std::size_t>(maxLength));
    std::set<std::string> names;
    int longest = 0;
    for (unsigned int i = 0; i < count; ++i)
    {
        int size = 0;
        unsigned int type = 0;
        p.getActiveUniform(i, maxLength, &size, &type, name.data());
        const std::string text = name.data();
        longest = std::max(longest, static_cast<int>(text.size()) + 1);
        if (text == "f3")
        {
            EXPECT_EQ(0x8B51u, type); // GL_FLOAT_VEC3
        }
        if (text.rfind("ia", 0) == 0)
        {
            EXPECT_EQ(3, size);
        }
        names.insert(text.substr(0, text.find('[')));
    }
    EXPECT_EQ(maxLength, longest);
    for (const char* expected : {"b1", "c4", "i2", "f3", "s1", "sr", "m4", "m3s", "ia", "f4a"})
        EXPECT_EQ(1u, names.count(expected)) << expected;
    EXPECT_GE(count, 34u);

    Program unlinked;
    char buffer[8];
    int size = 0;
    unsigned int type = 0;
    EXPECT_EQ(Raised::at("ogl/Program.cpp", 597, kMustBeLinked), raisedBy([&] { unlinked.getActiveUniformCount(); }));
    EXPECT_EQ(Raised::at("ogl/Program.cpp", 610, kMustBeLinked),
              raisedBy([&] { unlinked.getActiveUniform(0, 8, &size, &type, buffer); }));
    EXPECT_EQ(Raised::at("ogl/Program.cpp", 626, kMustBeLinked),
              raisedBy([&] { unlinked.getMaxUniformStringLength(); }));
}
