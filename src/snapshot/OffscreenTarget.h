#pragma once

#include <QImage>
#include <QSize>

#include <osg/GLExtensions>

namespace vlt::snapshot {

/// A frame buffer in graphics memory for a picture of any size. All functions have to be called
/// with the same current context, which also releases the memory when it is destroyed.
class OffscreenTarget
{
public:
    explicit OffscreenTarget(const osg::GLExtensions &functions) : m_functions(functions) {}

    /// Creates the frame buffer, with four samples a pixel if the system supports it. False if
    /// there is not enough memory for the size.
    bool create(const QSize &size);

    /// The frame buffer to draw into.
    unsigned int frameBuffer() const { return m_drawn; }

    /// The picture that was drawn; null if it cannot be read.
    QImage read() const;

private:
    unsigned int makeFrameBuffer(int samples, bool withDepth) const;

    const osg::GLExtensions &m_functions;
    QSize m_size;
    unsigned int m_drawn = 0;    ///< with depth, one or more samples a pixel
    unsigned int m_resolved = 0; ///< one sample a pixel
};

} // namespace vlt::snapshot
