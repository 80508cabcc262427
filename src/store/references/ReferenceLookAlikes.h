#pragma once

#include "store/references/ReferenceLeaders.h"

#include <QStringView>
#include <optional>

// The table of what looks like a reference and is none, or is read as one and is none: judged by
// what stands around a number. Some of it is French and holds for phrases that begin with "au".

// So many characters on each side of a number tell what it is.
constexpr qsizetype LookAlikeContext = 48;

// Whether the words of the table that are French hold with this phrase.
bool isFrenchPhrase(QStringView phrase);

// A number is read on over blanks and a stop: where the next digits begin in the text behind it.
std::optional<qsizetype> joinedDigits(QStringView behind);

// Whether a number before this text is probably no reference, and why; Doubt::None otherwise.
// digits is the number of digits that it has.
Doubt doubtByWhatFollows(QStringView behind, qsizetype digits, bool french);

// Why a number between these texts is not read although an author means a reference, and what
// belongs to it. A line feed in before is the end of a line. For numbers that are no references
// only.
std::optional<Unread> unreadByContext(const QString &before, QStringView behind,
                                      const QString &phrase);
