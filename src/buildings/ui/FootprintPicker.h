#pragma once

#include "buildings/ui/PathPicker.h"
#include "geodata/PolygonSource.h"

#include <functional>
#include <memory>

class QComboBox;

/// The choice of the buildings on the source page: the vector file, its layer, the field of the
/// heights.
class FootprintPicker : public PathPicker
{
    Q_OBJECT

public:
    struct Widgets
    {
        QLineEdit *path = nullptr;
        QComboBox *layer = nullptr;  ///< the data of the entries are names of layers
        QComboBox *height = nullptr; ///< the data of the entries are names of fields
    };

    FootprintPicker(QWidget *page, const Widgets &widgets, bool &isBusy);

    /// Opens a vector file; an empty path only closes the current one. A message box reports a file
    /// that cannot be used.
    ///
    /// @param silent  without a box if the file cannot be opened
    void open(const QString &path, bool silent);

    /// Opens a vector file that was dropped. One that cannot be used is reported and leaves the
    /// current one.
    void openDropped(const QString &path);

    /// Adds the fields of a layer to the list of fields and finds its extent. A negative index
    /// empties the list of layers.
    void chooseLayer(int index);

    /// Finds the extent of the layer unless it is known; false if the user stops it.
    bool locate();

    /// The refusal of an SQL condition that is wrong or selects no feature of the layer; none for
    /// an empty one and if the user stops the search.
    std::optional<vlt::Error> wrongCondition(const QString &condition) const;

    /// The chosen layer; null if none is chosen.
    const vlt::geodata::PolygonLayer *layer() const;

    /// The extent of the chosen layer; none if it is not known.
    const std::optional<vlt::geodata::Extent> &extent() const { return m_extent; }

private:
    void clear();
    /// Opens a file beside the interface; null if it cannot be used, which a message box reports.
    ///
    /// @param before  called on the other thread first
    std::shared_ptr<vlt::geodata::PolygonSource> read(const QString &path, bool silent,
                                                      const std::function<void()> &before) const;
    /// Makes a source the current one and shows its layers; null leaves none.
    void offerLayers(const QString &path, std::shared_ptr<vlt::geodata::PolygonSource> source);
    void readExtent(int index);

    Widgets m_widgets;
    std::shared_ptr<vlt::geodata::PolygonSource> m_source; ///< null if none is open
    std::optional<vlt::geodata::Extent> m_extent;          ///< of the chosen layer
};
