#pragma once

#include "buildings/FileEntry.h"

#include <QListView>

/// The images of a layer in the order of their heights, each with its height below it.
class VltImageLegend : public QListView
{
    Q_OBJECT

public:
    explicit VltImageLegend(QWidget *parent = nullptr);

    /// Shows images; without any the legend is hidden.
    void setImages(QList<vlt::buildings::FileEntry> images);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    class Model;
    Model *m_images;
};
