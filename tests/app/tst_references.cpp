#include "WindowFixture.h"
#include "editor/ReferenceUnderlines.h"

class tst_references : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void underlinesShowAndChangeNothing()
    {
        const WindowFixture fixture(AdventureBuilder({"1: Va au 7, au 900 ou au  7.", "7: Ici."}));
        RtfBox &box = fixture.box();
        auto &underlines = *box.findChild<ReferenceUnderlines *>();
        const QByteArray rtf = box.rtf();
        const QImage shown = box.grab().toImage();
        underlines.setShown(false);
        const QImage hidden = box.grab().toImage();
        QVERIFY(shown != hidden);
        QVERIFY(!underlines.at(6));
        underlines.setShown(true);
        QCOMPARE(box.grab().toImage(), shown);
        fixture.variables.Written.at(7) = 0;
        QVERIFY(box.grab().toImage() != shown); // the target is empty
        fixture.variables.TargetPhrase = " vers ";
        QCOMPARE(box.grab().toImage(), hidden);
        QCOMPARE(box.rtf(), rtf);
        QVERIFY(!box.document()->isUndoAvailable() && !fixture.variables.ParagraphDirty);
    }

    void marksFollowTheText()
    {
        const WindowFixture fixture(AdventureBuilder({"1: Va au 7.", "7: Ici."}));
        RtfBox &box = fixture.box();
        const auto &underlines = *box.findChild<ReferenceUnderlines *>();
        const auto markAt = [&](int position) {
            const auto place = underlines.at(position);
            return place ? QString::number(place->mark.read) + ' ' +
                               QString::number(place->position())
                         : QString();
        };
        QCOMPARE(markAt(6), "7 6");
        QCOMPARE(markAt(7), "7 6"); // just behind it
        QCOMPARE(markAt(5), QString());
        box.select(3, 0);
        QTest::keyClicks(&box, "la ");
        QCOMPARE(markAt(9), "7 9");
        box.select(0, 0);
        QTest::keyClicks(&box, "Au");
        QTest::keyClick(&box, Qt::Key_Return);
        QTest::keyClicks(&box, "12, ");
        QCOMPARE(markAt(3), "0 3"); // cut by the line's end
        box.select(0, 2);
        QTest::keyClick(&box, Qt::Key_Delete);
        QCOMPARE(markAt(1), QString()); // the line before it has changed
        const QPoint digit = box.cursorRect().center();
        QVERIFY(!underlines.under(digit));
    }
};

QTEST_MAIN(tst_references)
#include "tst_references.moc"
