#include "batch/AlignedText.h"

#include "batch/Console.h"

namespace vlt::batch {

namespace {

constexpr qsizetype LineWidth = 80;

/// The values one after another, in further lines below the first where they are many.
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
