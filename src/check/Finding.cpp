#include "check/Finding.h"

#include "platform/Ascii.h"

#include <QCryptographicHash>
#include <array>

namespace
{
struct Kind {
    const char *name;
    Severity severity;
};

constexpr std::array<Kind, FindingKindCount> Kinds{{
    {"vide", Severity::Fault},
    {"hors-limites", Severity::Fault},
    {"inaccessible", Severity::Fault},
    {"piege", Severity::Fault},
    {"sans-fin", Severity::Fault},
    {"soi-seul", Severity::Fault},
    {"fin", Severity::Remark},
    {"double", Severity::Remark},
    {"soi", Severity::Remark},
    {"douteux", Severity::Remark},
    {"non-suivi", Severity::Remark},
    {"sans-lien", Severity::Remark},
    {"grammaire", Severity::Remark},
    {"a-faire", Severity::Note},
    {"court", Severity::Note},
}};

const Kind &entryOf(FindingKind kind)
{
    return Kinds.at(static_cast<std::size_t>(kind));
}

// A part of a text with these references in it, but without their numbers: a renumbering changes
// them, and nothing about what the author has accepted.
QString withoutTargets(const QString &text, const QList<ReferenceMark> &marks, qsizetype from,
                       qsizetype to)
{
    QString kept;
    for (const ReferenceMark &mark : marks) {
        if (mark.read == 0 || mark.digits < from || mark.digits >= to)
            continue;
        kept += text.mid(from, mark.digits - from) + u'#';
        for (from = mark.digits; from < to && isAsciiDigit(text.at(from));)
            ++from;
    }
    return (kept + text.mid(from, to - from)).simplified();
}
} // namespace

Severity severityOf(FindingKind kind)
{
    return entryOf(kind).severity;
}

const char *kindName(FindingKind kind)
{
    return entryOf(kind).name;
}

const char *severityName(Severity severity)
{
    constexpr std::array names{"faute", "remarque", "note"};
    return names.at(static_cast<std::size_t>(severity));
}

Severity Finding::severity() const
{
    return severityOf(kind);
}

// Of two findings in one sentence each has its own: by what stands before it there.
QByteArray Finding::sentenceHash() const
{
    const QList<ReferenceMark> marks = referenceMarks(around, phrase);
    const QStringList parts{withoutTargets(around, marks, 0, placeInAround),
                            withoutTargets(around, marks, placeInAround, around.size()),
                            QString::number(members.size())};
    return QCryptographicHash::hash(parts.join(u'\n').toUtf8(), QCryptographicHash::Sha256);
}
