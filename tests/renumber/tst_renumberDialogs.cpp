#include "app/WindowFixture.h"
#include "renumber/RenumberCommands.h"
#include "renumber/masterMix.h"
#include "richtext/RtfPlainText.h"
#include "store/ParagraphStore.h"
#include "store/WorkingFiles.h"
#include "support/TestTable.h"
#include "widgets/NumberBox.h"
#include "widgets/PreviewLine.h"

#include <QCheckBox>
#include <QClipboard>
#include <QTreeWidget>

namespace
{
const QString RangeOf = "Vous devez spécifier des paragraphes entre 1 et 2000.|Zut";
const QString SwapRange =
    "Vous devez spécifier deux chiffres différents entre 1 et 2000.|C'est la loi";
const QString BlockRange = "Tous les paragraphes doivent être (et rester) entre 1 et 2000.|Zut";

// Written are 3, 5, 8 and 12; 5 is on the screen.
AdventureBuilder fourParagraphs()
{
    return AdventureBuilder({"3: Trois.", "5: Cinq.", "8: Huit. Allez au 5.", "12: Douze."})
        .current(5);
}

// The number boxes of a dialog in the order of its sentence.
QList<NumberBox *> boxesOf(const QWidget &dialog)
{
    return dialog.findChildren<NumberBox *>();
}

QString textsOf(const QWidget &dialog)
{
    QStringList texts;
    for (const NumberBox *box : boxesOf(dialog))
        texts.append(box->text());
    return texts.join('|');
}

// Types over all boxes, "3|12".
void fill(const QWidget &dialog, const QString &numbers)
{
    const QStringList texts = numbers.split('|');
    const QList<NumberBox *> boxes = boxesOf(dialog);
    QCOMPARE(boxes.size(), texts.size());
    for (qsizetype i = 0; i < boxes.size(); ++i) {
        boxes.at(i)->selectAll();
        QTest::keyClicks(boxes.at(i), texts.at(i));
    }
}

// Presses the key of a command where the focus is and does the work in the dialog that comes.
QString inDialog(const WindowFixture &fixture, const QString &key,
                 const std::function<void(QDialog &dialog)> &work)
{
    return fixture.inDialog(
        [&] { QTest::keySequence(fixture.window->focusWidget(), QKeySequence(key)); }, work);
}

// "3 Trois. 5 Cinq.": what is written where.
QString written(const Variables &variables)
{
    QStringList texts;
    for (int n = 0; n <= Variables::LastParagraph; ++n) {
        if (variables.Written.at(n) == 1)
            texts.append(QString::number(n) + ' ' + rtfToPlainText(GetParagraphRtf(variables, n)));
    }
    return texts.join(' ');
}
} // namespace

