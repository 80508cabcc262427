#pragma once

#include "app/formUsmira.h"
#include "outil/ScriptPrompts.h"

#include <QDir>
#include <QWindow>

// The editor as main builds it, with its own working folder.
struct BenchWindow {
    explicit BenchWindow(const QString &folder)
    {
        variables.WorkingFolder = folder + QStringLiteral("/window/");
        QDir().mkpath(variables.WorkingFolder);
        window.Form_Load();
        window.show();
    }
    // Nothing is painted before the window system has shown the window.
    void waitUntilExposed()
    {
        while (!window.windowHandle()->isExposed())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    Variables variables;
    QTextStream errors{stderr};
    ScriptPrompts prompts{errors, std::nullopt};
    formUsmira window{variables, prompts};
};
