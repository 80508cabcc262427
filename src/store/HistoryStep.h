#pragma once

#include "platform/Errors.h"
#include "store/ParagraphArray.h"

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <QList>
#include <QString>
#include <functional>
#include <map>
#include <optional>

// The new number of each paragraph 0..2000; every number is the new number of exactly one.
using NumberMap = ParagraphArray<qint16, 2001>;
NumberMap unmovedNumbers();
NumberMap inverseOf(const NumberMap &numbers);
// What second does to the numbers that first gives.
NumberMap composed(const NumberMap &first, const NumberMap &second);

struct WrittenRange {
    int lowest = 1;
    int highest = 1;
    bool operator==(const WrittenRange &) const = default;
};

// What a paragraph is known by before or after a command.
struct ParagraphFacts {
    bool written = false;
    bool fixed = false;
    QByteArray sha256;  // of its text, when it is written
    QString references; // its entry of refIndex
    bool operator==(const ParagraphFacts &) const = default;
};

// What a command changed, so that it can be taken back: the file "Session/Annuler-0007.xyz" of the
// working folder. The texts from before come first, one behind the other; then lines of UTF-8 that
// end in CR LF, and last where they begin:
//
//   Usmira Annuler 1
//   file Annuler-0007.xyz                     no other command's
//   title MasterMix%201%20%C3%A0%20400        percent-encoded
//   time 1763771760000                        milliseconds since 1970
//   phrase %20au%20                           the target phrase that the references go by
//   range 0001 0340 0001 0400                 before and after
//   move 0012 0340                            the numbers that were moved, if it moved any
//   number 0012 1 0 SHA256 512 0026/ 0 0      was written, not fixed, its text, its length, its
//                                             references; neither written nor fixed now
//   sum SHA256                                of the lines above
//   lines 0000012345                          bytes of text above the lines
//
// It depends on no other file.
struct HistoryStep {
    struct Paragraph {
        ParagraphFacts before;
        ParagraphFacts after;
        qint64 length = 0; // of its text before
        bool operator==(const Paragraph &) const = default;
    };
    bool operator==(const HistoryStep &) const = default;

    QString title;
    QDateTime time;
    QString targetPhrase;
    std::optional<NumberMap> numbers; // where it was a renumbering
    WrittenRange rangeBefore;
    WrittenRange rangeAfter;
    std::map<int, Paragraph> paragraphs; // all that differ, and all numbers that were moved
};

// How many paragraphs have another text or number, mark or list; and how many of them a number.
int changedParagraphs(const HistoryStep &step);
int movedParagraphs(const HistoryStep &step);

// The file is no whole step, or not the one it says: nothing can be taken back with it.
class StepLost : public UsmiraError
{
public:
    explicit StepLost(const QString &path)
        : UsmiraError(QStringLiteral("no step: ") + path), m_path(path)
    {
    }
    const QString &path() const { return m_path; }

private:
    QString m_path;
};

// All steps together take no more than this, in bytes.
constexpr qint64 LargestHistory = qint64{256} * 1024 * 1024;

// Writes a step, to be on the disk after syncFileSystem(); name is what the file is called in the
// end. textBefore is asked for the texts of the written paragraphs, ascending; what they are known
// by is filled in, and paragraphs that do not differ are left out. Returns the size of the file.
// Throws UsmiraError, and there is no file: when it cannot be written, is too large, or a text
// cannot be read.
qint64 writeStep(const QString &path, const QString &name, HistoryStep &step,
                 const std::function<QByteArray(int)> &textBefore);

// A step that was written.
class StepFile
{
public:
    // Throws StepLost.
    explicit StepFile(const QString &path);

    const HistoryStep &step() const { return m_step; }
    qint64 size() const { return m_file.size(); }
    const QString &path() const { return m_path; }

    // The text that a paragraph had, which was written. Throws StepLost.
    QByteArray textBefore(int n);

private:
    bool readLines();
    bool placeTexts(qint64 bytes);

    QString m_path;
    QFile m_file;
    HistoryStep m_step;
    std::map<int, qint64> m_offsets;
};
