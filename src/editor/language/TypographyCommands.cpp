#include "editor/language/TypographyCommands.h"

#include "editor/ParagraphSearch.h"
#include "editor/search/TextReplacing.h"
#include "language/typography/ReferenceRules.h"
#include "richtext/RichTextBox.h"
#include "store/AdventureCommands.h"
#include "store/CommandHistory.h"
#include "store/DamagedTexts.h"
#include "store/LongWork.h"

#include <QCryptographicHash>
#include <set>

namespace
{
QByteArray sumOf(const QString &text)
{
    return QCryptographicHash::hash(
        QByteArrayView(reinterpret_cast<const char *>(text.utf16()), text.size() * 2),
        QCryptographicHash::Sha1);
}
} // namespace

TypographyCommands::TypographyCommands(Variables &variables, AdventureView &view,
                                       WorkReport &report)
    : m_variables(variables), m_view(view), m_report(report)
{
}

TypographyRules TypographyCommands::rules(bool narrow,
                                          std::function<bool(const QString &)> isWord) const
{
    return {m_variables.TargetPhrase, narrow, std::move(isWord)};
}

TypographyLook TypographyCommands::look(int n, const TypographyRules &rules, QList<int> &unreadable,
                                        QString *text) const
{
    TypographyLook look;
    if (m_variables.Written.at(n) == 0)
        return look;
    const QString stored = readablePlainText(m_variables, n, unreadable).value_or(QString());
    look.mends = typographyMends(stored, rules);
    if (!look.mends.isEmpty())
        look.textSum = sumOf(stored);
    if (text != nullptr)
        *text = stored;
    return look;
}

TypographyCommands::Looks TypographyCommands::lookAtAll(const TypographyRules &rules, bool withZero,
                                                        QList<int> &unreadable)
{
    LongWork work(m_report, tr("Typographie..."), WorkReport::Stopping::OnEscape);
    const Progress progress = work.progress();
    Looks looks;
    for (int n = withZero ? 0 : 1; n <= m_variables.HighestWritten; ++n) {
        progress(n, m_variables.HighestWritten);
        TypographyLook found = look(n, rules, unreadable);
        if (!found.mends.isEmpty())
            looks.emplace(n, std::move(found));
    }
    return looks;
}

TypographyCommands::Done TypographyCommands::apply(const Looks &chosen)
{
    QList<int> numbers = writtenParagraphs(m_variables);
    numbers.removeIf([&](int n) { return chosen.count(n) == 0; });
    std::set<int> changed;
    const auto replacementsIn = [&](int n, const QString &text) {
        QList<Replacement> replacements;
        const TypographyLook &look = chosen.at(n);
        if (sumOf(text) != look.textSum)
            return replacements;
        const auto mends = keepingReferences(text, look.mends, m_variables.TargetPhrase);
        for (const TypographyMend &mend : mends)
            replacements.append({mend.position, mend.length, mend.replacement});
        if (!mends.isEmpty())
            changed.insert(n);
        return replacements;
    };
    LongWork work(m_report, tr("Correction..."), WorkReport::Stopping::OnEscape);
    const int before = m_variables.History->newId();
    const int count =
        replaceInParagraphs(m_variables, m_view.editingBox(), tr("Typographie du Livre"), numbers,
                            replacementsIn, work.progress());
    announceDone(m_variables, m_report, before);
    return {count, static_cast<int>(changed.size())};
}

QString TypographyCommands::doneText(const Done &done)
{
    return tr("%n correction(s) dans %1.", nullptr, done.mends)
        .arg(tr("%n paragraphe(s)", nullptr, done.paragraphs));
}
