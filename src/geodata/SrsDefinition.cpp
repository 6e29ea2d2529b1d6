#include "geodata/SrsDefinition.h"

#include "geodata/ErrorCollector.h"
#include "geodata/SrsFacts.h"

#include <ogr_spatialref.h>

#include <QRegularExpression>

namespace vlt::geodata {

QString listedCode(const QString &systemText)
{
    static const QRegularExpression number(QStringLiteral("^\\s*(?:EPSG:)?([0-9]+)\\s*$"),
                                           QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = number.match(systemText);
    return match.hasMatch() ? QStringLiteral("EPSG:") + match.captured(1) : systemText;
}

std::optional<Error> definitionRefusal(const QString &text)
{
    const QByteArray bytes = text.toLatin1();
    if (QString::fromLatin1(bytes) != text)
        return Error{
            QStringLiteral("MESS_SRS_NOT_LATIN1"),
            QStringLiteral(
                "A definition may contain only the characters of Western European languages"),
            {}};

    const ErrorCollector quiet;
    OGRSpatialReference system;
    system.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    if (system.SetFromUserInput(bytes.constData(),
                                OGRSpatialReference::SET_FROM_USER_INPUT_LIMITATIONS_get()) !=
            OGRERR_NONE ||
        system.Validate() != OGRERR_NONE)
        return Error{QStringLiteral("MESS_SRS_NOT_DEFINED"),
                     QStringLiteral("This is not yet a definition of a coordinate system"),
                     {}};
    return srsRefusal(srsFacts(system));
}

} // namespace vlt::geodata
