#include "buildings/ui/RasterMessages.h"

#include "language/VltLanguageManager.h"
#include "wizard/base/Messages.h"

namespace vlt::buildings {

QString textOf(RasterProblem problem)
{
    switch (problem) {
    case RasterProblem::CannotOpen:
        return dico_label("MESS_ERR_OPEN_RASTERDS", "This file can't be open as a raster dataset");
    case RasterProblem::NoBands:
        return dico_label("MESS_ERR_NO_BANDS", "This image doesn't have any band");
    case RasterProblem::HoldsColors:
        return dico_label("MESS_DTM_IS_PICTURE",
                          "This raster is probably a picture: its first band holds colors, which "
                          "would be read as heights");
    case RasterProblem::NotOneBand:
        break;
    }
    return dico_label("MESS_ERR_ONLY_GRAY",
                      "The image-based coloring mode works only with one-band grey images");
}

void warnOfRaster(QWidget *parent, RasterProblem problem, const QString &path,
                  const QString &reason)
{
    messages::warning(parent, Error::asIs(textOf(problem), path, reason),
                      dico_label("MESS_ATTENTION", "Warning"), messages::PathPlace::BelowText);
}

} // namespace vlt::buildings
