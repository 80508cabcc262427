#include "platform/DialogPrompts.h"
#include "support/PromptRecorder.h"
#include "support/TestTable.h"
#include "widgets/NumberBox.h"

#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

// The controls that all windows share, and the real message boxes.
class tst_controls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyNumbersAreTaken()
    {
        const Table<bool, QString, QString, int> rows{
            {"numbers", true, "01234.56789", "01234.56789", 0},
            {"backspace", true, "12\b3", "13", 0},
            {"others beep", true, "1,2-x 3", "123", 4},
            {"not filtering", false, "Vide 3", "Vide 3", 0}};
        for (const auto &[name, filtering, typed, text, beeps] : rows) {
            QWidget window;
            PromptRecorder prompts;
            auto *box = new NumberBox(&window);
            box->setFiltering(filtering);
            NumberBox::connectBeeps(window, prompts);
            for (const QChar c : typed) {
                if (c == u'\b')
                    QTest::keyClick(box, Qt::Key_Backspace);
                else
                    QTest::keyClick(box, c.toLatin1());
            }
            QCOMPARE(box->text(), text);
            QCOMPARE(prompts.beeps(), beeps);
        }
    }

    void pastedTextIsHeldToTheSame()
    {
        NumberBox box;
        for (const char *text : {"12", "vingt-6", "6"}) {
            QGuiApplication::clipboard()->setText(text);
            box.paste();
        }
        QCOMPARE(box.text(), "126");
    }

    void focusSelectsAll()
    {
        QWidget window;
        QVBoxLayout layout(&window);
        QLineEdit other;
        NumberBox box;
        layout.addWidget(&other);
        layout.addWidget(&box);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        box.setText("126");
        other.setFocus();
        QTest::mouseClick(&box, Qt::LeftButton);
        QCOMPARE(box.selectedText(), "126");
        // The next click places the caret as usual.
        QTest::mouseClick(&box, Qt::LeftButton);
        QVERIFY(!box.hasSelectedText());
        other.setFocus();
        box.setFocus(Qt::TabFocusReason);
        QCOMPARE(box.selectedText(), "126");
    }

    void filtersAndNamesAreMadeForTheDialog()
    {
        const QString filter = "Page HTML (*.htm)|*.htm;*.html|Tous|*.*";
        QCOMPARE(dialogFilters(filter), QStringList({"Page HTML (*.htm *.html)", "Tous (*.*)"}));
        for (const char *name : {"Loup.htm", "Loup.HTML", "Tome 1.5.htm"})
            QCOMPARE(withExtension(name, filter, "htm"), name);
        for (const QString name : {"Livre 2.1", "Mr. Loup", "Loup", "Loup.usm", "htm"})
            QCOMPARE(withExtension(name, filter, "htm"), name + ".htm");
        QCOMPARE(withExtension("Loup", {}, {}), "Loup"); // a dialog for every kind of file
    }

    void messageBoxesAnswer()
    {
        using Buttons = Prompts::Buttons;
        using Answer = Prompts::Answer;
        const QStringList all{"&Annuler", "&Non", "&Oui"};
        const Table<Buttons, Qt::Key, QStringList, Answer> rows{
            {"enter is yes", Buttons::YesNoCancel, Qt::Key_Return, all, Answer::Yes},
            {"escape is cancel", Buttons::YesNoCancel, Qt::Key_Escape, all, Answer::Cancel},
            {"escape is no", Buttons::YesNo, Qt::Key_Escape, all.mid(1), Answer::No},
            {"escape is ok", Buttons::Ok, Qt::Key_Escape, {"OK"}, Answer::Ok}};
        for (const auto &[name, buttons, key, captions, answer] : rows) {
            QStringList shown;
            QTimer::singleShot(0, this, [&shown, pressed = key] {
                auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
                for (const QAbstractButton *button : box->buttons())
                    shown.append(button->text());
                shown.append(box->text());
                QTest::keyClick(box, pressed);
            });
            const QString asked = "L'aventure <b>Loup</b> ?";
            QCOMPARE(DialogPrompts().message(asked, "Rappel amical", buttons), answer);
            QCOMPARE(shown.takeLast(), asked);
            shown.sort();
            QCOMPARE(shown, captions);
        }
    }
};

QTEST_MAIN(tst_controls)
#include "tst_controls.moc"
