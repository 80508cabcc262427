#include "outil/HeadlessView.h"
#include "platform/OpenedFile.h"
#include "renumber/AdventureSplit.h"
#include "renumber/RenumberCommands.h"
#include "renumber/RenumberPreview.h"
#include "richtext/HiddenBox.h"
#include "richtext/RtfPlainText.h"
#include "store/AdventureFile.h"
#include "store/ParagraphStore.h"
#include "store/ReferenceIndex.h"
#include "store/references/DoubtfulReferences.h"
#include "support/AdventureBuilder.h"
#include "support/PromptRecorder.h"
#include "support/TestTable.h"

#include <QMap>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <numeric>

namespace
{
using Answer = Prompts::Answer;

QList<int> numbersIn(const QString &text)
{
    static const QRegularExpression digits(QStringLiteral("\\d+"));
    QList<int> numbers;
    for (auto match = digits.globalMatch(text); match.hasNext();)
        numbers.append(match.next().captured().toInt());
    return numbers;
}

using Texts = QMap<QChar, QList<int>>;

struct Scene {
    explicit Scene(const QStringList &lines)
    {
        const QString path = adventure.file("a.usm", AdventureBuilder(lines).bytes());
        takeOver(v, readAdventure(std::make_shared<OpenedFile>(path)));
        v.AdventurePath = path;
        v.FilePrefix = QStringLiteral("a-");
        RebuildReferenceIndex(v, [](int, int) {}); // the builder's lists are simpler
    }

    QString text(int n) const { return rtfToPlainText(GetParagraphRtf(v, n)); }

    // By the letter that each text begins with: its number, and then its references.
    Texts texts() const
    {
        Texts texts;
        for (int n = 1; n <= Variables::LastParagraph; ++n)
            if (v.Written.at(n) == 1)
                texts.insert(text(n).front(), QList<int>{n} + numbersIn(text(n)));
        return texts;
    }

    TestAdventure adventure;
    Variables &v = adventure.variables;
    PromptRecorder prompts;
    HeadlessView view{v};
    RenumberCommands commands{v, prompts, view};
    AdventureSplit splitting{v, prompts, view};
};

const QStringList Book{"2: a au 4 au 5 au 9",  "4!: b au 2 au 2",  "5: c au 3 au 7",
                       "9: d au 5 au 9 au 12", "12: e au 4 au 21", "20: f"};

bool run(Scene &scene, const QString &command, double a, double b, double delta)
{
    QRandomGenerator random(7);
    if (command == "swap")
        return scene.commands.Swap(a, b);
    if (command == "mix")
        return scene.commands.MasterMix(a, b, [&random] { return random.generateDouble(); });
    if (command == "down")
        return scene.commands.MoveDown(a, b, delta);
    if (command == "up")
        return scene.commands.MoveUp(a, b, delta);
    if (command == "split")
        return scene.splitting.Export({a, b, delta == 1},
                                      [&] { return scene.adventure.path("part.usm"); });
    return scene.commands.PackHoles(a, b);
}

// How many texts have another number, and how many references differ in how many texts.
QList<int> renumbered(const Texts &before, const Texts &after)
{
    int moved = 0;
    int references = 0;
    int rewritten = 0;
    for (const auto &[letter, now] : after.asKeyValueRange()) {
        const QList<int> &old = before[letter];
        moved += now.first() != old.first() ? 1 : 0;
        const int changed = static_cast<int>(std::inner_product(
            now.begin() + 1, now.end(), old.begin() + 1, 0, std::plus<>(), std::not_equal_to<>()));
        references += changed;
        rewritten += changed > 0 ? 1 : 0;
    }
    return {moved, references, rewritten};
}

// How many texts are in the new file, and, once these are gone, how many references lead to their
// numbers from how many texts.
QList<int> split(const Scene &scene, const Texts &before, bool murder)
{
    Variables part;
    takeOver(part, readAdventure(scene.adventure.path("part.usm")));
    const auto exported = std::count(part.Written.begin(), part.Written.end(), 1);
    const Texts after = scene.texts();
    QList<int> done{static_cast<int>(exported), 0, 0};
    if (before.size() - after.size() != (murder ? exported : 0))
        return {};
    for (const QList<int> &text : after) {
        const auto lost = std::count_if(text.begin() + 1, text.end(),
                                        [&](int n) { return part.Written.at(n) == 1; });
        done[1] += murder ? static_cast<int>(lost) : 0;
        done[2] += murder && lost > 0 ? 1 : 0;
    }
    return done;
}

QString lineOf(const Variables &v, const QString &command, double a, double b, double delta)
{
    if (command == "swap")
        return previewSwap(v, a, b).text;
    if (command == "mix")
        return previewMix(v, a, b).text;
    if (command == "pack")
        return previewPack(v, a, b).text;
    if (command == "split")
        return previewSplit(v, {a, b, delta == 1}).text;
    return previewMove(v, a, b, delta).text;
}
} // namespace

