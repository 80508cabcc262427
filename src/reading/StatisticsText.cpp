#include "reading/StatisticsText.h"

#include "platform/Translations.h"

#include <QCoreApplication>
#include <algorithm>

namespace
{
struct Words {
    Q_DECLARE_TR_FUNCTIONS(StatisticsText)
};

QString whole(qint64 n)
{
    return localeOfTexts().toString(n);
}

QString tenths(double value)
{
    return localeOfTexts().toString(value, 'f', 1);
}

QString perParagraph(int total, const BookStatistics &book)
{
    const auto count = static_cast<double>(std::max<qsizetype>(book.paragraphs.size(), 1));
    return Words::tr("%1, soit %2 par paragraphe").arg(whole(total), tenths(total / count));
}

QStringList spanSentences(const BookStatistics &book, const NumberText &text)
{
    const auto told = [&](const QString &sentence, int n) {
        const auto paragraph =
            std::find_if(book.paragraphs.begin(), book.paragraphs.end(),
                         [n](const BookStatistics::Paragraph &p) { return p.number == n; });
        return sentence.arg(text(n), Words::tr("%n mot(s)", nullptr, paragraph->words));
    };
    if (book.paragraphs.isEmpty())
        return {};
    const BookStatistics::Span span = book.span();
    return {told(Words::tr("Le plus long : le %1 (%2)"), span.longest),
            told(Words::tr("Le plus court : le %1 (%2)"), span.shortest)};
}

QString lengthSentence(const QMap<int, int> &lengths)
{
    qint64 ended = 0;
    qint64 read = 0;
    for (auto entry = lengths.begin(); entry != lengths.end(); ++entry) {
        ended += entry.value();
        read += qint64{entry.key()} * entry.value();
    }
    return Words::tr("Paragraphes lus jusqu'à la fin : %1 à %2, en moyenne %3")
        .arg(lengths.firstKey())
        .arg(lengths.lastKey())
        .arg(tenths(static_cast<double>(read) / static_cast<double>(ended)));
}

QString plain(int n)
{
    return QString::number(n);
}

// Names of columns, then rows.
QStringList table(const QStringList &names, const QList<QStringList> &rows)
{
    QStringList lines{QString(), names.join(u'\t')};
    for (const QStringList &row : rows)
        lines.append(row.join(u'\t'));
    return lines;
}

QStringList counts(const QStringList &names, const QMap<int, int> &values)
{
    QList<QStringList> rows;
    for (auto entry = values.begin(); entry != values.end(); ++entry)
        rows.append({QString::number(entry.key()), QString::number(entry.value())});
    return table(names, rows);
}

QStringList endingTable(const BookStatistics &book, const RandomReadings &readings,
                        const std::function<QString(int)> &words)
{
    QList<QStringList> rows;
    for (const BookStatistics::Ending &ending : book.endings)
        rows.append({QString::number(ending.number),
                     shareOf(readings.ended.at(ending.number), readings),
                     QString::number(ending.way.size()), numberList(ending.way, plain),
                     numberList(ending.passages, plain), words(ending.number)});
    return table({Words::tr("Fin"), Words::tr("Lectures"), Words::tr("Longueur"),
                  Words::tr("Chemin le plus court"), Words::tr("Passages obligés"),
                  Words::tr("Premiers mots")},
                 rows);
}

QStringList paragraphTable(const BookStatistics &book, const RandomReadings &readings,
                           const std::function<QString(int)> &words)
{
    QList<QStringList> rows;
    for (const BookStatistics::Paragraph &paragraph : book.paragraphs)
        rows.append({QString::number(paragraph.number), QString::number(paragraph.words),
                     QString::number(paragraph.signs), QString::number(paragraph.choices),
                     QString::number(readings.met.at(paragraph.number)), words(paragraph.number)});
    return table({Words::tr("Paragraphe"), Words::tr("Mots"), Words::tr("Signes"),
                  Words::tr("Choix"), Words::tr("Lectures"), Words::tr("Premiers mots")},
                 rows);
}
} // namespace

QStringList bookSentences(const BookStatistics &book, const NumberText &text)
{
    const QStringList totals{
        Words::tr("Paragraphes : %1, dont %2 qu'une lecture peut atteindre")
            .arg(whole(book.paragraphs.size()), whole(book.reached)),
        Words::tr("Mots : %1").arg(perParagraph(book.words, book)),
        Words::tr("Signes, espaces comprises : %1").arg(perParagraph(book.signs, book)),
        Words::tr("Choix : %1").arg(perParagraph(book.choices, book)),
        Words::tr("Fins : %1").arg(whole(book.endings.size())),
    };
    return totals + spanSentences(book, text);
}

QStringList readingSentences(const BookStatistics &book, const RandomReadings &readings,
                             const NumberText &text)
{
    if (readings.count == 0)
        return {};
    QStringList lines{
        Words::tr("%n lecture(s) au hasard, graine %1", nullptr, readings.count).arg(readings.seed),
        Words::tr("Une lecture rencontre en moyenne %1 % du livre")
            .arg(tenths(readings.meanShare * 100))};
    if (!readings.lengths.isEmpty())
        lines.append(lengthSentence(readings.lengths));
    for (const RandomReadings::Loop &loop : readings.loops)
        lines.append(
            Words::tr("%n lecture(s) prise(s) dans une boucle : %1", nullptr, loop.readings)
                .arg(numberList(loop.members, text)));
    const QList<int> never = neverMet(book, readings);
    if (!never.isEmpty())
        lines.append(Words::tr("Jamais rencontrés (%1) : %2")
                         .arg(QString::number(never.size()), numberList(never, text)));
    return lines;
}

QStringList endingSentences(const BookStatistics::Ending &ending, const NumberText &text)
{
    if (ending.way.isEmpty())
        return {Words::tr("Aucune lecture n'arrive au %1").arg(text(ending.number))};
    QStringList lines{Words::tr("Chemin le plus court vers le %1 : %2")
                          .arg(text(ending.number), numberList(ending.way, text))};
    lines.append(ending.passages.isEmpty()
                     ? Words::tr("Aucun passage obligé")
                     : Words::tr("Passages obligés : %1").arg(numberList(ending.passages, text)));
    return lines;
}

QStringList statisticsLines(const BookStatistics &book, const RandomReadings &readings,
                            const std::function<QString(int)> &words)
{
    return bookSentences(book, plain) + readingSentences(book, readings, plain) +
           endingTable(book, readings, words) +
           counts({Words::tr("Paragraphes lus"), Words::tr("Lectures")}, readings.lengths) +
           counts({Words::tr("Choix"), Words::tr("Paragraphes")}, choiceCounts(book)) +
           paragraphTable(book, readings, words);
}

QList<int> neverMet(const BookStatistics &book, const RandomReadings &readings)
{
    QList<int> numbers;
    for (const BookStatistics::Paragraph &paragraph : book.paragraphs)
        if (readings.met.at(paragraph.number) == 0)
            numbers.append(paragraph.number);
    return numbers;
}

QMap<int, int> choiceCounts(const BookStatistics &book)
{
    QMap<int, int> counts;
    for (const BookStatistics::Paragraph &paragraph : book.paragraphs)
        ++counts[paragraph.choices];
    return counts;
}

QString shareOf(int readings, const RandomReadings &all)
{
    return all.count == 0 ? QString() : Words::tr("%1 %").arg(tenths(100.0 * readings / all.count));
}

QString numberList(const QList<int> &numbers, const NumberText &text)
{
    QStringList texts;
    for (const int n : numbers)
        texts.append(text(n));
    return texts.join(QStringLiteral(", "));
}
