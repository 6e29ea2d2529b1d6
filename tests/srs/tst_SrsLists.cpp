#include "geodata/SrsDefinition.h"
#include "srs/DefaultSrsList.h"
#include "srs/DetailLinks.h"
#include "srs/LastUsedSrsList.h"
#include "srs/UserDefinedSrsList.h"
#include "support/PrivateSettings.h"

#include <QTemporaryFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vlt::srs;

namespace {

const QString LastUsed = u"LastUsedSrsList"_s;
const QString UserDefined = u"UserDefinedSrsList"_s;

/// The list as "alias|code; alias|code|U ...", with U for a user-defined system.
QString listed(const SrsEntryList &list)
{
    QStringList entries;
    for (const SrsEntry &entry : list)
        entries += entry.alias + u'|' + entry.code + (entry.isUserDefined ? u"|U"_s : QString());
    return entries.join(u"; "_s);
}

qsizetype storedCount()
{
    return vlt::platform::builderSettings()->allKeys().filter(u"SrsList/"_s).size();
}

/// Stores "key=value key=value ..." as the only values of a group.
void store(const QString &group, const QString &pairs)
{
    vlt::platform::builderSettings()->clear();
    for (const QString &pair : pairs.split(u' '))
        vlt::platform::builderSettings()->setValue(group + u'/' + pair.section(u'=', 0, 0),
                                                   pair.section(u'=', 1));
}

} // namespace

class tst_SrsLists : public QObject
{
    Q_OBJECT

    PrivateSettings m_settings;

private Q_SLOTS:
    void init() { m_settings.reset(); }

    void showsAnEntryAsOneLine()
    {
        QCOMPARE(displayText({u"a"_s, u"n"_s, u"c"_s}), u"n , c"_s);
        QCOMPARE(displayText({u"a"_s, u"n"_s, {}}), u"n"_s);
        QCOMPARE(displayText({{}, u"n"_s, {}}), QString());
    }

    void readsTheInstalledFile()
    {
        QCOMPARE(DefaultSrsList().count(), 0); // the group is missing

        m_settings.reset(
            "[vltdefaultsrs]\n"
            "srscode_1=A:1\nSRSSHORTNAME_1=One\nSrsCode_2=A:2\n"
            "SrsShortName_3=Three\nSrsCode_4=A:4\n"
            "[VltGetSrsDetail]\n"
            "MenuEntry_1=First\nUrl_1=\"https://one.example/?q=%1#%1\"\n"
            "MenuEntry_2=Second\nUrl_2=https://two.example/all\n"
            "MenuEntry_3=No address\nMenuEntry_4=Fourth\nUrl_4=https://four.example\n");
        const DefaultSrsList defaults;
        const QList<DetailLink> links = loadDetailLinks();

        QCOMPARE(listed(defaults), u"One|A:1; |A:2"_s);
        QCOMPARE(links.size(), 2);
        QCOMPARE(detailUrl(links.at(0), defaults.at(0)), QUrl(u"https://one.example/?q=A:1#A:1"_s));
        QCOMPARE(detailUrl(links.at(1), defaults.at(0)), QUrl(u"https://two.example/all"_s));
    }

    void readsTheLastUsed()
    {
        store(LastUsed, u"1_CODE=A:1 1_ALIAS=a 1_IS_USER_DEF=false 2_CODE=A:2 2_ALIAS=b"_s);
        QCOMPARE(listed(LastUsedSrsList()), u"a|A:1; b|A:2|U"_s);

        store(LastUsed, u"0_CODE=A:0 0_ALIAS=a 1_CODE=A:1 2_ALIAS=b 3_CODE=A:3 3_ALIAS= "
                        "10_CODE=A:10 10_ALIAS=z 11_CODE=A:11 11_ALIAS=z"_s);
        QCOMPARE(listed(LastUsedSrsList()), u"z|A:10|U"_s);
    }

