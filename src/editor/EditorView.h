#pragma once

#include "store/AdventureCommands.h"

// The main window as the commands of the editor see it.
class EditorView : public AdventureView
{
public:
    // Saves the editing box as the current paragraph. Throws FileError: the caller must then stay.
    virtual void SaveCurParg() = 0;

    virtual void focusEditor() = 0;
};
