#include "check/BookWays.h"
#include "editor/FirstWords.h"
#include "outil/CommandEntry.h"
#include "outil/Commands.h"
#include "outil/Script.h"
#include "reading/StatisticsText.h"
#include "store/DamagedTexts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace
{
QJsonArray arrayOf(const QList<int> &numbers)
{
    QJsonArray array;
    for (const int n : numbers)
        array.append(n);
    return array;
}

QJsonArray paragraphsOf(const BookStatistics &book, const RandomReadings &readings)
{
    QJsonArray array;
    for (const BookStatistics::Paragraph &paragraph : book.paragraphs)
        array.append(QJsonObject{{QStringLiteral("number"), paragraph.number},
                                 {QStringLiteral("words"), paragraph.words},
                                 {QStringLiteral("signs"), paragraph.signs},
                                 {QStringLiteral("choices"), paragraph.choices},
                                 {QStringLiteral("met"), readings.met.at(paragraph.number)}});
    return array;
}

QJsonArray endingsOf(const BookStatistics &book, const RandomReadings &readings)
{
    QJsonArray array;
    for (const BookStatistics::Ending &ending : book.endings)
        array.append(QJsonObject{{QStringLiteral("number"), ending.number},
                                 {QStringLiteral("way"), arrayOf(ending.way)},
                                 {QStringLiteral("passages"), arrayOf(ending.passages)},
                                 {QStringLiteral("readings"), readings.ended.at(ending.number)}});
    return array;
}

QJsonObject objectOf(const BookStatistics &book, const RandomReadings &readings)
{
    QJsonArray lengths;
    for (auto entry = readings.lengths.begin(); entry != readings.lengths.end(); ++entry)
        lengths.append(QJsonObject{{QStringLiteral("length"), entry.key()},
                                   {QStringLiteral("readings"), entry.value()}});
    QJsonArray loops;
    for (const RandomReadings::Loop &loop : readings.loops)
        loops.append(QJsonObject{{QStringLiteral("members"), arrayOf(loop.members)},
                                 {QStringLiteral("readings"), loop.readings}});
    return {{QStringLiteral("words"), book.words},
            {QStringLiteral("signs"), book.signs},
            {QStringLiteral("choices"), book.choices},
            {QStringLiteral("reached"), book.reached},
            {QStringLiteral("starts"), arrayOf(book.starts)},
            {QStringLiteral("longest"), book.span().longest},
            {QStringLiteral("shortest"), book.span().shortest},
            {QStringLiteral("paragraphs"), paragraphsOf(book, readings)},
            {QStringLiteral("endings"), endingsOf(book, readings)},
            {QStringLiteral("readings"), readings.count},
            {QStringLiteral("seed"), static_cast<qint64>(readings.seed)},
            {QStringLiteral("share"), readings.meanShare},
            {QStringLiteral("lengths"), lengths},
            {QStringLiteral("never"), arrayOf(neverMet(book, readings))},
            {QStringLiteral("loops"), loops}};
}

QByteArray statistiques(CommandServices &script, const QStringList &arguments)
{
    const bool json = isJsonWanted(arguments);
    const Variables &variables = script.variables;
    const TextSizes sizes = textSizes(variables);
    tellUnreadable(sizes.unreadable, script.prompts);
    const BookWays ways(variables);
    const BookStatistics book = bookStatistics(variables, ways, sizes);
    // The same every time, so that two versions of a book can be compared.
    const RandomReadings readings = randomReadings(variables, ways, UsualReadings, UsualSeed);
    if (json)
        return QJsonDocument(objectOf(book, readings)).toJson(QJsonDocument::Compact) + '\n';
    const auto words = [&variables](int n) { return firstWords(variables, n); };
    return statisticsLines(book, readings, words).join(u'\n').toUtf8() + '\n';
}

quint32 seedOf(const QStringList &arguments)
{
    if (arguments.size() < 2)
        return anySeed();
    bool ok = false;
    const quint32 seed = arguments.at(1).toUInt(&ok);
    if (!ok)
        throw UsageError(
            Commands::tr("graine de 0 à 4294967295 attendue : %1").arg(arguments.at(1)));
    return seed;
}

QByteArray lire(CommandServices &script, const QStringList &arguments)
{
    const int start = paragraphNumber(arguments.first());
    const quint32 seed = seedOf(arguments);
    const BookWays ways(script.variables);
    if (!ways.written.at(start)) {
        script.prompts.message(Commands::tr("Il n'y a rien à lire au %1").arg(start),
                               Commands::tr("Lecture d'Essai"), Prompts::Buttons::Ok);
        return {};
    }
    QByteArray lines;
    for (const int n : RandomReader(script.variables, ways, seed).read(start).way)
        lines += numberLine(n);
    return lines;
}
} // namespace

std::vector<CommandEntry> statisticsEntries()
{
    return {
        {"statistiques", "[json]",
         QT_TRANSLATE_NOOP("Commands", "écrit le livre en chiffres, fins et passages obligés"),
         true, &statistiques},
        {"lire", "N [GRAINE]",
         QT_TRANSLATE_NOOP("Commands", "écrit une lecture au hasard à partir du N"), true, &lire},
    };
}
