#include "sites/ui/VltSiteDetails.h"

void VltSiteDetails::showFile(const vlt::sites::SiteFileInfo &file)
{
    QList<vlt::Problem> problems;
    if (const auto nameless = vlt::sites::missingNameField(file))
        problems << *nameless;
    showTable(file, problems);
}

void VltSiteDetails::check(const QString &connection, const vlt::geodata::SystemPair &systems)
{
    using vlt::geodata::SiteCheck;
    checkOnce<SiteCheck>(
        connection, connection,
        [connection, systems](const vlt::Progress &progress) {
            return vlt::geodata::readSiteCheck(connection, progress, systems);
        },
        [this, systems](const SiteCheck &check) { showOutcome(check, systems); });
}

QString VltSiteDetails::nonePlacedText() const
{
    return tr("no site can be placed", "MESS_NO_SITE_PLACED");
}

QString VltSiteDetails::placedText() const
{
    return tr("sites placed: %1 of %2", "MESS_SITES_PLACED");
}
