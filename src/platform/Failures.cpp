#include "platform/Failures.h"

void reportFailure(Prompts &prompts, const UsmiraError &error)
{
    const auto *file = dynamic_cast<const FileError *>(&error);
    const bool writing = file != nullptr && file->operation() == FileError::Operation::Write;
    prompts.message(writing ? QStringLiteral("Erreur pendant l'écriture du fichier.")
                            : QStringLiteral("Erreur de lecture de fichier."),
                    QStringLiteral("BUG"), Prompts::Buttons::Ok);
}
