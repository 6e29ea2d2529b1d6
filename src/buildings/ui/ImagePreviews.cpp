#include "buildings/ui/ImagePreviews.h"

#include "geodata/ImagePreview.h"
#include "language/ErrorText.h"
#include "wizard/base/BusyWait.h"

namespace vlt::buildings {

namespace {

constexpr int SidePx = 96;
constexpr int MaxKnown = 1000;
constexpr qsizetype MaxWanted = 100; ///< more than a screen shows

QImage pictureOf(const geodata::ImagePreview &preview)
{
    if (preview.rgba.isEmpty())
        return {};
    constexpr int Channels = 4;
    return QImage(reinterpret_cast<const uchar *>(preview.rgba.constData()), preview.columns,
                  preview.rows, Channels * preview.columns, QImage::Format_RGBA8888)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

ImagePreviews::ImagePreviews(QObject *parent) : QObject(parent), m_known(MaxKnown) {}

const ImagePreviews::Preview *ImagePreviews::of(const QString &name)
{
    if (const Preview *known = m_known.object(name))
        return known;
    m_wanted.removeAll(name);
    m_wanted.append(name);
    if (m_wanted.size() > MaxWanted)
        m_wanted.removeFirst();
    readNext();
    return nullptr;
}

void ImagePreviews::forget()
{
    ++m_round;
    m_known.clear();
    m_wanted.clear();
}

void ImagePreviews::readNext()
{
    if (m_isReading || m_wanted.isEmpty())
        return;
    m_isReading = true;
    const QString name = m_wanted.takeLast();
    using Read = Result<geodata::ImagePreview>;
    wizard::valueBeside<Read>(
        this, [name] { return geodata::readImagePreview(name, SidePx); },
        [this, name, round = m_round](const Read &read) {
            m_isReading = false;
            if (round == m_round) {
                m_known.insert(name,
                               read ? new Preview{pictureOf(read.value()), read.value().summary, {}}
                                    : new Preview{{}, {}, language::explained(read.error())});
                m_wanted.removeAll(name);
                Q_EMIT arrived(name);
            }
            readNext();
        });
}

} // namespace vlt::buildings
