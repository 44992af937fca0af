// Framebuffer objects and renderbuffers against the driver: render into a
// texture with a depth-stencil renderbuffer, the attachment points GL reports,
// and the refusals at their boundaries.
#include "oru_ogl/TokenName.h"
#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/ogl/Framebuffer.h"
#include "oru_ogl/ogl/PixelUnpackParameters.h"
#include "oru_ogl/ogl/Renderbuffer.h"
#include "oru_ogl/ogl/Texture2.h"
#include "oru_ogl/ogl/TextureUnit.h"

#include "support/LayerGLTest.h"
#include "support/Raises.h"

#include <memory>
#include <string>
#include <vector>

using Oru::OGL::Framebuffer;
using Oru::OGL::PixelUnpackParameters;
using Oru::OGL::Renderbuffer;
using Oru::OGL::Texture;
using Oru::OGL::Texture2D;
using Oru::OGL::TextureUnit;
using OruTest::expectRefusals;
using F = Oru::OGL::Texture::Format;

namespace
{

const GLenum kFramebuffer = 0x8D40;
const GLenum kRenderbufferBinding = 0x8CA7;
const GLenum kColor0 = 0x8CE0;
const GLenum kDepth = 0x8D00;
const GLenum kStencil = 0x8D20;
const GLenum kObjectName = 0x8CD1;     // GL_FRAMEBUFFER_ATTACHMENT_OBJECT_NAME_EXT
const GLenum kDepthStencil = 0x84F9;   // GL_DEPTH_STENCIL_EXT
const GLenum kDepth24 = 0x81A6;        // GL_DEPTH_COMPONENT24
const GLenum kStencil8 = 0x8D48;       // GL_STENCIL_INDEX8_EXT
const char* const kSource = "ogl/Framebuffer.cpp";

GLint attachedName(GLenum point)
{
    GLint name = -1;
    _cgmGetFramebufferAttachmentParameterivEXT(kFramebuffer, point, kObjectName, &name);
    return name;
}

std::string limitText(unsigned int index)
{
    return "Invalid color buffer attachment only " + std::to_string(Framebuffer::maxColorAttachments()) +
           " attachments supported with " + std::to_string(index) + " requested";
}

typedef std::vector<unsigned char> Pixels;

// The texture's level 0 as RGBA bytes; the texture is bound for the read.
Pixels readBack(Texture2D& texture)
{
    TextureUnit::Unit(0)->bind(&texture);
    Pixels pixels(texture.pixelDataSize(0, F::RGBA, Texture::UNSIGNED_BYTE));
    texture.getPixelData(pixels.data(), 0, F::RGBA, Texture::UNSIGNED_BYTE, 4);
    TextureUnit::Unit(0)->bind2DDefault();
    return pixels;
}

void quad(float x0, float x1, float z)
{
    glBegin(GL_QUADS);
    glVertex3f(x0, -1.0f, z);
    glVertex3f(x1, -1.0f, z);
    glVertex3f(x1, 1.0f, z);
    glVertex3f(x0, 1.0f, z);
    glEnd();
}

class FramebufferGLTest : public OruTest::LayerGLTest
{
protected:
    void SetUp() override
    {
        LayerGLTest::SetUp();
        TextureUnit::Unit(0)->bind2DDefault();
    }

    void TearDown() override
    {
        _cgmBindFramebufferEXT(kFramebuffer, 0);
        TextureUnit::Unit(0)->bind2DDefault();
        LayerGLTest::TearDown();
    }
};

} // namespace

TEST_F(FramebufferGLTest, RendersIntoATextureWithADepthStencilRenderbuffer)
{
    ASSERT_TRUE(Framebuffer::isSupported());
    const int size = 16;
    Texture2D colour(Texture::RGBA8, size, size, false);
    Renderbuffer depthStencil(kDepthStencil, size, size);
    Framebuffer framebuffer;
    framebuffer.bind();
    framebuffer.attach(&colour, 0, 0);
    framebuffer.attach(&depthStencil, 0);
    unsigned int status = 0;
    EXPECT_TRUE(framebuffer.statusOkay(&status));
    EXPECT_EQ(0x8CD5u, status);
    EXPECT_TRUE(framebuffer.statusOkay(nullptr));

    glPushAttrib(GL_ALL_ATTRIB_BITS);
    glViewport(0, 0, size, size);
    glClearColor(0.0f, 0.0f, 1.0f, 1.0f);
    glClearDepth(1.0);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
    framebuffer.unbind();
    Pixels cleared = readBack(colour);
    for (std::size_t i = 0; i < cleared.size(); i += 4)
        ASSERT_EQ(0xFF, cleared[i + 2]) << "pixel " << i / 4 << " not cleared to blue";

    // Red on the left half at depth 0.75, then green everywhere at depth
    // 0.95: the depth test keeps the red half.
    framebuffer.bind();
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LESS);
    glColor4f(1.0f, 0.0f, 0.0f, 1.0f);
    quad(-1.0f, 0.0f, 0.5f);
    glColor4f(0.0f, 1.0f, 0.0f, 1.0f);
    quad(-1.0f, 1.0f, 0.9f);
    glFinish();
    glPopAttrib();
    framebuffer.unbind();

    Pixels drawn = readBack(colour);
    for (int y = 0; y < size; ++y)
    {
        for (int x = 0; x < size; ++x)
        {
            const unsigned char* p = &drawn[(y * size + x) * 4];
            const bool left = x < size / 2;
            EXPECT_EQ(left ? 0xFF : 0x00, p[0]) << x << "," << y;
            EXPECT_EQ(left ? 0x00 : 0xFF, p[1]) << x << "," << y;
            EXPECT_EQ(0x00, p[2]) << x << "," << y;
        }
    }
    glColor4f(1.0f, 1.0f, 1.0f, 1.0f);
}

