#include "outil/Commands.h"

#include "convert/html/CodeSnippet.h"
#include "convert/html/HtmlCommands.h"
#include "convert/rtf/CompileCommand.h"
#include "editor/ParagraphSearch.h"
#include "editor/TargetPhrase.h"
#include "editor/TypingAids.h"
#include "outil/DoubtfulList.h"
#include "outil/StateReport.h"
#include "platform/SafeFile.h"
#include "richtext/RtfPlainText.h"
#include "store/AdventureChanges.h"
#include "store/LenientNumbers.h"
#include "store/ParagraphStore.h"
#include "store/ReferenceIndex.h"

#include <QFileInfo>
#include <QRandomGenerator>
#include <QTime>
#include <algorithm>

// How many arguments a command takes is read off its form; those in brackets may be left out, and
// those with dots be given again.
struct Commands::Entry {
    QString name;
    QString form;
    const char *purpose;
    bool needsAdventure;
    QByteArray (Commands::*run)(const QStringList &);
};

namespace
{
int paragraphNumber(const QString &word)
{
    bool ok = false;
    const int n = word.toInt(&ok);
    if (!ok || n < 0 || n > Variables::LastParagraph)
        throw UsageError(Commands::tr("numéro de paragraphe de 0 à 2000 attendu : %1").arg(word));
    return n;
}

// BAS HAUT and a file or a folder.
ExportRequest exportRequest(const QStringList &arguments)
{
    return {lenientNumber(arguments.at(0)), lenientNumber(arguments.at(1)), arguments.at(2)};
}

// The options of typing, those named on and the others off. Throws UsageError.
void nameOptions(Variables &variables, const QStringList &names)
{
    QStringList unknown = names;
    for (const TypingOption &option : typingOptions())
        option.set(variables, unknown.removeAll(QLatin1String(option.name())) > 0);
    if (!unknown.isEmpty())
        throw UsageError(Commands::tr("option inconnue : %1").arg(unknown.first()));
}

QByteArray line(int n)
{
    return QByteArray::number(n) + '\n';
}
} // namespace

const std::vector<Commands::Entry> &Commands::entries()
{
    const auto text = [](const char *utf8) { return QString::fromUtf8(utf8); };
    static const std::vector<Entry> table{
        {text("nouvelle"), text("FICHIER"), QT_TR_NOOP("crée une aventure vide"), false,
         &Commands::nouvelle},
        {text("ouvrir"), text("FICHIER"), QT_TR_NOOP("ouvre une aventure"), false,
         &Commands::ouvrir},
        {text("enregistrer"),
         {},
         QT_TR_NOOP("enregistre l'aventure ouverte"),
         true,
         &Commands::enregistrer},
        {text("texte"), text("N FICHIER.rtf"),
         QT_TR_NOOP("met un fichier RTF dans le paragraphe N"), true, &Commands::texte},
        {text("effacer"), text("N"), QT_TR_NOOP("vide le paragraphe N"), true, &Commands::effacer},
        {text("fixe"), text("N 0|1"), QT_TR_NOOP("rend le paragraphe N libre (0) ou fixe (1)"),
         true, &Commands::fixe},
        {text("rtf"), text("N"), QT_TR_NOOP("écrit le RTF du paragraphe N"), true, &Commands::rtf},
        {text("texte-brut"), text("N"), QT_TR_NOOP("écrit le texte du paragraphe N"), true,
         &Commands::texteBrut},
        {text("mene"), text("N"), QT_TR_NOOP("écrit les numéros des paragraphes qui mènent au N"),
         true, &Commands::mene},
        {text("douteux"),
         {},
         QT_TR_NOOP("écrit les renvois douteux : numéro, position, mots, raison"),
         true,
         &Commands::douteux},
        {text("libre"), text("N"), QT_TR_NOOP("écrit le premier numéro libre après N"), true,
         &Commands::libre},
        {text("echanger"), text("A B"), QT_TR_NOOP("échange les numéros A et B"), true,
         &Commands::echanger},
        {text("melanger"), text("BAS HAUT [GRAINE]"),
         QT_TR_NOOP("mélange les paragraphes entre BAS et HAUT"), true, &Commands::melanger},
        {text("deplacer"), text("BAS HAUT DELTA bas|haut"),
         QT_TR_NOOP("déplace le bloc BAS à HAUT de DELTA numéros"), true, &Commands::deplacer},
        {text("combler"), text("BAS HAUT"), QT_TR_NOOP("comble les trous entre BAS et HAUT"), true,
         &Commands::combler},
        {text("chercher"), text("TEXTE [casse] [mot]"),
         QT_TR_NOOP("écrit le numéro et la position de chaque occurrence"), true,
         &Commands::chercher},
        {text("remplacer"), text("CHERCHE PAR [casse] [mot]"),
         QT_TR_NOOP("remplace partout CHERCHE par PAR"), true, &Commands::remplacer},
        {text("uniformiser"), text("POLICE TAILLE"),
         QT_TR_NOOP("donne cette police et cette taille à toute l'aventure (- : laisse)"), true,
         &Commands::uniformiser},
        {text("html"), text("BAS HAUT FICHIER.htm"), QT_TR_NOOP("publie en un seul fichier HTML"),
         true, &Commands::html},
        {text("pages"), text("BAS HAUT DOSSIER [PREFIXE]"),
         QT_TR_NOOP("publie une page HTML par paragraphe"), true, &Commands::pages},
        {text("compiler-rtf"), text("BAS HAUT FICHIER"),
         QT_TR_NOOP("réunit les paragraphes de BAS à HAUT en un document RTF"), true,
         &Commands::compilerRtf},
        {text("phrase"), text("TEXTE"), QT_TR_NOOP("change la phrase cible ; _ y est un espace"),
         true, &Commands::phrase},
        {text("compter"),
         {},
         QT_TR_NOOP("écrit le nombre de paragraphes rédigés"),
         true,
         &Commands::compter},
        {text("taper"), text("TEXTE [OPTION...]"),
         QT_TR_NOOP("tape TEXTE avec les aides à la frappe nommées et écrit ce qui en vient"),
         false, &Commands::taper},
        {text("etat"),
         {},
         QT_TR_NOOP("écrit l'état de l'aventure en JSON, sur une ligne"),
         true,
         &Commands::etat},
    };
    return table;
}

