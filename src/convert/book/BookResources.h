#pragma once

#include <QByteArray>
#include <QString>

// A style sheet or a script that goes into books, by its name in resources/book.
QByteArray bookResource(const QString &name);
