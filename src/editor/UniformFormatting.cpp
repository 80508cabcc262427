#include "editor/UniformFormatting.h"

#include "editor/ParagraphRewriting.h"
#include "editor/ParagraphSearch.h"
#include "platform/Failures.h"
#include "richtext/RichTextBox.h"
#include "richtext/TextCleaning.h"
#include "store/CommandHistory.h"
#include "store/LenientNumbers.h"
#include "store/LongWork.h"

#include <QCoreApplication>

std::optional<double> typedFontSize(const QString &size)
{
    constexpr double least = 1;
    constexpr double most = 1638;
    const double points = lenientMeasure(size);
    if (points < least || points > most)
        return std::nullopt;
    return qRound(points * 2) / 2.0;
}

// Without a character there is nothing to format.
bool makeUniform(RichTextBox &box, const UniformFormatting &formatting)
{
    if (box.textLength() == 0)
        return false;
    box.select(0, box.textLength());
    const QString name = cleanedFontName(formatting.fontName.value_or(QString()));
    const bool otherName = !name.isEmpty() && box.selFontName() != name;
    const bool otherSize = formatting.fontSize && box.selFontSize() != formatting.fontSize;
    if (otherName)
        box.setSelFontName(name);
    if (otherSize)
        box.setSelFontSize(*formatting.fontSize);
    return otherName || otherSize;
}

bool makeAllUniform(Variables &variables, Prompts &prompts, WorkReport &report,
                    const UniformFormatting &formatting)
{
    if (!formatting.fontName && !formatting.fontSize)
        return true;
    return reportingFailures(prompts, [&] {
        LongWork work(report, QCoreApplication::translate("UniformFormatting", "Mise en forme..."));
        const auto rewrite = [&](int n, const QByteArray &rtf,
                                 RichTextBox &box) -> std::optional<QString> {
            box.setRtf(rtf);
            return makeUniform(box, formatting) ? std::optional(variables.refIndex.at(n))
                                                : std::nullopt;
        };
        const int before = variables.History->newId();
        rewriteParagraphs(variables,
                          QCoreApplication::translate("UniformFormatting", "Uniformiser"),
                          writtenParagraphs(variables), rewrite, work.progress());
        announceDone(variables, report, before);
        return true;
    });
}
