#include "preview/SmoothFrame.h"

#include <QElapsedTimer>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

namespace {

constexpr int SamplesPerPixel = 4;
constexpr qint64 FastMs = 16;

} // namespace

void SmoothFrame::draw(osgViewer::GraphicsWindowEmbedded &window, const QSize &pixels,
                       unsigned view, const std::function<void()> &frame)
{
    QElapsedTimer clock;
    clock.start();
    if (!m_buffer || m_buffer->size() != pixels) {
        QOpenGLFramebufferObjectFormat format;
        format.setSamples(SamplesPerPixel);
        format.setAttachment(QOpenGLFramebufferObject::CombinedDepthStencil);
        m_buffer = std::make_unique<QOpenGLFramebufferObject>(pixels, format);
    }
    const bool isUsable = m_buffer->isValid() && m_buffer->bind();
    // cameras within the scene return to this buffer
    window.setDefaultFboId(isUsable ? m_buffer->handle() : view);
    frame();
    QOpenGLFunctions &functions = *QOpenGLContext::currentContext()->functions();
    if (isUsable) {
        QOpenGLFramebufferObject::blitFramebuffer(nullptr, m_buffer.get());
        functions.glBindFramebuffer(GL_FRAMEBUFFER, view);
    }
    functions.glFinish();
    m_isFast = clock.elapsed() <= FastMs;
}
