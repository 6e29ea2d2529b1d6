#include "geodata/TableMapping.h"

#include "contract/TableMetadata.h"
#include "geodata/TableDataset.h"

namespace vlt::geodata {

Result<QString> readTableMapping(const QString &connection)
{
    const ErrorCollector errors;
    const auto dataset = openTable(connection, errors);
    if (!dataset)
        return dataset.error();
    OGRLayer *layer = dataset.value()->GetLayer(0);
    char **items = layer ? layer->GetMetadata(contract::metadata::MappingDomain) : nullptr;
    return QString::fromUtf8(items ? *items : nullptr);
}

} // namespace vlt::geodata