    void readsTheUserDefined()
    {
        store(UserDefined, u"2_ALIAS=two 2_CODE=c2 10_Alias=ten 10_cODE=c10"_s);
        QCOMPARE(listed(UserDefinedSrsList()), u"ten|c10|U; two|c2|U"_s);

        // An alias key may contain more text, a code key must match as a whole.
        store(UserDefined, u"1_ALIAS_2=a 1_CODE=c x2_ALIAS=b x2_CODE=d"_s);
        QCOMPARE(listed(UserDefinedSrsList()), u"a|c|U; b|d|U"_s);
        store(UserDefined, u"1_ALIAS=a 1_CODE_2=c 11_CODE=d A_ALIAS=b A_CODE=e"_s);
        QCOMPARE(listed(UserDefinedSrsList()), QString());

        store(UserDefined,
              u"1_ALIAS= 1_CODE=c 2_ALIAS=b 2_CODE= 3_ALIAS=\u00e9 3_CODE=X[\"y\",1]"_s);
        QCOMPARE(listed(UserDefinedSrsList()), u"\u00e9|X[\"y\",1]|U"_s);
    }

    void keepsTheTenLastUsedAsTheyWereStored()
    {
        store(LastUsed, u"11_CODE=A:99 left_over=1"_s);
        LastUsedSrsList list;
        for (int i = 1; i <= 11; ++i)
            list.use({u"n%1"_s.arg(i), {}, u"a:%1"_s.arg(i), i == 3});
        list.use({u"case counts"_s, {}, u"A:11"_s});
        list.use({u"new"_s, {}, u"a:8"_s, true});

        QCOMPARE(listed(list), u"n8|a:8; case counts|A:11; n11|a:11; n10|a:10; n9|a:9; n7|a:7; "
                               "n6|a:6; n5|a:5; n4|a:4; n3|a:3|U"_s);
        QCOMPARE(listed(LastUsedSrsList()), listed(list));
        QCOMPARE(storedCount(), 10 * 3);
    }

    void changesEntriesByIndex()
    {
        store(UserDefined, u"3_ALIAS=incomplete 7_ALIAS=c 7_CODE=+proj=utm"_s);
        UserDefinedSrsList list;
        list.add({u"b"_s, {}, u"+proj=longlat"_s, true});
        list.add({u"a"_s, {}, u"EPSG:3035"_s, true});

        list.removeAt(3);
        list.removeAt(-1);
        list.replaceAt(3, {});
        QCOMPARE(listed(UserDefinedSrsList()),
                 u"a|EPSG:3035|U; b|+proj=longlat|U; c|+proj=utm|U"_s);

        list.removeAt(0);
        list.replaceAt(1, {u"d"_s, {}, u"EPSG:2154"_s, true});
        QCOMPARE(listed(UserDefinedSrsList()), u"b|+proj=longlat|U; d|EPSG:2154|U"_s);
        QCOMPARE(storedCount(), 2 * 2);
    }

    void recognisesDefinitions()
    {
        const auto refusal = [](const QString &text) {
            const std::optional<vlt::Error> error = vlt::geodata::definitionRefusal(text);
            return error ? error->key : QString();
        };
        QString wkt = u"GEOGCS[\"Rep\u00e8re\",DATUM[\"D\",SPHEROID[\"S\",6378137,298.25]],"
                      "PRIMEM[\"Greenwich\",0],UNIT[\"degree\",0.0174532925199433]]"_s;
        QTemporaryFile onDisk;
        QVERIFY(onDisk.open() && onDisk.write(wkt.toUtf8()) > 0 && onDisk.flush());

        for (const QString &text : {u"epsg:2154"_s, u"+proj=utm +zone=31 +datum=WGS84"_s, wkt,
                                    u"EPSG:5698"_s}) // Lambert-93 with heights
            QCOMPARE(refusal(text), QString());
        for (const QString &text : {wkt.left(50), onDisk.fileName(), QString()})
            QCOMPARE(refusal(text), u"MESS_SRS_NOT_DEFINED"_s);
        QCOMPARE(refusal(u"EPSG:5720"_s), u"MESS_SRS_HEIGHTS_ONLY"_s);
        QCOMPARE(refusal(u"EPSG:4978"_s), u"MESS_SRS_GEOCENTRIC"_s);
        QCOMPARE(refusal(wkt.replace(u"Rep\u00e8re"_s, u"\u6771\u4eac"_s)),
                 u"MESS_SRS_NOT_LATIN1"_s);
    }
};

QTEST_GUILESS_MAIN(tst_SrsLists)
#include "tst_SrsLists.moc"
