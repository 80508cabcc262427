#pragma once

#include "store/ParagraphArray.h"
#include "store/extras/AdventureExtras.h"

#include <QString>
#include <memory>

class AdventureEvents;
class CommandHistory;
class OpenedFile;
struct Journal;

// The state of the one open adventure, and the options. main owns the only instance; everything
// else is handed a reference. Array bounds differ by one on purpose: Written and Unmixable accept
// 2001, so that a loop may look one number past the last paragraph.
struct Variables {
    Variables();

    static constexpr int LastParagraph = 2000;

    QString AdventureFileName; // without its folder
    QString AdventurePath;     // full path
    QString WorkingFolder;     // ends with the platform's separator
    QString MainFolder;        // that in which private working folders lie; empty: WorkingFolder
    QString FilePrefix;        // of this adventure's working files
    QString TargetPhrase = QStringLiteral(" au ");
    qint16 LowestWritten = 1;
    qint16 HighestWritten = 1;
    qint16 CurrentParagraph = 1;
    bool AdventureOpen = false;
    bool ParagraphDirty = false;    // the box has changed since the paragraph was loaded or saved
    bool AdventureModified = false; // a paragraph was saved since the adventure file was written
    bool MarksModified = false;     // a paragraph was fixed or freed since then
    bool CurrentFormat = true;      // the adventure file has version 35

    ParagraphArray<quint8, 2002> Written;   // 1: the paragraph has text
    ParagraphArray<quint8, 2001> Extracted; // 1: its working file holds its current text
    ParagraphArray<qint32, 2001>
        SectionOffset;                      // 1-based position of its text in the adventure file
    ParagraphArray<quint8, 2002> Unmixable; // 1: MasterMix leaves its number alone
    ParagraphArray<QString, 2001> refIndex; // its references, "0012/0340/"

    // 1: its text cannot be read. Known from opening on, or from when it was tried to be shown.
    ParagraphArray<quint8, 2001> Damaged;

    // What belongs to the adventure beside its paragraphs, set through changeExtras(), and by what
    // renumbers and opens; and whether it is no longer what the adventure file says.
    AdventureExtras extras;
    bool extrasModified = false;

    // The adventure file as it was opened, kept open: texts are read from it even when another
    // program has put a different file under its name. Null for an adventure never written.
    std::shared_ptr<OpenedFile> AdventureFile;

    // A change of many paragraphs that counts but could not be put in place whole, else null.
    // Whatever changes working files calls finishLeftJournal() first; what only reads a text finds
    // it through this.
    std::shared_ptr<const Journal> JournalLeft;

    // What was done to the whole adventure since it was opened, and can be taken back.
    // Another one takes its place whenever that changes.
    std::shared_ptr<const CommandHistory> History;

    // Announces changes. The flags and arrays that others follow are set through
    // AdventureChanges.h, and by what saves, renumbers and opens.
    std::shared_ptr<AdventureEvents> Events;

    bool optNDash = false;
    bool optMDash = false;
    bool optBullet = false;
    qint16 optEllipsis = 0; // -1 or 0
    bool optFrenchQuotes = false;
    bool optLigatureAE = false;
    bool optLigatureOE = false;
    qint16 optNbsp = 0; // -1 or 0
    bool optCtrlECentres = false;
    qint16 showTabPanel = 0; // -1 or 0: the panel of indents and tab stops is shown
    QString defaultFontName = QStringLiteral("Times New Roman");
    qint16 defaultFontSize = 12; // points
};

// Sets LowestWritten and HighestWritten to the lowest and the highest number with a text, from 0
// on; both to 1 when there is none.
void RecomputeWrittenRange(Variables &variables);

// A paragraph number as file names, anchors and the reference index write it: "0026".
QString fourDigits(int n);
