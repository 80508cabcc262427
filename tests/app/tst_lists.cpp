#include "WindowFixture.h"

namespace
{
AdventureBuilder adventure()
{
    return AdventureBuilder(
        {"1: Allez au 12.", "7: Au 12, ou au 12.", "12: Ici, au 12.", "1000: Allez au 7."});
}
} // namespace

class tst_lists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void visitedListHasTheLatestFirst()
    {
        WindowFixture fixture(adventure());
        for (const int n : {7, 1000, 1, 7, 7})
            fixture.window->LoadParg(n);
        QCOMPARE(fixture.entries("theList"), "     7|     1|1000");
        fixture.click("btnVider");
        QCOMPARE(fixture.entries("theList"), "     7");
        QVERIFY(fixture.box().hasFocus());
        fixture.open(AdventureBuilder({"3: Ailleurs."}).current(3).bytes());
        QCOMPARE(fixture.entries("theList"), "     3");
    }

    void clickOnAVisitedEntryGoesThere()
    {
        const WindowFixture fixture(adventure());
        fixture.window->LoadParg(12);
        fixture.type(" Plus rien.");
        fixture.clickRow("theList", 0); // the paragraph on the screen: nothing is saved
        QVERIFY(fixture.variables.ParagraphDirty);
        QVERIFY(fixture.box().hasFocus());
        fixture.clickRow("theList", 1);
        QCOMPARE(fixture.current(), 1);
        QCOMPARE(fixture.variables.Extracted.at(12), quint8(1));
        QCOMPARE(fixture.entries("theList"), "     1|   12");
        QVERIFY(fixture.box().hasFocus());
    }

    void incomingListNamesEachReferrerOnce()
    {
        const WindowFixture fixture(adventure());
        fixture.window->LoadParg(12);
        QCOMPARE(fixture.entries("incomingList"), "     1|     7|   12");
        fixture.window->LoadParg(1);
        QVERIFY(fixture.entries("incomingList").isEmpty());
        fixture.window->LoadParg(7);
        QCOMPARE(fixture.entries("incomingList"), "1000");
        fixture.clickRow("incomingList", 0);
        QCOMPARE(fixture.current(), 1000);
        QVERIFY(fixture.box().hasFocus());
        fixture.window->LoadParg(12);
        auto &list = fixture.control<QListWidget>("incomingList");
        list.setFocus();
        list.setCurrentRow(1);
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(fixture.current(), 7);
    }
};

QTEST_MAIN(tst_lists)
#include "tst_lists.moc"
