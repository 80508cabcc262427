#include "convert/rtf/SingleParagraph.h"

#include "convert/ExportTarget.h"
#include "platform/Errors.h"
#include "richtext/RichTextBox.h"
#include "store/AdventureCommands.h"
#include "store/ParagraphStore.h"
#include "store/WorkReport.h"

namespace
{
QString rtfFilter()
{
    return QStringLiteral("Fichiers RTF (*.rtf)|*.rtf");
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
        m_prompts.message(
            QStringLiteral("Ceci va effacer le texte actuel du paragraphe. Continuer?"),
            QStringLiteral("Attention"), Prompts::Buttons::YesNo) != Prompts::Answer::Yes)
        return false;
    const QString path = m_prompts.openName(QStringLiteral("Ouvrir Fichier RTF"), rtfFilter());
    if (path.isEmpty())
        return false;
    try {
        box.loadFile(path);
    } catch (const UsmiraError &) {
        return false;
    }
    m_variables.ParagraphDirty = true;
    return true;
}

void SingleParagraph::Save()
{
    RichTextBox &box = m_view.editingBox();
    SaveCurParg(m_variables, box, m_prompts);
    if (box.textLength() == 0) {
        m_prompts.message(QStringLiteral("Rien à enregistrer. Tapez quelque chose d'abord."),
                          QStringLiteral("Tséveudire"), Prompts::Buttons::Ok);
        return;
    }
    const QString path = m_prompts.saveName(
        QStringLiteral("Enregistrer Fichier RTF"), rtfFilter(), QStringLiteral("rtf"),
        m_variables.FilePrefix + fourDigits(m_variables.CurrentParagraph));
    if (path.isEmpty())
        return;
    refuseOwnFiles(m_variables, path);
    try {
        box.saveFile(path);
    } catch (const FileError &) {
        return;
    }
    m_report.announce(
        QStringLiteral("Paragraphe %1 écrit : %2").arg(m_variables.CurrentParagraph).arg(path));
}
