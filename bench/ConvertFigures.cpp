#include "ConvertFigures.h"

#include "BigAdventure.h"
#include "Figures.h"
#include "convert/RtfToHtml.h"
#include "platform/OpenedFile.h"
#include "store/AdventureFile.h"
#include "store/ParagraphStore.h"

#include <vector>

void printConvertFigures(const QString &path)
{
    constexpr int runs = 9;
    Variables variables;
    takeOver(variables, readAdventure(std::make_shared<OpenedFile>(path)));
    std::vector<QByteArray> texts;
    for (int n = 1; n <= BigAdventure::Paragraphs; ++n)
        texts.push_back(GetParagraphRtf(variables, n));
    printFigure(QStringLiteral("convert 2000 paragraphs to HTML"),
                medianMilliseconds(
                    runs, [] {},
                    [&] {
                        int n = 0;
                        for (const QByteArray &text : texts)
                            RtfToHtml(variables, text, QStringLiteral("GA-"), ++n, true);
                    }),
                QStringLiteral("ms"));
}
