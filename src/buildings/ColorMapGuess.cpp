#include "buildings/ColorMapGuess.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace vlt::buildings {

namespace {

struct Rule
{
    const char *words; ///< pattern of a unit or of words in a name
    const char *colorMap;
};

/// Words end at a blank, a punctuation mark or an underscore. The first rule that fits counts.
constexpr Rule Rules[] = {
    {"dbm|rsrp|rscp|rxlev|rssi", "signal_level_dBm"},
    {"dbuv/?m|dbµv/?m|dbμv/?m", "field_exposure_dBuVm"},
    {"sinr|snr|c/?i", "signal_to_noise_dB"},
    {"v/?m|emf|exposure", "field_exposure_Vm"},
};

QString ruleFor(const QString &text)
{
    for (const Rule &rule : Rules) {
        const QRegularExpression words(
            QStringLiteral("(^|[\\s_.,()\\[\\]-])(%1)($|[\\s_.,()\\[\\]-])")
                .arg(QString::fromUtf8(rule.words)),
            QRegularExpression::CaseInsensitiveOption);
        if (words.match(text).hasMatch())
            return QString::fromLatin1(rule.colorMap);
    }
    return {};
}

} // namespace

QString guessedColorMap(const QString &fileName, const QStringList &bandTexts)
{
    const QString ofUnit = ruleFor(bandTexts.value(0));
    return ofUnit.isEmpty() ? ruleFor(QFileInfo(fileName).completeBaseName()) : ofUnit;
}

} // namespace vlt::buildings
