#include "Look.h"
#include "editor/RtfBox.h"
#include "support/TestTable.h"

#include <QDropEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <memory>

namespace
{
// Gives the tests what the clipboard and drops reach.
class OpenBox : public RtfBox
{
public:
    explicit OpenBox(const QString &text = {}) { setText(text); }
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
        WithRtf hidden(rtf);
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

    void editsAreSignalledSingleUndoSteps()
    {
        const Table<Edit> rows{
            {"key", [](RtfBox &box) { QTest::keyClicks(&box, "x"); }},
            {"bold", [](RtfBox &box) { box.setSelBold(true); }},
            {"bullet", [](RtfBox &box) { box.setSelBullet(true); }},
            {"text", [](RtfBox &box) { box.setSelText("a\nb"); }},
            {"RTF", [](RtfBox &box) { box.setSelRtf("{\\rtf1\\qc\\b a\\par\\ls1 b\\par c}"); }}};
        for (const auto &[name, edit] : rows) {
            OpenBox box("un\r\n\r\ndeux");
            const QByteArray before = box.rtf();
            box.select(0, 10);
            QSignalSpy edited(&box, &RtfBox::edited);
            edit(box);
            QVERIFY(edited.count() > 0);
            const QByteArray after = box.rtf();
            QVERIFY(after != before);
            edited.clear();
            box.undo();
            QVERIFY(edited.count() > 0);
            QCOMPARE(box.rtf(), before);
            box.redo();
            QCOMPARE(box.rtf(), after);
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
        OpenBox box("a");
        const QByteArray before = box.rtf();
        box.setSelBullet(true);
        QTest::keyClick(&box, Qt::Key_Backspace);
        QCOMPARE(box.rtf(), before);
        QCOMPARE(box.document()->firstBlock().blockFormat().indent(), 0);
        QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(looks(box), "/[a]");
    }

    void enterOnAnEmptyLineKeepsItsFormat()
    {
        OpenBox box;
        box.setSelAlignment(RichTextBox::Alignment::Centre);
        box.setSelIndent(1);
        box.setSelBold(true);
        QTest::keyClick(&box, Qt::Key_Return);
        QTest::keyClicks(&box, "x");
        QCOMPARE(looks(box), "/[x b c li1]");
        QCOMPARE(look(box, 0, 0), "c li1");
        // A bullet ends its list and leaves the rest.
        box.select(99, 0);
        QTest::keyClick(&box, Qt::Key_Return);
        box.setSelBullet(true);
        QTest::keyClick(&box, Qt::Key_Return);
        QTest::keyClicks(&box, "y");
        QCOMPARE(looks(box), "/[x b c li1]/[y b c li1]");
    }

    void typingIsUndoneByWordsAndShortRuns()
    {
        OpenBox box;
        quint64 now = 5000;
        const auto type = [&box, &now](const QString &text, quint64 wait = 0) {
            now += wait;
            for (const QChar c : text) {
                now += 100;
                QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
                key.setTimestamp(now);
                QCoreApplication::sendEvent(&box, &key);
            }
        };
        type("un  deux, abcdefghijklmnopqrstuvwxyz");
        type("PAUSE", 1000);
        QTest::keyClick(&box, Qt::Key_Left);
        QTest::keyClick(&box, Qt::Key_Right);
        type("x");
        QTest::keyClick(&box, Qt::Key_Return);
        type("fin");
        QStringList steps;
        for (; box.document()->isUndoAvailable(); box.undo())
            steps.prepend(box.text());
        const QString all = "un  deux, abcdefghijklmnopqrstuvwxyzPAUSEx\r\nfin";
        QStringList expected;
        for (const int length : {4, 10, 30, 36, 41, 42, 44, 47})
            expected += all.left(length);
        QCOMPARE(steps, expected);
        while (box.document()->isRedoAvailable())
            box.redo();
        QCOMPARE(box.text(), all);
    }

    // Content that fails when it is asked for, pasted and dropped upon the text that it came from.
    void failuresAreReportedAndTakenBack()
    {
        struct : QMimeData {
            bool hasFormat(const QString &) const override { return true; }
            QStringList formats() const override { return {"text/plain"}; }
            QVariant retrieveData(const QString &, QMetaType) const override
            {
                throw std::bad_alloc();
            }
        } failing;
        OpenBox box("un deux");
        box.show();
        QTest::keyClicks(&box, "x");
        box.selectAll();
        QSignalSpy failed(&box, &RtfBox::failed);
        box.insertFromMimeData(&failing);
        QDropEvent drop(QPointF(5, 5), Qt::MoveAction, &failing, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(box.viewport(), &drop);
        QVERIFY(failed.isEmpty()); // the event comes first
        QTRY_COMPARE(failed.count(), 1);
        QVERIFY(failed.at(0).at(0).toString().startsWith("Cette action a échoué."));
        QCOMPARE(box.text(), "xun deux");
        box.undo();
        QCOMPARE(box.text(), "un deux");
    }

    void pastingTooMuchLeavesTheBox()
    {
        OpenBox box("reste");
        const QByteArray before = box.rtf();
        QSignalSpy failed(&box, &RtfBox::failed);
        QMimeData html;
        html.setHtml(QString(20'000, u'\u2605'));
        box.setLimit(100'000);
        box.insertFromMimeData(&html);
        QCOMPARE(box.rtf(), before);
        QTRY_COMPARE(failed.count(), 1);
        QVERIFY(failed.at(0).at(0).toString().startsWith("Ce texte est trop long"));
        QVERIFY(!box.document()->isUndoAvailable());
    }

    void tabsAreDrawnFromTheMargin()
    {
        const Table<double, double, bool, double, double> rows{
            {"no indent", 0.0, 0.0, false, 4.0, 4.0},
            {"indents", 1.5, 1.0, false, 4.0, 4.0},
            {"hanging", 1.5, -1.0, false, 4.0, 1.5},
            {"before the hanging indent", 1.5, -1.0, false, 1.0, 1.0},
            {"bullet", 1.0, 0.0, true, 4.0, 4.0},
            {"left of the line", 3.0, 0.0, false, 2.0, 3.81},
            {"usual distance", 1.5, 0.0, false, 0.0, 2.54},
            {"usual distance of a bullet", 0.0, 0.0, true, 0.0, 1.27}};
        for (const auto &[name, left, first, bullet, tab, drawn] : rows) {
            RtfBox box;
            box.resize(900, 300);
            box.show();
            const auto drawnAt = [&box] {
                QTextCursor caret(box.document());
                caret.setPosition(1);
                return (box.cursorRect(caret).left() + box.horizontalScrollBar()->value() -
                        box.document()->documentMargin()) *
                       2.54 / 96;
            };
            for (const bool tabsFirst : {true, false}) {
                box.setText("\tX");
                if (tabsFirst)
                    box.setSelTabs({tab});
                box.setSelIndent(left);
                box.setSelHangingIndent(first);
                box.setSelBullet(bullet);
                if (!tabsFirst)
                    box.setSelTabs({tab});
                QVERIFY2(qAbs(drawnAt() - drawn) < 0.04, qPrintable(QString::number(drawnAt())));
                const QByteArray rtf = box.rtf();
                QCOMPARE(rtf.count("\\tx"), tab > 0 ? 1 : 0);
                QVERIFY(tab == 0 ||
                        rtf.contains("\\tx" + QByteArray::number(qRound(tab * 1440 / 2.54))));
                box.setRtf(rtf);
                QCOMPARE(box.rtf(), rtf);
                QVERIFY2(qAbs(drawnAt() - drawn) < 0.04, qPrintable(QString::number(drawnAt())));
            }
        }
    }

    void coloursAreLighterOnADarkPageAlone()
    {
        OpenBox box("a bleu z");
        at(box, 2, 4).setSelColor(qRgb(0, 0, 255));
        const QByteArray rtf = box.rtf();
        QSignalSpy edited(&box, &RtfBox::edited);
        const auto painted = [&box](const QColor &page) {
            QPalette palette;
            palette.setColor(QPalette::Base, page);
            box.setPalette(palette);
            QCoreApplication::processEvents();
            QColor colour;
            for (const auto &range : box.document()->firstBlock().layout()->formats()) {
                if (range.start <= 2 && range.start + range.length >= 6)
                    colour = range.format.foreground().color();
            }
            return colour;
        };
        QVERIFY(!painted(Qt::white).isValid());
        const QColor onGrey = painted(QColor(45, 45, 45));
        QVERIFY(onGrey.blue() == 255 && onGrey.red() > 100 && onGrey.red() == onGrey.green());
        QVERIFY(painted(Qt::black).red() < onGrey.red());
        QVERIFY(!painted(Qt::white).isValid());
        QVERIFY(edited.isEmpty());
        QCOMPARE(box.rtf(), rtf);
        QCOMPARE(look(box, 2, 4), "#0000ff");
        painted(Qt::black);
        box.setRtf(rtf); // another text is painted so from the start
        QVERIFY(!box.document()->firstBlock().layout()->formats().isEmpty());
        QVERIFY(!box.document()->isUndoAvailable() && edited.isEmpty());
    }

    void pasteGoesThroughOurRtf()
    {
        OpenBox box("[]");
        box.select(1, 0);
        QMimeData html;
        html.setHtml("<p>a<br><b>b</b><img src='x.png'></p>");
        QVERIFY(box.canInsertFromMimeData(&html));
        box.insertFromMimeData(&html);
        QCOMPARE(box.text(), "[a\r\nb]");
        box.select(1, 4);
        const std::unique_ptr<QMimeData> copied(box.createMimeDataFromSelection());
        QVERIFY(copied->data("text/rtf").startsWith("{\\rtf1"));
        QVERIFY(copied->html().contains("font-weight"));
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
