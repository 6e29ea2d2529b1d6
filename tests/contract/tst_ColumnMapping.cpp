#include "contract/ColumnMapping.h"
#include "support/Cases.h"

#include <QtTest>

using namespace vlt::contract;

class tst_ColumnMapping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatItWrites()
    {
        ColumnMapping mapping;
        mapping.kind = TableKind::Links;
        mapping.sheet = "Liaisons \"1\"";
        mapping.headerRows = {2, 3};
        mapping.swapsAxes = true;
        mapping.sourceSrs = "EPSG:2154";
        mapping.sectors = "a, b.csv";
        mapping.sites = "../é.csv";
        mapping.roles = {
            {"siteId", {"SITE"}}, {"azimuth", {"azi0", "", "azi2"}}, {"antennaHeight", {}}};
        mapping.corrections = {{PositionChange::Swap, 1, {{12, "48,8", "2,3"}, {13, "1 \"é", ""}}},
                               {PositionChange::NegateX, 1, {{12, "48,8", "2,3"}}},
                               {PositionChange::ScaleY, 1e-6},
                               {PositionChange::Scale, 1000}};
        ColumnMapping headerless;
        headerless.headerRows.emplace();

        for (const ColumnMapping &stated : {mapping, headerless, ColumnMapping()})
            QVERIFY(readMapping(writeMapping(stated)).mapping == stated);
        QVERIFY(readCorrections(writeCorrections(mapping.corrections)) == mapping.corrections);
        const auto ofOne =
            readMapping("{\"version\": 1, \"roles\": {\"azimuth\": [\"a\"]}}").mapping;
        QVERIFY(ofOne && ofOne->roles.at("azimuth") == StatedColumns({"a", ""}));
    }

    void namesThePlaceOfAMistake_data()
    {
        const Cases<QByteArray, QString> row({"text", "reason"});
        const char *const none = "it is not a mapping of columns";
        const auto value = [](const char *place) {
            return QString::fromUtf8("its entry \"%1\" has a value that cannot be used")
                .arg(QLatin1String(place));
        };
        row("empty", "", "its JSON is not valid in line 1");
        row("broken", "{\"version\": 1,\n\"sheet\": }", "its JSON is not valid in line 2");
        row("not UTF-8", "{\"version\": 1, \"sheet\": \"\xe9\"}",
            "its JSON is not valid in line 1");
        row("deep", QByteArray(100000, '['), "its JSON is not valid in line 1");
        row("large", QByteArray(MaxMappingBytes + 1, ' '), "a mapping file has at most 4 MiB");
        row("other JSON", "[1]", none);
        row("no version", "{\"sheet\": \"a\"}", none);
        row("later version", "{\"version\": 2}", "its version 2 is not known");
        row("unknown entry", "{\"version\": 1, \"Sheet\": \"a\"}",
            "its entry \"Sheet\" is not known");
        row("other kind", "{\"version\": 1, \"kind\": \"towns\"}", value("kind"));
        row("row 0", "{\"version\": 1, \"headerRows\": [0]}", value("headerRows"));
        row("rows upward", "{\"version\": 1, \"headerRows\": [3, 2]}", value("headerRows"));
        row("far row", "{\"version\": 1, \"headerRows\": [201]}", value("headerRows"));
        row("half a row", "{\"version\": 1, \"headerRows\": [1.5]}", value("headerRows"));
        row("other system", "{\"version\": 1, \"sourceSrs\": \"WGS 84\"}", value("sourceSrs"));
        row("role of numbers", "{\"version\": 1, \"roles\": {\"x\": [1]}}", value("roles.x"));
        row("list of roles", "{\"version\": 1, \"roles\": []}", value("roles"));
        const auto corrected = [](const QByteArray &correction) {
            return "{\"version\": 1, \"corrections\": [" + correction + "]}";
        };
        row("other cure", corrected(R"({"cure": "turn"})"), value("corrections.cure"));
        row("no factor", corrected(R"({"cure": "scale"})"), value("corrections.factor"));
        row("factor 0", corrected(R"({"cure": "scaleX", "factor": 0})"),
            value("corrections.factor"));
        row("factor of a swap", corrected(R"({"cure": "swap", "factor": 2})"),
            value("corrections.factor"));
        row("no rows", corrected(R"({"cure": "swap", "rows": []})"), value("corrections.rows"));
        row("no row number", corrected(R"({"cure": "swap", "rows": [{"x": "1", "y": "2"}]})"),
            value("corrections.rows"));
        row("too many rows",
            corrected(R"({"cure": "swap", "rows": [)" +
                      QByteArray(R"({"row": 1, "x": "1"},)").repeated(MaxCorrectedRows) +
                      R"({"row": 1, "x": "1"}]})"),
            value("corrections"));
        row("too many corrections",
            corrected(QByteArray(R"({"cure": "swap"},)").repeated(MaxCorrections) +
                      R"({"cure": "swap"})"),
            value("corrections"));
    }
    void namesThePlaceOfAMistake()
    {
        QFETCH(QByteArray, text);

        const ReadMapping read = readMapping(text.toStdString());

        QVERIFY(!read.mapping);
        QTEST(QString::fromStdString(read.reason), "reason");
    }
};

QTEST_GUILESS_MAIN(tst_ColumnMapping)
#include "tst_ColumnMapping.moc"