Commands::Commands(Variables &variables, Prompts &prompts)
    : m_variables(variables), m_prompts(prompts), m_view(variables),
      m_adventure(variables, prompts, m_view, m_view), m_renumber(variables, prompts, m_view),
      m_search(variables, prompts, m_view, m_view), m_export(variables, prompts, m_view)
{
}

QByteArray Commands::run(const QStringList &words)
{
    if (words.isEmpty())
        return {};
    const auto entry = std::find_if(entries().begin(), entries().end(),
                                    [&](const Entry &e) { return e.name == words.first(); });
    if (entry == entries().end())
        throw UsageError(tr("commande inconnue : %1").arg(words.first()));
    const QStringList form = entry->form.split(u' ', Qt::SkipEmptyParts);
    const qsizetype optional = entry->form.count(u'[');
    const bool anyNumber = entry->form.endsWith(QStringLiteral("...]"));
    if ((words.size() - 1 > form.size() && !anyNumber) || words.size() - 1 < form.size() - optional)
        throw UsageError(tr("attendu : %1 %2").arg(entry->name, entry->form).trimmed());
    if (entry->needsAdventure && !m_variables.AdventureOpen) {
        m_prompts.message(tr("Aucun Fichier Ouvert"), QStringLiteral("Usmira"),
                          Prompts::Buttons::Ok);
        return {};
    }
    return (this->*entry->run)(words.mid(1));
}

QString Commands::help()
{
    QString help;
    for (const Entry &entry : entries())
        help += QStringLiteral("  %1 %2\n")
                    .arg((entry.name + u' ' + entry.form).leftJustified(36), tr(entry.purpose));
    return help;
}

void Commands::finish(bool save)
{
    if (!m_variables.AdventureOpen || !hasUnsavedChanges(m_variables))
        return;
    if (save)
        m_adventure.Save();
    else
        DiscardWorkingFiles(m_variables);
}

QByteArray Commands::nouvelle(const QStringList &arguments)
{
    const QString &path = arguments.first();
    if (!m_adventure.LeaveAdventure())
        return {};
    const QString question =
        tr("%1 existe déjà. Voulez-vous le remplacer ?").arg(QFileInfo(path).fileName());
    if (!QFileInfo::exists(path) ||
        m_prompts.message(question, tr("Nouvelle Aventure"), Prompts::Buttons::YesNo) ==
            Prompts::Answer::Yes)
        m_adventure.NewAdventure(path);
    return {};
}

QByteArray Commands::ouvrir(const QStringList &arguments)
{
    if (m_adventure.LeaveAdventure())
        m_adventure.OpenAdventure(arguments.first());
    return {};
}

QByteArray Commands::enregistrer(const QStringList & /*arguments*/)
{
    m_adventure.Save();
    return {};
}

void Commands::replaceParagraph(int n, const std::function<void(RichTextBox &)> &change)
{
    m_view.LoadParg(n);
    change(m_view.editingBox());
    m_variables.ParagraphDirty = true;
    SaveCurParg(m_variables, m_view.editingBox(), m_prompts);
}

QByteArray Commands::texte(const QStringList &arguments)
{
    replaceParagraph(paragraphNumber(arguments.first()),
                     [&](RichTextBox &box) { box.loadFile(arguments.last()); });
    return {};
}

QByteArray Commands::effacer(const QStringList &arguments)
{
    replaceParagraph(paragraphNumber(arguments.first()),
                     [](RichTextBox &box) { box.setText(QString()); });
    return {};
}

QByteArray Commands::fixe(const QStringList &arguments)
{
    const QString &value = arguments.last();
    if (value != QStringLiteral("0") && value != QStringLiteral("1"))
        throw UsageError(tr("0 ou 1 attendu : %1").arg(value));
    const int n = paragraphNumber(arguments.first());
    setFixed(m_variables, n, value == QStringLiteral("1"));
    return {};
}