class tst_renumberPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What was done is counted in the texts themselves.
    void theLineSaysWhatTheCommandThenDoes()
    {
        const Table<QString, double, double, double, QString> lines{
            {"swap", "swap", 5, 9, 0,
             "2 paragraphes changent de numéro ; 4 renvois réécrits dans 2 paragraphes."},
            {"with an empty number", "swap", 12, 21, 0,
             "1 paragraphe change de numéro ; 2 renvois réécrits dans 2 paragraphes."},
            {"without references", "swap", 20, 30, 0,
             "1 paragraphe change de numéro ; aucun renvoi à réécrire."},
            {"two empty numbers", "swap", 3, 6, 0,
             "Aucun paragraphe ne change de numéro ; 1 renvoi réécrit dans 1 paragraphe."},
            {"with itself", "swap", 5, 5, 0, "Rien ne change."},
            {"mix", "mix", 1, 20, 0,
             "4 paragraphes mélangés, 1 reste fixe ; au plus 9 renvois réécrits dans 4 "
             "paragraphes."},
            {"mix of empty numbers", "mix", 14, 18, 0,
             "Aucun paragraphe à mélanger, aucun ne reste fixe ; aucun renvoi à réécrire."},
            {"down alone", "down", 1990, 2000, 1988,
             "Vers le BAS : 4 paragraphes changent de numéro ; 9 renvois réécrits dans 4 "
             "paragraphes."},
            {"up alone", "up", 1, 2, 1,
             "Vers le HAUT : 1 paragraphe change de numéro ; 3 renvois réécrits dans 2 "
             "paragraphes."},
            {"pack", "pack", 1, 30, 0,
             "5 paragraphes changent de numéro ; 9 renvois réécrits dans 4 paragraphes."},
            {"nothing to pack", "pack", 13, 18, 0, "Rien ne change."},
            {"split", "split", 4, 5, 0, "2 paragraphes exportés."},
            {"split with deletion", "split", 4, 5, 1,
             "2 paragraphes exportés et effacés ; 4 renvois dans 3 paragraphes y mènent encore."},
            {"of what nothing leads to", "split", 20, 30, 1,
             "1 paragraphe exporté et effacé ; aucun renvoi n'y mène encore."}};
        for (const auto &[name, command, a, b, delta, line] : lines) {
            Scene scene(Book);
            const Texts before = scene.texts();
            QCOMPARE(lineOf(scene.v, command, a, b, delta), line);
            QVERIFY(run(scene, command, a, b, delta));
            QList<int> done = command == "split" ? split(scene, before, delta == 1)
                                                 : renumbered(before, scene.texts());
            done.removeAll(0);
            const QList<int> said = numbersIn(line);
            if (command == "mix")
                QVERIFY(done.value(0) <= said.value(0) && done.value(1) <= said.value(2) &&
                        done.value(2) <= said.value(3));
            else
                QCOMPARE(done, said);
        }
    }

    void numbersThatMakeNoSenseAreToldWithoutABox()
    {
        Scene scene(Book);
        QCOMPARE(previewMove(scene.v, 5, 9, 0).text, "Il ne sert à rien de déplacer de 0 unités.");
        QCOMPARE(previewSwap(scene.v, 0, 9).text,
                 "Vous devez spécifier deux chiffres différents entre 1 et 2000.");
        QCOMPARE(previewMove(scene.v, 9, 9, 3).text.count(u'\n'), 1); // both directions
        QCOMPARE(previewSplit(scene.v, {13, 19, true}).text,
                 "Tous les paragraphes dans cet intervalle sont vides.");
    }

    // A text in which no number changes must come out as it was.
    void garbledIsWhatARewritingSpoils()
    {
        const QStringList words{" au ", " au  ", " Au ", "0",      "7",  "12",   "1",
                                "250",  ". ",    ".",    " ",      ", ", "\r\n", "\t",
                                "e",    "e2",    " mai", "\u00a0", "va", "%"};
        const QString phrase = " au ";
        QRandomGenerator random(11);
        HiddenBox box;
        for (int i = 0; i < 5000; ++i) {
            QString text = "Va";
            for (int word = random.bounded(8) + 1; word > 0; --word)
                text += words.at(random.bounded(words.size()));
            box.setText(text);
            text = box.text();
            const QList<DoubtfulReference> doubtful = doubtfulReferences(1, text, phrase);
            const bool garbled = std::any_of(doubtful.begin(), doubtful.end(),
                                             [](const auto &one) { return one.garbled; });
            rewriteReferences(box, phrase, RenumberMap());
            QVERIFY2((box.text() != text) == garbled, qPrintable(text + " -> " + box.text()));
        }
    }

    // 3 and 7 change places; what else is read does not change.
    void garbledReferencesAreAskedAbout_data()
    {
        addTable<QString, int, QString, QString>(
            {"text", "count", "as they stand", "mended"},
            {{"none", "au 3, au 12 pieds", 0, "au 7, au 12 pieds", ""},
             {"zero", "au 3 au 026", 1, "au 7 au 266", "au 7 au 26"},
             {"blanks", "au 3 au  30.", 1, "au 7 au 300.", "au 7 au 30."},
             {"thousand", "au 3 au 1 250", 1, "au 7 au 12500", "au 7 au 1250"},
             {"stop", "au 12. 7 au 3", 1, "au 13. 7 au 7", u8"au 12.\u00a07 au 7"},
             {"behind another", "au 3 au  1 250", 1, "au 7 au 125250", "au 7 au 1250"},
             {"several", "au 007, au  3", 2, "au 307, au 73", "au 3, au 7"},
             {"no reference", "au 3 au 026 km", 1, "au 7 au 266 km", u8"au 7 au\u00a0026 km"}});
    }
    void garbledReferencesAreAskedAbout()
    {
        QFETCH(const QString, text);
        QFETCH(const int, count);
        for (const Answer answer : {Answer::Cancel, Answer::No, Answer::Yes}) {
            Scene scene({"1: Va " + text, "3: Trois.", "7: Sept."});
            const QString question =
                count == 1 ? "1 renvoi serait mal réécrit. Le corriger d'abord ?"
                           : "2 renvois seraient mal réécrits. Les corriger d'abord ?";
            if (count > 0)
                scene.prompts.expect(question, "Attention", Prompts::Buttons::YesNoCancel, answer);
            const bool done = count == 0 || answer != Answer::Cancel;
            QCOMPARE(scene.commands.Swap(3, 7), done);
            QCOMPARE(scene.v.AdventureModified, done);
            QFETCH(QString, mended);
            if (answer == Answer::No || count == 0) {
                QTEST(scene.text(1).mid(3), "as they stand");
            } else {
                QCOMPARE(scene.text(1).mid(3), done ? mended : text);
                QCOMPARE(scene.v.refIndex.at(1),
                         referenceEntry(scene.text(1), scene.v.TargetPhrase));
            }
            QCOMPARE(scene.text(3), done ? "Sept." : "Trois.");
            if (count == 0)
                return;
        }
    }
};

QTEST_MAIN(tst_renumberPreview)
#include "tst_renumberPreview.moc"
