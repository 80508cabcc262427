#pragma once

#include "platform/OpenedFile.h"
#include "store/Variables.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <bitset>
#include <optional>

// What is unsaved in an adventure, so that the next start finds it when the program is killed. The
// file "Session/Etat.xyz" of the working folder, lines of UTF-8 that end in CR LF:
//
//   Usmira Etat 1
//   adventure %2Fhome%2Fmoi%2FLe%20Loup.usm   percent-encoded
//   opened 34512 SUM                          its identity as opened; no such line: never written
//   saving 34600 SUM                          that of a save under way; mostly no such line
//   phrase %20au%20                           percent-encoded
//   range 0001 0340
//   current 0012
//   written 7fff...                           a digit for four paragraphs, from 0 on, the
//   extracted 0400...                         highest bit first
//   unmixable 0000...
//   extras SHA256                             of the file "Session/Annexe-....xyz" with what the
//                                             adventure has beside its paragraphs; no such line:
//                                             what the adventure file says
//   emptied 0003 0004                         they lose their text
//   done 0003 0007                            the steps by which commands are taken back, and
//   undone 0009                               those by which they are done once more
//   next 0026                                 is being saved: extracted once its file is there
//   sum SHA256                                of every line above
struct SessionState {
    using Marks = std::bitset<Variables::LastParagraph + 1>;
    bool operator==(const SessionState &) const = default;

    QString filePrefix() const;

    QString adventurePath; // absolute
    std::optional<FileIdentity> opened;
    std::optional<FileIdentity> saving;
    QString targetPhrase;
    int lowest = 1;
    int highest = 1;
    int current = 1;
    Marks written;
    Marks extracted;
    Marks unmixable;
    std::optional<QByteArray> extras; // checksum in hexadecimal
    QList<int> emptied;               // ascending
    QList<int> done;                  // see CommandHistory
    QList<int> undone;
    std::optional<int> next;
};

QByteArray sessionStateBytes(const SessionState &state);
// Nothing unless the bytes are what sessionStateBytes() gives for a state that this program can
// have had: a file of that name may come from anywhere.
std::optional<SessionState> sessionStateOf(QByteArrayView bytes);

// That of the open adventure.
SessionState sessionState(const Variables &variables);

// The state once the paragraph that was being saved has its working file.
SessionState withNext(SessionState state);
