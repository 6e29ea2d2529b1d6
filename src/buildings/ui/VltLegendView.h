#pragma once

#include <QImage>
#include <QScrollArea>

class QLabel;

/// The legend of a colour map under its name. It is as large as the space allows; below a readable
/// size it is scrolled.
class VltLegendView : public QScrollArea
{
    Q_OBJECT

public:
    explicit VltLegendView(QWidget *parent = nullptr);

    /// @param imagePath  file in the layer's folder; empty for no legend
    void showLegend(const QString &colorMapName, const QString &imagePath);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void fit();

    QLabel *m_text;
    QString m_colorMapName;
    QImage m_legend;
};
