#include "check/Finding.h"

#include <QCryptographicHash>
#include <QRegularExpression>
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
    {"a-faire", Severity::Note},
    {"court", Severity::Note},
}};

const Kind &entryOf(FindingKind kind)
{
    return Kinds.at(static_cast<std::size_t>(kind));
}

// A renumbering changes the numbers, which changes nothing about what the author has accepted.
QString withoutNumbers(const QString &text)
{
    static const QRegularExpression digits(QStringLiteral("[0-9]+"));
    return text.simplified().replace(digits, QStringLiteral("#"));
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
    const QStringList parts{withoutNumbers(around.left(placeInAround)),
                            withoutNumbers(around.mid(placeInAround)),
                            QString::number(members.size())};
    return QCryptographicHash::hash(parts.join(u'\n').toUtf8(), QCryptographicHash::Sha256);
}
