#pragma once

#include "platform/Prompts.h"
#include "platform/SystemFiles.h"
#include "store/Variables.h"

#include <QCoreApplication>
#include <functional>
#include <memory>

class AdventureSave;
class OpenedFile;
class RichTextBox;
class WorkReport;
struct DatedCopy;
struct UnsavedWork;

// What the commands ask of whoever shows the adventure: the main window, or a script without one.
class AdventureView
{
public:
    AdventureView() = default;
    virtual ~AdventureView() = default;
    AdventureView(const AdventureView &) = delete;
    AdventureView &operator=(const AdventureView &) = delete;

    virtual RichTextBox &editingBox() = 0;

    // Shows paragraph n and makes it the current one. Throws FileError or FormatError, and stays on
    // the paragraph that was shown, when n's text cannot be read.
    virtual void LoadParg(int n) = 0;
};

// New, Open and Save, with the question about unsaved changes. Failures are told to the author in
// their own words; the return values say whether to go on.
class AdventureCommands
{
    Q_DECLARE_TR_FUNCTIONS(AdventureCommands)

public:
    AdventureCommands(Variables &variables, Prompts &prompts, AdventureView &view,
                      WorkReport &report);

    Prompts::Answer AskToSave();

    // The prelude of every command that leaves the adventure: saves the paragraph, asks about
    // unsaved changes. False: stay (Cancel, or something could not be saved). After "Non" the
    // adventure is in memory as it was last saved; who then does not leave it shows it again.
    bool LeaveAdventure();

    void New();
    void Open();

    // Open with the file already chosen.
    void OpenInstead(const QString &path);

    // Opens one of the dated copies of the open adventure, as a new file beside it.
    void OpenCopy(const DatedCopy &copy);

    // Creates the adventure at path, replacing what is there only once the new file is whole.
    bool NewAdventure(const QString &path);

    // Opens the file at path. On failure, or when the author stops it, the adventure open before
    // stays as it was. What another window has open he may open as a copy or to read it: Save()
    // then refuses for as long as the other window has it.
    bool OpenAdventure(const QString &path);

    // Opens the adventure that was open when the program was killed, with all that was unsaved, and
    // modified. Throws UsmiraError, and the adventure open before stays as it was.
    void OpenUnsaved(const UnsavedWork &work);

    // Writes the adventure if anything is unsaved. False when it still is afterwards.
    bool Save();

private:
    void openFrom(const std::function<QString()> &choose);
    void showAgain();
    QString pathToOpen(const QString &path);
    void claim(const QString &path);
    void reserveAndClaim(const Variables &created);
    void announceAdventure();
    void tellLostExtras(bool lost);
    void showCurrentParagraph();
    void rebuildIndex(Variables &opened);
    bool saveParagraph();
    bool writeAndSwap(AdventureSave &save, bool paragraphSaved);

    Variables &m_variables;
    Prompts &m_prompts;
    AdventureView &m_view;
    WorkReport &m_report;
    FileClaim m_claim;                      // on the open adventure, while no other window has it
    std::shared_ptr<OpenedFile> m_reserved; // what a new one is to replace; else null
    bool m_saved = false;                   // since it was opened
};
