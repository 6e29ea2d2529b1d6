#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace vlt::batch {

/// A label and what belongs to it.
struct Line
{
    QString label;
    QStringList values;
};

/// Lines "label : value; value", the colons below one another; many values take several lines.
QString aligned(const QList<Line> &lines);

/// A name and what it means.
struct Entry
{
    QString name;
    QString meaning;
};

/// The text in lines of a terminal's usual width, broken between words; its own line ends stay.
QString wrappedText(const QString &text);

/// Names with their meanings at their right side, in lines of that width.
QString entryList(const QList<Entry> &entries);

/// A table with two blanks between its columns.
///
/// @param rows        [row][column], every row with as many cells as the first one
/// @param rightFrom   cells from this column on stand at the right side of their column
/// @param rightCount  in so many columns
QString alignedTable(const QList<QStringList> &rows, qsizetype rightFrom, qsizetype rightCount);

} // namespace vlt::batch
