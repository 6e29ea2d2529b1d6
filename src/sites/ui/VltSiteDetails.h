#pragma once

#include "sites/SiteFileInfo.h"
#include "tables/ui/VltTableDetails.h"

/// The details of a table of sites.
class VltSiteDetails : public VltTableDetails
{
    Q_OBJECT

public:
    using VltTableDetails::VltTableDetails;

    /// Shows the properties that are known without reading the table's rows.
    void showFile(const vlt::sites::SiteFileInfo &file);

    /// Starts to check the rows of the shown table, unless that was done before.
    ///
    /// @param connection  the table with its coordinate systems and an absolute path
    /// @param systems     the same coordinate systems
    void check(const QString &connection, const vlt::geodata::SystemPair &systems);

private:
    QString nonePlacedText() const override;
    QString placedText() const override;
};
