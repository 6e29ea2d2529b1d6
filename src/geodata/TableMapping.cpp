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
    namespace metadata = contract::metadata;
    OGRLayer *layer = dataset.value()->GetLayer(0);
    return QString::fromUtf8(
        layer ? layer->GetMetadataItem(metadata::MappingText, metadata::MappingDomain) : nullptr);
}

} // namespace vlt::geodata
