#pragma once

#include "outil/HeadlessView.h"
#include "outil/ScriptPrompts.h"
#include "store/AdventureCommands.h"
#include "store/ParagraphStore.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <memory>

// The whole editor but its window, with its working folder in folder.
struct BenchEditor {
    explicit BenchEditor(const QString &folder)
    {
        variables.WorkingFolder = folder + u'/';
        QDir().mkpath(variables.WorkingFolder);
    }

    // Makes working files of paragraphs 1..count, as an author at work would.
    void touch(int count)
    {
        for (int n = 1; n <= count; ++n) {
            view.LoadParg(n);
            variables.ParagraphDirty = true;
            SaveCurParg(variables, view.editingBox());
        }
    }

    Variables variables;
    QTextStream errors{stderr};
    ScriptPrompts prompts{errors, std::nullopt};
    HeadlessView view{variables};
    AdventureCommands commands{variables, prompts, view, view};
};

// An editor on a copy of the adventure at path, with what it works with below folder.
inline std::unique_ptr<BenchEditor> editorOnCopy(const QString &path, const QString &folder)
{
    QTemporaryDir copy(folder + QStringLiteral("/copy"));
    copy.setAutoRemove(false);
    const QString own = copy.path() + u'/';
    QFile::copy(path, own + QStringLiteral("Copie.usm"));
    auto editor = std::make_unique<BenchEditor>(own + QStringLiteral("work"));
    editor->commands.OpenAdventure(own + QStringLiteral("Copie.usm"));
    return editor;
}
