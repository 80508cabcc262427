#include "Seeds.h"
#include "Targets.h"

#include "convert/html/RtfToHtml.h"
#include "platform/Errors.h"
#include "richtext/HiddenBox.h"
#include "richtext/RtfPlainText.h"

#include <algorithm>

namespace
{
constexpr int LongestText = 1024;

// Empty when the bytes are no text.
QByteArray asWritten(const QByteArray &bytes)
{
    try {
        HiddenBox box;
        box.setRtf(bytes);
        return box.rtf();
    } catch (const UsmiraError &) {
        return {};
    }
}

void rtf(const QByteArray &bytes)
{
    HiddenBox box;
    try {
        box.setRtf(bytes);
    } catch (const UsmiraError &) {
        return;
    }
    const QString text = box.text();
    const QByteArray written = box.rtf();
    box.setRtf(written);
    promise(box.rtf() == written, "a text that was read and written stays as it is");
    promise(box.text() == text, "no character of a text is lost by writing it");
}

void plainText(const QByteArray &bytes)
{
    HiddenBox box;
    QString text;
    try {
        text = rtfToPlainText(bytes);
        box.setRtf(bytes);
    } catch (const UsmiraError &) {
        return;
    }
    promise(box.text() == text, "both readers see the same text");
}

QByteArray htmlOf(const QByteArray &rtf, bool manyFiles)
{
    Variables variables;
    variables.refIndex.at(7) = QStringLiteral("0012/0340/");
    return RtfToHtml(variables, rtf, QStringLiteral("AB-"), 7, manyFiles);
}

bool isSevenBit(const QByteArray &bytes)
{
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 128; });
}

void html(const QByteArray &bytes)
{
    try {
        htmlOf(bytes, bytes.size() % 2 == 0);
    } catch (const UsmiraError &) {
        // Bytes that the editor did not write may be refused.
    }
    const QByteArray written = asWritten(bytes);
    try {
        promise(isSevenBit(htmlOf(written, false)), "HTML of a text of the editor's is 7-bit");
    } catch (const LimitError &) {
        return;
    }
}
} // namespace

QList<FuzzTarget> textTargets()
{
    return {{"rtf", &rtf, &rtfSeeds, LongestText},
            {"texte", &plainText, &rtfSeeds, LongestText},
            {"html", &html, &rtfSeeds, LongestText}};
}
