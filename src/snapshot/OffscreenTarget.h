#pragma once

#include <QImage>
#include <QSize>

#include <osg/GLExtensions>

namespace vlt::snapshot {

/// A place in the graphics memory to draw a picture of any size into. Every function is called with
/// the same context current, which also takes all of it along when it goes.
class OffscreenTarget
{
public:
    explicit OffscreenTarget(const osg::GLExtensions &functions) : m_functions(functions) {}

    /// Makes the place, with four samples a pixel where the system has them. False where it has
    /// no room for the size.
    bool create(const QSize &size);

    /// What drawing has to be directed to.
    unsigned int frameBuffer() const { return m_drawn; }

    /// What was drawn; null where it cannot be read.
    QImage read() const;

private:
    unsigned int makeFrameBuffer(int samples, bool withDepth) const;

    const osg::GLExtensions &m_functions;
    QSize m_size;
    unsigned int m_drawn = 0;    ///< with depth, perhaps with samples
    unsigned int m_resolved = 0; ///< one sample a pixel
};

} // namespace vlt::snapshot
