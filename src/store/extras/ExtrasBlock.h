#pragma once

#include "store/extras/AdventureExtras.h"

#include <QByteArray>
#include <QByteArrayView>
#include <optional>

// The bytes of AdventureExtras, behind the "DONE" of an adventure file. Numbers are little-endian.
//
//   "XTRA" u16 version = 1, u32 length of the records, SHA-256 of these ten bytes and the records
//   records, each: four bytes of tag, u32 length, contents
//
// The contents that are known, where a number is a u16 up to 2000 and a text a u32 length and
// UTF-8:
//   "STRT" numbers of the starts
//   "ACPT" once a finding: number, target, 32 bytes of the sentence's SHA-256, text of the kind
//   "READ" numbers of the paragraphs read
//   "TAKN" once a choice: number from, number to
//   "BKMK" once a bookmark: text of the name, u32 count, numbers of the way
//   "BOOK" texts: title, author, language, dedication, before, after
//   "COVR" a picture file
//   "WORD" texts of the words that spelling takes as right
//   "IGNW" once a word that is right in one paragraph: number, text
//
// Records of other tags are kept as they are. What a tag means never changes: another layout gets
// another tag. Of two records of a known tag the last counts.

// Bytes before the records.
inline constexpr qsizetype ExtrasHead = 42;
// Bytes of the records: far above a picture for the cover, and nothing that fills the memory.
inline constexpr qsizetype LargestExtras = qsizetype{64} * 1024 * 1024;

// How long the block is that begins with these bytes, by what its first ExtrasHead bytes say; 0
// when there is none. Never above ExtrasHead + LargestExtras.
qsizetype extrasLength(QByteArrayView head);

// Reads what stands behind "DONE". Bytes that do not begin as a block are none of ours and give an
// empty value, bytes behind a block are passed over. Nothing: the block is damaged, too long or of
// another version.
std::optional<AdventureExtras> extrasFrom(QByteArrayView bytes);

// No byte for an empty value: such an adventure ends with "DONE".
QByteArray bytesOf(const AdventureExtras &extras);
