#include "outil/DoubtfulList.h"

#include "editor/references/ReferenceMarks.h"
#include "store/DamagedTexts.h"

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
        if (variables.Written.at(n) == 0)
            continue;
        if (const auto text = readablePlainText(variables, n, unreadable))
            lines += doubtfulLines(*text, n, variables.TargetPhrase);
    }
    return lines;
}
