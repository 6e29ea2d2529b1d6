#pragma once

#include <QList>
#include <QString>

class GDALDataset;

namespace vlt::geodata {

/// One of the images in a file that holds several.
struct Subdataset
{
    QString name; ///< the name by which the geodata library opens it
    QString description;
};

/// The images that a dataset lists, in its order; none for a plain image.
QList<Subdataset> subdatasets(GDALDataset &dataset);

} // namespace vlt::geodata
