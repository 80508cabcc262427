#include "store/AdventureMerge.h"

#include "platform/Failures.h"
#include "platform/OpenedFile.h"
#include "richtext/HiddenBox.h"
#include "store/AdventureChanges.h"
#include "store/AdventureFile.h"
#include "store/CommandHistory.h"
#include "store/DamagedTexts.h"
#include "store/LongWork.h"
#include "store/ParagraphStore.h"
#include "store/ParagraphTexts.h"
#include "store/ParagraphTransaction.h"
#include "store/ReferenceIndex.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace
{
// An older file may have been cut within its texts; one of the current version ends too soon then.
void refuseCutTexts(const Variables &other)
{
    for (int n = 0; n <= Variables::LastParagraph; ++n) {
        if (other.Written.at(n) == 0)
            continue;
        const TextExtent extent = textExtent(other, n);
        if (extent.offset + extent.length > other.AdventureFile->size())
            throw FormatError(extent.offset, QStringLiteral("the whole text"));
    }
}

Variables readOther(const QString &path)
{
    Variables other;
    takeOver(other, readAdventure(path));
    other.AdventurePath = path;
    refuseCutTexts(other);
    return other;
}

// The paragraphs of another adventure on their way into the open one.
class Incoming
{
public:
    Incoming(Variables &variables, const Variables &other)
        : m_variables(variables), m_other(other),
          m_transaction(variables,
                        {QCoreApplication::translate("AdventureMerge", "Importation de %1")
                             .arg(QFileInfo(other.AdventurePath).fileName()),
                         std::nullopt})
    {
        m_box.setBaseFont(variables.defaultFontName, variables.defaultFontSize);
    }

    // Throws FileError (Write) when it cannot be written, UnreadableTexts when it cannot be read.
    void take(int n)
    {
        const std::optional<ParagraphTransaction::Change> change = readableChange(n);
        if (!change)
            return;
        m_transaction.change(*change);
        m_taken.append(n);
        if (m_variables.Written.at(n) == 1)
            static_cast<void>(readableText(m_variables, n, m_lost));
    }

    // What the author had and what can no longer be read is kept before it is replaced.
    void commit()
    {
        KeptBytes kept(m_variables, m_lost);
        m_transaction.commit();
        kept.textsAreReplaced();
        m_whereKept = kept.whereKept();
    }

    const QList<int> &taken() const { return m_taken; }

    void tellLost(Prompts &prompts) const
    {
        if (!m_lost.isEmpty())
            prompts.notice(QCoreApplication::translate("AdventureMerge",
                                                       "Paragraphes illisibles, remplacés : %1")
                                   .arg(paragraphNames(m_lost)) +
                               m_whereKept,
                           QStringLiteral("BUG"));
    }

private:
    // Nothing for an empty text.
    std::optional<ParagraphTransaction::Change> readableChange(int n)
    {
        try {
            return changeOf(n);
        } catch (const UsmiraError &) {
            throw UnreadableTexts({n});
        }
    }

    std::optional<ParagraphTransaction::Change> changeOf(int n)
    {
        m_box.setRtf(GetParagraphRtf(m_other, n));
        const QString text = m_box.text();
        if (text.isEmpty())
            return std::nullopt;
        return ParagraphTransaction::Change{n, n, rtfToSave(m_box),
                                            referenceEntry(text, m_variables.TargetPhrase),
                                            m_other.Unmixable.at(n) == 1};
    }

    Variables &m_variables;
    const Variables &m_other;
    ParagraphTransaction m_transaction;
    HiddenBox m_box;
    QList<int> m_lost; // what stood at these numbers cannot be read
    QString m_whereKept;
    QList<int> m_taken;
};

void takeAll(Incoming &incoming, const QList<int> &numbers, const Progress &progress)
{
    int done = 0;
    for (const int n : numbers) {
        incoming.take(n);
        progress(++done, static_cast<int>(numbers.size()));
    }
}

template <typename List> void takeMissing(List &list, const List &taken)
{
    for (const auto &one : taken)
        if (!list.contains(one))
            list.append(one);
}

// What has been accepted there about the paragraphs that come need not be accepted once more.
void takeAccepted(Variables &variables, const AdventureExtras &taken)
{
    AdventureExtras extras = variables.extras;
    takeMissing(extras.accepted, taken.accepted);
    takeMissing(extras.ignored, taken.ignored);
    extras.words += taken.words;
    std::sort(extras.words.begin(), extras.words.end());
    extras.words.removeDuplicates();
    if (extras != variables.extras)
        changeExtras(variables, extras);
}
} // namespace

AdventureMerge::AdventureMerge(Variables &variables, Prompts &prompts, WorkReport &report)
    : m_variables(variables), m_prompts(prompts), m_report(report)
{
}

