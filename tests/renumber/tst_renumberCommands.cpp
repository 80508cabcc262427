#include "outil/HeadlessView.h"
#include "platform/OpenedFile.h"
#include "renumber/RenumberCommands.h"
#include "richtext/RtfPlainText.h"
#include "store/AdventureFile.h"
#include "store/ParagraphStore.h"
#include "support/AdventureBuilder.h"
#include "support/PromptRecorder.h"
#include "support/TestTable.h"

#include <QDir>
#include <QTest>

namespace
{
constexpr auto SwapRange =
    "Vous devez spécifier deux chiffres différents entre 1 et 2000.|C'est la loi";
constexpr auto RangeOf = "Vous devez spécifier des paragraphes entre 1 et 2000.|Zut";
constexpr auto BlockRange = "Tous les paragraphes doivent être (et rester) entre 1 et 2000.|Zut";
constexpr auto NoDistance = "Il ne sert à rien de déplacer de 0 unités.|Zut";
constexpr auto NoEffect =
    "MasterMix n'aura aucun effet si vous Mélangez 3 paragraphes ou moins.|Songez-y";
constexpr auto TooShort = "L'intervalle doit couvrir au moins 2 paragraphes.|Zut";

// Paragraphs 2, 4!, 5 and 9, whose texts say their number.
struct Scene {
    Scene()
    {
        const QString path = adventure.file(
            "a.usm", AdventureBuilder({"2: deux", "4!: quatre", "5: cinq", "9: neuf"}).bytes());
        takeOver(v, readAdventure(std::make_shared<OpenedFile>(path)));
        v.FilePrefix = QStringLiteral("a-");
    }

    bool run(const QString &command, double a, double b, double delta)
    {
        if (command == "swap")
            return commands.Swap(a, b);
        if (command == "mix")
            return commands.MasterMix(a, b, [] { return 0.5; });
        if (command == "down")
            return commands.MoveDown(a, b, delta);
        if (command == "up")
            return commands.MoveUp(a, b, delta);
        return commands.PackHoles(a, b);
    }

    // "2 deux, 4 quatre": what is written where.
    QString texts() const
    {
        QStringList texts;
        for (int n = v.LowestWritten; n <= v.HighestWritten; ++n)
            if (v.Written.at(n) == 1)
                texts.append(QString::number(n) + u' ' + rtfToPlainText(GetParagraphRtf(v, n)));
        return texts.join(", ");
    }

    TestAdventure adventure;
    Variables &v = adventure.variables;
    PromptRecorder prompts;
    HeadlessView view{v};
    RenumberCommands commands{v, prompts, view};
};

const QString Untouched = QStringLiteral("2 deux, 4 quatre, 5 cinq, 9 neuf");
} // namespace

class tst_renumberCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checksAndDoesItsWork()
    {
        const Table<QString, double, double, double, QString> refused{
            {"swap with 0", "swap", 0, 5, 0, SwapRange},
            {"swap with 2001", "swap", 5, 2001, 0, SwapRange},
            {"swap is checked unrounded, low", "swap", 0.9, 5, 0, SwapRange},
            {"swap is checked unrounded, high", "swap", 5, 2000.2, 0, SwapRange},
            {"mix with 0", "mix", 9, 0, 0, RangeOf},
            {"mix beyond", "mix", 1, 1e300, 0, RangeOf},
            {"mix of three", "mix", 5, 3, 0, NoEffect},
            {"down below 1", "down", 2, 5, 2, BlockRange},
            {"down with high beyond", "down", 5, 2001, 1, BlockRange},
            {"down by too far to count", "down", 5, 9, 1e300, BlockRange},
            {"up beyond", "up", 9, 1999, 2, BlockRange},
            {"range before distance", "up", 0, 5, 0, BlockRange},
            {"down by 0", "down", 2, 5, 0.5, NoDistance},
            {"up by 0", "up", 2, 5, 0, NoDistance},
            {"pack with 0", "pack", 0, 9, 0, RangeOf},
            {"pack beyond", "pack", 2001, 1, 0, RangeOf},
            {"pack of two", "pack", 4, 5, 0, TooShort}};
        for (const auto &[name, command, a, b, delta, message] : refused) {
            Scene scene;
            scene.prompts.expect(message.section('|', 0, 0), message.section('|', 1));
            QVERIFY(!scene.run(command, a, b, delta));
            QVERIFY(scene.texts() == Untouched && !scene.v.AdventureModified);
        }
        const Table<QString, double, double, double, QString> done{
            {"swap", "swap", 5.4, 9, 0, "2 deux, 4 quatre, 5 neuf, 9 cinq"},
            {"swap beyond the range", "swap", 2, 30.5, 0, "4 quatre, 5 cinq, 9 neuf, 30 deux"},
            {"swap with itself", "swap", 5, 5, 0, Untouched},
            {"mix, exchanged limits", "mix", 10, 1, 0, "3 cinq, 4 quatre, 6 deux, 8 neuf"},
            {"down", "down", 5, 9, 2, "2 deux, 4 quatre, 7 neuf, 9 cinq"},
            {"up, fraction", "up", 5, 2, 1.5, "4 quatre, 5 deux, 7 cinq, 9 neuf"},
            {"pack", "pack", 9, 1, 0, "1 deux, 2 cinq, 3 neuf, 4 quatre"},
            {"pack without a hole", "pack", 4, 6, 0, Untouched},
            {"pack nothing", "pack", 6, 8, 0, Untouched}};
        for (const auto &[name, command, a, b, delta, texts] : done) {
            Scene scene;
            QVERIFY(scene.run(command, a, b, delta));
            QCOMPARE(scene.texts(), texts);
            QCOMPARE(scene.v.AdventureModified, name != QString("pack nothing"));
        }
    }

    void swappingTheFixedIsAsked()
    {
        Scene scene;
        scene.v.Unmixable.at(5) = 1;
        const QString question = "Vous allez échanger un ou deux paragraphes que vous avez "
                                 "déclarés Fixes. Échanger quand même ?";
        scene.prompts.expect(question, "Attention", Prompts::Buttons::YesNo, Prompts::Answer::No);
        QVERIFY(!scene.commands.Swap(4, 5));
        QCOMPARE(scene.texts(), Untouched);
        scene.prompts.expect(question, "Attention", Prompts::Buttons::YesNo, Prompts::Answer::Yes);
        QVERIFY(scene.commands.Swap(4, 5));
        QCOMPARE(scene.texts(), "2 deux, 4 cinq, 5 quatre, 9 neuf");
        QVERIFY(scene.v.Unmixable.at(4) == 0 && scene.v.Unmixable.at(5) == 0);
    }

    void aFailureChangesNothing()
    {
        Scene scene;
        QVERIFY(QDir(scene.v.WorkingFolder).removeRecursively());
        scene.adventure.file("Dossier Usmira", "in the folder's place");
        scene.prompts.expect("Erreur pendant l'écriture du fichier.", "BUG");
        QVERIFY(!scene.commands.Swap(2, 2000));
        QCOMPARE(scene.texts(), Untouched);
        QVERIFY(scene.v.LowestWritten == 2 && scene.v.HighestWritten == 9);
        QVERIFY(!scene.v.AdventureModified);
    }
};

QTEST_MAIN(tst_renumberCommands)
#include "tst_renumberCommands.moc"
