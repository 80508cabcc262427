#include "platform/Failures.h"
#include "support/PromptRecorder.h"

#include <QDir>
#include <QTest>

using Operation = FileError::Operation;

// What the author is told when something fails.
class tst_failures : public QObject
{
    Q_OBJECT

    const QString read = "Erreur de lecture de fichier.\n";
    const QString write = "Erreur pendant l'écriture du fichier.\n";

private Q_SLOTS:
    void failuresSayWhichFileAndWhy()
    {
        PromptRecorder prompts;
        const auto check = [&prompts](const auto &error, const QString &text) {
            prompts.expect(text, "BUG");
            reportFailure(prompts, error);
        };
        const QString path = QDir::toNativeSeparators("/home/moi/Le %1 Loup.usm");
        const auto full = std::make_error_code(std::errc::no_space_on_device);
        const auto missing = std::errc::no_such_file_or_directory;
        check(FileError(Operation::Write, path, full), write + path + " : le disque est plein.");
        check(FileError(Operation::Write, path, "", missing),
              write + path + " : le dossier n'existe pas.");
        check(FileError(Operation::Read, path, "", missing),
              read + path + " : le fichier est introuvable.");
        check(FileError(Operation::Read, path, "no status"), read + path);
        check(FormatError(3, "a tag"), read.trimmed());
        check(LimitError("bytes of HTML", 64), write.trimmed());
        check(UnreadableTexts({2, 9}), read.trimmed() + " Paragraphes illisibles : 2, 9.");
    }

    void whatFailsWhileWritingIsAFailureToWrite()
    {
        PromptRecorder prompts;
        prompts.expect(write + QDir::toNativeSeparators("/a.usm"), "BUG");
        QVERIFY(!reportingFailures(prompts, [] {
            return writing("/a.usm", []() -> bool { throw FormatError(0, "a phrase"); });
        }));
    }
};

QTEST_APPLESS_MAIN(tst_failures)
#include "tst_failures.moc"
