#include "buildings/ColorMapGuess.h"
#include "support/Cases.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_ColorMapGuess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsTheValuesOfARaster_data()
    {
        const Cases<QString, QString, QString> row({"file", "band", "map"});
        row("name", "/c/signal_level_dBm.tif", "", "signal_level_dBm");
        row("unit", "cover.tif", "Level, dBm", "signal_level_dBm");
        row("unit against name", "rsrp.tif", "V/m", "field_exposure_Vm");
        row("quantity", "LTE-RSRP 800.asc", "", "signal_level_dBm");
        row("electric field, logarithmic", "e.tif", "dBµV/m", "field_exposure_dBuVm");
        row("electric field", "emf_2026.tif", "", "field_exposure_Vm");
        row("ratio", "sinr.grd", "dB", "signal_to_noise_dB");
        row("no word", "adbmx.tif", "metre", "");
        row("folder", "/dBm/terrain.tif", "", "");
    }

    void knowsTheValuesOfARaster()
    {
        QFETCH(QString, file);
        QFETCH(QString, band);
        QTEST(vlt::buildings::guessedColorMap(file, {band}), "map");
    }
};

QTEST_MAIN(tst_ColorMapGuess)
#include "tst_ColorMapGuess.moc"
