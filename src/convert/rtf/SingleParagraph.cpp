#include "convert/rtf/SingleParagraph.h"

#include "platform/Failures.h"
#include "richtext/RichTextBox.h"
#include "store/AdventureCommands.h"
#include "store/DamagedTexts.h"
#include "store/ExportTarget.h"
#include "store/ParagraphStore.h"
#include "store/ReferenceIndex.h"
#include "store/WorkReport.h"

namespace
{
QString rtfFilter()
{
    return SingleParagraph::tr("Fichiers RTF (*.rtf)|*.rtf");
}
} // namespace

SingleParagraph::SingleParagraph(Variables &variables, Prompts &prompts, AdventureView &view,
                                 WorkReport &report)
    : m_variables(variables), m_prompts(prompts), m_view(view), m_report(report)
{
}

bool SingleParagraph::Load()
{
    RichTextBox &box = m_view.editingBox();
    if (box.textLength() >= 1 &&
        m_prompts.message(tr("Ceci va effacer le texte actuel du paragraphe. Continuer?"),
                          tr("Attention"), Prompts::Buttons::YesNo) != Prompts::Answer::Yes)
        return false;
    const QString path = m_prompts.openName(tr("Ouvrir Fichier RTF"), rtfFilter());
    if (path.isEmpty())
        return false;
    LoadedParagraph loaded = beforeLoading(box);
    try {
        box.loadFile(path);
    } catch (const UsmiraError &error) {
        m_report.announce(failureLine(tr("Rien n'a été chargé."), error));
        return false;
    }
    m_variables.ParagraphDirty = true;
    noteLoading(loaded, box);
    return true;
}

// What was typed and not saved yet is what the author wants back, as it would have been saved.
LoadedParagraph SingleParagraph::beforeLoading(const RichTextBox &box) const
{
    const int n = m_variables.CurrentParagraph;
    LoadedParagraph loaded;
    loaded.title = tr("Paragraphe chargé : %1").arg(n);
    if (m_variables.ParagraphDirty && box.textLength() > 0) {
        loaded.before = box.rtf();
        loaded.referencesBefore = referenceEntry(box.text(), m_variables.TargetPhrase);
    } else if (!m_variables.ParagraphDirty) {
        QList<int> unreadable;
        loaded.before = readableText(m_variables, n, unreadable).value_or(QByteArray());
        loaded.referencesBefore = m_variables.refIndex.at(n);
        loaded.readable = unreadable.isEmpty();
    }
    return loaded;
}

void SingleParagraph::noteLoading(LoadedParagraph &loaded, const RichTextBox &box)
{
    if (box.textLength() > 0) {
        loaded.after = box.rtf();
        loaded.referencesAfter = referenceEntry(box.text(), m_variables.TargetPhrase);
    }
    const int before = m_variables.History->newId();
    noteLoaded(m_variables, loaded);
    announceDone(m_variables, m_report, before);
}

void SingleParagraph::Save()
{
    RichTextBox &box = m_view.editingBox();
    SaveCurParg(m_variables, box, m_prompts);
    if (box.textLength() == 0) {
        m_prompts.message(tr("Rien à enregistrer. Tapez quelque chose d'abord."), tr("Tséveudire"),
                          Prompts::Buttons::Ok);
        return;
    }
    const QString path =
        m_prompts.saveName(tr("Enregistrer Fichier RTF"), rtfFilter(), QStringLiteral("rtf"),
                           m_variables.FilePrefix + fourDigits(m_variables.CurrentParagraph));
    if (path.isEmpty())
        return;
    refuseOwnFiles(m_variables, path);
    try {
        box.saveFile(path);
    } catch (const FileError &error) {
        m_report.announce(failureLine(tr("Rien n'a été enregistré."), error));
        return;
    }
    m_report.announce(tr("Paragraphe %1 écrit : %2").arg(m_variables.CurrentParagraph).arg(path));
}
