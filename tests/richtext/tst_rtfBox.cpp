#include "Look.h"
#include "editor/RtfBox.h"
#include "support/TestTable.h"

#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
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
    using Edit = void (*)(RtfBox &);

private Q_SLOTS:
    void loadsLikeTheHiddenBox()
    {
        const QByteArray rtf =
            "{\\rtf1{\\fonttbl{\\f0 Arial;}}\\qc\\b a\\par\\ls1\\fs21 b\\par\\pard c}";
        HiddenBox hidden;
        hidden.setRtf(rtf);
        RtfBox box;
        box.show();
        QTest::keyClicks(&box, "x");
        QSignalSpy edited(&box, &RtfBox::edited);
        box.setText("abc\r\ndef");
        box.setRtf(rtf);
        QCOMPARE(box.rtf(), hidden.rtf());
        QCOMPARE(box.selStart(), 0);
        QCOMPARE(box.document()->documentMargin(), 8.0);
        // Automatic text follows the palette.
        box.select(0, 1);
        QVERIFY(!box.textCursor().charFormat().hasProperty(QTextFormat::ForegroundBrush));
        box.setBaseFont("Arial", 10);
        box.find("b", 0, {});
        QCOMPARE(edited.count(), 0);
        QVERIFY(!box.document()->isUndoAvailable() && !box.document()->isRedoAvailable());
        QVERIFY(box.document()->isUndoRedoEnabled());
    }

    void editsAreSignalledSingleUndoSteps_data()
    {
        addTable<Edit>(
            {"edit"},
            {
                {"key", [](RtfBox &box) { QTest::keyClicks(&box, "x"); }},
                {"bold", [](RtfBox &box) { box.setSelBold(true); }},
                {"size", [](RtfBox &box) { box.setSelFontSize(30); }},
                {"colour", [](RtfBox &box) { box.setSelColor(qRgb(1, 2, 3)); }},
                {"alignment",
                 [](RtfBox &box) { box.setSelAlignment(RichTextBox::Alignment::Centre); }},
                {"bullet", [](RtfBox &box) { box.setSelBullet(true); }},
                {"tabs",
                 [](RtfBox &box) {
                     box.setSelTabs({1, 2});
                 }},
                {"text", [](RtfBox &box) { box.setSelText("a\nb"); }},
                {"RTF", [](RtfBox &box) { box.setSelRtf("{\\rtf1\\qc\\b a\\par\\ls1 b\\par c}"); }},
            });
    }
    void editsAreSignalledSingleUndoSteps()
    {
        QFETCH(Edit, edit);
        RtfBox box;
        box.setText("un\r\n\r\ndeux");
        const QByteArray before = box.rtf();
        box.select(0, 10);
        QSignalSpy edited(&box, &RtfBox::edited);
        edit(box);
        QVERIFY(edited.count() > 0);
        const QByteArray after = box.rtf();
        QVERIFY(after != before);
        for (int i = 0; i < 2; ++i) {
            edited.clear();
            i == 0 ? box.undo() : box.redo();
            QVERIFY(edited.count() > 0);
            QCOMPARE(box.rtf(), i == 0 ? before : after);
        }
    }

    void baseAndCaretFormatAreTyped()
    {
        RtfBox box;
        box.setBaseFont("Arial", 11.5);
        box.setText({});
        QTest::keyClicks(&box, "ab");
        QVERIFY(box.rtf().contains("{\\fonttbl{\\f0\\fnil Arial;}}"));
        QVERIFY(box.rtf().contains("\\plain\\f0\\fs23 ab"));
        at(box, 1, 0).setSelBold(true);
        box.setSelColor(qRgb(255, 0, 0));
        box.setSelFontSize(10.5);
        QCOMPARE(look(box), "b 10.5 #ff0000");
        QTest::keyClicks(&box, "X");
        QCOMPARE(looks(box), "[a][X b 10.5 #ff0000][b]");
        QVERIFY(!at(box, 0, 3).selBold());
    }

    void keysGiveWhatTheFileHolds()
    {
        RtfBox box;
        box.setText("a");
        const QByteArray before = box.rtf();
        box.setSelBullet(true);
        QTest::keyClick(&box, Qt::Key_Backspace);
        QCOMPARE(box.rtf(), before);
        QCOMPARE(box.document()->firstBlock().blockFormat().indent(), 0);
        QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(looks(box), "/[a]");
    }

    void pasteGoesThroughOurRtf()
    {
        OpenBox box;
        box.setText("[]");
        box.select(1, 0);
        QMimeData html;
        html.setHtml("<p>a<br><b>b</b><img src='x.png'></p>");
        QVERIFY(box.canInsertFromMimeData(&html));
        box.insertFromMimeData(&html);
        QCOMPARE(box.text(), "[a\r\nb]");
        box.select(1, 4);
        const std::unique_ptr<QMimeData> copied(box.createMimeDataFromSelection());
        QVERIFY(copied->data("text/rtf").startsWith("{\\rtf1"));
        QVERIFY(!copied->hasHtml());
        box.undo();
        box.setReadOnly(true);
        box.insertFromMimeData(&html);
        QCOMPARE(box.text(), "[]");
    }

    void pageIsCentredWhenWide()
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
};

QTEST_MAIN(TestRtfBox)
#include "tst_rtfBox.moc"
