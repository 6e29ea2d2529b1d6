#pragma once

#include "buildings/ValueSummary.h"

#include <QImage>
#include <QScrollArea>

class QLabel;
class QPushButton;

/// The legend of a colour map under its name, and the summary of the values of the buildings beside
/// it. The legend is as large as the space allows; below a readable size it is scrolled.
class VltLegendView : public QScrollArea
{
    Q_OBJECT

public:
    explicit VltLegendView(QWidget *parent = nullptr);

    /// Shows a legend without a summary.
    ///
    /// @param imagePath  file in the layer's folder; empty for no legend
    void showLegend(const QString &colorMapName, const QString &imagePath);

    /// Shows a button to save the values.
    void offerSaving();

    /// Shows a summary.
    void showSummary(const vlt::buildings::ValueSummary &summary);

Q_SIGNALS:
    /// The button to save the values was pressed.
    void saveRequested();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void fit();

    QLabel *m_text;
    QLabel *m_summary;
    QPushButton *m_pwPbSave;
    QString m_colorMapName;
    QImage m_legend;
};
