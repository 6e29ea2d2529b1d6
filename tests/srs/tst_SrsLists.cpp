#include "PrivateSettings.h"
#include "geodata/SrsDefinition.h"
#include "srs/DefaultSrsList.h"
#include "srs/DetailLinks.h"
#include "srs/LastUsedSrsList.h"
#include "srs/UserDefinedSrsList.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vlt::srs;

namespace {

const QString LastUsed = u"LastUsedSrsList"_s;
const QString UserDefined = u"UserDefinedSrsList"_s;

/// "alias|code; alias|code|U ...", U for a user-defined system.
QString listed(const SrsEntryList &list)
{
    QStringList entries;
    for (const SrsEntry &entry : list)
        entries += entry.alias + u'|' + entry.code + (entry.isUserDefined ? u"|U"_s : QString());
    return entries.join(u"; "_s);
}

SrsEntry entry(const QString &alias, const QString &code, bool isUserDefined = false)
{
    return {alias, {}, code, isUserDefined};
}

} // namespace

class TestSrsLists : public QObject
{
    Q_OBJECT

    PrivateSettings m_settings;

private Q_SLOTS:
    void init() { m_settings.reset(); }

    void showsAnEntryAsOneLine_data()
    {
        QTest::addColumn<SrsEntry>("shown");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("row");

        const auto add = [](const char *name, const SrsEntry &shown, const QString &text) {
            QTest::newRow(name) << shown << text << (shown.isUserDefined ? shown.alias : text);
        };
        add("alias and code", {u"WGS 84"_s, {}, u"EPSG:4326"_s}, u"WGS 84 , EPSG:4326"_s);
        add("code alone", {{}, {}, u"EPSG:4326"_s}, u"EPSG:4326"_s);
        add("name before alias", {u"a"_s, u"n"_s, u"c"_s}, u"n , c"_s);
        add("name without alias", {{}, u"n"_s, u"c"_s}, u"n , c"_s);
        add("both labels, no code", {u"a"_s, u"n"_s, {}}, u"n"_s);
        add("alias, no code", {u"a"_s, {}, {}}, {});
        add("name, no code", {{}, u"n"_s, {}}, {});
        add("user-defined", {u"Mine"_s, {}, u"+proj=longlat"_s, true}, u"Mine , +proj=longlat"_s);
    }
    void showsAnEntryAsOneLine()
    {
        QFETCH(SrsEntry, shown);

        QTEST(displayText(shown), "text");
        QTEST(rowText(shown), "row");
    }

    void readsTheDefaults_data()
    {
        QTest::addColumn<QByteArray>("ini");
        QTest::addColumn<QString>("expected");

        const QByteArray section = "[VltDefaultSrs]\n";
        QTest::newRow("a gap ends the list")
            << section + "SrsCode_1=A:1\nSrsShortName_1=One\nSrsCode_2=A:2\nSrsShortName_3=Three\n"
                         "SrsCode_4=A:4\n"
            << u"One|A:1; |A:2"_s;
        QTest::newRow("any case") << "[vltdefaultsrs]\nsrscode_1=A:1\nSRSSHORTNAME_1=One\n"_ba
                                  << u"One|A:1"_s;
        QTest::newRow("starts at 1") << section + "SrsCode_0=A:0\nSrsCode_2=A:2\n" << QString();
        QTest::newRow("other section") << "[VltGetSrsDetail]\nSrsCode_1=A:1\n"_ba << QString();
        QTest::newRow("no ini file") << QByteArray() << QString();
    }
    void readsTheDefaults()
    {
        QFETCH(QByteArray, ini);
        m_settings.reset(u"donn\u00e9es \u0394"_s);
        if (!ini.isEmpty())
            m_settings.writeIni(ini);

        QTEST(listed(DefaultSrsList()), "expected");
    }

