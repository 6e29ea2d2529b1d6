#pragma once

#include <QImage>
#include <QScrollArea>

class QLabel;

/// The legend of a colour map under its name: as large as there is room for, down to what can still
/// be read, then it is scrolled.
class VltLegendView : public QScrollArea
{
    Q_OBJECT

public:
    explicit VltLegendView(QWidget *parent = nullptr);

    /// @param imagePath  as written beside the layer; empty for no legend
    void showLegend(const QString &colorMapName, const QString &imagePath);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void fit();

    QLabel *m_text;
    QString m_colorMapName;
    QImage m_legend;
};
