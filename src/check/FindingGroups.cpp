#include "check/FindingGroups.h"

#include "richtext/FoldedText.h"
#include "store/CsvCell.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>

namespace
{
QString translated(const char *text)
{
    return QCoreApplication::translate("FindingGroups", text);
}

// All of them, accepted or not, in the order of the list.
QList<ListedFinding> listed(const CheckedBook &book)
{
    QList<ListedFinding> all;
    all.reserve(book.findings.size() + book.accepted.size());
    for (const Finding &finding : book.findings)
        all.append({finding, 0, false});
    for (const Finding &finding : book.accepted)
        all.append({finding, 0, true});
    std::inplace_merge(all.begin(), all.begin() + book.findings.size(), all.end(),
                       [](const ListedFinding &a, const ListedFinding &b) {
                           return comesBefore(a.finding, b.finding);
                       });
    for (qsizetype i = 1; i < all.size(); ++i)
        if (all.at(i).finding.kind == all.at(i - 1).finding.kind &&
            all.at(i).finding.number == all.at(i - 1).finding.number)
            all[i].ordinal = all.at(i - 1).ordinal + 1;
    return all;
}

bool passes(const ListedFinding &listed, const FindingFilter &filter, const QString &words)
{
    const Finding &finding = listed.finding;
    if ((listed.accepted && !filter.accepted) ||
        !filter.severities.at(static_cast<std::size_t>(finding.severity())))
        return false;
    return words.isEmpty() ||
           folded(QStringList{QString::number(finding.number), finding.sentence(), finding.around}
                      .join(u'\n'))
               .contains(words);
}

QString quotedAround(const Finding &finding)
{
    return finding.around.isEmpty() ? QString() : QStringLiteral(" [%1]").arg(finding.around);
}

QStringList cellsOf(const ListedFinding &listed)
{
    const Finding &finding = listed.finding;
    return {QString::fromUtf8(severityName(finding.severity())),
            QString::fromUtf8(kindName(finding.kind)),
            QString::number(finding.number),
            finding.sentence(),
            finding.around,
            listed.accepted ? translated(QT_TRANSLATE_NOOP("FindingGroups", "accepté"))
                            : QString()};
}

QString csvLine(QStringList cells)
{
    std::transform(cells.begin(), cells.end(), cells.begin(), &csvCell);
    return cells.join(u';') + QLatin1String("\r\n");
}
} // namespace

QList<FindingGroup> findingGroups(const CheckedBook &book, const FindingFilter &filter)
{
    const QString words = folded(filter.words.simplified());
    QList<FindingGroup> groups;
    const QList<ListedFinding> all = listed(book);
    for (const ListedFinding &finding : all) {
        if (!passes(finding, filter, words))
            continue;
        if (groups.isEmpty() || groups.last().kind != finding.finding.kind)
            groups.append({finding.finding.kind, {}});
        groups.last().findings.append(finding);
    }
    return groups;
}

QString groupTitle(const FindingGroup &group)
{
    return QStringLiteral("%1 (%2)").arg(kindTitle(group.kind)).arg(group.findings.size());
}

QByteArray findingText(const QList<FindingGroup> &groups)
{
    QStringList lines;
    for (const FindingGroup &group : groups) {
        if (!lines.isEmpty())
            lines.append(QString());
        lines.append(groupTitle(group));
        for (const ListedFinding &listed : group.findings)
            lines.append(QStringLiteral("  %1  %2%3")
                             .arg(listed.finding.number)
                             .arg(listed.finding.sentence(), quotedAround(listed.finding)));
    }
    lines.append(QString());
    return lines.join(QLatin1String("\r\n")).toUtf8();
}

QByteArray findingCsv(const QList<FindingGroup> &groups)
{
    QString csv = QChar(QChar::ByteOrderMark) +
                  csvLine({translated(QT_TRANSLATE_NOOP("FindingGroups", "Gravité")),
                           translated(QT_TRANSLATE_NOOP("FindingGroups", "Sorte")),
                           translated(QT_TRANSLATE_NOOP("FindingGroups", "Paragraphe")),
                           translated(QT_TRANSLATE_NOOP("FindingGroups", "Constat")),
                           translated(QT_TRANSLATE_NOOP("FindingGroups", "Texte")),
                           translated(QT_TRANSLATE_NOOP("FindingGroups", "État"))});
    for (const FindingGroup &group : groups)
        for (const ListedFinding &listed : group.findings)
            csv += csvLine(cellsOf(listed));
    return csv.toUtf8();
}
