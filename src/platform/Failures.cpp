#include "platform/Failures.h"

#include <QStringList>
#include <algorithm>

namespace
{
// A message box is no list: when more fail, the first ones tell enough.
constexpr qsizetype MostNamed = 20;

QString named(const QList<int> &paragraphs)
{
    QStringList numbers;
    for (const int n : paragraphs.first(std::min(paragraphs.size(), MostNamed)))
        numbers.append(QString::number(n));
    const QString list = numbers.join(QStringLiteral(", "));
    return paragraphs.size() > MostNamed ? list + QStringLiteral("...") : list + u'.';
}

QString failureText(const UsmiraError &error)
{
    if (const auto *texts = dynamic_cast<const UnreadableTexts *>(&error))
        return QStringLiteral("Erreur de lecture de fichier. Paragraphes illisibles : ") +
               named(texts->paragraphs());
    const auto *file = dynamic_cast<const FileError *>(&error);
    if (file != nullptr && file->operation() == FileError::Operation::Write)
        return QStringLiteral("Erreur pendant l'écriture du fichier.");
    return QStringLiteral("Erreur de lecture de fichier.");
}
} // namespace

void reportFailure(Prompts &prompts, const UsmiraError &error)
{
    prompts.message(failureText(error), QStringLiteral("BUG"), Prompts::Buttons::Ok);
}
