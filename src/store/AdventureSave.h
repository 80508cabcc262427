#pragma once

#include "platform/Progress.h"
#include "store/AdventureFile.h"
#include "store/DamagedTexts.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

class Prompts;
class RichTextBox;

// One save of the open adventure: a complete new file beside, checked, and then in the place of the
// old one. Until it is there nothing is deleted and nothing in memory changes, so that after a
// failure the next attempt finds all it needs.
class AdventureSave
{
public:
    // Before the first save since it was opened, the adventure as it was goes to the dated copies.
    enum class FirstSave { Yes, No };
    // reserved is what lay under the name of a new adventure, where that is known; not owned.
    AdventureSave(Variables &variables, Prompts &prompts, FirstSave first, OpenedFile *reserved);

    // onScreen is the box when its text could not become a working file, else null: the text then
    // goes straight into the adventure. Texts that cannot be read are left out, and their bytes are
    // kept beside the adventure.
    //
    // False: the swap failed or was not allowed, and the author has been told. Throws UsmiraError
    // when the new file could not even be written.
    bool run(RichTextBox *onScreen, const Progress &progress);

    // Tells which texts were left out, if any.
    void tellLeftOut() const;

    // Why the adventure as it was could not be kept, in a line; else empty. That stops no save.
    const QString &notKept() const { return m_notKept; }

private:
    void takeTextOf(const RichTextBox &box);
    std::optional<QByteArray> text(int n);
    void write(const Progress &progress);
    void writeTo(const QString &folder, const Progress &progress);
    QString adventureFolder() const;
    bool swap();
    void takePlaceOf(OpenedFile *replaced);
    void swapFailed(const QString &text);
    void takeOverSaved();
    void announce() const;

    Variables &m_variables;
    Prompts &m_prompts;
    FirstSave m_first;
    OpenedFile *m_reserved;
    Variables m_candidate; // what the state will be
    std::optional<QByteArray> m_onScreen;
    QString m_temporary;
    AdventureContents m_saved;
    QList<int> m_leftOut;
    QString m_whereKept; // what became of them
    QString m_notKept;
};
