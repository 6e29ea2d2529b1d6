#pragma once

#include "platform/AtomicFile.h"
#include "wizard/base/BasePage.h"

#include <functional>
#include <optional>

class DraggableIcon;
class QBoxLayout;
class QLabel;
class VltParameterPanel;

/// A page on which values become a layer: panels of values, a preview, and the icon of the finished
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

    /// From now on layers are made.
    void initializePage() override;

    /// Asks whether the wizard may end.
    bool validatePage() override;
    int nextId() const override { return -1; }

    /// The values of the panels.
    void saveSettings() override;
    void restoreSettings() override;

public Q_SLOTS:
    /// A value has changed: the layer is made again.
    virtual void updatePreview();

protected:
    /// The result side of a page's form, with the words of its icon.
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

    /// Makes the layer, and once more for changes that arrive meanwhile from below a message box.
    /// Whether there is a layer.
    ///
    /// @param readInput  reads what the layer is made of, as the first step; also done while the
    ///                   page was not shown yet. Not called while another layer is being made.
    bool makeLayer(const std::function<void()> &readInput = {});

    /// There is no layer any more.
    ///
    /// @param why  for the user; empty where a box told of it
    void leaveLayer(const QString &why);

    /// The layer is not that of the values any more.
    void outdate();
    bool isShown() const { return m_state != State::Hidden; }
    bool isMaking() const { return m_state == State::Making || m_state == State::MakingOutdated; }
    bool isOutdated() const { return m_state == State::Outdated; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// How far the page is with its layer.
    enum class State {
        Hidden,         ///< the page was not shown yet
        Outdated,       ///< the layer is not that of the values
        Making,         ///< the layer is being made
        MakingOutdated, ///< the same, and a value has changed since it began
        Current         ///< the layer is that of the values, or it is known why there is none
    };

    /// The first step of a layer, also where the values make none.
    virtual void beginLayer() {}

    /// Why the values make no layer, for the user; nothing where they make one. An empty text where
    /// there is nothing to say.
    virtual std::optional<QString> obstacle() const = 0;

    /// Writes the layer.
    ///
    /// @param path  of the layer file, which its other files lie beside
    /// @return      nothing where there is none and the user knows why
    virtual vlt::Stoppable<vlt::Done> writeLayer(const QString &path,
                                                 vlt::platform::Access access) = 0;

    /// Whether a change that arrives while a layer is made is followed by another layer.
    virtual bool followsChanges() const { return true; }

    /// Shows the layer that was just written.
    virtual void showLayer(const QString &path) = 0;

    /// Shows that there is none; `why` as above.
    virtual void showNoLayer(const QString &why) = 0;

    bool makeOnce();

    Names m_names;
    QList<VltParameterPanel *> m_panels;
    DraggableIcon *m_dragIcon = nullptr;
    QLabel *m_dragText = nullptr;
    State m_state = State::Hidden;
};
