#include "platform/Errors.h"
#include "platform/OpenedFile.h"
#include "renumber/MapBuilders.h"
#include "renumber/RenumberParagraphs.h"
#include "richtext/HiddenBox.h"
#include "richtext/RtfPlainText.h"
#include "store/AdventureFile.h"
#include "store/DamagedTexts.h"
#include "store/ParagraphStore.h"
#include "support/AdventureBuilder.h"
#include "support/TestTable.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

namespace
{
class Opened : public TestAdventure
{
public:
    explicit Opened(const AdventureBuilder &builder)
    {
        const QString path = file("a.usm", builder.bytes());
        takeOver(variables, readAdventure(std::make_shared<OpenedFile>(path)));
        variables.FilePrefix = QStringLiteral("a-");
    }

    void renumber(const RenumberMap &map)
    {
        RenumberParagraphs(variables, map, {"MasterMix", Garbled::AsTheyStand}, [](int, int) {});
        RecomputeWrittenRange(variables);
    }

    QString text(int n) const { return rtfToPlainText(GetParagraphRtf(variables, n)); }
    QString entry(int n) const { return variables.refIndex.at(n); }
};

// Forty numbers, about three quarters written, each text with a name of its own and references to
// any numbers, the unwritten too; some fixed.
AdventureBuilder randomAdventure(QRandomGenerator &random)
{
    QStringList lines;
    for (int n = 1; n <= 40; ++n) {
        if (random.bounded(4) == 0)
            continue;
        QString line =
            QStringLiteral("%1%2: [%3]").arg(n).arg(random.bounded(8) == 0 ? "!" : "").arg(n);
        for (int k = random.bounded(4); k > 0; --k)
            line += QString(random.bounded(2) == 0 ? " Allez au %1." : " OU AU %1 !")
                        .arg(random.bounded(1, 41));
        lines.append(line);
    }
    return AdventureBuilder(lines);
}

// For each text its name and the names of the texts that it leads to, "-" for the unwritten.
QStringList web(const Opened &adventure)
{
    static const QRegularExpression reference(QStringLiteral(" au (\\d+)"),
                                              QRegularExpression::CaseInsensitiveOption);
    const auto nameAt = [&adventure](int n) { return adventure.text(n).section(u']', 0, 0); };
    QStringList web;
    for (int n = 1; n <= 40; ++n) {
        QStringList line{nameAt(n)};
        auto found = reference.globalMatch(adventure.text(n));
        while (found.hasNext()) {
            const QString name = nameAt(found.next().captured(1).toInt());
            line.append(name.isEmpty() ? QStringLiteral("-") : name);
        }
        if (!line.first().isEmpty())
            web.append(line.join(u' '));
    }
    std::sort(web.begin(), web.end());
    return web;
}

QStringList everything(const Opened &adventure)
{
    QStringList lines;
    QList<int> unreadable;
    for (int n = 0; n <= 41; ++n)
        lines += readableText(adventure.variables, n, unreadable).value_or("unreadable") +
                 adventure.entry(n).toLatin1();
    return lines;
}

} // namespace

