#include "editor/TargetPhrase.h"

#include "platform/Prompts.h"
#include "richtext/CodePage.h"
#include "store/AdventureChanges.h"
#include "store/AdventureFile.h"
#include "store/LongWork.h"
#include "store/ReferenceIndex.h"

#include <QCoreApplication>

QString shownPhrase(const QString &phrase)
{
    return QString(phrase).replace(u' ', u'_');
}

QString phraseOf(const QString &shown)
{
    return QString(shown).replace(u'_', u' ');
}

bool canKeepPhrase(const QString &phrase, Prompts &prompts)
{
    if (phrase.size() <= LongestPhrase && toWindows1252(phrase))
        return true;
    const QString text =
        phrase.size() > LongestPhrase
            ? QCoreApplication::translate("TargetPhrase", "Cette phrase est trop longue.")
            : QCoreApplication::translate("TargetPhrase", "Cette phrase contient un caractère que "
                                                          "l'aventure ne peut pas garder.");
    prompts.message(text, QCoreApplication::translate("TargetPhrase", "Zut"), Prompts::Buttons::Ok);
    return false;
}

bool changeTargetPhrase(Variables &variables, const QString &phrase, WorkReport &report)
{
    Variables changed = variables;
    changed.TargetPhrase = phrase;
    try {
        LongWork work(report, QStringLiteral("Graphing..."), WorkReport::Stopping::OnEscape);
        RebuildReferenceIndex(changed, work.progress());
    } catch (const WorkStopped &) {
        report.announce(QCoreApplication::translate("TargetPhrase", "Phrase cible inchangée."));
        return false;
    }
    setTargetPhrase(variables, phrase, changed.refIndex);
    return true;
}
