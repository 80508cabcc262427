#include "platform/Failures.h"
#include "support/PromptRecorder.h"

#include <QTest>

using Operation = FileError::Operation;

// What the author is told when something fails.
class tst_failures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void failuresSayWhichFileAndWhy()
    {
        const QString read = "Erreur de lecture de fichier.";
        const QString write = "Erreur pendant l'écriture du fichier.";
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

    // A wrong form in what is being made is no failure to read, but one to read its sources is.
    void whatFailsWhileWritingIsAFailureToWrite()
    {
        const auto operationOf = [](auto fail) {
            try {
                writing("/a.usm", fail);
            } catch (const FileError &error) {
                return error.operation();
            }
            return Operation::Read;
        };
        QCOMPARE(operationOf([] { throw FormatError(0, "a phrase"); }), Operation::Write);
        QCOMPARE(operationOf([] { throw LimitError("bytes", 2); }), Operation::Write);
        QCOMPARE(operationOf([] { throw FileError(Operation::Read, "/b", "gone"); }),
                 Operation::Read);
    }
};

QTEST_APPLESS_MAIN(tst_failures)
#include "tst_failures.moc"