class tst_renumberParagraphs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // 26 becomes 7, 7 becomes 340, 340 becomes 26; every other number stays.
    void rewritesReferences()
    {
        RenumberMap map;
        map.set(26, 7);
        map.set(7, 340);
        map.set(340, 26);
        const Table<QString, QString, QString> rows{
            {"longer", " au ", "Allez au 7, au 26 ou au 340", "Allez au 340, au 7 ou au 26"},
            {"letter case", " au ", "AU FOND AU 26", "AU FOND AU 7"},
            {"no number", " au ", "au 0, au 2001, au 5, au vingt", "au 0, au 2001, au 5, au vingt"},
            {"zeros in front, staying", " au ", "ou au 012 ?", "ou au 122 ?"},
            {"zeros in front, moving", " au ", "ou au 026 ?", "ou au 76 ?"},
            {"blanks in front", " au ", "ou au   26 ?", "ou au 726 ?"},
            {"a fraction", " au ", "au 26 au 6.5x", "au 26 au 6.5x"},
            {"half to even", " au ", "vers au 25.5 ?", "vers au 7.5 ?"},
            {"exponent over the end", " au ", "vers au 1e3\r\nFin", "vers au 1000\r\nFin"},
            {"exponent eats the next phrase", " au ", "vers au 1e3 au 26", "vers au 1000au 26"},
            {"phrase of digits", "2", "226", "27"},
            {"phrase with a digit", "x7", "x726x77", "x77x7340"}};
        for (const auto &[name, phrase, text, rewritten] : rows) {
            HiddenBox box;
            box.setText(text);
            rewriteReferences(box, phrase, map);
            QCOMPARE(box.text(), rewritten);
        }
    }

    // Only work that grows faster than the line comes near this time.
    void manyReferencesOfALineAreRewritten()
    {
        constexpr int many = 20000;
        HiddenBox box;
        box.setText(QStringLiteral(" au 26.").repeated(many));
        RenumberMap map;
        map.exchange(26, 1234);
        QElapsedTimer timer;
        timer.start();
        rewriteReferences(box, QStringLiteral(" au "), map);
        QVERIFY(timer.elapsed() < 20000);
        QCOMPARE(box.text(), QStringLiteral(" au 1234.").repeated(many));
    }

    void theNewNumberLooksLikeTheOld()
    {
        HiddenBox box;
        HiddenBox wanted;
        box.setRtf("{\\rtf1 au \\b 2\\plain 6 !}");
        wanted.setRtf("{\\rtf1 au \\b 340\\plain  !}");
        rewriteReferences(box, QStringLiteral("au "), SwapMap(26, 340));
        QCOMPARE(box.rtf(), wanted.rtf());
    }

    void phraseThatFindsItselfEnds()
    {
        Opened a(AdventureBuilder({"1: 11", "11: onze"}).phrase("1").list(1, "0001/"));
        const QByteArray before = GetParagraphRtf(a.variables, 1);
        QVERIFY_THROWS_EXCEPTION(LimitError, a.renumber(SwapMap(1, 11)));
        QCOMPARE(GetParagraphRtf(a.variables, 1), before);
    }

    void touchesWhatMovesAndWhatLeadsThere()
    {
        Opened a(AdventureBuilder({"1: Allez au 3, au 7 ou au 026", "2: Ni au 1 ni au 5",
                                   "3!: trois, au 1", "5: Va au 3", "7: sept au 3"})
                     .list(5, {}) // an index that misses a reference
                     .list(2, "0003/abcd/9999/"));
        a.renumber(SwapMap(3, 7));
        QCOMPARE(a.workingFiles().filter(".rtf").join(u' '),
                 "a-0001.rtf a-0002.rtf a-0003.rtf a-0007.rtf");
        QCOMPARE(a.text(1), "Allez au 7, au 3 ou au 266");
        QCOMPARE(a.entry(1), "0007/0003/0026/"); // edited in place, not scanned
        QCOMPARE(a.text(2), "Ni au 1 ni au 5");
        QCOMPARE(a.entry(2), "0007/abcd/9999/");
        QCOMPARE(a.text(3), "sept au 7");
        QCOMPARE(a.text(7), "trois, au 1");
        QCOMPARE(a.text(5), "Va au 3"); // left alone, as the index shows nothing
        QCOMPARE(a.variables.Unmixable.at(3), quint8{0});
        QCOMPARE(a.variables.Unmixable.at(7), quint8{0});
    }

    void marksStayWithNumbersThatNoWrittenParagraphLeaves()
    {
        Opened a(AdventureBuilder({"1: un", "3!: trois", "4: quatre"}));
        a.variables.Unmixable.at(6) = 1; // an empty number, reserved
        a.variables.HighestWritten = 6;
        RenumberMap map = SwapMap(3, 6);
        a.renumber(map);
        QCOMPARE(a.text(6), "trois");
        QVERIFY(a.variables.Unmixable.at(6) == 1 && a.variables.Unmixable.at(3) == 0);
        QVERIFY(a.variables.Written.at(3) == 0 && a.variables.Extracted.at(3) == 0);
        QCOMPARE(a.variables.HighestWritten, qint16{6});
    }

    void unreadableTextsStopEverythingByTheirNumbers()
    {
        Opened a(AdventureBuilder({"1: au 5", "2: deux", "5: cinq", "8: au 5", "9: fin"})
                     .rawText(1, "no RTF")
                     .rawText(2, "no RTF, but untouched")
                     .rawText(8, "{\\nortf")
                     .list(1, "0005/")
                     .list(8, "0005/"));
        const QStringList before = everything(a);
        try {
            a.renumber(SwapMap(5, 9));
            QFAIL("nothing was thrown");
        } catch (const UnreadableTexts &error) {
            QCOMPARE(error.paragraphs(), (QList<int>{1, 8}));
        }
        QCOMPARE(everything(a), before);
        QVERIFY(a.workingFiles().isEmpty());
    }

    void everyReferenceLeadsWhereItLed()
    {
        QRandomGenerator random(11);
        for (int round = 0; round < 40; ++round) {
            Opened a(randomAdventure(random));
            const QStringList before = web(a);
            const Variables &v = a.variables;
            const auto drawn = [&random] { return random.generateDouble(); };
            a.variables.LowestWritten = 1;
            a.variables.HighestWritten = 40;
            switch (round % 4) {
            case 0:
                a.renumber(SwapMap(random.bounded(1, 41), random.bounded(1, 41)));
                break;
            case 1:
                a.renumber(MixMap(1, 40, v.Unmixable, drawn));
                break;
            case 2:
                a.renumber(BlockMoveMap(20, 30, random.bounded(1, 10),
                                        round % 8 == 2 ? Towards::Lower : Towards::Higher,
                                        v.Unmixable));
                break;
            default:
                a.renumber(PackHolesMap(1, 40, v.Written, v.Unmixable).value_or(RenumberMap()));
            }
            QCOMPARE(web(a), before);
        }
    }

    void theRangeIsThatOfTheTexts()
    {
        const std::pair<QList<int>, int> rows[] = {
            {{}, 1}, {{0}, 0}, {{2000}, 2000}, {{7, 30, 1999}, 7}};
        for (const auto &[written, lowest] : rows) {
            Variables v;
            v.LowestWritten = 500;
            v.HighestWritten = 900;
            for (const int n : written)
                v.Written.at(n) = 1;
            RecomputeWrittenRange(v);
            QCOMPARE(int{v.LowestWritten}, lowest);
            QCOMPARE(int{v.HighestWritten}, written.isEmpty() ? lowest : written.last());
        }
    }
};

QTEST_MAIN(tst_renumberParagraphs)
#include "tst_renumberParagraphs.moc"
