#pragma once

#include "check/CheckBook.h"

#include <array>
#include <tuple>

// The findings of a book as they are listed: in groups of their kinds.

// By what a finding is known again in a later check: paragraphs keep their findings while their
// texts change.
struct FindingKey {
    FindingKind kind;
    int number;
    int ordinal; // among those of this kind in the paragraph
    bool operator==(const FindingKey &) const = default;
    bool operator<(const FindingKey &other) const
    {
        return std::tie(kind, number, ordinal) < std::tie(other.kind, other.number, other.ordinal);
    }
};

struct ListedFinding {
    Finding finding;
    int ordinal;
    bool accepted;
    FindingKey key() const { return {finding.kind, finding.number, ordinal}; }
    bool operator==(const ListedFinding &) const = default;
};

// By number, then place. None is empty.
struct FindingGroup {
    FindingKind kind;
    QList<ListedFinding> findings;
    bool operator==(const FindingGroup &) const = default;
};

// Which of them are listed.
struct FindingFilter {
    QString words; // in number, sentence or text, whatever their accents and capitals
    std::array<bool, SeverityCount> severities{true, true, true};
    bool accepted = false; // those that were put aside as well
};

QList<FindingGroup> findingGroups(const CheckedBook &book, const FindingFilter &filter);

// "Renvois à un paragraphe vide (3)".
QString groupTitle(const FindingGroup &group);

// The list as a text with CR LF, and for spreadsheets, with its mark and semicolons. UTF-8.
QByteArray findingText(const QList<FindingGroup> &groups);
QByteArray findingCsv(const QList<FindingGroup> &groups);
