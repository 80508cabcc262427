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
    AdventureSave(Variables &variables, Prompts &prompts);

    // onScreen is the box when its text could not become a working file, else null: the text then
    // goes straight into the adventure. Texts that cannot be read are left out, and their bytes are
    // kept beside the adventure.
    //
    // False: the swap failed or was not allowed, and the author has been told. Throws UsmiraError
    // when the new file could not even be written.
    bool run(RichTextBox *onScreen, const Progress &progress);

    // Tells which texts were left out, if any.
    void tellLeftOut() const;

private:
    void takeTextOf(const RichTextBox &box);
    std::optional<QByteArray> text(int n);
    void write(const Progress &progress);
    void writeTo(const QString &folder, const Progress &progress);
    QString adventureFolder() const;
    bool swap();
    bool mayReplace();
    void swapFailed(const QString &text);
    void takeOverSaved();
    void announce() const;

    Variables &m_variables;
    Prompts &m_prompts;
    Variables m_candidate; // what the state will be
    std::optional<QByteArray> m_onScreen;
    QString m_temporary;
    AdventureContents m_saved;
    KeptBytes::WholeFile m_otherVersion = KeptBytes::WholeFile::NotKept;
    QList<int> m_leftOut;
    QString m_whereKept; // what became of them
};
