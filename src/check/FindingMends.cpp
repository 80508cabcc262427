#include "check/FindingMends.h"

#include "store/references/DoubtfulReferences.h"

#include <algorithm>

QList<Mend> mendsOf(const Finding &finding, const QString &text)
{
    const bool doubtful =
        finding.kind == FindingKind::Doubtful || finding.kind == FindingKind::NotRead;
    if (!doubtful || text.mid(finding.position, finding.length).simplified() != finding.text)
        return {};
    return mendsInText(finding.mark, text, finding.phrase);
}

QList<Replacement> replacementsOf(QList<Finding> findings, qsizetype mend, const QString &text)
{
    std::sort(findings.begin(), findings.end(),
              [](const Finding &a, const Finding &b) { return a.position < b.position; });
    QList<Replacement> replacements;
    qsizetype end = 0;
    for (const Finding &finding : findings) {
        const QList<Replacement> parts = mendsOf(finding, text).value(mend, Mend{}).replacements;
        if (parts.isEmpty() || parts.first().position < end)
            continue;
        replacements += parts;
        end = parts.last().position + parts.last().length;
    }
    return replacements;
}
