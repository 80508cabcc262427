#include "views/reading/ReadingSentences.h"

#include "check/BookWays.h"
#include "editor/FirstWords.h"
#include "platform/Failures.h"
#include "reading/RandomReadings.h"

#include <QCoreApplication>
#include <algorithm>

QString nothingUnread(const Variables &variables, const ParagraphSet &unread)
{
    const auto left = static_cast<int>(std::count(unread.begin(), unread.end(), true));
    if (left == 0)
        return QCoreApplication::translate("ReadingSentences", "Tout est lu.");
    const BookWays ways(variables);
    int reached = 0;
    for (int n = 1; n <= Variables::LastParagraph; ++n)
        reached += unread.at(n) && ways.reached.at(n) ? 1 : 0;
    if (reached > 0)
        return QCoreApplication::translate(
            "ReadingSentences",
            "D'ici, tout est lu ; depuis le début, il reste %n paragraphe(s) à lire.", nullptr,
            reached);
    return QCoreApplication::translate(
        "ReadingSentences",
        "Tout ce qu'une lecture peut atteindre est lu ; %n paragraphe(s) non lu(s) ne sont "
        "atteints par aucune.",
        nullptr, left);
}

QString randomSentence(const RandomReading &reading)
{
    const int empty = reading.end == ReadingEnd::EmptyNumber ? 1 : 0;
    const int steps = static_cast<int>(reading.way.size()) - empty;
    switch (reading.end) {
    case ReadingEnd::Ending:
        break;
    case ReadingEnd::EmptyNumber:
        return QCoreApplication::translate(
            "ReadingSentences",
            "Au hasard : %n paragraphe(s), puis un renvoi à un paragraphe vide.", nullptr, steps);
    case ReadingEnd::Loop:
        return QCoreApplication::translate(
                   "ReadingSentences",
                   "Au hasard : arrêté après %n paragraphe(s), car la lecture tourne en rond : %1",
                   nullptr, steps)
            .arg(paragraphNames(reading.loop));
    }
    return QCoreApplication::translate(
        "ReadingSentences", "Au hasard : %n paragraphe(s) jusqu'à une fin.", nullptr, steps);
}

QString linkTip(const Variables &variables, const ReadingPage::Link &link)
{
    using Kind = ReadingPage::Link::Kind;
    if (link.kind == Kind::Empty)
        return QCoreApplication::translate("ReadingSentences", "Le paragraphe %1 est encore vide.")
            .arg(link.target);
    const QString words = QCoreApplication::translate("ReadingSentences", "%1 : %2")
                              .arg(link.target)
                              .arg(firstWords(variables, link.target));
    return link.kind == Kind::Taken
               ? QCoreApplication::translate("ReadingSentences", "%1 (choix déjà fait)").arg(words)
               : words;
}
