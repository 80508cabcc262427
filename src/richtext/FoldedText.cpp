#include "richtext/FoldedText.h"

QString folded(const QString &text)
{
    QString plain;
    for (const QChar c : text.normalized(QString::NormalizationForm_D))
        if (c.category() != QChar::Mark_NonSpacing)
            plain += c.toLower();
    return plain;
}
