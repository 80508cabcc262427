#include "store/ParagraphTexts.h"

#include "platform/Errors.h"
#include "platform/OpenedFile.h"
#include "platform/SafeFile.h"
#include "richtext/RtfReader.h"
#include "richtext/TextLimit.h"
#include "store/Journal.h"
#include "store/WorkingFiles.h"

#include <QtEndian>

namespace
{
// Asked before the bytes are read, so that no memory is wasted on them.
void refuseLength(qint64 length)
{
    if (length > LargestText)
        throw FormatError(0, QStringLiteral("at most %1 bytes").arg(LargestText));
}

QByteArray rtfOnly(const QByteArray &bytes)
{
    if (!RtfReader::beginsAsRtf(bytes))
        throw FormatError(0, QStringLiteral("{\\rtf"));
    return bytes;
}
} // namespace

QByteArray GetParagraphRtf(const Variables &variables, int n)
{
    if (variables.Extracted.at(n) == 1)
        return rtfOnly(readWholeFile(extractedTextPath(variables, n), LargestText));
    if (variables.Written.at(n) == 0 || !variables.AdventureFile)
        return {};
    const TextExtent extent = textExtent(variables, n);
    refuseLength(extent.length);
    if (extent.length == 0)
        return {};
    return rtfOnly(variables.AdventureFile->read(extent.offset, extent.length));
}

QByteArray textToShow(Variables &variables, int n)
{
    quint8 &damaged = variables.Damaged.at(n);
    damaged = 0;
    try {
        return GetParagraphRtf(variables, n);
    } catch (const UsmiraError &) {
        damaged = 1;
        return {};
    }
}

QString extractedTextPath(const Variables &variables, int n)
{
    std::optional<QString> waiting;
    if (variables.JournalLeft)
        waiting = waitingText(*variables.JournalLeft, variables.WorkingFolder, n);
    return waiting.value_or(WorkingFiles(variables).text(n));
}

// In the older files text n ends where text n + 1 begins.
TextExtent textExtent(const Variables &variables, int n)
{
    const qint64 offset = qint64{variables.SectionOffset.at(n)} - 1;
    if (!variables.CurrentFormat)
        return {offset, qint64{variables.SectionOffset.at(n + 1)} - 1 - offset};
    const QByteArray length = variables.AdventureFile->read(offset - 4, 4);
    return {offset, qFromBigEndian<quint32>(length.constData())};
}
