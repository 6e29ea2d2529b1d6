#include "buildings/TextureFilter.h"

#include <QRegularExpression>

namespace vlt::buildings {

namespace {

QString heightText(double height)
{
    constexpr int SignificantDigits = 6;
    return QString::number(height, 'g', SignificantDigits);
}

/// Compares texts and heights with the pattern of the filter.
class Filter
{
public:
    explicit Filter(const QString &pattern)
        : m_pattern(pattern)
        , m_height(asExpression(pattern), QRegularExpression::UseUnicodePropertiesOption)
    {}

    bool shows(const FileEntry &entry) const
    {
        return m_pattern.isEmpty() || entry.fileName().contains(m_pattern) ||
               entry.shortName.contains(m_pattern) || entry.description.contains(m_pattern) ||
               (m_height.isValid() && m_height.match(heightText(entry.height)).hasMatch());
    }

private:
    /// The pattern as a regular expression in which a comma or point is an ordinary character.
    static QString asExpression(QString pattern)
    {
        pattern.replace(u',', u'.');
        return pattern.replace(u'.', QStringLiteral("\\."));
    }

    QString m_pattern;
    QRegularExpression m_height;
};

} // namespace

QList<int> matchingTextures(const QList<FileEntry> &images, const QString &pattern)
{
    const Filter filter(pattern);
    QList<int> places;
    for (int i = 0; i < images.size(); ++i) {
        if (filter.shows(images.at(i)))
            places += i;
    }
    return places;
}

} // namespace vlt::buildings
