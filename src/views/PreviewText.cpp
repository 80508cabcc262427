#include "views/PreviewText.h"

#include "store/DamagedTexts.h"

#include <QCoreApplication>

QString previewText(const Variables &variables, int n)
{
    QList<int> unreadable;
    const std::optional<QString> text = readablePlainText(variables, n, unreadable);
    if (!text)
        return QCoreApplication::translate("PreviewText",
                                           "Le texte de ce paragraphe est illisible.");
    // Nobody reads as much here, and a window takes seconds to show it.
    constexpr qsizetype Most = 100'000;
    if (text->size() > Most)
        return text->left(Most) + QStringLiteral("...");
    return text->isEmpty() ? QCoreApplication::translate("PreviewText", "(Vide)") : *text;
}
