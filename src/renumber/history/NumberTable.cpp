#include "renumber/history/NumberTable.h"

#include "store/CommandHistory.h"
#include "store/CsvCell.h"
#include "store/Variables.h"

#include <QCoreApplication>
#include <algorithm>

namespace
{
// At a point, of each number now.
NumberMap numbersAt(const CommandHistory &history, qsizetype point)
{
    NumberMap numbers = unmovedNumbers();
    for (qsizetype i = point; i < history.done().size(); ++i)
        if (const auto &moved = history.done().at(i).numbers)
            numbers = composed(numbers, *moved);
    return inverseOf(numbers);
}
} // namespace

QList<NumberRow> numberRows(const Variables &variables, qsizetype from, qsizetype to)
{
    const NumberMap before = numbersAt(*variables.History, from);
    const NumberMap after = numbersAt(*variables.History, to);
    QList<NumberRow> rows;
    for (int n = 0; n <= Variables::LastParagraph; ++n)
        if (variables.Written.at(n) == 1)
            rows.append({before.at(n), after.at(n), n});
    std::sort(rows.begin(), rows.end(),
              [](const NumberRow &a, const NumberRow &b) { return a.after < b.after; });
    return rows;
}

QStringList numberTableHead()
{
    return {QCoreApplication::translate("NumberTable", "Ancien numéro"),
            QCoreApplication::translate("NumberTable", "Nouveau numéro"),
            QCoreApplication::translate("NumberTable", "Premiers mots")};
}

QByteArray numberCsv(const QList<NumberRow> &rows, const std::function<QString(int)> &words)
{
    QStringList head = numberTableHead();
    std::transform(head.begin(), head.end(), head.begin(), &csvCell);
    QString csv = QChar(QChar::ByteOrderMark) + head.join(u';') + QLatin1String("\r\n");
    for (const NumberRow &row : rows)
        csv += QStringLiteral("%1;%2;%3\r\n")
                   .arg(QString::number(row.before), QString::number(row.after),
                        csvCell(words(row.now)));
    return csv.toUtf8();
}
