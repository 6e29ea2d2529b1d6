#pragma once

#include "platform/AtomicFile.h"
#include "wizard/base/BasePage.h"

#include <functional>
#include <optional>

class DraggableIcon;
class QBoxLayout;
class QLabel;
class VltParameterPanel;

/// A page that makes a layer from values: panels of values, a preview, and the icon of the finished
/// layer. No layer is made before the page is shown.
class VltResultPage : public BasePage
{
    Q_OBJECT

public:
    struct Names
    {
        QString layer;    ///< of the temporary files: "sites"
        QString settings; ///< group of the remembered values: "AddSitePage"
    };

    VltResultPage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                  const QString &language, const Names &names);

    /// Allows the making of layers.
    void initializePage() override;

    /// Asks the user whether the wizard may end.
    bool validatePage() override;
    int nextId() const override { return -1; }

    /// Saves the values of the panels.
    void saveSettings() override;
    void restoreSettings() override;

public Q_SLOTS:
    /// Makes the layer again after a change of a value.
    virtual void updatePreview();

protected:
    /// The result side of a page's form, with the texts of its icon.
    struct ResultSide
    {
        QBoxLayout *dragRow = nullptr; ///< takes the icon
        QLabel *dragText = nullptr;    ///< the text beside it
        QString iconName;              ///< for screen readers
        QString iconToolTip;
    };

    /// Adds the icon. To be called once, in the constructor of a page.
    void setResult(const ResultSide &side);

    /// Adds a panel whose values are remembered and belong to the layer.
    void addPanel(VltParameterPanel *panel);
    const QList<VltParameterPanel *> &panels() const { return m_panels; }

    DraggableIcon *dragIcon() const { return m_dragIcon; }
    void setLayerFile(const QString &path);

    /// Makes the layer; a change during this work, while a message box is open, makes it once more.
    /// Returns whether there is a layer.
    ///
    /// @param readInput  first step: reads the inputs of the layer, even if the page was not shown
    ///                   yet. It is not called while another layer is being made.
    bool makeLayer(const std::function<void()> &readInput = {});

    /// Removes the layer.
    ///
    /// @param why  reason for the user; empty if a message box showed it
    void leaveLayer(const QString &why);

    /// Marks the layer as outdated: the values have changed.
    void outdate();
    bool isShown() const { return m_state != State::Hidden; }
    bool isMaking() const { return m_state == State::Making || m_state == State::MakingOutdated; }
    bool isOutdated() const { return m_state == State::Outdated; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// State of the page's layer.
    enum class State {
        Hidden,         ///< the page was not shown yet
        Outdated,       ///< the layer does not have the current values
        Making,         ///< the layer is being made
        MakingOutdated, ///< the layer is being made, and a value has changed since its start
        Current         ///< the layer has the current values, or cannot be made from them
    };

    /// First step of making a layer, even if no layer can be made from the values.
    virtual void beginLayer() {}

    /// Why no layer can be made from the values, as text for the user, which may be empty; none if
    /// one can.
    virtual std::optional<QString> obstacle() const = 0;

    /// Writes the layer.
    ///
    /// @param path  of the layer file; its other files are in the same folder
    /// @return      none if no layer was written and the user knows the reason
    virtual vlt::Stoppable<vlt::Done> writeLayer(const QString &path,
                                                 vlt::platform::Access access) = 0;

    /// Whether a change while a layer is made causes another layer.
    virtual bool followsChanges() const { return true; }

    /// Shows the layer that was just written.
    virtual void showLayer(const QString &path) = 0;

    /// Shows that there is no layer; `why` as in leaveLayer().
    virtual void showNoLayer(const QString &why) = 0;

    bool makeOnce();

    Names m_names;
    QList<VltParameterPanel *> m_panels;
    DraggableIcon *m_dragIcon = nullptr;
    QLabel *m_dragText = nullptr;
    State m_state = State::Hidden;
};
