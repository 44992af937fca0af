// What a capture holds, read back record by record: scalars bit for bit, the
// names glGen* returned, images as far as the unpack state reaches, client
// arrays for the range a draw reads, indices from an element buffer, what a
// program wrote into a mapped buffer, shader sources, and calls that failed.
#include "support/LayerGLTest.h"

#include "oru_ogl/ExceptionOGL.h"
#include "oru_ogl/extensionator/CaptureReader.h"
#include "oru_ogl/extensionator/CaptureSession.h"
#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/extensionator/GLCall.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace OGL = Oru::OGL;
using OGL::CaptureRecord;
using OGL::capture::PointerKind;
using Kind = CaptureRecord::Kind;

namespace
{

class CaptureGLTest : public OruTest::LayerGLTest
{
protected:
    // Captures what `calls` does into memory and reads it back.
    template <class Calls>
    std::vector<CaptureRecord> capture(Calls calls)
    {
        bytes_.clear();
        {
            OGL::CaptureSession session([this](char const* bytes, std::size_t length) {
                bytes_.insert(bytes_.end(), bytes, bytes + length);
                return true;
            });
            calls();
        }
        OGL::CaptureReader reader(std::vector<unsigned char>(bytes_.begin(), bytes_.end()));
        std::vector<CaptureRecord> records;
        for (CaptureRecord record; reader.next(record);)
            records.push_back(record);
        return records;
    }

    static CaptureRecord const& call(std::vector<CaptureRecord> const& records, unsigned int operation, int nth = 0)
    {
        for (CaptureRecord const& record : records)
            if (record.kind == Kind::Call && record.operation == operation && nth-- == 0)
                return record;
        ADD_FAILURE() << "no call of " << OGL::capture::operationName(operation);
        static const CaptureRecord none;
        return none;
    }

    // The record just before `record` in the list.
    static CaptureRecord const& before(std::vector<CaptureRecord> const& records, CaptureRecord const& record)
    {
        for (std::size_t i = 1; i < records.size(); ++i)
            if (records[i].offset == record.offset)
                return records[i - 1];
        ADD_FAILURE() << "no record before";
        return record;
    }

    static bool buffers() { return _cgmBindBuffer && _cgmMapBuffer && _cgmGetBufferSubData; }

    std::vector<char> bytes_;
};

TEST_F(CaptureGLTest, ScalarsBitForBitAndGeneratedNames)
{
    GLuint names[2] = {};
    auto const records = capture([&] {
        ORU_GL glColor4f(0.1f, -2.5f, 1e-30f, 1.0f);
        ORU_GL glGenTextures(2, names);
        ORU_GL glBindTexture(GL_TEXTURE_2D, names[1]);
        ORU_GL glBindTexture(GL_TEXTURE_2D, 0);
    });
    ORU_GL glDeleteTextures(2, names);

    CaptureRecord const& colour = call(records, OGL::capture::kGLColor4f);
    auto const current = std::find_if(records.begin(), records.end(),
                                      [](CaptureRecord const& r) { return r.kind == Kind::CurrentContext; });
    ASSERT_NE(records.end(), current) << "the context current when the capture began";
    EXPECT_LT(current->offset, colour.offset);
    EXPECT_EQ(0u, colour.callIndex);
    EXPECT_EQ(0.1f, colour.arguments[0].as<float>());
    EXPECT_EQ(-2.5f, colour.arguments[1].as<float>());
    EXPECT_EQ(1e-30f, colour.arguments[2].as<float>());

    CaptureRecord const& generated = call(records, OGL::capture::kGLGenTextures);
    ASSERT_EQ(PointerKind::OutputKept, generated.arguments[1].kind);
    ASSERT_EQ(2 * sizeof(GLuint), generated.arguments[1].length);
    EXPECT_EQ(0, std::memcmp(names, generated.arguments[1].kept, sizeof(names)));
    EXPECT_EQ(names[1], call(records, OGL::capture::kGLBindTexture).arguments[1].as<GLuint>());
}

TEST_F(CaptureGLTest, ImagesAsFarAsTheUnpackStateReaches)
{
    std::vector<unsigned char> image(7 * 5 * 3);
    for (std::size_t i = 0; i < image.size(); ++i)
        image[i] = static_cast<unsigned char>(i * 7 + 1);
    GLuint texture = 0;
    ORU_GL glGenTextures(1, &texture);
    ORU_GL glBindTexture(GL_TEXTURE_2D, texture);
    auto const records = capture([&] {
        ORU_GL glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
        ORU_GL glPixelStorei(GL_UNPACK_ROW_LENGTH, 7);
        ORU_GL glPixelStorei(GL_UNPACK_SKIP_ROWS, 2);
        ORU_GL glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, 5, 3, 0, GL_RGB, GL_UNSIGNED_BYTE, image.data());
        ORU_GL glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
        ORU_GL glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
        ORU_GL glPixelStorei(GL_UNPACK_SKIP_ROWS, 0);
    });
    ORU_GL glDeleteTextures(1, &texture);

    // Rows of 7 pixels of 3 bytes; two skipped, then 3 rows, the last 5 pixels long.
    CaptureRecord const& upload = call(records, OGL::capture::kGLTexImage2D);
    ASSERT_EQ(PointerKind::Data, upload.arguments[8].kind);
    EXPECT_EQ((2 + 3 - 1) * 21u + 5 * 3, upload.arguments[8].length);
    EXPECT_EQ(0, std::memcmp(image.data(), upload.arguments[8].data, static_cast<std::size_t>(upload.arguments[8].length)));
}

