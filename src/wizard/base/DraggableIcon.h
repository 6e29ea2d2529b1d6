#pragma once

#include "platform/Result.h"

#include <QLabel>
#include <QPropertyAnimation>
#include <QString>

#include <functional>
#include <optional>

class QMimeData;

/// The icon from which the user drags the finished layer file into the builder. Disabled until
/// there is a file; a new file makes it bounce.
///
/// Who has no mouse copies the file with Ctrl+C or from the context menu.
class DraggableIcon : public QLabel
{
    Q_OBJECT
    /// Radius of the disc that draws attention, in pixels.
    Q_PROPERTY(int radius READ radius WRITE setRadius)

public:
    explicit DraggableIcon(const QPixmap &pixmap, QWidget *parent = nullptr,
                           Qt::WindowFlags flags = {});

    /// Sets the file to drag; an empty path disables the icon.
    void setLayerFile(const QString &path);
    const QString &layerFile() const { return m_layerFile; }

    /// Writes the layer for good, with all files that it names.
    ///
    /// @param target  of the layer file
    /// @return        nothing where there is none and the user knows why
    using Saver = std::function<vlt::Stoppable<vlt::Done>(const QString &target)>;

    /// Without one "Save as" copies the layer file: then it must name no file that will not stay.
    void setSaver(Saver saver) { m_saver = std::move(saver); }

    int radius() const { return m_radius; }
    void setRadius(int radius);

    /// The picture that hangs on the pointer while the icon is dragged: the longer side 48 pixels,
    /// or the width where both are equal.
    static QPixmap dragImage(const QPixmap &pixmap);

protected:
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    QMimeData *layerData() const;
    void copyToClipboard() const;
    void saveAs();
    vlt::Result<vlt::Done> copyTo(const QString &target) const;
    void openMenu(const QPoint &position);
    void playAttention();
    void endAttention();

    QString m_layerFile;
    Saver m_saver;
    QPropertyAnimation m_attention;
    int m_radius = 0;
};