    void readsTheDetailLinks()
    {
        m_settings.writeIni(
            "[VltGetSrsDetail]\n"
            "MenuEntry_1=First\nUrl_1=\"https://one.example/?q=%1#%1\"\n"
            "MenuEntry_2=Second\nUrl_2=https://two.example/all\n"
            "MenuEntry_3=No address\nMenuEntry_4=Fourth\nUrl_4=https://four.example\n");
        const SrsEntry wgs84 = entry(u"WGS 84"_s, u"EPSG:4326"_s);

        const QList<DetailLink> links = loadDetailLinks();

        QCOMPARE(links.size(), 2);
        QCOMPARE(links.at(0).text, u"First"_s);
        QCOMPARE(detailUrl(links.at(0), wgs84),
                 QUrl(u"https://one.example/?q=EPSG:4326#EPSG:4326"_s));
        QCOMPARE(detailUrl(links.at(1), wgs84), QUrl(u"https://two.example/all"_s));
    }

    void readsWhatIsStored_data()
    {
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("expected");

        const auto add = [](const char *name, const QString &group, const QString &stored,
                            const QString &expected) {
            QTest::newRow(name) << group << stored << expected;
        };
        add("with flags", LastUsed,
            u"1_CODE=A:1 1_ALIAS=a 1_IS_USER_DEF=false 2_CODE=A:2 2_ALIAS=b 2_IS_USER_DEF=true"_s,
            u"a|A:1; b|A:2|U"_s);
        add("no flag", LastUsed, u"1_CODE=A:1 1_ALIAS=a"_s, u"a|A:1|U"_s);
        add("gaps are passed over", LastUsed,
            u"1_CODE=A:1 2_ALIAS=b 3_CODE=A:3 3_ALIAS= 10_CODE=A:10 10_ALIAS=z"_s, u"z|A:10|U"_s);
        add("0 and 11 are not read", LastUsed, u"0_CODE=A:0 0_ALIAS=a 11_CODE=A:11 11_ALIAS=z"_s,
            {});

        add("10 before 2", UserDefined, u"2_ALIAS=two 2_CODE=c2 10_ALIAS=ten 10_CODE=c10"_s,
            u"ten|c10|U; two|c2|U"_s);
        add("keys in any case", UserDefined, u"1_Alias=a 1_cODE=c"_s, u"a|c|U"_s);
        add("a match inside the key", UserDefined, u"1_ALIAS_2=a 1_CODE=c x2_ALIAS=b x2_CODE=d"_s,
            u"a|c|U; b|d|U"_s);
        add("the whole code key counts", UserDefined,
            u"1_ALIAS=a 1_CODE_2=c 11_CODE=d A_ALIAS=b A_CODE=e"_s, {});
        add("empty values", UserDefined,
            u"1_ALIAS= 1_CODE=c 2_ALIAS=b 2_CODE= 3_ALIAS=\u00e9 3_CODE=GEOGCS[\"a\",DATUM[\"b\"]]"_s,
            u"\u00e9|GEOGCS[\"a\",DATUM[\"b\"]]|U"_s);
    }
    void readsWhatIsStored()
    {
        QFETCH(QString, group);
        QFETCH(QString, stored);
        for (const QString &pair : stored.split(u' '))
            m_settings.store(group + u'/' + pair.section(u'=', 0, 0), pair.section(u'=', 1));

        QTEST(group == LastUsed ? listed(LastUsedSrsList()) : listed(UserDefinedSrsList()),
              "expected");
    }

    void movesAUsedSystemToTheFrontAsItIsStored()
    {
        LastUsedSrsList list;
        list.use(entry(u"old"_s, u"A:1"_s));
        list.use(entry(u"mine"_s, u"+proj=longlat"_s, true));
        list.use(entry(u"new"_s, u"A:1"_s, true));

        QCOMPARE(listed(LastUsedSrsList()), listed(list));
        QCOMPARE(
            m_settings.stored(LastUsed),
            (QStringList{u"1_ALIAS=old"_s, u"1_CODE=A:1"_s, u"1_IS_USER_DEF=false"_s,
                         u"2_ALIAS=mine"_s, u"2_CODE=+proj=longlat"_s, u"2_IS_USER_DEF=true"_s}));
    }

