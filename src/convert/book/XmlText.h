#pragma once

#include <QString>
#include <QStringView>

// Text as XML and HTML take it, in an element or in quotation marks: characters of the markup are
// escaped, and those that neither may hold are left out.
QString xmlText(QStringView text);
