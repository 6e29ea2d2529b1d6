#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/ogr/FieldCells.h"
#include "plugins/tables/ogr/TableFile.h"
#include "support/Files.h"
#include "support/ProcessorTime.h"

#include <QtTest>

#include <map>

using namespace vlt::driver;

namespace {

const std::map<Refusal, QString> ReasonWords = {
    {Refusal::CannotRead, QStringLiteral("cannot-read")},
    {Refusal::Empty, QStringLiteral("empty")},
    {Refusal::NotATable, QStringLiteral("not-a-table")},
    {Refusal::NotSupportedFormat, QStringLiteral("not-supported-format")},
    {Refusal::Encrypted, QStringLiteral("encrypted")},
    {Refusal::DocumentType, QStringLiteral("doctype")},
    {Refusal::Malformed, QStringLiteral("malformed")},
    {Refusal::OneColumn, QStringLiteral("one-column")},
    {Refusal::NoHeader, QStringLiteral("no-header")}};

QString fromUtf8(const std::string &text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The result of opening a file, in the words of a manifest.
struct Outcome
{
    QString verdict;
    qint64 rows = -1;
    qint64 columns = -1;
    QString header;
    QString firstId;
    QString lastId;
    qint64 rowsRead = -1;
    bool rowsAscend = true;
    std::vector<RowProblem> problems;

    /// The number of problems and the first of them.
    QString problemSummary() const
    {
        const RowProblem first = problems.empty() ? RowProblem() : problems.front();
        return QStringLiteral("%1|%2|%3|%4")
            .arg(problems.size())
            .arg(first.row)
            .arg(fromUtf8(first.column), fromUtf8(first.text));
    }
};

Outcome openTable(const QString &path)
{
    Outcome outcome;
    try {
        const auto table = TableFile::open(QFile::encodeName(path).toStdString(), {});
        const TableProfile &profile = table->facts().table;
        outcome.verdict = QStringLiteral("open");
        outcome.rows = static_cast<qint64>(profile.rowCount);
        outcome.columns = static_cast<qint64>(profile.fields.size());
        QStringList names;
        for (const Field &field : profile.fields)
            if (names.size() < 6)
                names += fromUtf8(field.name);
        outcome.header = names.join(QLatin1Char('|'));
        outcome.rowsRead = 0;
        FieldCells cells(profile);
        cells.takeFaults(profile.header.row, profile.header.faults, outcome.problems);
        const auto rows = table->rows();
        int64_t last = profile.header.row;
        while (rows->advance()) {
            const Row &row = rows->cells();
            outcome.rowsAscend = outcome.rowsAscend && row.number > last;
            last = row.number;
            cells.take(row, outcome.problems);
            outcome.lastId = row.cells.empty() ? QString() : fromUtf8(cellText(row.cells.front()));
            if (outcome.rowsRead++ == 0)
                outcome.firstId = outcome.lastId;
        }
    } catch (const RefusedFile &refused) {
        outcome.verdict = ReasonWords.at(refused.reason());
        if (qEnvironmentVariableIsSet("VLT_SHOW_REASONS"))
            qInfo("%s: %s", qPrintable(path), refused.what());
    }
    return outcome;
}

/// Reads the lines of a manifest as rows of a test table.
void readManifest(const QString &path, const QStringList &folders)
{
    for (const char *column :
         {"file", "verdict", "header", "firstId", "lastId", "otherReasons", "problems"})
        QTest::addColumn<QString>(column);
    QTest::addColumn<qint64>("rows");
    QTest::addColumn<qint64>("columns");
    const QStringList lines =
        QString::fromUtf8(readFile(path)).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const QStringList names = lines.first().split(QLatin1Char('\t'));
    for (const QString &line : lines.mid(1)) {
        const QStringList cells = line.split(QLatin1Char('\t'));
        const auto cell = [&](const char *name) {
            return cells.value(names.indexOf(QLatin1String(name)));
        };
        QString found;
        for (const QString &folder : folders)
            if (const QString candidate = folder + QLatin1Char('/') + cell("path");
                found.isEmpty() && QFile::exists(candidate))
                found = candidate;
        if (found.isEmpty()) // not distributed; needs VLT_MORE_TABLES
            continue;
        const bool opens = (cell("verdict") + cell("kind")) == QLatin1String("open");
        const QString others =
            QRegularExpression(QStringLiteral("or=([\\w,-]+)")).match(cell("note")).captured(1);
        QTest::newRow(qPrintable(cell("path")))
            << found << (opens ? QStringLiteral("open") : cell("reason"))
            << cell("header").replace(QLatin1String("\\n"), QLatin1String(" ")) << cell("first_id")
            << cell("last_id") << others << cell("problems")
            << (opens ? cell("rows").toLongLong() : -1)
            << (opens ? cell("columns").toLongLong() : -1);
    }
}

void compare()
{
    QFETCH(QString, file);
    QFETCH(QString, verdict);
    QFETCH(QString, header);
    QFETCH(QString, otherReasons);
    QFETCH(qint64, rows);
    QFETCH(qint64, columns);

    const Outcome outcome = openTable(file);

    if (!otherReasons.split(QLatin1Char(',')).contains(outcome.verdict))
        QCOMPARE(outcome.verdict, verdict);
    if (outcome.verdict != QLatin1String("open"))
        return;
    QCOMPARE(outcome.columns, columns);
    if (!header.isEmpty())
        QCOMPARE(outcome.header, header);
    QCOMPARE(outcome.rows, rows);
    QCOMPARE(outcome.rowsRead, rows);
    QVERIFY(outcome.rowsAscend);
}

} // namespace

/// Real tables of many programs, compared with the results of independent readers, and small valid
/// files that are hard to read.
class tst_TableFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        QProcess maker;
        maker.start(QStringLiteral("/usr/bin/python3"),
                    {qEnvironmentVariable("VLT_HURTFUL"), m_folder.path()});
        QVERIFY2(maker.waitForFinished(-1) && maker.exitCode() == 0,
                 maker.readAllStandardError().constData());
    }

    void readsRealTables_data()
    {
        readManifest(qEnvironmentVariable("VLT_MANIFEST"),
                     {qEnvironmentVariable("VLT_CORPUS"),
                      qEnvironmentVariable("VLT_MORE_TABLES", QStringLiteral("/nonexistent"))});
    }
    void readsRealTables() { compare(); }

    void standsFilesThatHurt_data()
    {
        readManifest(m_folder.filePath(QStringLiteral("manifest.tsv")), {m_folder.path()});
    }
    void standsFilesThatHurt()
    {
        QFETCH(QString, file);
        QFETCH(QString, firstId);
        QFETCH(QString, lastId);
        const ProcessorTime time;

        compare();

        QVERIFY2(time.seconds() < 20, "time out of proportion");
        if (firstId.isEmpty())
            return;
        QFETCH(QString, problems);
        const Outcome outcome = openTable(file);
        if (!problems.isEmpty())
            QCOMPARE(outcome.problemSummary(), problems);
        QCOMPARE(outcome.firstId, firstId);
        QCOMPARE(outcome.lastId, lastId);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(tst_TableFiles)
#include "tst_TableFiles.moc"
