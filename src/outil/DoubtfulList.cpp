#include "outil/DoubtfulList.h"

#include "editor/references/ReferenceMarks.h"
#include "platform/Errors.h"
#include "richtext/RtfPlainText.h"
#include "store/ParagraphTexts.h"

namespace
{
QByteArray doubtfulLines(const QString &text, int n, const QString &phrase)
{
    QByteArray lines;
    for (const ReferenceMark &mark : referenceMarks(text, phrase)) {
        if (mark.doubt == Doubt::None)
            continue;
        const QString words = text.mid(mark.position, mark.length).replace(u'\t', u' ');
        const QStringList columns{QString::number(n), QString::number(mark.position), words,
                                  doubtReason(mark.doubt, mark.read, phrase)};
        lines += columns.join(u'\t').toUtf8() + '\n';
    }
    return lines;
}
} // namespace

QByteArray doubtfulList(const Variables &variables, QList<int> &unreadable)
{
    QByteArray lines;
    for (int n = variables.LowestWritten; n <= variables.HighestWritten; ++n) {
        try {
            if (variables.Written.at(n) == 1)
                lines += doubtfulLines(rtfToPlainText(GetParagraphRtf(variables, n)), n,
                                       variables.TargetPhrase);
        } catch (const UsmiraError &) {
            unreadable.append(n);
        }
    }
    return lines;
}
