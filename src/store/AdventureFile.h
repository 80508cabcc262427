#pragma once

#include "platform/Progress.h"
#include "store/Variables.h"

#include <functional>
#include <optional>

// The adventure file, extension "usm". All numbers are big-endian, texts have one Windows-1252 byte
// for each character, positions are 1-based. docs/format-usm.md has examples.
//
// Version 35, the only one written:
//   u16 version = 35, u16 lowest, u16 highest, u16 current
//   "TARG" u16 length, phrase
//   "UNMX" one byte (0 or 1) for each number lowest..highest
//   "SECT" u16 number, u32 length, RTF text, u16 length, reference list     once a paragraph
//   "DONE"
//   what belongs to it beside the paragraphs, if anything does: see extras/ExtrasBlock.h
// Any other version (25 and below), read only:
//   u16 version, u16 lowest, u16 highest, u16 current
//   u8 length, phrase, padding to 31 bytes, 64 reserved bytes
//   1000 flag bytes for 0..999, in version 25 only
//   1001 u32 offsets: text n runs from offset[n] up to offset[n+1]

// What an adventure file says, before any of it is taken over.
struct AdventureContents {
    int version = 0;
    qint16 lowest = 1;
    qint16 highest = 1;
    qint16 current = 1;
    QString targetPhrase;
    ParagraphArray<quint8, 2002> written;
    ParagraphArray<qint32, 2001> sectionOffset;
    ParagraphArray<quint8, 2002> unmixable;
    ParagraphArray<QString, 2001> refIndex;
    ParagraphArray<quint8, 2001> damaged; // its text is no text, or lies outside the file
    AdventureExtras extras;
    bool extrasDamaged = false; // what there was of them cannot be read
    std::shared_ptr<OpenedFile> file;
};

inline constexpr int CurrentVersion = 35;

// What holds the name of a new adventure until it is written.
inline constexpr auto Placeholder = "Nothing yet";
// False too when the file at path cannot be read.
bool isPlaceholder(const QString &path);

// Characters of a target phrase.
inline constexpr qsizetype LongestPhrase = 32767;

// Reads a file of any version. Of a hostile file: unknown tags are passed over, a range that does
// not fit the sections is widened to them, a text that cannot be one is damaged, extras that cannot
// be read are none. Throws FileError, or FormatError on an end before "DONE", a length beyond the
// end, a 2-byte number of 32768 or more and a section above 2000.
AdventureContents readAdventure(const std::shared_ptr<OpenedFile> &file);
// The same of the file at path; what is wrong with its bytes is a FileError too, which names it.
AdventureContents readAdventure(const QString &path);

// The version that the file at path says, without reading the rest of it. Throws FileError when it
// cannot be opened or says none.
int readVersion(const QString &path);

// Makes the contents the adventure's state: all arrays fresh, no working file, nothing modified.
// Path, name and prefix stay as they are.
void takeOver(Variables &variables, AdventureContents contents);

// Path, name and prefix of the adventure at path.
void setNames(Variables &variables, const QString &path);

// Gives the text of a written paragraph; nothing when it is to be left out.
using TextSource = std::function<std::optional<QByteArray>(int)>;

// Writes the whole adventure to path, reads it back with readAdventure and compares numbers,
// lengths and lists. Changes neither the state nor any other file. Throws FileError, or
// FormatError when what was read back is not what was written, and what the source throws.
AdventureContents writeAdventure(const Variables &variables, const QString &path,
                                 const TextSource &text, const Progress &progress);
// With all texts as they are stored.
AdventureContents writeAdventure(const Variables &variables, const QString &path);
