#pragma once

#include "buildings/Stretch.h"

#include <QObject>
#include <QStringList>

#include <optional>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLineEdit;
class QPushButton;
class QWidget;

/// The choice of the values that colours are stretched over.
class StretchControls : public QObject
{
    Q_OBJECT

public:
    struct Widgets
    {
        QCheckBox *isStretched = nullptr;
        QComboBox *over = nullptr; ///< the kinds of a stretch, in their order
        QWidget *percentile = nullptr;
        QDoubleSpinBox *lowPercent = nullptr;
        QDoubleSpinBox *highPercent = nullptr;
        QWidget *range = nullptr;
        QLineEdit *minimum = nullptr;
        QLineEdit *maximum = nullptr;
        QWidget *shared = nullptr;
        QLineEdit *others = nullptr;
        QPushButton *chooseOthers = nullptr;
    };

    /// @param lastUsedDir  start folder of the dialog
    StretchControls(QWidget *panel, const Widgets &widgets, const QString &lastUsedDir);

    /// What has values to stretch the colours over.
    enum class Source { Raster, NumberField, TextField };

    /// Shows the choices for a source; for texts there are none.
    void show(Source source);

    /// What the colours are stretched over; none while the choice is not complete.
    std::optional<vlt::buildings::Stretch> stretch() const;
    void setStretch(const vlt::buildings::Stretch &stretch);

Q_SIGNALS:
    void changed();

private:
    void showDetails();
    void setOthers(const QStringList &files);
    void chooseOthers();

    QWidget *m_panel;
    Widgets m_widgets;
    const QString &m_lastUsedDir;
    QStringList m_others; ///< images that share the stretching
    Source m_source = Source::Raster;
};
