#include "geodata/TableRow.h"

#include "geodata/TableDataset.h"

namespace vlt::geodata {

Result<QList<FieldValue>> readTableRow(const QString &connection, qint64 row)
{
    const ErrorCollector errors;
    const auto dataset = openTable(connection, errors);
    if (!dataset)
        return dataset.error();
    QList<FieldValue> fields;
    OGRLayer *layer = dataset.value()->GetLayer(0);
    if (!layer)
        return fields;
    const OGRFeatureUniquePtr feature(layer->GetFeature(row));
    for (int i = 0; feature && i < feature->GetFieldCount(); ++i)
        fields << FieldValue{QString::fromUtf8(feature->GetFieldDefnRef(i)->GetNameRef()),
                             QString::fromUtf8(feature->GetFieldAsString(i))};
    return fields;
}

} // namespace vlt::geodata
