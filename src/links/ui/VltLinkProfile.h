#pragma once

#include "geodata/LinkProfile.h"
#include "links/ui/ChosenLink.h"

#include <QTimer>
#include <QWidget>

#include <optional>

namespace vlt::links {
class ProfileView;
}
class QLabel;
class QToolButton;

/// The profile of a link, with its figures in words, to be copied and saved. Hidden without a link.
///
/// The terrain is read beside the user interface; the former profile stays until then, for a
/// moment.
class VltLinkProfile : public QWidget
{
    Q_OBJECT

public:
    explicit VltLinkProfile(QWidget *parent = nullptr);

    /// Shows the profile of a link; during a read only the last wish counts. Nothing hides the
    /// panel.
    void showLink(const std::optional<vlt::links::ChosenLink> &chosen);

private:
    void buildHeading();
    void read();
    void take(const std::optional<vlt::geodata::LinkProfile> &profile);
    void showFigures(const QString &figures);
    void fold(bool open);
    void copy();
    void saveAs();

    QToolButton *m_pwTbFold;
    QToolButton *m_pwTbCopy;
    QToolButton *m_pwTbSave;
    QLabel *m_pwLblFigures;
    vlt::links::ProfileView *m_view;
    std::optional<vlt::links::ChosenLink> m_wanted;
    QTimer m_patience; ///< a read that ends before it expires leaves the former profile visible
    bool m_isReading = false;
    bool m_isOutdated = false; ///< another link is wanted than the one being read
};
