#pragma once

#include "geodata/RasterSource.h"

#include <QCache>
#include <QImage>
#include <QObject>
#include <QStringList>

#include <optional>

namespace vlt::buildings {

/// Small pictures of images, read beside the interface when they are first asked for. What was
/// asked for last, and is therefore on the screen, is read first.
class ImagePreviews : public QObject
{
    Q_OBJECT

public:
    struct Preview
    {
        QImage picture;                                ///< null if there is none
        std::optional<geodata::RasterSummary> summary; ///< none for an image that cannot be read
        QString problem;                               ///< why it cannot be read; else empty
    };

    explicit ImagePreviews(QObject *parent = nullptr);

    /// What is known of an image; null, and read soon, if nothing is known yet.
    ///
    /// @param name  of the file, or of an image in a file that holds several
    const Preview *of(const QString &name);

    /// Forgets everything, because the files may have changed.
    void forget();

Q_SIGNALS:
    /// An image has been read.
    void arrived(const QString &name);

private:
    void readNext();

    QCache<QString, Preview> m_known;
    QStringList m_wanted; ///< the last one is read next
    bool m_isReading = false;
    int m_round = 0; ///< counts the calls of forget()
};

} // namespace vlt::buildings
