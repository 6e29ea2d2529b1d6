#pragma once

#include "geodata/LinkCheck.h"
#include "links/LinkFileInfo.h"
#include "links/ui/ChosenLink.h"
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

Q_SIGNALS:
    /// The user has selected a link, or its values have changed; nothing if none is selected.
    void linkChosen(const std::optional<vlt::links::ChosenLink> &chosen);

private:
    void forgetRows() override;
    void followRemark(const QString &link) override;
    QString nonePlacedText() const override;
    QString placedText() const override;

    void sortWorstFirst();
    void showLinks(const QList<vlt::geodata::LinkReport> &links);
    void announceLink();
    void showClearance(const vlt::geodata::LinkCheck &check, bool hasTerrain);

    vlt::links::LinkReportModel *m_linkModel;
    QTableView *m_pwTvLinks;
    QString m_endSystem;                       ///< of the last check
    vlt::geodata::LinkCheckInput m_checkInput; ///< of the last check
};