TEST_F(FramebufferGLTest, CopyTexSubImageTakesTheReadBufferOfTheFramebuffer)
{
    Texture2D source(Texture::RGBA8, 8, 8, false);
    Texture2D target(Texture::RGBA8, 8, 8, false);
    TextureUnit::Unit(0)->bind(&target);
    std::vector<unsigned char> zero(8 * 8 * 4, 0);
    target.subImage(0, 0, 0, 8, 8, F::RGBA, Texture::UNSIGNED_BYTE, zero.data(), PixelUnpackParameters());
    TextureUnit::Unit(0)->bind2DDefault();

    Framebuffer framebuffer;
    framebuffer.bind();
    framebuffer.attach(&source, 0, 0);
    glPushAttrib(GL_COLOR_BUFFER_BIT);
    glClearColor(1.0f, 0.0f, 0.0f, 1.0f);
    glClear(GL_COLOR_BUFFER_BIT);
    glPopAttrib();
    TextureUnit::Unit(0)->bind(&target);
    target.copyTexSubImage(0, 2, 4, 0, 0, 3, 2);
    TextureUnit::Unit(0)->bind2DDefault();
    framebuffer.unbind();

    Pixels copied = readBack(target);
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x)
            EXPECT_EQ((x >= 2 && x < 5 && y >= 4 && y < 6) ? 0xFF : 0x00, copied[(y * 8 + x) * 4]) << x << "," << y;
}

TEST_F(FramebufferGLTest, DepthStencilTakesBothPointsAndDetachingClearsOnlyDepth)
{
    Texture2D colour(Texture::RGBA8, 8, 8, false);
    Renderbuffer depthStencil(kDepthStencil, 8, 8);
    Framebuffer framebuffer;
    framebuffer.bind();
    framebuffer.attach(&colour, 0, 0);
    framebuffer.attach(&depthStencil, 0);
    EXPECT_EQ(static_cast<GLint>(colour.objectID()), attachedName(kColor0));
    EXPECT_EQ(static_cast<GLint>(depthStencil.objectID()), attachedName(kDepth));
    EXPECT_EQ(static_cast<GLint>(depthStencil.objectID()), attachedName(kStencil));

    framebuffer.detach(&depthStencil, 0);
    EXPECT_EQ(0, attachedName(kDepth));
    EXPECT_EQ(static_cast<GLint>(depthStencil.objectID()), attachedName(kStencil));

    framebuffer.detach(&colour, 0);
    EXPECT_EQ(0, attachedName(kColor0));
}

TEST_F(FramebufferGLTest, TheColourAttachmentLimitAndTheIndexOfDepthAndStencil)
{
    const unsigned int limit = Framebuffer::maxColorAttachments();
    ASSERT_GE(limit, 1u);
    Texture2D first(Texture::RGBA8, 4, 4, false);
    Texture2D last(Texture::RGBA8, 4, 4, false);
    Renderbuffer colour(GL_RGBA8, 4, 4);
    Renderbuffer depth(kDepth24, 4, 4);
    Renderbuffer stencil(kStencil8, 4, 4);
    Framebuffer framebuffer;
    framebuffer.bind();
    framebuffer.attach(&first, 0, 0);

    expectRefusals(kSource, { { 0, limitText(limit), [&] { framebuffer.attach(&last, 0, limit); } } });
    EXPECT_EQ(0, attachedName(kColor0 + limit - 1)) << "refused before any GL attachment";
    framebuffer.attach(&last, 0, limit - 1);
    EXPECT_EQ(static_cast<GLint>(last.objectID()), attachedName(kColor0 + limit - 1));
    const std::string indexText = "Color buffer index is not supported with attachment:";
    expectRefusals(kSource, {
        { 0, limitText(limit), [&] { framebuffer.detach(&last, limit); } },
        { 0, limitText(limit), [&] { framebuffer.attach(&colour, limit); } },
        { 0, limitText(limit + 3), [&] { framebuffer.detach(&colour, limit + 3); } },
        { 0, indexText + TokenName(kDepth), [&] { framebuffer.attach(&depth, 1); } },
        { 0, indexText + TokenName(kDepth), [&] { framebuffer.detach(&depth, 1); } },
        { 0, indexText + TokenName(kStencil), [&] { framebuffer.attach(&stencil, 1); } },
    });
    framebuffer.detach(&last, limit - 1);
    EXPECT_EQ(0, attachedName(kDepth));

    if (limit > 1)
    {
        framebuffer.attach(&colour, 1);
        EXPECT_EQ(static_cast<GLint>(colour.objectID()), attachedName(kColor0 + 1));
        framebuffer.detach(&colour, 1);
    }
    framebuffer.attach(&depth, 0);
    EXPECT_EQ(static_cast<GLint>(depth.objectID()), attachedName(kDepth));
    EXPECT_EQ(0, attachedName(kStencil)) << "a depth-only renderbuffer takes no stencil point";
}

