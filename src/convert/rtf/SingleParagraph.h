#pragma once

#include "store/HistoryNotes.h"

#include <QCoreApplication>

class AdventureView;
class Prompts;
class RichTextBox;
class WorkReport;
struct Variables;

// Exchanges the paragraph in the editing box with an RTF file that the author chooses. An adventure
// is open.
class SingleParagraph
{
    Q_DECLARE_TR_FUNCTIONS(SingleParagraph)

public:
    SingleParagraph(Variables &variables, Prompts &prompts, AdventureView &view,
                    WorkReport &report);

    // The file's text becomes the paragraph's, still to be saved, which the history knows of. True
    // when the box has changed; a file that cannot be read changes nothing, without a word.
    bool Load();

    // Saves the paragraph first, then writes the box into the file. A file that cannot be written
    // stays as it was, without a word. Throws FileError when the paragraph cannot be saved or the
    // file is one of the adventure's own.
    void Save();

private:
    LoadedParagraph beforeLoading(const RichTextBox &box) const;
    void noteLoading(LoadedParagraph &loaded, const RichTextBox &box);

    Variables &m_variables;
    Prompts &m_prompts;
    AdventureView &m_view;
    WorkReport &m_report;
};
