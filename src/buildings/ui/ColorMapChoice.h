#pragma once

#include <QComboBox>

/// The list of colour maps of a panel: those of the installation, then those that the user added.
class ColorMapChoice
{
public:
    explicit ColorMapChoice(QComboBox *combo);

    /// Replaces the list by the colour maps of an installation.
    void listInstalled(const QString &installDir);

    /// Path of the chosen colour map; empty if the list is empty. The file may be missing.
    QString path() const { return m_combo->currentData().toString(); }

    /// Chooses a colour map, which is added if the list does not have it. A message box reports a
    /// file that is not a colour map.
    ///
    /// @param parent  of the box
    void open(const QString &path, QWidget *parent);

    /// Adds the user's colour maps of the settings and chooses the remembered one.
    void loadSettings(const QString &prefix);
    void saveSettings(const QString &prefix) const;

private:
    int add(const QString &name, const QString &path);

    QComboBox *m_combo;
    int m_installedCount = 0;
};
