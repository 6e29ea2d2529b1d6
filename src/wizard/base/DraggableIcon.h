#pragma once

#include "platform/Result.h"

#include <QLabel>
#include <QPropertyAnimation>
#include <QString>

#include <functional>
#include <optional>

class QMimeData;

/// The icon of the finished layer file, which the user drags into the builder. It is disabled until
/// there is a file; a new file makes it bounce.
///
/// Users without a mouse copy the file with Ctrl+C or from the context menu. Copied are also the
/// files that the layer names, so that it is complete where it is pasted as files.
class DraggableIcon : public QLabel
{
    Q_OBJECT
    /// Radius of the disc that draws attention, in pixels.
    Q_PROPERTY(int radius READ radius WRITE setRadius)

public:
    explicit DraggableIcon(const QPixmap &pixmap, QWidget *parent = nullptr,
                           Qt::WindowFlags flags = {});

    /// Sets the file to drag; an empty path disables the icon. The layer has no companions then.
    void setLayerFile(const QString &path);

    /// Sets the files that are copied together with the layer file.
    void setCompanions(const QStringList &paths) { m_companions = paths; }

    const QString &layerFile() const { return m_layerFile; }

    /// Saves the layer with all files that it names.
    ///
    /// @param target  path of the layer file
    /// @return        none if nothing was saved and the user knows the reason
    using Saver = std::function<vlt::Stoppable<vlt::Done>(const QString &target)>;

    /// Sets the function for "Save as". Without one the layer file is copied, which is right only
    /// if it names no temporary files.
    void setSaver(Saver saver) { m_saver = std::move(saver); }

    int radius() const { return m_radius; }
    void setRadius(int radius);

    /// The image at the pointer while the icon is dragged; its longer side has 48 pixels.
    static QPixmap dragImage(const QPixmap &pixmap);

protected:
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    static QMimeData *dataOf(const QStringList &files);
    void copyToClipboard() const;
    void saveAs();
    vlt::Result<vlt::Done> copyTo(const QString &target) const;
    void openMenu(const QPoint &position);
    void playAttention();
    void endAttention();

    QString m_layerFile;
    QStringList m_companions;
    Saver m_saver;
    QPropertyAnimation m_attention;
    int m_radius = 0;
};
