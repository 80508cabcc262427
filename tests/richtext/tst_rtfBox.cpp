#include "editor/RtfBox.h"

#include "richtext/HiddenBox.h"

#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <memory>

namespace
{
// Gives the tests what the clipboard and drops reach.
class OpenBox : public RtfBox
{
public:
    using RtfBox::canInsertFromMimeData;
    using RtfBox::createMimeDataFromSelection;
    using RtfBox::insertFromMimeData;
    using RtfBox::viewportMargins;
};
} // namespace

class TestRtfBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loadsLikeTheHiddenBox();
    void onlyEditsAreSignalled();
    void editsAreSingleUndoSteps();
    void loadingClearsUndo();
    void caretFormatIsTyped();
    void baseFontIsTyped();
    void lineBreakKeyGivesParagraph();
    void backspaceTakesBulletAway();
    void pasteGoesThroughOurRtf();
    void readOnlyTakesNothing();
    void pageIsCentredWhenWide();
    void automaticTextFollowsPalette();
};

void TestRtfBox::loadsLikeTheHiddenBox()
{
    const QByteArray rtf =
        "{\\rtf1{\\fonttbl{\\f0 Arial;}}\\qc\\b a\\par\\ls1\\fs21 b\\par\\pard c}";
    HiddenBox hidden;
    hidden.setRtf(rtf);
    RtfBox box;
    box.show();
    box.setRtf(rtf);
    QCOMPARE(box.rtf(), hidden.rtf());
    QCOMPARE(box.selStart(), 0);
    QCOMPARE(box.document()->documentMargin(), 8.0);
}

void TestRtfBox::onlyEditsAreSignalled()
{
    RtfBox box;
    QSignalSpy edited(&box, &RtfBox::edited);
    box.setRtf("{\\rtf1 abc\\par def}");
    box.setText(QStringLiteral("abc\r\ndef"));
    box.setBaseFont(QStringLiteral("Arial"), 10);
    box.select(0, 2);
    box.find(QStringLiteral("d"), 0, {});
    QCOMPARE(edited.count(), 0);
    const auto signalled = [&edited](const auto &change) {
        edited.clear();
        change();
        return edited.count() > 0;
    };
    QVERIFY(signalled([&] { QTest::keyClicks(&box, QStringLiteral("x")); }));
    QVERIFY(signalled([&] { box.undo(); }));
    QVERIFY(signalled([&] { box.redo(); }));
    box.select(0, 3);
    QVERIFY(signalled([&] { box.setSelBold(true); }));
    QVERIFY(signalled([&] { box.setSelAlignment(RichTextBox::Alignment::Right); }));
    QVERIFY(signalled([&] { box.setSelBullet(true); }));
    QVERIFY(signalled([&] { box.setSelText(QStringLiteral("y")); }));
}

void TestRtfBox::editsAreSingleUndoSteps()
{
    RtfBox box;
    box.setText(QStringLiteral("un\r\n\r\ndeux"));
    const QByteArray before = box.rtf();
    const auto undoes = [&](const auto &change) {
        box.select(0, 10);
        change();
        const bool changed = box.rtf() != before;
        box.undo();
        return changed && box.rtf() == before;
    };
    QVERIFY(undoes([&] { box.setSelBold(true); }));
    QVERIFY(undoes([&] { box.setSelFontSize(30); }));
    QVERIFY(undoes([&] { box.setSelColor(qRgb(1, 2, 3)); }));
    QVERIFY(undoes([&] { box.setSelAlignment(RichTextBox::Alignment::Centre); }));
    QVERIFY(undoes([&] { box.setSelBullet(true); }));
    QVERIFY(undoes([&] { box.setSelTabs({1, 2}); }));
    QVERIFY(undoes([&] { box.setSelText(QStringLiteral("a\nb")); }));
    QVERIFY(undoes([&] { box.setSelRtf("{\\rtf1\\qc\\b a\\par\\ls1 b\\par c}"); }));
}

void TestRtfBox::loadingClearsUndo()
{
    RtfBox box;
    box.setText(QStringLiteral("a"));
    box.setSelText(QStringLiteral("b"));
    QVERIFY(box.document()->isUndoAvailable());
    box.setRtf("{\\rtf1 c}");
    QVERIFY(!box.document()->isUndoAvailable());
    QVERIFY(!box.document()->isRedoAvailable());
    QVERIFY(box.document()->isUndoRedoEnabled());
    box.undo();
    QCOMPARE(box.text(), QStringLiteral("c"));
}

