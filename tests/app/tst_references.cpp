#include "WindowFixture.h"
#include "editor/references/ReferenceList.h"
#include "editor/references/ReferenceUnderlines.h"

#include <QHelpEvent>
#include <QListView>
#include <QMenu>
#include <QToolTip>

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

    void theMenuMendsWhatIsDoubtful()
    {
        const WindowFixture fixture(
            AdventureBuilder({"1: ."}).rawText(1, "{\\rtf1 Va au 7 ou au  {\\b 09}.}"));
        RtfBox &box = fixture.box();
        const auto menuAt = [&](int position) {
            box.select(position, 0);
            QContextMenuEvent event(QContextMenuEvent::Mouse, box.cursorRect().center(),
                                    box.mapToGlobal(QPoint(9, 9)));
            QCoreApplication::sendEvent(box.viewport(), &event);
            return box.findChild<QMenu *>();
        };
        QMenu *menu = menuAt(15);
        QVERIFY(menu != nullptr && !menu->actions().at(0)->isEnabled());
        QVERIFY(menu->actions().size() > 4); // the ordinary ones are there
        menu->actions().at(1)->trigger();
        QCOMPARE(box.text(), "Va au 7 ou au 9.");
        QVERIFY2(box.rtf().contains("\\b 9"), box.rtf());
        QVERIFY(fixture.variables.ParagraphDirty);
        box.undo();
        QCOMPARE(box.text(), "Va au 7 ou au  09.");
        QVERIFY(!box.document()->isUndoAvailable());
        menu->close();
    }

    void ctrlEnterFollowsTheReference()
    {
        const WindowFixture fixture(AdventureBuilder({"1: Va au 12.", "12: Ici."}));
        fixture.box().select(8, 0); // behind it
        QTest::keyClick(fixture.window.get(), Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(fixture.current(), 12);
        QTest::keyClick(fixture.window.get(), Qt::Key_Enter, Qt::ControlModifier);
        QCOMPARE(fixture.current(), 12);
    }

    void tipsAndHandShowWhereToGo()
    {
        const WindowFixture fixture(
            AdventureBuilder({"1: Va au 12, au 13, au  14.", "12: Une <b>grille</b>."}));
        RtfBox &box = fixture.box();
        const auto pointAt = [&box](int position) {
            box.select(position, 0);
            return box.cursorRect().center() + QPoint(2, 0);
        };
        const auto tipAt = [&](int position) {
            QHelpEvent event(QEvent::ToolTip, pointAt(position), box.mapToGlobal(QPoint(5, 5)));
            QCoreApplication::sendEvent(box.viewport(), &event);
            return QToolTip::text();
        };
        QCOMPARE(tipAt(6), "<qt>12 : Une &lt;b&gt;grille&lt;/b&gt;.");
        QCOMPARE(tipAt(13), "<qt>13 : encore vide");
        QVERIFY(tipAt(22).contains("espace de trop"));
        const auto shapeAt = [&](int position, Qt::KeyboardModifiers held) {
            const QPointF point = pointAt(position);
            QMouseEvent move(QEvent::MouseMove, point, box.viewport()->mapToGlobal(point),
                             Qt::NoButton, Qt::NoButton, held);
            QCoreApplication::sendEvent(box.viewport(), &move);
            return box.viewport()->cursor().shape();
        };
        QCOMPARE(shapeAt(6, Qt::ControlModifier), Qt::PointingHandCursor);
        QCOMPARE(shapeAt(6, {}), Qt::IBeamCursor);
        QCOMPARE(shapeAt(1, Qt::ControlModifier), Qt::IBeamCursor);
        shapeAt(6, Qt::ControlModifier);
        box.setText("Là");
        QCOMPARE(box.viewport()->cursor().shape(), Qt::IBeamCursor);
    }

    void ctrlSpaceListsTheParagraphs()
    {
        const WindowFixture fixture(
            AdventureBuilder({"1: Va au 4.", "2: L'épée.", "3: La forêt.", "21: La cave."}));
        RtfBox &box = fixture.box();
        const auto open = [&](const char *typed) {
            fixture.type(typed);
            QTest::keyClick(fixture.window.get(), Qt::Key_Space, Qt::ControlModifier);
            QCoreApplication::processEvents();
            return box.findChild<ReferenceList *>();
        };
        QVERIFY(open(" Ou") == nullptr);
        ReferenceList *list = open(" au ");
        QVERIFY(list != nullptr);
        auto *typed = list->findChild<QLineEdit *>();
        const auto *rows = list->findChild<QListView *>()->model();
        const auto row = [&rows](int n) { return rows->index(n, 0).data().toString(); };
        QCOMPARE(row(0), "5 : premier numéro libre");
        QCOMPARE(row(1), "1 : Va au 4. Ou au");
        QCOMPARE(rows->rowCount(), 5);
        QTest::keyClicks(typed, "Epee");
        QCOMPARE(rows->rowCount(), 1);
        QTest::keyClick(typed, Qt::Key_Return);
        QCOMPARE(box.text(), "Va au 4. Ou au 2");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        list = open(""); // with the digit that stands there
        QVERIFY(list != nullptr);
        auto *digits = list->findChild<QLineEdit *>();
        rows = list->findChild<QListView *>()->model();
        QCOMPARE(row(0), "2 : L'épée.");
        QCOMPARE(row(1), "21 : La cave.");
        QTest::keyClick(digits, Qt::Key_Down);
        QTest::keyClick(digits, Qt::Key_Enter);
        QCOMPARE(box.text(), "Va au 4. Ou au 21");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        box.select(16, 0); // within the number
        QTest::keyClick(fixture.window.get(), Qt::Key_Space, Qt::ControlModifier);
        QCoreApplication::processEvents();
        list = box.findChild<ReferenceList *>();
        QVERIFY(list != nullptr);
        QTest::keyClick(list->findChild<QLineEdit *>(), Qt::Key_Enter);
        QCOMPARE(box.text(), "Va au 4. Ou au 2");
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
