#include "renumber/history/NumberTable.h"

#include "store/CommandHistory.h"
#include "store/Variables.h"

#include <QCoreApplication>
#include <algorithm>

namespace
{
// From one point to a later one.
NumberMap numbersBetween(const CommandHistory &history, qsizetype from, qsizetype to)
{
    NumberMap numbers = unmovedNumbers();
    for (qsizetype i = from; i < to; ++i)
        if (const auto &moved = history.done().at(i).numbers)
            numbers = composed(numbers, *moved);
    return numbers;
}

// Quotation marks in it are doubled.
QString quoted(QString text)
{
    return u'"' + text.replace(u'"', QLatin1String("\"\"")) + u'"';
}
} // namespace

QList<NumberRow> numberRows(const Variables &variables, qsizetype from, qsizetype to)
{
    const CommandHistory &history = *variables.History;
    const qsizetype last = history.done().size();
    const NumberMap fromNow = inverseOf(numbersBetween(history, to, last));
    const NumberMap before = inverseOf(numbersBetween(history, from, to));
    QList<NumberRow> rows;
    for (int n = 0; n <= Variables::LastParagraph; ++n) {
        const int after = fromNow.at(n);
        if (variables.Written.at(n) == 1)
            rows.append({before.at(after), after, n});
    }
    std::sort(rows.begin(), rows.end(),
              [](const NumberRow &a, const NumberRow &b) { return a.after < b.after; });
    return rows;
}

QByteArray numberCsv(const QList<NumberRow> &rows, const std::function<QString(int)> &words)
{
    const auto head = [](const char *text) {
        return quoted(QCoreApplication::translate("NumberTable", text));
    };
    QString csv = QChar(QChar::ByteOrderMark) + head("Ancien numéro") + u';' +
                  head("Nouveau numéro") + u';' + head("Premiers mots") + QLatin1String("\r\n");
    for (const NumberRow &row : rows)
        csv += QStringLiteral("%1;%2;%3\r\n")
                   .arg(QString::number(row.before), QString::number(row.after),
                        quoted(words(row.now)));
    return csv.toUtf8();
}
