#include "snapshot/OffscreenTarget.h"

#include <osg/FrameBufferObject>
#include <osg/GL>

#include <algorithm>
#include <array>

namespace vlt::snapshot {

namespace {

constexpr int WantedSamples = 4;

void forgetErrors()
{
    constexpr int mostKept = 16; // a lost context reports errors without end
    for (int i = 0; i < mostKept && glGetError() != GL_NO_ERROR; ++i)
        ;
}

} // namespace

unsigned int OffscreenTarget::makeFrameBuffer(int samples, bool withDepth) const
{
    forgetErrors();
    GLuint frame = 0;
    std::array<GLuint, 2> stores{};
    m_functions.glGenFramebuffers(1, &frame);
    m_functions.glBindFramebuffer(GL_FRAMEBUFFER_EXT, frame);
    const int count = withDepth ? 2 : 1;
    m_functions.glGenRenderbuffers(count, stores.data());
    for (int i = 0; i < count; ++i) {
        const GLuint store = stores.at(static_cast<std::size_t>(i));
        const GLenum format = i == 0 ? GL_RGBA8 : GL_DEPTH_COMPONENT24;
        m_functions.glBindRenderbuffer(GL_RENDERBUFFER_EXT, store);
        if (samples > 0)
            m_functions.glRenderbufferStorageMultisample(GL_RENDERBUFFER_EXT, samples, format,
                                                         m_size.width(), m_size.height());
        else
            m_functions.glRenderbufferStorage(GL_RENDERBUFFER_EXT, format, m_size.width(),
                                              m_size.height());
        m_functions.glFramebufferRenderbuffer(
            GL_FRAMEBUFFER_EXT, i == 0 ? GL_COLOR_ATTACHMENT0_EXT : GL_DEPTH_ATTACHMENT_EXT,
            GL_RENDERBUFFER_EXT, store);
    }
    if (glGetError() == GL_NO_ERROR &&
        m_functions.glCheckFramebufferStatus(GL_FRAMEBUFFER_EXT) == GL_FRAMEBUFFER_COMPLETE_EXT)
        return frame;
    m_functions.glDeleteFramebuffers(1, &frame);
    m_functions.glDeleteRenderbuffers(count, stores.data());
    return 0;
}

bool OffscreenTarget::create(const QSize &size)
{
    m_size = size;
    std::array<GLint, 2> largest{};
    glGetIntegerv(GL_MAX_VIEWPORT_DIMS, largest.data());
    if (!m_functions.isFrameBufferObjectSupported || size.width() > largest[0] ||
        size.height() > largest[1])
        return false;
    GLint samples = 0;
    if (m_functions.isRenderbufferMultisampleSupported())
        glGetIntegerv(GL_MAX_SAMPLES_EXT, &samples);
    samples = std::min(samples, WantedSamples);
    if (samples > 0)
        m_drawn = makeFrameBuffer(samples, true);
    if (m_drawn == 0)
        m_drawn = makeFrameBuffer(0, true);
    m_resolved = makeFrameBuffer(0, false);
    return m_drawn != 0 && m_resolved != 0;
}

QImage OffscreenTarget::read() const
{
    m_functions.glBindFramebuffer(GL_READ_FRAMEBUFFER_EXT, m_drawn);
    m_functions.glBindFramebuffer(GL_DRAW_FRAMEBUFFER_EXT, m_resolved);
    m_functions.glBlitFramebuffer(0, 0, m_size.width(), m_size.height(), 0, 0, m_size.width(),
                                  m_size.height(), GL_COLOR_BUFFER_BIT, GL_NEAREST);
    m_functions.glBindFramebuffer(GL_FRAMEBUFFER_EXT, m_resolved);
    QImage image(m_size, QImage::Format_RGBX8888);
    if (image.isNull())
        return image;
    forgetErrors();
    glPixelStorei(GL_PACK_ALIGNMENT, 4);
    glPixelStorei(GL_PACK_ROW_LENGTH, 0);
    glReadPixels(0, 0, m_size.width(), m_size.height(), GL_RGBA, GL_UNSIGNED_BYTE, image.bits());
    if (glGetError() != GL_NO_ERROR)
        return {};
    return image.mirrored().convertToFormat(QImage::Format_RGB888);
}

} // namespace vlt::snapshot
