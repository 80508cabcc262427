#pragma once

#include "store/AdventureCommands.h"

#include <QRect>
#include <functional>

// The paragraph on the screen as the commands see it.
class EditorView : public AdventureView
{
public:
    // Saves the editing box as the current paragraph. Throws FileError: the caller must then stay.
    virtual void SaveCurParg() = 0;

    // Runs work and puts the author back where he was in the text, unless another text is on the
    // screen then.
    virtual void keepingPlace(const std::function<void()> &work) = 0;

    // LoadParg of the current number, after a command that may have given it another text. When
    // that one cannot be shown (FileError, FormatError) the box is empty and takes no text: the
    // one that was in it must not be saved under this number.
    virtual void showAgain() = 0;

    // The text in the box is no longer the one that was loaded: it is to be saved, and what stands
    // around the box follows it.
    virtual void rtfBox_Change() = 0;

    // Scrolls to the selection, and gives its place on the screen.
    virtual QRect revealSelection() = 0;

    virtual void focusEditor() = 0;
};
