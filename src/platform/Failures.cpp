#include "platform/Failures.h"

#include <QCoreApplication>
#include <QDir>
#include <QStringList>
#include <algorithm>

namespace
{
struct Reason {
    std::errc why;
    const char *text;
};

constexpr Reason Reasons[] = {
    {std::errc::no_space_on_device, QT_TRANSLATE_NOOP("Failures", "le disque est plein")},
    {std::errc::file_too_large, QT_TRANSLATE_NOOP("Failures", "le fichier est trop grand")},
    {std::errc::permission_denied, QT_TRANSLATE_NOOP("Failures", "l'accès est refusé")},
    {std::errc::operation_not_permitted, QT_TRANSLATE_NOOP("Failures", "l'accès est refusé")},
    {std::errc::read_only_file_system,
     QT_TRANSLATE_NOOP("Failures", "le disque est protégé en écriture")},
    {std::errc::not_a_directory, QT_TRANSLATE_NOOP("Failures", "le dossier n'existe pas")},
    {std::errc::is_a_directory, QT_TRANSLATE_NOOP("Failures", "ce n'est pas un fichier")},
    {std::errc::filename_too_long, QT_TRANSLATE_NOOP("Failures", "le nom est trop long")},
    {std::errc::io_error, QT_TRANSLATE_NOOP("Failures", "le disque est en erreur")},
    {std::errc::no_such_device, QT_TRANSLATE_NOOP("Failures", "le disque n'est plus là")},
    {std::errc::no_such_device_or_address,
     QT_TRANSLATE_NOOP("Failures", "le disque n'est plus là")},
    {std::errc::too_many_files_open,
     QT_TRANSLATE_NOOP("Failures", "trop de fichiers sont ouverts")},
    {std::errc::too_many_symbolic_link_levels,
     QT_TRANSLATE_NOOP("Failures", "les liens tournent en rond")},
    {std::errc::text_file_busy,
     QT_TRANSLATE_NOOP("Failures", "ce fichier sert à l'aventure ouverte")},
    {std::errc::device_or_resource_busy,
     QT_TRANSLATE_NOOP("Failures", "un autre programme s'en sert")},
    {std::errc::invalid_argument, QT_TRANSLATE_NOOP("Failures", "ce nom n'est pas permis")},
    {std::errc::illegal_byte_sequence,
     QT_TRANSLATE_NOOP("Failures", "ce fichier est abîmé, ou n'est pas de cette sorte")},
    {std::errc::bad_message,
     QT_TRANSLATE_NOOP("Failures", "un autre programme en a changé le contenu")}};

// A file that is not there can only be missed when it is read: to write, it takes a folder.
QString reasonOf(const FileError &error)
{
    if (error.why() == std::errc::no_such_file_or_directory)
        return error.operation() == FileError::Operation::Read
                   ? QCoreApplication::translate("Failures", "le fichier est introuvable")
                   : QCoreApplication::translate("Failures", "le dossier n'existe pas");
    for (const Reason &reason : Reasons)
        if (error.why() == reason.why)
            return QCoreApplication::translate("Failures", reason.text);
    return {};
}

// Empty when the failure concerns no file.
QString fileAndReason(const UsmiraError &error)
{
    const auto *file = dynamic_cast<const FileError *>(&error);
    if (file == nullptr)
        return {};
    if (file->path().isEmpty())
        return QCoreApplication::translate("Failures", "Le nom du fichier est vide.");
    const QString path = QDir::toNativeSeparators(file->path());
    const QString reason = reasonOf(*file);
    return reason.isEmpty() ? path
                            : QCoreApplication::translate("Failures", "%1 : %2.").arg(path, reason);
}

bool isWriting(const UsmiraError &error)
{
    const auto *file = dynamic_cast<const FileError *>(&error);
    return file != nullptr ? file->operation() == FileError::Operation::Write
                           : dynamic_cast<const LimitError *>(&error) != nullptr;
}

QString words(const UsmiraError &error)
{
    if (const auto *texts = dynamic_cast<const UnreadableTexts *>(&error))
        return QCoreApplication::translate(
                   "Failures", "Erreur de lecture de fichier. Paragraphes illisibles : %1")
            .arg(paragraphNames(texts->paragraphs()));
    return isWriting(error)
               ? QCoreApplication::translate("Failures", "Erreur pendant l'écriture du fichier.")
               : QCoreApplication::translate("Failures", "Erreur de lecture de fichier.");
}
} // namespace

QString paragraphNames(const QList<int> &paragraphs)
{
    constexpr qsizetype MostNamed = 20; // a message box is no list
    QStringList numbers;
    for (const int n : paragraphs.first(std::min(paragraphs.size(), MostNamed)))
        numbers.append(QString::number(n));
    const QString list = numbers.join(QStringLiteral(", "));
    return paragraphs.size() > MostNamed ? list + QStringLiteral("...") : list + u'.';
}

QString failureText(const QString &words, const UsmiraError &error)
{
    const QString below = fileAndReason(error);
    return below.isEmpty() ? words : words + u'\n' + below;
}

QString failureText(const UsmiraError &error)
{
    return failureText(words(error), error);
}

QString failureLine(const QString &words, const UsmiraError &error)
{
    return failureText(words, error).replace(u'\n', u' ');
}

void reportFailure(Prompts &prompts, const UsmiraError &error)
{
    if (dynamic_cast<const NotAllowed *>(&error) != nullptr)
        return;
    prompts.message(failureText(error), QCoreApplication::translate("Failures", "BUG"),
                    Prompts::Buttons::Ok);
}

void reportUnforeseen(Prompts &prompts)
{
    prompts.message(QCoreApplication::translate("Failures", "Une action a échoué."),
                    QCoreApplication::translate("Failures", "BUG"), Prompts::Buttons::Ok);
}