TEST_F(FramebufferGLTest, BindingRefusalsComeInTheirOrder)
{
    Texture2D texture(Texture::RGBA8, 4, 4, false);
    Renderbuffer renderbuffer(GL_RGBA8, 4, 4);
    Framebuffer framebuffer;
    TextureUnit::Unit(0)->bind(&texture);
    expectRefusals(kSource, { { 0, "Texture cannot be bound during attachment to framebuffer object",
                                [&] { framebuffer.attach(&texture, 0, 99); } } });
    TextureUnit::Unit(0)->bind2DDefault();
    expectRefusals(kSource, {
        { 0, "Framebuffer Objects must be bound to attach objects", [&] { framebuffer.attach(&texture, 0, 99); } },
        { 0, "Framebuffer Objects must be bound to attach objects", [&] { framebuffer.attach(&renderbuffer, 99); } },
        { 0, "Framebuffer Object must be bound before detaching objects", [&] { framebuffer.detach(&texture, 99); } },
        { 0, "Framebuffer Object must be bound before detaching objects", [&] { framebuffer.detach(&renderbuffer, 99); } },
        { 0, "Framebuffer object must be bound before calling unbind()", [&] { framebuffer.unbind(); } },
        { 0, "Framebuffer object must be bound before calling statusOkay()", [&] { framebuffer.statusOkay(nullptr); } },
    });
    expectRefusals("ogl/Renderbuffer.cpp",
                   { { 0, "Framebuffer object must be bound before calling unbind()", [&] { renderbuffer.unbind(); } } });
}

TEST_F(FramebufferGLTest, AnIncompleteAttachmentIsReportedByItsStatusName)
{
    Texture2D texture(Texture::RGBA8, 4, 4, false);
    Framebuffer framebuffer;
    framebuffer.bind();
    // Level 5 of a 4 x 4 texture has no image.
    const OruTest::Raised raised = OruTest::raisedBy([&] { framebuffer.attach(&texture, 5, 0); });
    unsigned int status = 0;
    framebuffer.statusOkay(&status);
    EXPECT_EQ(OruTest::Raised::at(kSource, raised.line, std::string("Framebuffer attachment error: ") + TokenName(status)),
              raised);
    EXPECT_NE(0x8CD5u, status);
    EXPECT_EQ(static_cast<GLint>(texture.objectID()), attachedName(kColor0)) << "the attachment is not undone";
}

TEST_F(FramebufferGLTest, RenderbufferSizeLimitsAndTheBindingPutBack)
{
    const int limit = Renderbuffer::maxSize();
    ASSERT_GT(limit, 0);
    const std::string limitText = std::to_string(limit);
    EXPECT_NO_THROW(Renderbuffer(GL_RGBA8, limit, 1));
    EXPECT_NO_THROW(Renderbuffer(GL_RGBA8, 1, limit));
    const std::string tooLarge = "Can't create renderbuffer of width " + std::to_string(limit + 1);
    expectRefusals("ogl/Renderbuffer.cpp", {
        { 0, tooLarge + ", a max width of " + limitText + " is supported", [&] { Renderbuffer(GL_RGBA8, limit + 1, 1); } },
        { 0, tooLarge + ", a max height of " + limitText + " is supported", [&] { Renderbuffer(GL_RGBA8, 1, limit + 1); } },
    });

    Renderbuffer bound(GL_RGBA8, 2, 2);
    bound.bind();
    Renderbuffer other(kDepth24, 3, 5);
    EXPECT_TRUE(bound.isBound());
    EXPECT_EQ(kDepth24, other.format());
    EXPECT_EQ(3, other.width());
    EXPECT_EQ(5, other.height());
    bound.unbind();
    EXPECT_EQ(0, OruTest::glInteger(kRenderbufferBinding));
}
