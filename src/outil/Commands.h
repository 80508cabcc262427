#pragma once

#include "convert/ExportCommand.h"
#include "editor/SearchCommands.h"
#include "outil/HeadlessView.h"
#include "outil/Script.h"
#include "renumber/RenumberCommands.h"
#include "store/AdventureCommands.h"
#include "store/WorkingFiles.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QStringList>
#include <functional>

// The commands of scripts, over the classes that the windows use. Each returns what goes to
// standard output.
class Commands
{
    Q_DECLARE_TR_FUNCTIONS(Commands)

public:
    Commands(Variables &variables, Prompts &prompts);

    // Runs one command given as its words. Throws UsageError on an unknown name or wrong arguments,
    // FileError or FormatError on a failure that has no message yet.
    QByteArray run(const QStringList &words);

    // At the end of a script: what was not saved goes, and the author is told.
    void finish(bool save);

    // A line for each command: its form and what it does.
    static QString help();

private:
    struct Entry;
    static const std::vector<Entry> &entries();

    QByteArray nouvelle(const QStringList &arguments);
    QByteArray ouvrir(const QStringList &arguments);
    QByteArray enregistrer(const QStringList &arguments);
    QByteArray texte(const QStringList &arguments);
    QByteArray effacer(const QStringList &arguments);
    QByteArray fixe(const QStringList &arguments);
    QByteArray rtf(const QStringList &arguments);
    QByteArray texteBrut(const QStringList &arguments);
    QByteArray mene(const QStringList &arguments);
    QByteArray douteux(const QStringList &arguments);
    QByteArray libre(const QStringList &arguments);
    QByteArray echanger(const QStringList &arguments);
    QByteArray melanger(const QStringList &arguments);
    QByteArray deplacer(const QStringList &arguments);
    QByteArray combler(const QStringList &arguments);
    QByteArray chercher(const QStringList &arguments);
    QByteArray remplacer(const QStringList &arguments);
    QByteArray uniformiser(const QStringList &arguments);
    QByteArray html(const QStringList &arguments);
    QByteArray pages(const QStringList &arguments);
    QByteArray compilerRtf(const QStringList &arguments);
    QByteArray phrase(const QStringList &arguments);
    QByteArray compter(const QStringList &arguments);
    QByteArray taper(const QStringList &arguments);
    QByteArray etat(const QStringList &arguments);

    QByteArray shownAgain(bool done);
    QString code(WorkingFiles::Document document) const;
    void replaceParagraph(int n, const std::function<void(RichTextBox &)> &change);

    Variables &m_variables;
    Prompts &m_prompts;
    HeadlessView m_view;
    AdventureCommands m_adventure;
    RenumberCommands m_renumber;
    SearchCommands m_search;
    ExportCommand m_export;
};
