#include "check/CheckBook.h"

#include "check/BookWays.h"
#include "check/TextCheck.h"
#include "check/TextSentences.h"
#include "check/WayCheck.h"
#include "store/Variables.h"

#include <QCoreApplication>
#include <QHash>
#include <algorithm>
#include <tuple>

namespace
{
// The numbers that it may have been put aside under.
QList<int> numbersOf(const Finding &finding)
{
    return finding.kind == FindingKind::Trap ? finding.members : QList<int>{finding.number};
}

// The paragraph that it stays about when numbers change; 0 for none.
int targetOf(const Finding &finding)
{
    const bool isAboutOne =
        finding.kind == FindingKind::EmptyTarget || finding.kind == FindingKind::SameTarget;
    return isAboutOne ? finding.target : 0;
}

// What an accepted finding is looked up by; the hash is taken of few only.
class AcceptedOnes
{
public:
    explicit AcceptedOnes(const QList<AcceptedFinding> &accepted)
    {
        for (const AcceptedFinding &entry : accepted)
            m_hashes.insert({entry.kind, entry.number}, {entry.sentence, entry.target});
    }

    bool contain(const Finding &finding) const
    {
        if (m_hashes.isEmpty())
            return false;
        const QList<int> numbers = numbersOf(finding);
        return std::any_of(numbers.begin(), numbers.end(),
                           [&](int n) { return contain(finding, n); });
    }

private:
    bool contain(const Finding &finding, int n) const
    {
        const Key key(QString::fromUtf8(kindName(finding.kind)), n);
        return m_hashes.contains(key) &&
               m_hashes.contains(key, {finding.sentenceHash(), targetOf(finding)});
    }

    using Key = std::pair<QString, int>;
    QMultiHash<Key, std::pair<QByteArray, int>> m_hashes;
};
} // namespace

bool comesBefore(const Finding &a, const Finding &b)
{
    return std::tie(a.kind, a.number, a.position) < std::tie(b.kind, b.number, b.position);
}

CheckedBook CheckBook(const Variables &variables, const PlainTexts &texts)
{
    const BookWays ways(variables);
    const TextCheck check(variables, ways);
    QList<Finding> ofTexts;
    for (int n = 1; n <= Variables::LastParagraph; ++n)
        ofTexts += findingsIn(n, check, ways, texts);
    return CheckBook(variables, ways, texts, ofTexts);
}

QList<Finding> findingsIn(int n, const TextCheck &check, const BookWays &ways,
                          const PlainTexts &texts)
{
    if (!ways.written.at(n))
        return {};
    return check.findings(n, texts.unreadable.contains(n) ? nullptr : &texts.texts.at(n));
}

CheckedBook CheckBook(const Variables &variables, const BookWays &ways, const PlainTexts &texts,
                      const QList<Finding> &ofTexts)
{
    QList<Finding> findings = wayFindings(ways);
    for (Finding &finding : findings) {
        finding.phrase = variables.TargetPhrase;
        if (finding.kind != FindingKind::Unreachable)
            continue;
        const QString &text = texts.texts.at(finding.number);
        const TextPart sentence = firstSentence(text);
        finding.around = text.mid(sentence.position, sentence.length);
    }
    return withFindings(variables, {}, findings + ofTexts);
}

CheckedBook withFindings(const Variables &variables, CheckedBook book,
                         const QList<Finding> &findings)
{
    const AcceptedOnes accepted(variables.extras.accepted);
    for (const Finding &finding : findings)
        (accepted.contain(finding) ? book.accepted : book.findings).append(finding);
    for (QList<Finding> *list : {&book.findings, &book.accepted})
        std::sort(list->begin(), list->end(), comesBefore);
    return book;
}

QString findingCounts(const QList<Finding> &findings)
{
    const auto count = [&findings](Severity severity) {
        return static_cast<int>(
            std::count_if(findings.begin(), findings.end(), [severity](const Finding &finding) {
                return finding.severity() == severity;
            }));
    };
    const auto counted = [](const char *text, int n) {
        return QCoreApplication::translate("CheckBook", text, nullptr, n);
    };
    return counted(QT_TRANSLATE_N_NOOP("CheckBook", "%n faute(s)"), count(Severity::Fault)) +
           QStringLiteral(", ") +
           counted(QT_TRANSLATE_N_NOOP("CheckBook", "%n remarque(s)"), count(Severity::Remark));
}

AcceptedFinding accepted(const Finding &finding)
{
    return {QString::fromUtf8(kindName(finding.kind)), finding.number, finding.sentenceHash(),
            targetOf(finding)};
}

AdventureExtras withAccepted(AdventureExtras extras, const QList<Finding> &findings)
{
    for (const Finding &finding : findings)
        if (const AcceptedFinding entry = accepted(finding); !extras.accepted.contains(entry))
            extras.accepted.append(entry);
    return extras;
}

AdventureExtras withoutAccepted(AdventureExtras extras, const QList<Finding> &findings)
{
    for (const Finding &finding : findings) {
        AcceptedFinding entry = accepted(finding);
        const QList<int> numbers = numbersOf(finding);
        for (const int n : numbers) {
            entry.number = n;
            extras.accepted.removeAll(entry);
        }
    }
    return extras;
}
