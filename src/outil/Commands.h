#pragma once

#include "outil/CommandEntry.h"
#include "outil/Script.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QStringList>

// The commands of scripts. Each returns what goes to standard output.
class Commands
{
    Q_DECLARE_TR_FUNCTIONS(Commands)

public:
    Commands(Variables &variables, Prompts &prompts);

    // Runs one command given as its words. Throws UsageError on an unknown name or wrong arguments,
    // FileError or FormatError on a failure that has no message yet.
    QByteArray run(const QStringList &words);

    // Opens the adventure that a killed program had open, with its unsaved work, which every
    // command finds in the adventure then. Throws UsmiraError.
    void open(const UnsavedWork &work);

    // At the end of a script: what was not saved goes, and the author is told.
    void finish(bool save);

    // A line for each command: its form and what it does.
    static QString help();

private:
    CommandServices m_services;
};
