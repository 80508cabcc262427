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

namespace
{
class Words
{
    Q_DECLARE_TR_FUNCTIONS(UniformFormatting)
};

Rewrite rewriteTo(const Variables &variables, const UniformFormatting &formatting)
{
    return [&](int n, const QByteArray &rtf, RichTextBox &box) -> std::optional<QString> {
        box.setRtf(rtf);
        return makeUniform(box, formatting) ? std::optional(variables.refIndex.at(n))
                                            : std::nullopt;
    };
}
} // namespace

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
        LongWork work(report, Words::tr("Mise en forme..."));
        const int before = variables.History->newId();
        rewriteParagraphs(variables, Words::tr("Uniformiser"), writtenParagraphs(variables),
                          rewriteTo(variables, formatting), work.progress());
        announceDone(variables, report, before);
        return true;
    });
}

QString countedUniform(const Variables &variables, WorkReport &report,
                       const UniformFormatting &formatting)
{
    LongWork work(report, Words::tr("Comptage..."));
    const bool asked = formatting.fontName || formatting.fontSize;
    try {
        const int count = asked ? countRewritten(variables, writtenParagraphs(variables),
                                                 rewriteTo(variables, formatting), work.progress())
                                : 0;
        return count == 0 ? Words::tr("Aucun paragraphe ne change.")
                          : Words::tr("%n paragraphe(s) change(nt).", nullptr, count);
    } catch (const UsmiraError &error) {
        return failureText(error);
    }
}
