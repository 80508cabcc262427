#include "outil/StateReport.h"

#include "platform/Errors.h"
#include "platform/OpenedFile.h"
#include "richtext/RtfPlainText.h"
#include "store/AdventureFile.h"
#include "store/ParagraphTexts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtEndian>

namespace
{
int fileVersion(const Variables &variables)
{
    if (!variables.AdventureFile)
        return CurrentVersion;
    return qFromBigEndian<quint16>(variables.AdventureFile->read(0, 2).constData());
}

QJsonObject paragraphReport(const Variables &variables, int n)
{
    QByteArray rtf;
    bool damaged = false;
    try {
        rtf = GetParagraphRtf(variables, n);
    } catch (const UsmiraError &) {
        damaged = true;
    }
    return {{QStringLiteral("number"), n},
            {QStringLiteral("written"), variables.Written.at(n) == 1},
            {QStringLiteral("extracted"), variables.Extracted.at(n) == 1},
            {QStringLiteral("damaged"), damaged},
            {QStringLiteral("fixed"), variables.Unmixable.at(n) == 1},
            {QStringLiteral("refs"), variables.refIndex.at(n)},
            {QStringLiteral("size"), rtf.size()},
            {QStringLiteral("text"), rtf.isEmpty() ? QString() : rtfToPlainText(rtf)}};
}
} // namespace

QByteArray stateReport(const Variables &variables)
{
    QJsonArray paragraphs;
    for (int n = variables.LowestWritten; n <= variables.HighestWritten; ++n)
        paragraphs.append(paragraphReport(variables, n));
    const QJsonObject report{{QStringLiteral("file"), variables.AdventurePath},
                             {QStringLiteral("version"), fileVersion(variables)},
                             {QStringLiteral("lowest"), variables.LowestWritten},
                             {QStringLiteral("highest"), variables.HighestWritten},
                             {QStringLiteral("current"), variables.CurrentParagraph},
                             {QStringLiteral("phrase"), variables.TargetPhrase},
                             {QStringLiteral("modified"), variables.AdventureModified},
                             {QStringLiteral("paragraphs"), paragraphs}};
    return QJsonDocument(report).toJson(QJsonDocument::Compact) + '\n';
}