TEST_F(CaptureGLTest, ClientArraysForTheRangeADrawReads)
{
    // Vertices 2 to 6 of a strided array are drawn; the others hold garbage.
    std::vector<GLfloat> vertices(3 * 8);
    for (std::size_t i = 0; i < vertices.size(); ++i)
        vertices[i] = static_cast<GLfloat>(i) * 0.01f;
    const GLushort indices[] = { 4, 2, 6 };
    auto const records = capture([&] {
        ORU_GL glEnableClientState(GL_VERTEX_ARRAY);
        ORU_GL glVertexPointer(2, GL_FLOAT, 3 * sizeof(GLfloat), vertices.data());
        ORU_GL glDrawElements(GL_POINTS, 3, GL_UNSIGNED_SHORT, indices);
        ORU_GL glDrawArrays(GL_POINTS, 1, 2);
        ORU_GL glDisableClientState(GL_VERTEX_ARRAY);
    });

    CaptureRecord const& elements = call(records, OGL::capture::kGLDrawElements);
    ASSERT_EQ(PointerKind::Data, elements.arguments[3].kind);
    EXPECT_EQ(0, std::memcmp(indices, elements.arguments[3].data, sizeof(indices)));
    CaptureRecord const& array = before(records, elements);
    ASSERT_EQ(Kind::ClientArray, array.kind);
    EXPECT_EQ(OGL::capture::ArrayKind::Vertex, array.array);
    EXPECT_EQ(2 * 12u, array.first);
    EXPECT_EQ(4 * 12u + 8, array.length);
    EXPECT_EQ(0, std::memcmp(&vertices[6], array.data, static_cast<std::size_t>(array.length)));

    CaptureRecord const& arrays = before(records, call(records, OGL::capture::kGLDrawArrays));
    ASSERT_EQ(Kind::ClientArray, arrays.kind);
    EXPECT_EQ(12u, arrays.first);
    EXPECT_EQ(12u + 8, arrays.length);
}

TEST_F(CaptureGLTest, IndicesFromAnElementBufferAndMappedBufferContents)
{
    if (!buffers())
        GTEST_SKIP() << "no buffer objects at this GL version";
    const GLfloat vertices[] = { 9, 9, 0.5f, 0.5f, -0.5f, 0.5f, 0.25f, -0.5f };
    const GLubyte indices[] = { 3, 1, 2 };
    const unsigned char written[] = { 1, 2, 3, 4, 5, 6, 7, 8 };
    GLuint buffers[2] = {};
    ORU_GL glGenBuffers(2, buffers);
    auto const records = capture([&] {
        ORU_GL glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, buffers[0]);
        ORU_GL glBufferData(GL_ELEMENT_ARRAY_BUFFER, sizeof(indices), indices, GL_STATIC_DRAW);
        ORU_GL glEnableClientState(GL_VERTEX_ARRAY);
        ORU_GL glVertexPointer(2, GL_FLOAT, 0, vertices);
        ORU_GL glDrawElements(GL_TRIANGLES, 3, GL_UNSIGNED_BYTE, nullptr);
        ORU_GL glDisableClientState(GL_VERTEX_ARRAY);
        ORU_GL glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, 0);

        ORU_GL glBindBuffer(GL_ARRAY_BUFFER, buffers[1]);
        ORU_GL glBufferData(GL_ARRAY_BUFFER, sizeof(written), nullptr, GL_STREAM_DRAW);
        void* mapped = ORU_GL glMapBuffer(GL_ARRAY_BUFFER, GL_WRITE_ONLY);
        std::memcpy(mapped, written, sizeof(written));
        ORU_GL glUnmapBuffer(GL_ARRAY_BUFFER);
        ORU_GL glBindBuffer(GL_ARRAY_BUFFER, 0);
    });
    ORU_GL glDeleteBuffers(2, buffers);

    CaptureRecord const& draw = call(records, OGL::capture::kGLDrawElements);
    EXPECT_EQ(PointerKind::Null, draw.arguments[3].kind) << "an offset into the element buffer";
    CaptureRecord const& array = before(records, draw);
    ASSERT_EQ(Kind::ClientArray, array.kind) << "indices 1 to 3, read from the element buffer";
    EXPECT_EQ(8u, array.first);
    EXPECT_EQ(24u, array.length);

    CaptureRecord const& contents = before(records, call(records, OGL::capture::kGLUnmapBuffer));
    ASSERT_EQ(Kind::BufferContents, contents.kind);
    EXPECT_EQ(static_cast<std::uint32_t>(GL_ARRAY_BUFFER), contents.type);
    ASSERT_EQ(sizeof(written), contents.length);
    EXPECT_EQ(0, std::memcmp(written, contents.data, sizeof(written)));
}

TEST_F(CaptureGLTest, ShaderSourcesAndFailingCalls)
{
    auto const records = capture([&] {
        if (_cgmCreateShader)
        {
            const GLuint shader = ORU_GL glCreateShader(GL_VERTEX_SHADER);
            char const* parts[] = { "voidXX", " main() {}" };
            const GLint lengths[] = { 4, -1 };
            ORU_GL glShaderSource(shader, 2, parts, lengths);
            ORU_GL glDeleteShader(shader);
        }
        EXPECT_THROW(ORU_GL glEnable(0xFFFF), OGL::ExceptionOGL);
    });

    if (_cgmCreateShader)
    {
        CaptureRecord const& source = call(records, OGL::capture::kGLShaderSource);
        ASSERT_EQ(PointerKind::Strings, source.arguments[2].kind);
        ASSERT_EQ(2u, source.arguments[2].count);
        EXPECT_EQ("void", source.arguments[2].text(0));
        EXPECT_EQ(" main() {}", source.arguments[2].text(1));
    }
    EXPECT_EQ(0xFFFFu, call(records, OGL::capture::kGLEnable).arguments[0].as<GLenum>())
        << "a call that throws is captured all the same";
}

} // namespace
