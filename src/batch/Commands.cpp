#include "batch/BuildingsCommand.h"
#include "batch/Command.h"
#include "batch/InfoCommand.h"
#include "batch/LinkCommand.h"
#include "batch/SiteCommand.h"
#include "batch/SnapshotCommand.h"

namespace vlt::batch {

const QList<Command> &commands()
{
    static const QList<Command> all = {infoCommand(), siteCommand(), linkCommand(),
                                       buildingsCommand(), snapshotCommand()};
    return all;
}

} // namespace vlt::batch
