#include "store/CsvCell.h"

#include <QStringView>

QString csvCell(QString text)
{
    if (!text.isEmpty() && QStringView(u"=+-@").contains(text.front()))
        text.prepend(u'\'');
    return u'"' + text.replace(u'"', QLatin1String("\"\"")) + u'"';
}
