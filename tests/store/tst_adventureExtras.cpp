#include "outil/HeadlessView.h"
#include "platform/Errors.h"
#include "store/AdventureChanges.h"
#include "store/AdventureFile.h"
#include "store/extras/ExtrasBlock.h"
#include "support/AdventureBuilder.h"
#include "support/PromptRecorder.h"
#include "support/TestTable.h"

namespace
{
constexpr auto u32 = &lengthInBlock;

struct Told : HeadlessView {
    using HeadlessView::HeadlessView;
    void announce(const QString &text) override { said = text; }
    QString said;
};

QByteArray record(const QByteArray &tag, const QByteArray &bytes)
{
    return tag + u32(bytes.size()) + bytes;
}

const QByteArray Sum(32, '\xAB');
const QByteArray Two("\2\0", 2);
const QByteArray Last("\xD0\7", 2);
const QByteArray Beyond("\xD1\7", 2);

// Of every kind, with two numbers.
QByteArray records(const QByteArray &one, const QByteArray &other)
{
    return record("STRT", one + other) + record("ACPT", other + one + Sum + u32(6) + "piège") +
           record("READ", one) + record("TAKN", one + other) +
           record("BKMK", u32(3) + "\xEF\xBB\xBF" + u32(2) + one + other + u32(0) + u32(0)) +
           record("BOOK", u32(4) + "Loup" + u32(0) + u32(2) + "fr" + u32(0) + u32(0) + u32(0)) +
           record("COVR", "\x89PNG") + record("WORD", u32(5) + "Elric" + u32(0)) +
           record("IGNW", other + u32(4) + "qué") + record("ZZZZ", "kept \1") + record("AAAA", "") +
           record("ZZZZ", "twice");
}
const QByteArray Full = records(Two, Last);
} // namespace

class tst_adventureExtras : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isReadAndWrittenByteForByte()
    {
        const QByteArray whole = extrasBlock(Full);
        const auto extras = extrasFrom(whole + "behind");
        QVERIFY(extras);
        QCOMPARE(extras->starts, (QList<int>{2, 2000}));
        QCOMPARE(extras->accepted, (QList<AcceptedFinding>{{"piège", 2000, Sum, 2}}));
        QCOMPARE(extras->reading.bookmarks.first().way, (QList<int>{2, 2000}));
        QCOMPARE(extras->book.title + extras->book.language, "Loupfr");
        QCOMPARE(extras->words, (QStringList{"Elric", ""}));
        QCOMPARE(extras->ignored, (QList<IgnoredWord>{{2000, "qué"}}));
        QCOMPARE(bytesOf(*extras), whole);
        QCOMPARE(bytesOf({}), QByteArray());
    }

    void damageIsSeen_data()
    {
        const QByteArray good = extrasBlock(record("STRT", Two));
        QByteArray flipped = good;
        flipped.back() = '\1';
        addTable<QByteArray>(
            {"bytes"},
            {{"checksum", flipped},
             {"another version", extrasBlock(record("STRT", Two), 2)},
             {"number above 2000", extrasBlock(record("STRT", Beyond))},
             {"half a number", extrasBlock(record("STRT", "\1"))},
             {"half a finding", extrasBlock(record("ACPT", Two + Two + Sum + u32(7) + "vide"))},
             {"half a choice", extrasBlock(record("TAKN", Two))},
             {"way of 4 GiB", extrasBlock(record("BKMK", u32(0) + u32(-1) + Two))},
             {"title of 4 GiB", extrasBlock(record("BOOK", u32(-1)))},
             {"half a word", extrasBlock(record("WORD", u32(2) + "x"))},
             {"half an ignored word", extrasBlock(record("IGNW", Two + u32(1)))},
             {"name of 4 GiB", extrasBlock(record("BKMK", u32(-1)))},
             {"record of 4 GiB", extrasBlock("ZZZZ" + u32(-1))},
             {"half a tag", extrasBlock("ZZZ")},
             {"block of 4 GiB", "XTRA" + QByteArray("\1\0", 2) + u32(-1) + Sum}});
    }
    // The adventure opens, and says it once.
    void damageIsSeen()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(!extrasFrom(bytes));
        const TestAdventure adventure;
        const QString path = adventure.file("a.usm", AdventureBuilder({"3: x"}).bytes() + bytes);
        Variables v = adventure.variables;
        PromptRecorder prompts;
        Told view(v);
        QVERIFY(AdventureCommands(v, prompts, view, view).OpenAdventure(path));
        QVERIFY(v.extras == AdventureExtras() && v.Written.at(3) == 1 && !v.AdventureModified);
        QVERIFY2(view.said.contains("illisibles"), qPrintable(view.said));
    }

    void everyShorterBlockIsDamaged()
    {
        const QByteArray whole = extrasBlock(Full);
        for (qsizetype length = 1; length < whole.size(); ++length)
            QVERIFY(!extrasFrom(whole.first(length)));
        QVERIFY(extrasFrom("bytes of somebody else") == AdventureExtras());
    }

    void numbersGoAlong()
    {
        const auto before = extrasFrom(extrasBlock(Full));
        NumberMap numbers = unmovedNumbers();
        std::swap(numbers.at(2), numbers.at(7));
        std::swap(numbers.at(2000), numbers.at(0));
        QVERIFY(renumbered(*before, numbers) ==
                extrasFrom(extrasBlock(records(QByteArray("\7\0", 2), QByteArray(2, '\0')))));
        const AdventureExtras part = extrasOf({2}, *before);
        QCOMPARE(part.starts, QList<int>{2});
        QVERIFY(part.accepted.isEmpty() && part.reading == ReadingMarks());
        QVERIFY(part.ignored.isEmpty() && part.words == before->words);
        QCOMPARE(part.unknown.size(), 3);
    }

    void travelsInTheFile()
    {
        const TestAdventure adventure;
        Variables v = adventure.variables;
        const QByteArray plain = AdventureBuilder({"3: x"}).bytes();
        takeOver(v, readAdventure(adventure.file("a.usm", plain)));
        QCOMPARE(readingStarts(v), QList<int>{3});
        changeExtras(v, {});
        QVERIFY(!v.AdventureModified);
        writeAdventure(v, adventure.path("b.usm"));
        QCOMPARE(adventure.content("b.usm"), plain);

        AdventureExtras extras;
        extras.starts = {5, 3};
        extras.reading.bookmarks = {{QString(QChar(0xD800)), {}}}; // no UTF-8 says that
        changeExtras(v, extras);
        QVERIFY(v.AdventureModified && readingStarts(v) == (QList<int>{5, 3}));
        const AdventureContents written = writeAdventure(v, adventure.path("b.usm"));
        QVERIFY(written.extras == v.extras && adventure.content("b.usm").startsWith(plain));
        extras.starts = {2001};
        QVERIFY_THROWS_EXCEPTION(LimitError, changeExtras(v, extras));
        QVERIFY(written.extras == v.extras);
    }
};

QTEST_MAIN(tst_adventureExtras)
#include "tst_adventureExtras.moc"
