#pragma once

#include <QList>
#include <QString>
#include <QWidget>

class QSettings;

/// Base of panels whose values are kept in the settings: combos by their index, check boxes, spin
/// boxes and colour buttons.
class RememberedPanel : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Takes the values under "<group>/...". A widget keeps its value where there is none, or none
    /// that it can take. Emits nothing.
    void restoreSettings(const QSettings &settings, const QString &group);
    void saveSettings(QSettings &settings, const QString &group) const;

Q_SIGNALS:
    /// The user changed a value.
    void changed();

protected:
    struct Remembered
    {
        QString key;
        QWidget *widget = nullptr;
    };

    /// Takes the widgets, all of those whose values the panel has. Called once.
    void remember(const QList<Remembered> &widgets);

private:
    void announceChanges(QWidget *widget);

    QList<Remembered> m_remembered;
};