QByteArray Commands::rtf(const QStringList &arguments)
{
    return GetParagraphRtf(m_variables, paragraphNumber(arguments.first()));
}

QByteArray Commands::texteBrut(const QStringList &arguments)
{
    const QByteArray rtf = GetParagraphRtf(m_variables, paragraphNumber(arguments.first()));
    return rtf.isEmpty() ? QByteArray() : rtfToPlainText(rtf).toUtf8() + "\r\n";
}

QByteArray Commands::mene(const QStringList &arguments)
{
    QByteArray lines;
    const QList<int> incoming = incomingParagraphs(m_variables, paragraphNumber(arguments.first()));
    for (const int n : incoming)
        lines += line(n);
    return lines;
}

QByteArray Commands::douteux(const QStringList & /*arguments*/)
{
    return doubtfulList(m_variables);
}

QByteArray Commands::libre(const QStringList &arguments)
{
    if (const auto free = firstFree(m_variables, paragraphNumber(arguments.first())))
        return line(*free);
    m_prompts.message(tr("Tous les paragraphes sont écrits ou réservés !"), tr("Aïe !"),
                      Prompts::Buttons::Ok);
    return {};
}

// The paragraph that now has the number on the screen comes onto it.
QByteArray Commands::shownAgain(bool done)
{
    if (done)
        m_view.LoadParg(m_variables.CurrentParagraph);
    return {};
}

QByteArray Commands::echanger(const QStringList &arguments)
{
    return shownAgain(
        m_renumber.Swap(lenientNumber(arguments.first()), lenientNumber(arguments.last())));
}

QByteArray Commands::melanger(const QStringList &arguments)
{
    const QString seed =
        arguments.value(2, QString::number(QTime::currentTime().msecsSinceStartOfDay()));
    bool ok = false;
    QRandomGenerator generator(seed.toUInt(&ok));
    if (!ok)
        throw UsageError(tr("graine de 0 à 4294967295 attendue : %1").arg(seed));
    return shownAgain(m_renumber.MasterMix(lenientNumber(arguments.at(0)),
                                           lenientNumber(arguments.at(1)),
                                           [&generator] { return generator.generateDouble(); }));
}

QByteArray Commands::deplacer(const QStringList &arguments)
{
    const double low = lenientNumber(arguments.at(0));
    const double high = lenientNumber(arguments.at(1));
    const double delta = lenientNumber(arguments.at(2));
    const QString &towards = arguments.at(3);
    if (towards == QStringLiteral("bas"))
        return shownAgain(m_renumber.MoveDown(low, high, delta));
    if (towards == QStringLiteral("haut"))
        return shownAgain(m_renumber.MoveUp(low, high, delta));
    throw UsageError(tr("bas ou haut attendu : %1").arg(towards));
}

QByteArray Commands::combler(const QStringList &arguments)
{
    return shownAgain(
        m_renumber.PackHoles(lenientNumber(arguments.first()), lenientNumber(arguments.last())));
}

// The author's own HTML codes, from the files that the dialogs begin with.
QString Commands::code(WorkingFiles::Document document) const
{
    return readSnippet(WorkingFiles(m_variables).document(document)).text;
}

QByteArray Commands::html(const QStringList &arguments)
{
    const HtmlCodes codes{code(WorkingFiles::Document::OneFileHeader),
                          code(WorkingFiles::Document::Numbers),
                          code(WorkingFiles::Document::Footer)};
    if (!exportToOneFile(m_export, exportRequest(arguments), codes))
        m_prompts.beep(); // also where a window says nothing, a script fails
    return {};
}

QByteArray Commands::pages(const QStringList &arguments)
{
    const HtmlCodes codes{code(WorkingFiles::Document::PageHeader), QString(),
                          code(WorkingFiles::Document::Footer)};
    exportToManyFiles(m_export, exportRequest(arguments), codes,
                      arguments.value(3, m_variables.FilePrefix));
    return {};
}

QByteArray Commands::compilerRtf(const QStringList &arguments)
{
    compileToRtf(m_export, exportRequest(arguments), defaultNumberStyle(m_variables));
    return {};
}

QByteArray Commands::phrase(const QStringList &arguments)
{
    const QString phrase = phraseOf(arguments.first());
    if (phrase != m_variables.TargetPhrase && canKeepPhrase(phrase, m_prompts))
        changeTargetPhrase(m_variables, phrase, m_view);
    return {};
}

QByteArray Commands::compter(const QStringList & /*arguments*/)
{
    return line(countWritten(m_variables));
}

// The author's own options stay as they are.
QByteArray Commands::taper(const QStringList &arguments)
{
    Variables options;
    nameOptions(options, arguments.mid(1));
    QString text;
    for (const QChar key : arguments.first()) {
        const QChar previous = text.isEmpty() ? QChar() : text.back();
        const TypedKey typed = withTypingAids(options, previous, key);
        if (typed.replacesPrevious)
            text.chop(1);
        text += typed.character;
    }
    return text.toUtf8() + '\n';
}

QByteArray Commands::etat(const QStringList & /*arguments*/)
{
    return stateReport(m_variables);
}
