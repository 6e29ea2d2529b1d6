#pragma once

#include "geodata/LinkCheck.h"
#include "links/LinkFileInfo.h"
#include "tables/ui/VltTableDetails.h"

namespace vlt::links {
class LinkReportModel;
}

/// The details of a table of links, with a list of the links and the clearance of their paths.
class VltLinkDetails : public VltTableDetails
{
    Q_OBJECT

public:
    explicit VltLinkDetails(QWidget *parent = nullptr);

    /// Shows the properties that are known without reading the table's rows.
    void showFile(const vlt::links::LinkFileInfo &file);

    /// Starts to read the links of the shown table and compute their clearance, unless that was
    /// done before.
    ///
    /// @param connection  the table with its coordinate systems and an absolute path
    /// @param systems     the same coordinate systems
    void check(const QString &connection, const vlt::geodata::SystemPair &systems,
               const vlt::geodata::LinkCheckInput &input);

private:
    void forgetRows() override;
    void followRemark(const QString &link) override;
    QString nonePlacedText() const override;
    QString placedText() const override;

    void sortWorstFirst();
    void showLinks(const QList<vlt::geodata::LinkReport> &links);
    void showClearance(const vlt::geodata::LinkCheck &check, bool hasTerrain);

    vlt::links::LinkReportModel *m_linkModel;
    QTableView *m_pwTvLinks;
};
