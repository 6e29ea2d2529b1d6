#include "geodata/TableReport.h"

#include "contract/TableReport.h"
#include "geodata/LayerWalk.h"
#include "geodata/TableDataset.h"
#include "platform/TextDecoding.h"

#include <cpl_string.h>

#include <iconv.h>

#include <cstdint>

namespace vlt::geodata {

namespace {

namespace report = contract::report;

/// The layer that a statement gives; its dataset has to exist as long.
class ResultLayer
{
public:
    ResultLayer(GDALDataset &dataset, const char *statement)
        : m_dataset(dataset)
        , m_layer(dataset.ExecuteSQL(statement, nullptr, nullptr))
    {}
    ~ResultLayer() { m_dataset.ReleaseResultSet(m_layer); }
    ResultLayer(const ResultLayer &) = delete;
    ResultLayer &operator=(const ResultLayer &) = delete;

    OGRLayer *layer() const { return m_layer; }

private:
    GDALDataset &m_dataset;
    OGRLayer *m_layer;
};

QStringList listOf(const OGRFeature &feature, const char *field)
{
    QStringList texts;
    char **items = feature.GetFieldAsStringList(feature.GetFieldIndex(field));
    for (char **item = items; item && *item; ++item)
        texts << platform::decodeText(*item);
    return texts;
}

ReportedRow rowOf(const OGRFeature &feature)
{
    const auto text = [&feature](const char *field) {
        return platform::decodeText(feature.GetFieldAsString(field));
    };
    return {text(report::Table),
            feature.GetFieldAsInteger64(report::Row),
            text(report::Fate),
            text(report::Site),
            feature.GetFieldAsInteger64(report::FirstRow),
            listOf(feature, report::Reasons),
            listOf(feature, report::Columns)};
}

RowCounts countsOf(char **items, const QByteArray &prefix)
{
    const auto count = [&](const char *item) {
        return QByteArray(CSLFetchNameValueDef(items, (prefix + item).constData(), "0"))
            .toLongLong();
    };
    return {count(report::RowsItem), count(report::UsedItem), count(report::MergedItem),
            count(report::LeftOutItem)};
}

/// A UTF-8 text in another encoding of 8 bits; unchanged if that cannot hold it.
QByteArray recoded(const QByteArray &text, const QByteArray &encoding)
{
    if (encoding.isEmpty() || encoding.startsWith("UTF"))
        return text;
    const iconv_t converter = iconv_open(encoding.constData(), "UTF-8");
    if (reinterpret_cast<std::intptr_t>(converter) == -1)
        return text;
    constexpr qsizetype MaxBytesPerByte = 4;
    QByteArray result(text.size() * MaxBytesPerByte, Qt::Uninitialized);
    char *from = const_cast<char *>(text.constData()); // it is not changed
    char *to = result.data();
    auto left = static_cast<std::size_t>(text.size());
    auto room = static_cast<std::size_t>(result.size());
    const bool isWhole = iconv(converter, &from, &left, &to, &room) == 0 && left == 0;
    iconv_close(converter);
    result.truncate(to - result.constData());
    return isWhole ? result : text;
}

} // namespace

Result<TableRowCounts> readRowCounts(const QString &connection)
{
    const ErrorCollector errors;
    const auto dataset = openTable(connection, errors);
    if (!dataset)
        return dataset.error();
    TableRowCounts counts;
    OGRLayer *layer = dataset.value()->GetLayer(0);
    if (!layer)
        return counts;
    char **items = layer->GetMetadata(report::RowsDomain);
    if (!items)
        return Error::fromLibrary(errors.failure({}));
    counts.rows = countsOf(items, {});
    const QByteArray prefix(report::SecondPrefix);
    if (const char *name = CSLFetchNameValue(items, (prefix + report::NameItem).constData())) {
        counts.second = countsOf(items, prefix);
        counts.secondName = platform::decodeText(name);
    }
    return counts;
}

Stoppable<qint64> readRowReport(const QString &connection, const Progress &progress,
                                const std::function<void(const ReportedRow &)> &visit)
{
    const ErrorCollector errors;
    const auto dataset = openTable(connection, errors);
    if (!dataset)
        return dataset.error();
    const ResultLayer rows(*dataset.value(), report::Statement);
    if (!rows.layer())
        return Error::fromLibrary(errors.failure({}));
    return walkFeatures(*rows.layer(), progress, errors,
                        [&](const OGRFeature &feature) { visit(rowOf(feature)); });
}

Stoppable<QByteArray> readRejects(const QString &connection, const Progress &progress)
{
    const ErrorCollector errors;
    const auto dataset = openTable(connection, errors);
    if (!dataset)
        return dataset.error();
    const ResultLayer rows(*dataset.value(), report::RejectsStatement);
    if (!rows.layer())
        return Error::fromLibrary(errors.failure({}));
    QByteArray text;
    for (const OGRFeatureUniquePtr &row : *rows.layer()) {
        text += row->GetFieldAsString(report::Line);
        text += '\n';
        if (progress && !progress(0))
            return std::nullopt;
    }
    if (const QString failure = errors.failure({}); !failure.isEmpty())
        return Error::fromLibrary(failure);
    const char *encoding = rows.layer()->GetMetadataItem(report::LineEncoding);
    return recoded(text, encoding ? encoding : "");
}

} // namespace vlt::geodata