void AdventureMerge::Import()
{
    const QString path =
        m_prompts.openName(tr("Choisir une Aventure"), tr("Fichiers Usmira (*.usm)|*.usm"));
    if (!path.isEmpty())
        ImportFrom(path);
}

void AdventureMerge::ImportFrom(const QString &path)
{
    try {
        readVersion(path);
    } catch (const FileError &error) {
        tell(failureText(tr("Fichier invalide. Opération annulée."), error), tr("BUG"));
        return;
    }
    reportingFailures(m_prompts, [&] {
        const Variables other = readOther(path);
        if (const std::optional<Collisions> collisions = askToReplace(other))
            importAll(other, *collisions);
        return true;
    });
}

// Nothing: the author, or an adventure without a paragraph, has ended the command.
std::optional<AdventureMerge::Collisions> AdventureMerge::askToReplace(const Variables &other)
{
    int sections = 0;
    int collisions = 0;
    for (int n = 0; n <= Variables::LastParagraph; ++n) {
        sections += other.Written.at(n);
        collisions += other.Written.at(n) == 1 && m_variables.Written.at(n) == 1 ? 1 : 0;
    }
    if (sections == 0) {
        tell(tr("Cette aventure ne contient aucun paragraphe."), tr("Niouf"));
        return std::nullopt;
    }
    if (collisions == 0)
        return Collisions::Kept;
    switch (m_prompts.question(
        tr("ATTENTION : %1 paragraphes du fichier à importer ont les mêmes numéros que ceux du "
           "fichier actuel. Voulez-vous REMPLACER les paragraphes de l'aventure actuelle par ceux "
           "de l'aventure importée ?")
            .arg(collisions),
        preview(other), tr("Attention !"), Prompts::Buttons::YesNoCancel)) {
    case Prompts::Answer::Yes:
        return Collisions::Replaced;
    case Prompts::Answer::No:
        return Collisions::Kept;
    default:
        return std::nullopt;
    }
}

QList<int> AdventureMerge::wanted(const Variables &other, Collisions collisions) const
{
    QList<int> numbers;
    for (int n = 0; n <= Variables::LastParagraph; ++n) {
        const bool free = m_variables.Written.at(n) == 0;
        if (other.Written.at(n) == 1 && (free || collisions == Collisions::Replaced))
            numbers.append(n);
    }
    return numbers;
}

// The first text that cannot be read ends the import, and an empty one does not come. With
// "Non" those that would be replaced are not read.
QString AdventureMerge::preview(const Variables &other) const
{
    int replaced = 0;
    int added = 0;
    int addedAlone = 0;
    bool replacing = true;
    QList<int> unreadable;
    for (const int n : wanted(other, Collisions::Replaced)) {
        const bool free = m_variables.Written.at(n) == 0;
        const std::optional<QString> text = readablePlainText(other, n, unreadable);
        if (!text && free)
            break;
        replacing = replacing && text;
        if (!text || text->isEmpty())
            continue;
        replaced += replacing && !free ? 1 : 0;
        added += replacing && free ? 1 : 0;
        addedAlone += free ? 1 : 0;
    }
    const auto newOnes = [](int n) {
        return n == 0 ? tr("aucun nouveau") : tr("%n nouveau(x)", nullptr, n);
    };
    return tr("Oui : %1 et %2. Non : %3.")
        .arg(replaced == 0 ? tr("aucun paragraphe remplacé")
                           : tr("%n paragraphe(s) remplacé(s)", nullptr, replaced),
             newOnes(added), newOnes(addedAlone));
}

void AdventureMerge::importAll(const Variables &other, Collisions collisions)
{
    const QList<int> numbers = wanted(other, collisions);
    Incoming incoming(m_variables, other);
    const int before = m_variables.History->newId();
    QList<int> unreadable; // the one that ended the import
    {
        LongWork work(m_report, tr("Importing..."));
        try {
            takeAll(incoming, numbers, work.progress());
        } catch (const UnreadableTexts &error) {
            unreadable = error.paragraphs();
        }
        incoming.commit();
        takeAccepted(m_variables, extrasOf(incoming.taken(), other.extras));
    }
    announceDone(
        m_variables, m_report, before,
        tr("%n paragraphe(s) importé(s) : %1", nullptr, static_cast<int>(incoming.taken().size()))
            .arg(other.AdventurePath));
    incoming.tellLost(m_prompts);
    if (!unreadable.isEmpty())
        tell(tr("Erreur lors de l'importation des paragraphes.") + u'\n' +
                 tr("%1 : le paragraphe %2 est illisible.")
                     .arg(QDir::toNativeSeparators(other.AdventurePath),
                          QString::number(unreadable.first())),
             tr("BUG"));
}

void AdventureMerge::tell(const QString &text, const QString &title)
{
    m_prompts.message(text, title, Prompts::Buttons::Ok);
}
