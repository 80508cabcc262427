#pragma once

#include "support/FaultyCalls.h"

#include <QByteArray>
#include <QList>
#include <QStringList>
#include <functional>
#include <limits>

// What goes wrong, at which call.
struct FaultAt {
    static constexpr int Never = std::numeric_limits<int>::max(); // calls are counted alone

    FaultyCalls::Fault fault = FaultyCalls::Fault::None;
    int error = EIO;
    int call = 0;
};

// What a run of a program gave.
struct RunResult {
    bool ended = false; // by itself, or as a fault has it end
    int status = -1;
    QList<QByteArray> states; // what "etat" printed
    QByteArray errors;
    int calls = 0; // that counted; unknown, 0, after a kill

    bool isKilled() const { return ended && status == FaultyCalls::Killed; }
};

// Runs programs in a folder, with their file calls there going wrong.
class ToolRun
{
public:
    // tool and shim: full paths.
    ToolRun(const QString &tool, const QString &shim, const QString &folder)
        : m_tool(tool), m_shim(shim), m_folder(folder)
    {
    }

    // The same with something changed for the programs just before they begin.
    ToolRun changed(const std::function<void()> &change) const
    {
        ToolRun run(*this);
        run.m_change = change;
        return run;
    }

    const QString &folder() const { return m_folder; }

    // Commands for usmira-outil with an "etat" behind each. Every question is answered Oui.
    RunResult script(const QStringList &commands, const FaultAt &fault = {}) const;
    // The next start, which recovers what was unsaved, and saves it.
    RunResult restart(const FaultAt &fault) const;
    RunResult program(const QString &program, const QStringList &arguments,
                      const FaultAt &fault) const;

private:
    QStringList options() const;

    QString m_tool;
    QString m_shim;
    QString m_folder;
    std::function<void()> m_change;
};