void TestRtfBox::caretFormatIsTyped()
{
    RtfBox box;
    box.setText(QStringLiteral("ab"));
    box.select(1, 0);
    box.setSelBold(true);
    box.setSelColor(qRgb(255, 0, 0));
    box.setSelFontSize(10.5);
    QTest::keyClicks(&box, QStringLiteral("X"));
    QCOMPARE(box.text(), QStringLiteral("aXb"));
    box.select(1, 1);
    QCOMPARE(box.selBold(), std::optional(true));
    QCOMPARE(box.selColor(), std::optional(qRgb(255, 0, 0)));
    QCOMPARE(box.selFontSize(), std::optional(10.5));
    box.select(2, 1);
    QCOMPARE(box.selBold(), std::optional(false));
}

void TestRtfBox::baseFontIsTyped()
{
    RtfBox box;
    box.setBaseFont(QStringLiteral("Arial"), 10.5);
    box.setText(QString());
    QTest::keyClicks(&box, QStringLiteral("ab"));
    QVERIFY(box.rtf().contains("{\\fonttbl{\\f0\\fnil Arial;}}"));
    QVERIFY(box.rtf().contains("\\plain\\f0\\fs21 ab"));
}

void TestRtfBox::lineBreakKeyGivesParagraph()
{
    RtfBox box;
    QTest::keyClicks(&box, QStringLiteral("a"));
    QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(&box, QStringLiteral("b"));
    QCOMPARE(box.text(), QStringLiteral("a\r\nb"));
    QCOMPARE(box.document()->blockCount(), 2);
}

void TestRtfBox::backspaceTakesBulletAway()
{
    RtfBox box;
    box.setText(QStringLiteral("a"));
    const QByteArray before = box.rtf();
    box.setSelBullet(true);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QCOMPARE(box.selBullet(), std::optional(false));
    QCOMPARE(box.document()->firstBlock().blockFormat().indent(), 0);
    QCOMPARE(box.rtf(), before);
}

void TestRtfBox::pasteGoesThroughOurRtf()
{
    OpenBox box;
    box.setText(QStringLiteral("[]"));
    box.select(1, 0);
    QMimeData html;
    html.setHtml(QStringLiteral("<p>a<br><b>b</b><img src='x.png'></p>"));
    QVERIFY(box.canInsertFromMimeData(&html));
    box.insertFromMimeData(&html);
    QCOMPARE(box.text(), QStringLiteral("[a\r\nb]"));
    box.select(1, 4);
    const std::unique_ptr<QMimeData> copied(box.createMimeDataFromSelection());
    QVERIFY(copied->data(QStringLiteral("text/rtf")).startsWith("{\\rtf1"));
    QVERIFY(!copied->hasHtml());
    box.undo();
    QCOMPARE(box.text(), QStringLiteral("[]"));
}

void TestRtfBox::readOnlyTakesNothing()
{
    OpenBox box;
    box.setText(QStringLiteral("a"));
    box.setReadOnly(true);
    QMimeData text;
    text.setText(QStringLiteral("b"));
    box.insertFromMimeData(&text);
    QCOMPARE(box.text(), QStringLiteral("a"));
}

void TestRtfBox::pageIsCentredWhenWide()
{
    OpenBox box;
    box.resize(3000, 300);
    box.setRtf("{\\rtf1 " + QByteArray("mot ").repeated(500) + "}");
    box.show();
    QVERIFY(box.viewportMargins().left() > 500);
    QCOMPARE(box.viewportMargins().left(), box.viewportMargins().right());
    QCOMPARE(box.document()->textWidth(), double(box.viewport()->width()));
    const double column = box.viewport()->width() - 2 * box.document()->documentMargin();
    QVERIFY(column <= 75 * QFontMetricsF(box.font()).averageCharWidth());
    box.resize(150, 300);
    QCOMPARE(box.viewportMargins(), QMargins());
    QCOMPARE(box.document()->textWidth(), double(box.viewport()->width()));
}

void TestRtfBox::automaticTextFollowsPalette()
{
    RtfBox box;
    box.setRtf("{\\rtf1{\\colortbl\\red0\\green0\\blue0;}\\cf0 a}");
    box.select(0, 1);
    QVERIFY(!box.textCursor().charFormat().hasProperty(QTextFormat::ForegroundBrush));
}

QTEST_MAIN(TestRtfBox)
#include "tst_rtfBox.moc"
