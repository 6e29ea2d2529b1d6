#pragma once

#include <QOpenGLFramebufferObject>
#include <QSize>

#include <osgViewer/GraphicsWindow>

#include <functional>
#include <memory>

/// Draws frames with smooth edges, in a buffer with several samples per pixel that is then copied
/// into the buffer of the view. On a software renderer such a frame takes twice as long, so the
/// view draws without it while the camera moves. All functions need the context of the view.
class SmoothFrame
{
public:
    /// Draws a frame into the current buffer.
    ///
    /// @param view   number of the view's frame buffer
    /// @param frame  draws the scene into the bound frame buffer
    void draw(osgViewer::GraphicsWindowEmbedded &window, const QSize &pixels, unsigned view,
              const std::function<void()> &frame);

    /// Whether the last one was so fast that it does not matter.
    bool isFast() const { return m_isFast; }

    /// Releases the buffer.
    void release() { m_buffer.reset(); }

private:
    std::unique_ptr<QOpenGLFramebufferObject> m_buffer;
    bool m_isFast = true;
};
