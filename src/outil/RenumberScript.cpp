#include "outil/CommandEntry.h"
#include "outil/Commands.h"
#include "outil/Script.h"
#include "store/LenientNumbers.h"

#include <QRandomGenerator>
#include <QTime>

namespace
{
QByteArray echanger(CommandServices &script, const QStringList &arguments)
{
    return script.shownAgain(
        script.renumber.Swap(lenientNumber(arguments.first()), lenientNumber(arguments.last())));
}

QByteArray melanger(CommandServices &script, const QStringList &arguments)
{
    const QString seed =
        arguments.value(2, QString::number(QTime::currentTime().msecsSinceStartOfDay()));
    bool ok = false;
    QRandomGenerator generator(seed.toUInt(&ok));
    if (!ok)
        throw UsageError(Commands::tr("graine de 0 à 4294967295 attendue : %1").arg(seed));
    return script.shownAgain(
        script.renumber.MasterMix(lenientNumber(arguments.at(0)), lenientNumber(arguments.at(1)),
                                  [&generator] { return generator.generateDouble(); }));
}

QByteArray deplacer(CommandServices &script, const QStringList &arguments)
{
    const double low = lenientNumber(arguments.at(0));
    const double high = lenientNumber(arguments.at(1));
    const double delta = lenientNumber(arguments.at(2));
    const QString &towards = arguments.at(3);
    if (towards == QStringLiteral("bas"))
        return script.shownAgain(script.renumber.MoveDown(low, high, delta));
    if (towards == QStringLiteral("haut"))
        return script.shownAgain(script.renumber.MoveUp(low, high, delta));
    throw UsageError(Commands::tr("bas ou haut attendu : %1").arg(towards));
}

QByteArray combler(CommandServices &script, const QStringList &arguments)
{
    return script.shownAgain(script.renumber.PackHoles(lenientNumber(arguments.first()),
                                                       lenientNumber(arguments.last())));
}
} // namespace

std::vector<CommandEntry> renumberEntries()
{
    return {
        {"echanger", "A B", QT_TRANSLATE_NOOP("Commands", "échange les numéros A et B"), true,
         &echanger},
        {"melanger", "BAS HAUT [GRAINE]",
         QT_TRANSLATE_NOOP("Commands", "mélange les paragraphes entre BAS et HAUT"), true,
         &melanger},
        {"deplacer", "BAS HAUT DELTA bas|haut",
         QT_TRANSLATE_NOOP("Commands", "déplace le bloc BAS à HAUT de DELTA numéros"), true,
         &deplacer},
        {"combler", "BAS HAUT", QT_TRANSLATE_NOOP("Commands", "comble les trous entre BAS et HAUT"),
         true, &combler},
    };
}
