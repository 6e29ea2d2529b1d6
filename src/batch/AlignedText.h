#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace vlt::batch {

/// A label and its values.
struct Line
{
    QString label;
    QStringList values;
};

/// Lines "label : value; value", the colons below one another; many values take several lines.
QString aligned(const QList<Line> &lines);

/// A name and its meaning.
struct Entry
{
    QString name;
    QString meaning;
};

/// The text broken between words into lines of 80 characters, a common width of terminals; its own
/// line ends stay.
QString wrappedText(const QString &text);

/// Names with their meanings to the right, in lines of the same width.
QString entryList(const QList<Entry> &entries);

/// A table with two blanks between its columns.
///
/// @param rows        [row][column], every row with as many cells as the first one
/// @param rightFrom   first column of cells that are aligned to the right
/// @param rightCount  number of such columns
QString alignedTable(const QList<QStringList> &rows, qsizetype rightFrom, qsizetype rightCount);

} // namespace vlt::batch
