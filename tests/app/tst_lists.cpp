#include "WindowFixture.h"

#include "editor/NumberList.h"

#include <QHelpEvent>
#include <QToolTip>

namespace
{
AdventureBuilder adventure()
{
    return AdventureBuilder(
        {QStringLiteral("1: Allez au 12."), QStringLiteral("7: Au 12, ou au 12."),
         QStringLiteral("12: Ici, au 12."), QStringLiteral("1000: Allez au 7.")});
}

QStringList padded(const QList<const char *> &entries)
{
    QStringList texts;
    for (const char *entry : entries)
        texts.append(QString::fromLatin1(entry));
    return texts;
}
} // namespace

class tst_lists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void visitedListHasTheLatestFirst();
    void clickOnAVisitedEntryGoesThere();
    void clickOnTheTopEntrySavesNothing();
    void viderKeepsTheCurrentParagraph();
    void viderWithoutAnAdventure();
    void incomingListNamesEachReferrerOnce();
    void clickOnAnIncomingEntryGoesThere();
    void enterChoosesAnEntry();
    void toolTipShowsHowTheParagraphBegins();
    void anotherAdventureEmptiesTheVisitedList();
};

void tst_lists::visitedListHasTheLatestFirst()
{
    const WindowFixture fixture(adventure());
    for (const int n : {7, 1000, 1, 7, 7})
        fixture.window->LoadParg(n);
    QCOMPARE(fixture.entries("theList"), padded({"     7", "     1", "1000"}));
}

void tst_lists::clickOnAVisitedEntryGoesThere()
{
    const WindowFixture fixture(adventure());
    fixture.window->LoadParg(12);
    fixture.type(QStringLiteral(" Plus rien."));
    fixture.clickRow("theList", 1);
    QCOMPARE(fixture.current(), 1);
    QCOMPARE(fixture.adventure.variables.Extracted.at(12), quint8(1));
    QCOMPARE(fixture.entries("theList"), padded({"     1", "   12"}));
    QVERIFY(fixture.box().hasFocus());
}

void tst_lists::clickOnTheTopEntrySavesNothing()
{
    const WindowFixture fixture(adventure());
    fixture.type(QStringLiteral("x"));
    fixture.clickRow("theList", 0);
    QVERIFY(fixture.adventure.variables.ParagraphDirty);
    QVERIFY(fixture.box().hasFocus());
}

void tst_lists::viderKeepsTheCurrentParagraph()
{
    const WindowFixture fixture(adventure());
    fixture.window->LoadParg(7);
    fixture.click("btnVider");
    QCOMPARE(fixture.entries("theList"), padded({"     7"}));
    QVERIFY(fixture.box().hasFocus());
}

void tst_lists::viderWithoutAnAdventure()
{
    const WindowFixture fixture;
    fixture.click("btnVider");
    QVERIFY(fixture.entries("theList").isEmpty());
}

void tst_lists::incomingListNamesEachReferrerOnce()
{
    const WindowFixture fixture(adventure());
    fixture.window->LoadParg(12);
    QCOMPARE(fixture.entries("incomingList"), padded({"     1", "     7", "   12"}));
    fixture.window->LoadParg(7);
    QCOMPARE(fixture.entries("incomingList"), padded({"1000"}));
    fixture.window->LoadParg(1);
    QVERIFY(fixture.entries("incomingList").isEmpty());
}

void tst_lists::clickOnAnIncomingEntryGoesThere()
{
    const WindowFixture fixture(adventure().current(7));
    fixture.clickRow("incomingList", 0);
    QCOMPARE(fixture.current(), 1000);
    QCOMPARE(fixture.control<QListWidget>("theList").currentRow(), -1);
    QVERIFY(fixture.box().hasFocus());
}

void tst_lists::enterChoosesAnEntry()
{
    const WindowFixture fixture(adventure().current(12));
    auto &list = fixture.control<QListWidget>("incomingList");
    list.setFocus();
    list.setCurrentRow(1);
    QTest::keyClick(&list, Qt::Key_Return);
    QCOMPARE(fixture.current(), 7);
}

void tst_lists::toolTipShowsHowTheParagraphBegins()
{
    const WindowFixture fixture(adventure().current(7));
    auto &list = fixture.control<NumberList>("incomingList");
    const QPoint point = list.visualItemRect(list.item(0)).center();
    QHelpEvent help(QEvent::ToolTip, point, list.viewport()->mapToGlobal(point));
    QCoreApplication::sendEvent(list.viewport(), &help);
    QVERIFY(QToolTip::text().contains(QStringLiteral("Allez au 7.")));
    QToolTip::hideText();
}

void tst_lists::anotherAdventureEmptiesTheVisitedList()
{
    WindowFixture fixture(adventure());
    fixture.window->LoadParg(12);
    fixture.open(AdventureBuilder({QStringLiteral("3: Ailleurs.")}).current(3).bytes());
    QCOMPARE(fixture.entries("theList"), padded({"     3"}));
}

QTEST_MAIN(tst_lists)
#include "tst_lists.moc"
