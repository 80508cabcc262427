#include "outil/DoubtfulList.h"

#include "store/references/DoubtfulReferences.h"

QByteArray doubtfulList(const Variables &variables, QList<int> &unreadable)
{
    QByteArray lines;
    for (const DoubtfulReference &doubtful : doubtfulReferences(variables, unreadable)) {
        const ReferenceMark &mark = doubtful.mark;
        const QStringList columns{QString::number(doubtful.paragraph),
                                  QString::number(mark.position), doubtful.words,
                                  doubtReason(mark.doubt, mark.read, variables.TargetPhrase)};
        lines += columns.join(u'\t').toUtf8() + '\n';
    }
    return lines;
}
