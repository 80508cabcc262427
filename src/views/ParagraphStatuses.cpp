#include "views/ParagraphStatuses.h"

#include "store/ReferenceIndex.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

namespace
{
struct StatusLook {
    const char *name; // to be translated
    QRgb colour;
};

constexpr std::array<StatusLook, ParagraphStatusCount> Looks = {{
    {QT_TRANSLATE_NOOP("ParagraphStatuses", "Vide"), qRgb(0xFF, 0xFF, 0xFF)},
    {QT_TRANSLATE_NOOP("ParagraphStatuses", "Tapé"), qRgb(0xFF, 0x00, 0x00)},
    {QT_TRANSLATE_NOOP("ParagraphStatuses", "Mort"), qRgb(0x00, 0xFF, 0x00)},
    {QT_TRANSLATE_NOOP("ParagraphStatuses", "Réservé"), qRgb(0x00, 0xFF, 0xFF)},
    {QT_TRANSLATE_NOOP("ParagraphStatuses", "Actuel"), qRgb(0xFF, 0xFF, 0x00)},
    {QT_TRANSLATE_NOOP("ParagraphStatuses", "Orphelin"), qRgb(0xFF, 0x00, 0xFF)},
}};

// A paragraph that is written further on takes the place of the status Reserved.
void classifyWritten(const Variables &variables, int n, ParagraphStatuses &found,
                     ParagraphArray<bool, 2001> &referred)
{
    const QString &entry = variables.refIndex.at(n);
    found.status.at(n) = entry.size() < IndexEntryLength ? DeadEnd : Written;
    for (const int target : referredParagraphs(entry)) {
        if (found.status.at(target) == Empty)
            found.status.at(target) = Reserved;
        referred.at(target) = true;
        found.maxShown = std::max(found.maxShown, target);
    }
}
} // namespace

ParagraphStatuses classifyParagraphs(const Variables &variables)
{
    ParagraphStatuses found;
    ParagraphArray<bool, 2001> referred;
    found.maxShown = variables.HighestWritten;
    for (int n = variables.LowestWritten; n <= variables.HighestWritten; ++n)
        if (variables.Written.at(n) == 1)
            classifyWritten(variables, n, found, referred);
    for (int n = variables.LowestWritten; n <= variables.HighestWritten; ++n) {
        quint8 &status = found.status.at(n);
        if ((status == Written || status == DeadEnd) && !referred.at(n))
            status = Orphan;
    }
    return found;
}

QString statusName(quint8 status)
{
    return QCoreApplication::translate("ParagraphStatuses", Looks.at(status).name);
}

QString fixedName()
{
    return QCoreApplication::translate("ParagraphStatuses", "Fixe");
}

QColor statusColour(quint8 status)
{
    return Looks.at(status).colour;
}

QChar statusLetter(quint8 status)
{
    return status == Empty ? QChar(u' ') : statusName(status).at(0);
}
