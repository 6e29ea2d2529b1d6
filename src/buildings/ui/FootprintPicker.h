#pragma once

#include "buildings/ui/PathPicker.h"
#include "geodata/PolygonSource.h"

#include <memory>

class QComboBox;

/// The buildings of the source page: the vector file, its layer, the field of the heights.
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

    /// Opens a vector file; an empty path only closes what was open. A box tells where it cannot be
    /// used.
    ///
    /// @param silent  without a box where the file cannot be opened
    void open(const QString &path, bool silent);

    /// Offers the fields of a layer after those already offered, and finds out where it lies. A
    /// negative index empties the list of layers.
    void chooseLayer(int index);

    /// Finds out where the layer lies unless that is known; false where the user stops it.
    bool locate();

    /// Null where none is chosen.
    const vlt::geodata::PolygonLayer *layer() const;

    /// Nothing where it is not known.
    const std::optional<vlt::geodata::Extent> &extent() const { return m_extent; }

private:
    void clear();
    void offerLayers(const QString &path);
    void readExtent(int index);

    Widgets m_widgets;
    std::shared_ptr<vlt::geodata::PolygonSource> m_source; ///< null when none is open
    std::optional<vlt::geodata::Extent> m_extent;          ///< of the chosen layer
};
