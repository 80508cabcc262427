#pragma once

#include <QHash>
#include <QString>

// What the buttons of the page for reading say, by the names that the template has for it, in the
// language of the book: French for a French one, else English.
QHash<QString, QString> pageLabels(const QString &language);
