#pragma once

#include "store/AdventureCommands.h"

// The main window as the commands of the editor see it.
class EditorView : public AdventureView
{
public:
    // Saves the editing box as the current paragraph. Throws FileError: the caller must then stay.
    virtual void SaveCurParg() = 0;

    // The text in the box is no longer the one that was loaded: it is to be saved, and what stands
    // around the box follows it.
    virtual void rtfBox_Change() = 0;

    // After LoadParg has failed on the current number itself, whose text is no longer the one in
    // the box: the box is empty and takes no text until LoadParg succeeds.
    virtual void showNothing() = 0;

    virtual void focusEditor() = 0;
};
