#include "views/grid/GridShades.h"

#include "platform/Translations.h"

#include <QCoreApplication>
#include <cmath>

namespace
{
double darkness(double share)
{
    return std::sqrt(share);
}

int between(int light, int dark, double share)
{
    return light + static_cast<int>(darkness(share) * (dark - light));
}
} // namespace

QColor shadeColour(double share)
{
    if (share <= 0)
        return Qt::white;
    return {between(226, 8, share), between(236, 40, share), between(250, 110, share)};
}

QColor inkUpon(double share)
{
    constexpr double half = 0.61; // there both are as easy to read
    return darkness(share) < half ? Qt::black : Qt::white;
}

QString shadeWords(double share)
{
    if (share <= 0)
        return QCoreApplication::translate("GridShades", "aucune lecture n'y passe");
    return QCoreApplication::translate("GridShades", "%1 % des lectures y passent")
        .arg(localeOfTexts().toString(share * 100, 'f', 1));
}
