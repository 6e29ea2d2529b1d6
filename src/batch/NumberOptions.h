#pragma once

#include "batch/CommandLine.h"
#include "contract/ChosenNumber.h"
#include "language/VltLanguageManager.h"

#include <QCommandLineParser>
#include <QLocale>

#include <optional>
#include <type_traits>
#include <variant>
#include <vector>

namespace vlt::batch {

/// An option of the command line for a number of a representation.
template<typename Representation>
struct NumberOption
{
    QString name;
    QString meaning;
    std::variant<double Representation::*, int Representation::*> member;
    contract::Range range;
    bool hasDefault = true; ///< if not, the number is used only if it is given

    bool isInteger() const { return std::holds_alternative<int Representation::*>(member); }
};

/// The text of a number in the help.
inline QString plainNumber(double value)
{
    return QString::number(value, 'f', QLocale::FloatingPointShortest);
}

/// The options for the parser; their help has the first-run values as defaults.
template<typename Representation>
QList<QCommandLineOption> numberOptionList(const std::vector<NumberOption<Representation>> &options)
{
    const Representation firstRun;
    QList<QCommandLineOption> list;
    for (const NumberOption<Representation> &option : options) {
        const QString value =
            std::visit([&](auto member) { return plainNumber(firstRun.*member); }, option.member);
        const QString pattern =
            option.hasDefault
                ? dico_label("MESS_OPT_RANGE", "%1, %2 to %3 (default %4).")
                : dico_label("MESS_OPT_RANGE_UNUSED", "%1, %2 to %3 (default: not used).");
        const QString help = option.hasDefault
                                 ? pattern.arg(option.meaning, plainNumber(option.range.minimum),
                                               plainNumber(option.range.maximum), value)
                                 : pattern.arg(option.meaning, plainNumber(option.range.minimum),
                                               plainNumber(option.range.maximum));
        list.append({option.name, help,
                     option.isInteger() ? QStringLiteral("INTEGER") : QStringLiteral("NUMBER")});
    }
    return list;
}

/// The error for a value that is not a number of the option's range.
template<typename Representation>
Error notInRange(const NumberOption<Representation> &option, const QString &text)
{
    const QString wanted = option.isInteger()
                               ? dico_label("MESS_USE_INTEGER", "an integer of %1 to %2")
                               : dico_label("MESS_USE_NUMBER", "a number of %1 to %2");
    return wrongValue(
        option.name,
        wanted.arg(plainNumber(option.range.minimum), plainNumber(option.range.maximum)), text);
}

/// Stores the given numbers in `representation`; an error for the first value that is not a number
/// or is out of range.
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
        if (!isNumber || !option.range.contains(number))
            return notInRange(option, text);
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
