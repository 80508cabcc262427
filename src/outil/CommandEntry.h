#pragma once

#include "convert/ExportCommand.h"
#include "editor/search/SearchCommands.h"
#include "outil/HeadlessView.h"
#include "renumber/AdventureSplit.h"
#include "renumber/RenumberCommands.h"
#include "renumber/history/HistoryCommands.h"
#include "store/AdventureCommands.h"
#include "store/AdventureMerge.h"

#include <QByteArray>
#include <QStringList>
#include <optional>
#include <vector>

// What the commands of a script work with: the open adventure, and the classes that the windows
// use.
struct CommandServices {
    CommandServices(Variables &state, Prompts &answers);

    // The paragraph that has the current number now comes onto the screen that nobody sees, when
    // something was done. Gives no output.
    QByteArray shownAgain(bool done);

    // Tells what the author is to know of a book that was written. Gives no output.
    QByteArray told(const std::optional<QString> &remark);

    Variables &variables;
    Prompts &prompts;
    HeadlessView view;
    AdventureCommands adventure;
    AdventureMerge merge;
    AdventureSplit split;
    RenumberCommands renumber;
    HistoryCommands history;
    SearchCommands search;
    ExportCommand exports;
};

// One command. How many arguments it takes is read off its form; those in brackets may be left out,
// and those with dots be given again. It returns what goes to standard output, and throws
// UsageError on a wrong argument.
struct CommandEntry {
    const char *name; // all three in UTF-8
    const char *form;
    const char *purpose; // to be translated
    bool needsAdventure;
    QByteArray (*run)(CommandServices &, const QStringList &);
};

// The number 0..2000 that a word is; throws UsageError for any other word.
int paragraphNumber(const QString &word);

// Whether the words that follow a command ask for JSON; throws UsageError when they say anything
// else.
bool isJsonWanted(const QStringList &arguments);

// Of the number n alone.
QByteArray numberLine(int n);

std::vector<CommandEntry> adventureEntries();
std::vector<CommandEntry> paragraphEntries();
std::vector<CommandEntry> renumberEntries();
std::vector<CommandEntry> historyEntries();
std::vector<CommandEntry> textEntries();
std::vector<CommandEntry> checkEntries();
std::vector<CommandEntry> spellingEntries();
std::vector<CommandEntry> statisticsEntries();
std::vector<CommandEntry> typographyEntries();
std::vector<CommandEntry> viewsEntries();
std::vector<CommandEntry> publishEntries();
std::vector<CommandEntry> bookEntries();
