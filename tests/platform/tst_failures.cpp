#include "platform/Failures.h"
#include "support/PromptRecorder.h"

#include <QTest>

using Operation = FileError::Operation;

// What the author is told when something fails.
class tst_failures : public QObject
{
    Q_OBJECT

    const QString read = "Erreur de lecture de fichier.";
    const QString write = "Erreur pendant l'écriture du fichier.";

private Q_SLOTS:
    void failuresSayWhichFileAndWhy()
    {
        PromptRecorder prompts;
        const auto check = [&prompts](const auto &error, const QString &text) {
            prompts.expect(text, "BUG");
            reportFailure(prompts, error);
        };
        const QString path = "/home/moi/Le %1 Loup.usm";
        const auto code = [](std::errc why) { return std::make_error_code(why); };
        check(FileError(Operation::Write, path, code(std::errc::no_space_on_device)),
              write + "\n/home/moi/Le %1 Loup.usm : le disque est plein.");
        check(FileError(Operation::Write, path, code(std::errc::no_such_file_or_directory)),
              write + "\n/home/moi/Le %1 Loup.usm : le dossier n'existe pas.");
        check(FileError(Operation::Read, path, code(std::errc::no_such_file_or_directory)),
              read + "\n/home/moi/Le %1 Loup.usm : le fichier est introuvable.");
        check(FileError(Operation::Read, path, "no status"), read + "\n/home/moi/Le %1 Loup.usm");
        check(FormatError(3, "a tag"), read);
        check(LimitError("bytes of HTML", 64), write);
        check(UnreadableTexts({2, 9}), read + " Paragraphes illisibles : 2, 9.");
    }

    void whatFailsWhileWritingIsAFailureToWrite()
    {
        PromptRecorder prompts;
        for (const bool itself : {true, false}) {
            prompts.expect(itself ? write + "\n/a.usm" : read + "\n/b.rtf", "BUG");
            const bool done = reportingFailures(prompts, [&] {
                return writing("/a.usm", [&]() -> bool {
                    if (itself)
                        throw FormatError(0, "a phrase");
                    throw FileError(Operation::Read, "/b.rtf", "gone");
                });
            });
            QVERIFY(!done);
        }
    }
};

QTEST_APPLESS_MAIN(tst_failures)
#include "tst_failures.moc"
