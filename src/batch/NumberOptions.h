#pragma once

#include "platform/Result.h"
#include "sites/RepresentationLimits.h"

#include <QCommandLineParser>
#include <QLocale>

#include <optional>
#include <type_traits>
#include <variant>
#include <vector>

namespace vlt::batch {

/// One number of a representation as an option of the command line.
template<typename Representation>
struct NumberOption
{
    QString name;
    QString meaning;
    std::variant<double Representation::*, int Representation::*> member;
    sites::Limits limits;
    bool hasDefault = true; ///< else it is not used unless given

    bool isInteger() const { return std::holds_alternative<int Representation::*>(member); }
};

/// A number as the help shows it.
inline QString plainNumber(double value)
{
    return QString::number(value, 'f', QLocale::FloatingPointShortest);
}

inline QString rangeText(const sites::Limits &limits)
{
    return plainNumber(limits.least) + QStringLiteral(" to ") + plainNumber(limits.most);
}

/// Makes the parser know the options; the defaults in their help are those of a first run.
template<typename Representation>
void addNumberOptions(QCommandLineParser &parser,
                      const std::vector<NumberOption<Representation>> &options)
{
    const Representation firstRun;
    for (const NumberOption<Representation> &option : options) {
        const QString value =
            std::visit([&](auto member) { return plainNumber(firstRun.*member); }, option.member);
        parser.addOption(
            {option.name,
             option.meaning + QStringLiteral(", ") + rangeText(option.limits) +
                 (option.hasDefault ? QStringLiteral(" (default ") + value + QStringLiteral(").")
                                    : QStringLiteral(" (default: not used).")),
             option.isInteger() ? QStringLiteral("INTEGER") : QStringLiteral("NUMBER")});
    }
}

/// Takes the numbers that are given into `representation`; the first that is no number or out of
/// its range as an error.
template<typename Representation>
std::optional<Error> readNumberOptions(const QCommandLineParser &parser,
                                       const std::vector<NumberOption<Representation>> &options,
                                       Representation &representation)
{
    for (const NumberOption<Representation> &option : options) {
        if (!parser.isSet(option.name))
            continue;
        const QString text = parser.value(option.name);
        bool isNumber = false;
        const double number = option.isInteger() ? text.toInt(&isNumber) : text.toDouble(&isNumber);
        if (!isNumber || !(number >= option.limits.least && number <= option.limits.most))
            return Error{QString(),
                         QStringLiteral("--%1 is %2 %3, not \"")
                                 .arg(option.name,
                                      option.isInteger() ? QStringLiteral("an integer of")
                                                         : QStringLiteral("a number of"),
                                      rangeText(option.limits)) +
                             text + QLatin1Char('"'),
                         {}};
        std::visit(
            [&](auto member) {
                using Value = std::remove_reference_t<decltype(representation.*member)>;
                representation.*member = static_cast<Value>(number);
            },
            option.member);
    }
    return std::nullopt;
}

} // namespace vlt::batch
