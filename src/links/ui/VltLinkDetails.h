#pragma once

#include "geodata/LinkCheck.h"
#include "links/LinkFileInfo.h"
#include "tables/ui/VltTableDetails.h"

namespace vlt::links {
class LinkReportModel;
}

/// The details of a table of links, with a table of the links and how much the terrain leaves of
/// their paths.
class VltLinkDetails : public VltTableDetails
{
    Q_OBJECT

public:
    explicit VltLinkDetails(QWidget *parent = nullptr);

    /// Shows what is known of a table without reading its rows.
    void showFile(const vlt::links::LinkFileInfo &file);

    /// Starts to read and judge the links of the table shown, unless that was done already.
    ///
    /// @param connection  the table with its coordinate systems and an absolute path
    /// @param systems     the same systems
    void check(const QString &connection, const vlt::geodata::SystemPair &systems,
               const vlt::geodata::LinkJudging &judging);

private:
    void forgetRows() override;
    QString nonePlacedText() const override;
    QString placedText() const override;

    void showLinks(const QList<vlt::geodata::LinkReport> &links);
    void showClearance(const vlt::geodata::LinkCheck &check, bool hasTerrain);

    vlt::links::LinkReportModel *m_linkModel;
    QTableView *m_pwTvLinks;
};
