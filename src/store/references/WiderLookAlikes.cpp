#include "store/references/WiderLookAlikes.h"

#include "store/Variables.h"
#include "store/references/ReferenceLookAlikes.h"

namespace
{
// The brackets on both sides of a number, when they hold nothing else.
std::optional<Unread> bracketed(QStringView before, QStringView behind)
{
    const QStringView left = before.trimmed();
    const QStringView right = behind.trimmed();
    if (left.isEmpty() || right.isEmpty())
        return std::nullopt;
    const bool round = left.back() == u'(' && right.front() == u')';
    const bool square = left.back() == u'[' && right.front() == u']';
    if (!round && !square)
        return std::nullopt;
    return Unread{Doubt::PhraseMissing, before.size() - before.lastIndexOf(left.back()),
                  behind.indexOf(right.front()) + 1};
}
} // namespace

WiderLookAlikes::WiderLookAlikes(const Variables &variables)
    : m_variables(variables),
      m_leaders(variables.TargetPhrase.trimmed(), ReferenceLeaders::Reach::Wide)
{
}

std::optional<Unread> WiderLookAlikes::unread(const QString &before, QStringView digits,
                                              QStringView behind) const
{
    if (QStringView(m_variables.TargetPhrase).trimmed().isEmpty())
        return std::nullopt;
    const QString next = behind.left(LookAlikeContext).toString();
    bool fits = false;
    const int n = digits.toInt(&fits);
    if (!fits || n > Variables::LastParagraph)
        return beyondLast(before, digits, next);
    if (isWritten(n))
        if (const std::optional<Unread> found = bracketed(before, next))
            return found;
    return m_leaders.find(before, next);
}

// As the phrase has it, or with a word such as "paragraphe" between: what else may stand before a
// number that large is rather a year or a sum.
std::optional<Unread> WiderLookAlikes::beyondLast(const QString &before, QStringView digits,
                                                  const QString &behind) const
{
    if (digits.startsWith(u'0'))
        return std::nullopt;
    std::optional<Unread> found = unreadByContext(before, behind, m_variables.TargetPhrase);
    if (!found || found->doubt == Doubt::DigitsJoined || found->doubt == Doubt::PhraseMissing)
        return std::nullopt;
    found->doubt = Doubt::BeyondLast;
    return found;
}

bool WiderLookAlikes::isWritten(int n) const
{
    return m_variables.Written.at(n) == 1;
}
