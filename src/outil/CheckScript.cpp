#include "check/CheckBook.h"
#include "outil/CommandEntry.h"
#include "outil/Commands.h"
#include "store/AdventureChanges.h"
#include "store/DamagedTexts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

namespace
{
QByteArray lineOf(const Finding &finding)
{
    const QStringList columns{QString::fromUtf8(kindName(finding.kind)),
                              QString::number(finding.number), finding.sentence()};
    return columns.join(u'\t').toUtf8() + '\n';
}

QJsonObject objectOf(const Finding &finding)
{
    QJsonArray members;
    if (finding.kind == FindingKind::Trap)
        for (const int n : finding.members)
            members.append(n);
    return {{QStringLiteral("kind"), QString::fromUtf8(kindName(finding.kind))},
            {QStringLiteral("severity"), QString::fromUtf8(severityName(finding.severity()))},
            {QStringLiteral("number"), finding.number},
            {QStringLiteral("target"), finding.target},
            {QStringLiteral("members"), members},
            {QStringLiteral("text"), finding.text}};
}

QByteArray jsonOf(const QList<Finding> &findings)
{
    QJsonArray list;
    for (const Finding &finding : findings)
        list.append(objectOf(finding));
    return QJsonDocument(QJsonObject{{QStringLiteral("findings"), list}})
               .toJson(QJsonDocument::Compact) +
           '\n';
}

QByteArray controler(CommandServices &script, const QStringList &arguments)
{
    const bool json = isJsonWanted(arguments);
    const PlainTexts texts = plainTexts(script.variables);
    const QList<Finding> findings = CheckBook(script.variables, texts).findings;
    tellUnreadable(texts.unreadable, script.prompts);
    if (std::any_of(findings.begin(), findings.end(),
                    [](const Finding &f) { return f.severity() == Severity::Fault; }))
        script.prompts.message(findingCounts(findings), Commands::tr("Contrôle du Livre"),
                               Prompts::Buttons::Ok);
    if (json)
        return jsonOf(findings);
    QByteArray lines;
    for (const Finding &finding : findings)
        lines += lineOf(finding);
    return lines;
}

bool isAbout(const Finding &finding, int n)
{
    return finding.number == n ||
           (finding.kind == FindingKind::Trap && finding.members.contains(n));
}

// All findings of the kind that there are at the number.
QByteArray accepter(CommandServices &script, const QStringList &arguments)
{
    const QString &kind = arguments.first();
    const int n = paragraphNumber(arguments.last());
    const PlainTexts texts = plainTexts(script.variables);
    QList<Finding> findings = CheckBook(script.variables, texts).findings;
    findings.removeIf([&](const Finding &finding) {
        return QString::fromUtf8(kindName(finding.kind)) != kind || !isAbout(finding, n);
    });
    if (findings.isEmpty())
        script.prompts.message(Commands::tr("Rien de tel à accepter : %1 %2").arg(kind).arg(n),
                               Commands::tr("Contrôle du Livre"), Prompts::Buttons::Ok);
    changeExtras(script.variables, withAccepted(script.variables.extras, findings));
    return {};
}
} // namespace

std::vector<CommandEntry> checkEntries()
{
    return {
        {"controler", "[json]",
         QT_TRANSLATE_NOOP("Commands", "écrit ce qui cloche dans le livre ; échoue s'il y a des "
                                       "fautes"),
         true, &controler},
        {"accepter", "SORTE N",
         QT_TRANSLATE_NOOP("Commands", "met de côté ce que controler dit de cette sorte au N"),
         true, &accepter},
    };
}
