#include "outil/Commands.h"

#include "outil/Script.h"
#include "platform/SafeFile.h"
#include "store/AdventureChanges.h"
#include "store/AdventureFile.h"
#include "store/CommandHistory.h"
#include "store/ParagraphStore.h"
#include "store/Session.h"

#include <algorithm>

namespace
{
const std::vector<CommandEntry> &entries()
{
    static const std::vector<CommandEntry> table = [] {
        std::vector<CommandEntry> all;
        for (const auto &group :
             {adventureEntries(), paragraphEntries(), renumberEntries(), historyEntries(),
              textEntries(), checkEntries(), spellingEntries(), typographyEntries(),
              statisticsEntries(), viewsEntries(), publishEntries(), bookEntries()})
            all.insert(all.end(), group.begin(), group.end());
        return all;
    }();
    return table;
}

bool fits(const CommandEntry &entry, qsizetype arguments)
{
    const QString form = QString::fromUtf8(entry.form);
    const qsizetype most = form.split(u' ', Qt::SkipEmptyParts).size();
    const qsizetype least = most - form.count(u'[');
    return arguments >= least && (arguments <= most || form.endsWith(QStringLiteral("...]")));
}
} // namespace

CommandServices::CommandServices(Variables &state, Prompts &answers)
    : variables(state), prompts(answers), view(state), adventure(state, answers, view, view),
      merge(state, answers, view), split(state, answers, view), renumber(state, answers, view),
      history(state, answers, view), search(state, answers, view, view),
      exports(state, answers, view)
{
}

QByteArray CommandServices::shownAgain(bool done)
{
    if (done)
        view.LoadParg(variables.CurrentParagraph);
    return {};
}

QByteArray CommandServices::told(const std::optional<QString> &remark)
{
    if (remark && !remark->isEmpty())
        prompts.notice(*remark, Commands::tr("Livre"));
    return {};
}

int paragraphNumber(const QString &word)
{
    bool ok = false;
    const int n = word.toInt(&ok);
    if (!ok || n < 0 || n > Variables::LastParagraph)
        throw UsageError(Commands::tr("numéro de paragraphe de 0 à 2000 attendu : %1").arg(word));
    return n;
}

bool isJsonWanted(const QStringList &arguments)
{
    const QString form = arguments.value(0);
    if (!form.isEmpty() && form != QStringLiteral("json"))
        throw UsageError(Commands::tr("json attendu : %1").arg(form));
    return !form.isEmpty();
}

QByteArray numberLine(int n)
{
    return QByteArray::number(n) + '\n';
}

Commands::Commands(Variables &variables, Prompts &prompts) : m_services(variables, prompts) {}

void Commands::open(const UnsavedWork &work)
{
    m_services.adventure.OpenUnsaved(work);
    SaveCurParg(m_services.variables, m_services.view.editingBox(), m_services.prompts);
}

QByteArray Commands::run(const QStringList &words)
{
    if (words.isEmpty())
        return {};
    const auto entry = std::find_if(entries().begin(), entries().end(), [&](const CommandEntry &e) {
        return QString::fromUtf8(e.name) == words.first();
    });
    if (entry == entries().end())
        throw UsageError(tr("commande inconnue : %1").arg(words.first()));
    if (!fits(*entry, words.size() - 1))
        throw UsageError(tr("attendu : %1 %2")
                             .arg(QString::fromUtf8(entry->name), QString::fromUtf8(entry->form))
                             .trimmed());
    if (entry->needsAdventure && !m_services.variables.AdventureOpen) {
        m_services.prompts.message(tr("Aucun Fichier Ouvert"), QStringLiteral("Usmira"),
                                   Prompts::Buttons::Ok);
        return {};
    }
    return entry->run(m_services, words.mid(1));
}

QString Commands::help()
{
    QString help;
    for (const CommandEntry &entry : entries()) {
        const QString form = QString::fromUtf8(entry.name) + u' ' + QString::fromUtf8(entry.form);
        help += QStringLiteral("  %1 %2\n").arg(form.leftJustified(36), tr(entry.purpose));
    }
    return help;
}

void Commands::finish(bool save)
{
    Variables &variables = m_services.variables;
    // Nobody will write the new adventure any more that a full disk has left without a session.
    if (variables.AdventureOpen && !save && isPlaceholder(variables.AdventurePath))
        tryRemoveFile(variables.AdventurePath);
    forgetHistory(variables);
    if (!variables.AdventureOpen || !hasUnsavedChanges(variables))
        return;
    if (save) {
        m_services.adventure.Save();
    } else {
        forgetSession(variables.WorkingFolder);
        DiscardWorkingFiles(variables);
    }
}
