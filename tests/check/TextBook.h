#pragma once

#include "check/CheckBook.h"
#include "store/ReferenceIndex.h"

#include <QStringList>

// An adventure of plain texts.
struct TextBook {
    void write(int n, const QString &text)
    {
        texts.texts.at(n) = text;
        variables.Written.at(n) = 1;
        ScanReferences(variables, text, n);
        RecomputeWrittenRange(variables);
    }

    QList<Finding> findings() const { return CheckBook(variables, texts).findings; }

    Variables variables;
    PlainTexts texts;
};

// "vide 3 12" or "piege 4 5,6,7": kind, number, and where it leads.
inline QString shortly(const Finding &finding)
{
    QString text = QString(kindName(finding.kind)) + u' ' + QString::number(finding.number);
    if (finding.target != 0)
        text += u' ' + QString::number(finding.target);
    if (finding.kind != FindingKind::Trap)
        return text;
    QStringList members;
    for (const int n : finding.members)
        members.append(QString::number(n));
    return text + u' ' + members.join(u',');
}

inline QStringList shortly(const QList<Finding> &findings)
{
    QStringList texts;
    for (const Finding &finding : findings)
        texts.append(shortly(finding));
    texts.sort();
    return texts;
}
