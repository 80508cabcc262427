#pragma once

#include "platform/Progress.h"
#include "renumber/RenumberMap.h"
#include "richtext/HiddenBox.h"

#include <QByteArray>
#include <QString>
#include <functional>
#include <optional>

// The engine under every command that gives paragraphs other numbers.

// What becomes of the references that would be garbled (see isGarbled): they come out as they do,
// or they are mended first in the texts that are to be rewritten.
enum class Garbled { AsTheyStand, MendedBefore };

struct RenumberWay {
    QString title; // what the history calls it
    Garbled garbled = Garbled::AsTheyStand;
};

// Gives the written paragraphs the numbers of the map, with their texts, and rewrites the
// references to them in every text that the reference index shows to have one. The written range
// goes from the lowest to the highest number with a text afterwards. The fixed mark does not move
// along: it stays with a number, and goes with the written paragraph that leaves the number.
//
// All or nothing: throws UnreadableTexts with every text that it would have to change and that
// cannot be read, or FileError, and nothing has changed.
void RenumberParagraphs(Variables &variables, const RenumberMap &map, const RenumberWay &way,
                        const Progress &progress);

// What the engine does with one text.
class TextRenumbering
{
public:
    TextRenumbering(const QString &targetPhrase, const RenumberMap &map,
                    Garbled garbled = Garbled::AsTheyStand)
        : m_targetPhrase(targetPhrase), m_map(map), m_garbled(garbled)
    {
    }

    struct Text {
        QByteArray rtf;
        QString references; // its entry of the index
    };
    // The text of paragraph n, with that entry of the index, once the numbers of the map count;
    // nothing when it stays as it is. A text in which the index shows no number that changes is not
    // rewritten, even if other references of it would be written differently. rtf is called when
    // the text is needed. Throws UsmiraError.
    std::optional<Text> of(int n, const QString &references,
                           const std::function<QByteArray()> &rtf);

private:
    bool mend();

    QString m_targetPhrase;
    RenumberMap m_map;
    Garbled m_garbled;
    HiddenBox m_box;
};

// Writes the new number of every reference of a text. The characters that the new number takes the
// place of are as many as the number has digits, whatever stands there: required, so that texts
// come out as authors know them. "au 026" with 26 unmoved gives "au 266". Throws LimitError where a
// phrase of digits finds itself again and again in the numbers that come in.
void rewriteReferences(RichTextBox &box, const QString &targetPhrase, const RenumberMap &map);
