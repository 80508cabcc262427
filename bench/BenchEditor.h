#pragma once

#include "outil/HeadlessView.h"
#include "outil/ScriptPrompts.h"
#include "store/AdventureCommands.h"
#include "store/ParagraphStore.h"

#include <QDir>

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
