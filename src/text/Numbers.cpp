#include "text/Numbers.h"

namespace vlt::text {

QString g6(double value)
{
    return QString::number(value, 'g', 6);
}

QString g9(double value)
{
    return QString::number(value, 'g', 9);
}

QString f6(double value)
{
    return QString::number(value, 'f', 6);
}

} // namespace vlt::text