class tst_renumberDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensFilledAnewAndChangesNothingByItself_data()
    {
        addTable<QString, QString, QString, QString>(
            {"key", "name", "title", "numbers"},
            {{"MasterMix", "Ctrl+M", "masterMix", "MasterMix", "3|12"},
             {"swap", "Ctrl+E", "exchangeDlog", "Section Swap", "5|5"},
             {"block move", "Ctrl+L", "blockMove", "Block Move", "3|12|0"},
             {"pack holes", "Ctrl+H", "packHoles", "Pack Holes", "3|12"}});
    }
    void opensFilledAnewAndChangesNothingByItself()
    {
        QFETCH(const QString, key);
        WindowFixture fixture;
        QCOMPARE(inDialog(fixture, key, [](QDialog &) {}), "");
        fixture.open(fourParagraphs().bytes());
        for (const bool escape : {false, true}) {
            const QString name = inDialog(fixture, key, [&](const QDialog &dialog) {
                QTEST(dialog.windowTitle(), "title");
                QTEST(textsOf(dialog), "numbers");
                NumberBox *first = boxesOf(dialog).first();
                QTRY_VERIFY(first->hasFocus());
                QCOMPARE(first->selectedText(), first->text());
                const QPoint away =
                    dialog.geometry().center() - fixture.window->geometry().center();
                QVERIFY2(away.manhattanLength() < 48, "not centred on the window");
                if (escape)
                    QTest::keyClick(first, Qt::Key_Escape);
                else
                    click(dialog, "CancelButton");
                QVERIFY(!dialog.isVisible());
            });
            QTEST(name, "name");
            QVERIFY(fixture.editorHasFocus() && !fixture.variables.AdventureModified);
        }
    }

    // "au 026" is doubtful, and garbled with any number that changes in its text.
    void theLineFollowsTheBoxesAndLeadsToTheDoubtful()
    {
        const WindowFixture fixture(
            AdventureBuilder({"3: Trois, au  9.", "5: Cinq, au 3, au 026.", "9: Neuf."}));
        inDialog(fixture, "Ctrl+E", [&](const QDialog &dialog) {
            auto &line = child<PreviewLine>(dialog, "preview");
            QCOMPARE(line.accessibleName(), "Rien ne change.");
            const QSize size = dialog.size();
            fill(dialog, "3|7");
            QTRY_COMPARE(line.accessibleName(), "1 paragraphe change de numéro ; 1 renvoi réécrit "
                                                "dans 1 paragraphe. 1 renvoi douteux.");
            fill(dialog, "3|0");
            QVERIFY(line.accessibleName().startsWith("Vous devez spécifier deux chiffres"));
            fill(dialog, "5|9");
            QVERIFY(line.accessibleName().endsWith(" 1 renvoi douteux."));
            QCOMPARE(dialog.size(), size);
            QString copied;
            QTimer::singleShot(0, &line, [&] {
                auto *list = qobject_cast<QDialog *>(QApplication::activeModalWidget());
                auto &rows = child<QTreeWidget>(*list, "doubtful");
                rows.setFocus();
                rows.selectAll();
                QVERIFY(QTest::qWaitForWindowActive(list));
                QTest::keySequence(&rows, QKeySequence::Copy);
                copied = QApplication::clipboard()->text();
                click(*list, "close");
            });
            line.setFocus(Qt::TabFocusReason);
            QTest::keyClick(&line, Qt::Key_Return);
            QVERIFY2(copied.startsWith("3\tau  9\tIl y a une espace"), qPrintable(copied));
            QVERIFY(!copied.contains('\n') && dialog.isVisible());
        });
    }

    // Enter in a box either confirms or is refused like a letter.
    void refusedNumbersLeaveTheDialogOpen_data()
    {
        addTable<QString, QString, QString, QString, bool>(
            {"key", "button", "numbers", "message", "enterConfirms"},
            {{"MasterMix", "Ctrl+M", "OKButton", "7|2001", RangeOf, true},
             {"swap", "Ctrl+E", "OKButton", "7|2001", SwapRange, true},
             {"move down", "Ctrl+L", "MoveDown", "3|4|3", BlockRange, false},
             {"move up", "Ctrl+L", "MoveUp", "3|1999|2", BlockRange, false},
             {"pack holes", "Ctrl+H", "OKButton", "7|2001", RangeOf, false}});
    }
    void refusedNumbersLeaveTheDialogOpen()
    {
        QFETCH(const QString, key);
        QFETCH(const QString, button);
        QFETCH(const QString, numbers);
        QFETCH(const bool, enterConfirms);
        QFETCH(const QString, message);
        WindowFixture fixture(fourParagraphs());
        const auto expectRefusal = [&] {
            fixture.prompts.expect(message.section('|', 0, 0), message.section('|', 1));
        };
        inDialog(fixture, key, [&](const QDialog &dialog) {
            fill(dialog, numbers);
            expectRefusal();
            click(dialog, button);
            for (NumberBox *box : boxesOf(dialog)) {
                for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
                    if (enterConfirms)
                        expectRefusal();
                    const int beeps = fixture.prompts.beeps();
                    box->setFocus();
                    QTest::keyClick(box, enter);
                    QCOMPARE(fixture.prompts.beeps() - beeps, enterConfirms ? 0 : 1);
                }
            }
            QVERIFY(dialog.isVisible());
            QCOMPARE(textsOf(dialog), numbers);
        });
        QVERIFY(!fixture.variables.AdventureModified);
    }

    // Between 8 and 12 there is no text that MasterMix could move.
    void completedCommandShowsItsNumberAgain_data()
    {
        const QString exchanged = "3 Trois. 5 Huit. Allez au 8. 8 Cinq. Fin. 12 Douze.";
        addTable<QString, QString, QString, QString>(
            {"key", "button", "numbers", "written"},
            {{"MasterMix", "Ctrl+M", "OKButton", "12|8",
              "3 Trois. 5 Cinq. Fin. 8 Huit. Allez au 5. 12 Douze."},
             {"swap", "Ctrl+E", "OKButton", "5|8", exchanged},
             {"move down", "Ctrl+L", "MoveDown", "7|8|3", exchanged},
             {"move up", "Ctrl+L", "MoveUp", "3|3|2",
              "3 Cinq. Fin. 5 Trois. 8 Huit. Allez au 3. 12 Douze."},
             {"pack holes", "Ctrl+H", "OKButton", "3|12",
              "3 Trois. 4 Cinq. Fin. 5 Huit. Allez au 4. 6 Douze."}});
    }
    void completedCommandShowsItsNumberAgain()
    {
        QFETCH(const QString, key);
        QFETCH(const QString, button);
        QFETCH(const QString, numbers);
        const WindowFixture fixture(fourParagraphs());
        const Variables &variables = fixture.variables;
        fixture.type(" Fin.");
        fixture.field("txtPargNum").setFocus();
        inDialog(fixture, key, [&](const QDialog &dialog) {
            QVERIFY(!variables.ParagraphDirty);
            fill(dialog, numbers);
            click(dialog, button);
            QVERIFY(!dialog.isVisible());
        });
        QTEST(written(variables), "written");
        QCOMPARE(fixture.current(), 5);
        QCOMPARE(fixture.box().text(), rtfToPlainText(GetParagraphRtf(variables, 5)));
        QVERIFY(variables.AdventureModified);
        QVERIFY(fixture.box().isVisible());
        QVERIFY(fixture.editorHasFocus());
    }

    void splitAndMergeShowTheNumberAgain()
    {
        WindowFixture fixture(fourParagraphs());
        const QString before = written(fixture.variables);
        const QString target = fixture.adventure.path("part.usm");
        const auto open = [&] { fixture.trigger("menuAvExport"); };
        const QString name = fixture.inDialog(open, [&](const QDialog &dialog) {
            QCOMPARE(dialog.windowTitle() + ' ' + textsOf(dialog), "File Split 3|12");
            QTest::keyClick(boxesOf(dialog).first(), Qt::Key_Return);
            QCOMPARE(fixture.prompts.beeps(), 1);
            fill(dialog, "5|9");
            child<QCheckBox>(dialog, "Murder").setChecked(true);
            for (const QString &chosen : {QString(), target}) {
                QVERIFY(dialog.isVisible());
                fixture.prompts.expectFileDialog("Nouvelle Aventure", chosen);
                click(dialog, "OKButton");
            }
            QVERIFY(!dialog.isVisible());
        });
        QCOMPARE(name, "splitFile");
        QCOMPARE(written(fixture.variables), "3 Trois. 12 Douze.");
        QVERIFY(fixture.box().text().isEmpty() && fixture.current() == 5);
        fixture.prompts.expectFileDialog("Choisir une Aventure", target);
        fixture.trigger("menuAvImport");
        QCOMPARE(written(fixture.variables), before);
        QVERIFY(fixture.box().text() == "Cinq." && fixture.editorHasFocus());
    }

    void eachClickDrawsFromTheTimeOfDay()
    {
        QStringList lines;
        for (int n = 1; n <= 20; ++n)
            lines.append(QString("%1: Texte %1.").arg(n));
        QStringList orders;
        for (const int second : {1, 1, 2}) {
            WindowFixture fixture{AdventureBuilder(lines)};
            RenumberCommands commands(fixture.variables, fixture.prompts, fixture.window->work());
            masterMix dialog(fixture.variables, fixture.prompts, commands, nullptr,
                             [&] { return QTime(0, 0).addSecs(second); });
            fill(dialog, "1|20");
            click(dialog, "OKButton");
            orders.append(written(fixture.variables));
        }
        QVERIFY(orders.at(0) == orders.at(1) && orders.at(0) != orders.at(2));
    }

    // After "Annuler" the text in the box is still that of its number, and perhaps the last copy.
    void theLastCopyOfATextStaysInTheBox()
    {
        for (const bool renumbered : {true, false}) {
            WindowFixture fixture(fourParagraphs());
            fixture.type(" Fin.");
            const QString file = WorkingFiles(fixture.variables).text(5);
            fixture.prompts.expect("Paragraphes illisibles : 5.", "BUG");
            inDialog(fixture, "Ctrl+E", [&](QDialog &dialog) {
                connect(&dialog, &QDialog::finished, this, [&] { QVERIFY(QFile::remove(file)); });
                fill(dialog, "5|8");
                click(dialog, renumbered ? "OKButton" : "CancelButton");
            });
            QCOMPARE(fixture.box().text(), renumbered ? "" : "Cinq. Fin.");
            QCOMPARE(fixture.variables.ParagraphDirty, !renumbered); // to be saved again
        }
    }
};

QTEST_MAIN(tst_renumberDialogs)
#include "tst_renumberDialogs.moc"
