#include "check/StartNumbers.h"

#include "check/BookWays.h"
#include "store/LenientNumbers.h"
#include "store/Variables.h"

#include <QCoreApplication>
#include <QRegularExpression>

StartNumbers startNumbers(const QString &text)
{
    static const QRegularExpression between(QStringLiteral("[\\s,;]+"));
    StartNumbers starts;
    const QStringList words = text.split(between, Qt::SkipEmptyParts);
    for (const QString &word : words) {
        const int n = lenientParagraph(word).value_or(0);
        if (n == 0 && starts.refused.isEmpty())
            starts.refused = word;
        else if (n != 0 && !starts.numbers.contains(n))
            starts.numbers.append(n);
    }
    return starts;
}

QString startsNote(const Variables &variables)
{
    QStringList empty;
    const QList<int> starts = readingStarts(variables);
    for (const int n : starts)
        if (variables.Written.at(n) == 0)
            empty.append(QString::number(n));
    if (empty.isEmpty())
        return {};
    const QString note = QCoreApplication::translate("StartNumbers", "Sans texte : %1.")
                             .arg(empty.join(QStringLiteral(", ")));
    if (empty.size() < starts.size())
        return note;
    const int lowest = BookWays(variables).starts.value(0);
    return lowest == 0
               ? note
               : note + u' ' +
                     QCoreApplication::translate("StartNumbers", "Le contrôle part donc du %1.")
                         .arg(lowest);
}