    void dropsTheOldestOfElevenAndRenumbersWhatItSaves()
    {
        m_settings.store(LastUsed + u"/11_CODE"_s, u"A:99"_s);
        m_settings.store(LastUsed + u"/left_over"_s, 1);
        LastUsedSrsList list;
        for (int i = 1; i <= 11; ++i)
            list.use(entry(u"n%1"_s.arg(i), u"a:%1"_s.arg(i)));
        list.use(entry(u"case counts"_s, u"A:11"_s));

        QCOMPARE(listed(list), u"case counts|A:11; n11|a:11; n10|a:10; n9|a:9; n8|a:8; n7|a:7; "
                               "n6|a:6; n5|a:5; n4|a:4; n3|a:3"_s);
        QCOMPARE(listed(LastUsedSrsList()), listed(list));
        QCOMPARE(m_settings.stored(LastUsed).size(), 30);
    }

    void changesEntriesByIndex()
    {
        LastUsedSrsList list;
        for (const QString &code : {u"c"_s, u"b"_s, u"a"_s})
            list.use(entry(code, code));

        list.removeAt(3);
        list.removeAt(-1);
        list.replaceAt(3, entry(u"x"_s, u"x"_s));
        QCOMPARE(listed(LastUsedSrsList()), u"a|a; b|b; c|c"_s);

        list.removeAt(0);
        list.replaceAt(1, entry(u"d"_s, u"c"_s, true));
        QCOMPARE(m_settings.stored(LastUsed),
                 (QStringList{u"1_ALIAS=b"_s, u"1_CODE=b"_s, u"1_IS_USER_DEF=false"_s,
                              u"2_ALIAS=d"_s, u"2_CODE=c"_s, u"2_IS_USER_DEF=true"_s}));
    }

    void addsUserDefinedInFrontAndDropsWhatIsIncomplete()
    {
        m_settings.store(UserDefined + u"/3_ALIAS"_s, u"no code"_s);
        m_settings.store(UserDefined + u"/7_ALIAS"_s, u"seven"_s);
        m_settings.store(UserDefined + u"/7_CODE"_s, u"+proj=utm +zone=7"_s);

        UserDefinedSrsList().add(entry(u"newest"_s, u"+proj=longlat"_s, true));

        QCOMPARE(m_settings.stored(UserDefined),
                 (QStringList{u"1_ALIAS=newest"_s, u"1_CODE=+proj=longlat"_s, u"2_ALIAS=seven"_s,
                              u"2_CODE=+proj=utm +zone=7"_s}));
    }

    void recognisesDefinitions_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("valid");

        QFile onDisk(m_settings.installed(u"system.wkt"_s));
        QVERIFY(onDisk.open(QIODevice::WriteOnly) && onDisk.write("EPSG:4326") == 9);
        QTest::newRow("authority code") << u"EPSG:4326"_s << true;
        QTest::newRow("projected") << u"epsg:2154"_s << true;
        QTest::newRow("PROJ string") << u"+proj=utm +zone=31 +datum=WGS84"_s << true;
        QTest::newRow("well-known name") << u"WGS84"_s << true;
        QTest::newRow("WKT with an accent")
            << u"GEOGCS[\"Rep\u00e8re\",DATUM[\"D\",SPHEROID[\"S\",6378137,298.25]],"
               "PRIMEM[\"Greenwich\",0],UNIT[\"degree\",0.0174532925199433]]"_s
            << true;
        QTest::newRow("empty") << QString() << false;
        QTest::newRow("a word") << u"Undefined"_s << false;
        QTest::newRow("unknown code") << u"EPSG:999999"_s << false;
        QTest::newRow("cut WKT") << u"GEOGCS[\"WGS 84\",DATUM["_s << false;
        QTest::newRow("file name") << onDisk.fileName() << false;
        QTest::newRow("web address") << u"http://localhost:9/system.wkt"_s << false;
    }
    void recognisesDefinitions()
    {
        QFETCH(QString, text);

        QTEST(vlt::geodata::isSrsDefinition(text), "valid");
    }
};

QTEST_GUILESS_MAIN(TestSrsLists)
#include "tst_SrsLists.moc"
