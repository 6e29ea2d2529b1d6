#include "batch/AlignedText.h"

#include "batch/Console.h"

namespace vlt::batch {

namespace {

constexpr qsizetype LineWidth = 80;
/// Longer names have a line of their own.
constexpr qsizetype MaxNameCharacters = 26;

/// The text broken into lines between words; all lines except the first start with `indent` blanks.
QString wrappedWords(const QString &text, qsizetype indent)
{
    QString lines;
    qsizetype column = indent;
    for (const QString &word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const bool isFirst = column == indent;
        if (!isFirst && column + 1 + word.size() >= LineWidth) {
            lines += QLatin1Char('\n') + QString(indent, u' ') + word;
            column = indent + word.size();
            continue;
        }
        lines += (isFirst ? QString() : QStringLiteral(" ")) + word;
        column += word.size() + (isFirst ? 0 : 1);
    }
    return lines;
}

/// The values one after another; if they do not fit in one line, they continue in the lines below.
QString wrapped(const QStringList &values, qsizetype indent)
{
    QString text;
    qsizetype column = indent;
    for (const QString &value : values) {
        if (!text.isEmpty()) {
            const bool fits = column + value.size() + 3 <= LineWidth;
            text += fits ? QStringLiteral("; ") : QStringLiteral(";\n") + QString(indent, u' ');
            column = fits ? column + 2 : indent;
        }
        text += oneLine(value);
        column += value.size();
    }
    return text;
}

} // namespace

QString aligned(const QList<Line> &lines)
{
    qsizetype width = 0;
    for (const Line &line : lines)
        width = qMax(width, line.label.size());
    QString text;
    for (const Line &line : lines) {
        const QString values = wrapped(line.values, width + 3);
        text += line.label.leftJustified(width) + QStringLiteral(" : ") +
                (values.isEmpty() ? QStringLiteral("-") : values) + QLatin1Char('\n');
    }
    return text;
}

QString wrappedText(const QString &text)
{
    QString lines;
    for (const QString &line : text.split(QLatin1Char('\n')))
        lines += wrappedWords(line, 0) + QLatin1Char('\n');
    return lines;
}

QString entryList(const QList<Entry> &entries)
{
    constexpr qsizetype Before = 2;
    qsizetype width = 0;
    for (const Entry &entry : entries) {
        if (entry.name.size() <= MaxNameCharacters)
            width = qMax(width, entry.name.size());
    }
    const qsizetype indent = Before + width + 2;
    QString text;
    for (const Entry &entry : entries) {
        text += QString(Before, u' ') + entry.name.leftJustified(width + 2);
        if (entry.name.size() > width)
            text += QLatin1Char('\n') + QString(indent, u' ');
        text += wrappedWords(entry.meaning, indent) + QLatin1Char('\n');
    }
    return text;
}

QString alignedTable(const QList<QStringList> &rows, qsizetype rightFrom, qsizetype rightCount)
{
    QList<qsizetype> widths;
    for (const QStringList &row : rows) {
        widths.resize(qMax(widths.size(), row.size()));
        for (qsizetype i = 0; i < row.size(); ++i)
            widths[i] = qMax(widths.at(i), row.at(i).size());
    }
    QString text;
    for (const QStringList &row : rows) {
        QString line;
        for (qsizetype i = 0; i < row.size(); ++i) {
            const QString cell = oneLine(row.at(i));
            const bool isRight = i >= rightFrom && i < rightFrom + rightCount;
            line +=
                (isRight ? cell.rightJustified(widths.at(i)) : cell.leftJustified(widths.at(i))) +
                QStringLiteral("  ");
        }
        text += line.trimmed() + QLatin1Char('\n');
    }
    return text;
}

} // namespace vlt::batch
