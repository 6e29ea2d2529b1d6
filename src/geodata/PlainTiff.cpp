#include "geodata/PlainTiff.h"

#include <QByteArray>
#include <QFile>
#include <QtEndian>

namespace vlt::geodata {

namespace {

constexpr qsizetype HeaderBytes = 8;
constexpr qsizetype CountBytes = 2;
constexpr qsizetype EntryBytes = 12;
constexpr qsizetype LinkBytes = 4;
constexpr quint16 SubdirectoriesTag = 330;
constexpr quint16 MetadataTag = 42112; ///< GDAL_METADATA

/// The bytes of a TIFF file that hold its directories; most of them lie at its start.
class TiffBytes
{
public:
    explicit TiffBytes(const QString &path) : m_file(path)
    {
        constexpr qint64 Start = 4096;
        if (m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
            m_start = m_file.read(Start);
        m_isBigEndian = m_start.startsWith(QByteArray("MM\0*", 4));
    }

    bool isTiff() const { return m_isBigEndian || m_start.startsWith(QByteArray("II*\0", 4)); }

    /// The bytes at an offset; fewer than `count` at the end of the file.
    QByteArray at(qint64 offset, qsizetype count)
    {
        if (offset + count <= m_start.size())
            return m_start.mid(offset, count);
        return m_file.seek(offset) ? m_file.read(count) : QByteArray();
    }

    template<typename T>
    T number(const QByteArray &bytes, qsizetype offset) const
    {
        const char *place = bytes.constData() + offset;
        return m_isBigEndian ? qFromBigEndian<T>(place) : qFromLittleEndian<T>(place);
    }

private:
    QFile m_file;
    QByteArray m_start;
    bool m_isBigEndian = false;
};

} // namespace

bool isPlainTiff(const QString &path)
{
    TiffBytes tiff(path);
    const QByteArray header = tiff.at(0, HeaderBytes);
    if (!tiff.isTiff() || header.size() < HeaderBytes)
        return false;
    const qint64 directory = tiff.number<quint32>(header, LinkBytes);
    const QByteArray count = tiff.at(directory, CountBytes);
    if (count.size() < CountBytes)
        return false;
    const qsizetype entryBytes = tiff.number<quint16>(count, 0) * EntryBytes;
    const QByteArray entries = tiff.at(directory + CountBytes, entryBytes + LinkBytes);
    if (entries.size() < entryBytes + LinkBytes)
        return false;
    for (qsizetype entry = 0; entry < entryBytes; entry += EntryBytes) {
        const auto tag = tiff.number<quint16>(entries, entry);
        if (tag == MetadataTag || tag == SubdirectoriesTag)
            return false;
    }
    const auto next = tiff.number<quint32>(entries, entryBytes);
    return entryBytes > 0 && next == 0;
}

} // namespace vlt::geodata
