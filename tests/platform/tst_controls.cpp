#include "platform/DialogPrompts.h"
#include "platform/FlowLayout.h"
#include "platform/NumberBox.h"
#include "support/PromptRecorder.h"

#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <memory>

// The controls that all windows share, and the real message boxes.
class tst_controls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyNumbersAreTaken_data();
    void onlyNumbersAreTaken();
    void pastedTextIsHeldToTheSame();
    void focusSelectsAll();
    void flowWrapsIntoRows_data();
    void flowWrapsIntoRows();
    void filtersAreConverted_data();
    void filtersAreConverted();
    void messageBoxesAnswer_data();
    void messageBoxesAnswer();
};

void tst_controls::onlyNumbersAreTaken_data()
{
    QTest::addColumn<bool>("filtering");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("beeps");
    QTest::newRow("digits") << true << "0123456789"
                            << "0123456789" << 0;
    QTest::newRow("full stop") << true << "12.5"
                               << "12.5" << 0;
    QTest::newRow("backspace") << true << "12\b3"
                               << "13" << 0;
    QTest::newRow("others beep") << true << "1,2-x 3"
                                 << "123" << 4;
    QTest::newRow("not filtering") << false << "Vide 3"
                                   << "Vide 3" << 0;
}

void tst_controls::onlyNumbersAreTaken()
{
    QFETCH(const bool, filtering);
    QFETCH(const QString, typed);
    QFETCH(const QString, text);
    QFETCH(const int, beeps);
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

void tst_controls::pastedTextIsHeldToTheSame()
{
    NumberBox box;
    QGuiApplication::clipboard()->setText(QStringLiteral("vingt-6"));
    box.setText(QStringLiteral("12"));
    box.paste();
    QCOMPARE(box.text(), QStringLiteral("12"));
    QGuiApplication::clipboard()->setText(QStringLiteral("6"));
    box.paste();
    QCOMPARE(box.text(), QStringLiteral("126"));
}

void tst_controls::focusSelectsAll()
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
    box.setText(QStringLiteral("126"));
    other.setFocus();
    QTest::mouseClick(&box, Qt::LeftButton);
    QCOMPARE(box.selectedText(), QStringLiteral("126"));
    // The next click places the caret as usual.
    QTest::mouseClick(&box, Qt::LeftButton);
    QVERIFY(!box.hasSelectedText());
    other.setFocus();
    box.setFocus(Qt::TabFocusReason);
    QCOMPARE(box.selectedText(), QStringLiteral("126"));
}

void tst_controls::flowWrapsIntoRows_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QList<QPoint>>("places");
    // Three items of 100 by 20 with gaps of 8.
    QTest::newRow("one row") << 316 << QList<QPoint>{{0, 0}, {108, 0}, {216, 0}};
    QTest::newRow("one pixel short") << 315 << QList<QPoint>{{0, 0}, {108, 0}, {0, 28}};
    QTest::newRow("a column") << 100 << QList<QPoint>{{0, 0}, {0, 28}, {0, 56}};
    QTest::newRow("narrower than an item") << 50 << QList<QPoint>{{0, 0}, {0, 28}, {0, 56}};
}

void tst_controls::flowWrapsIntoRows()
{
    QFETCH(const int, width);
    QFETCH(const QList<QPoint>, places);
    QWidget window;
    auto *flow = new FlowLayout(&window);
    flow->setContentsMargins(0, 0, 0, 0);
    flow->setSpacing(8);
    QList<QWidget *> items;
    for (int i = 0; i < 3; ++i) {
        items.append(new QWidget);
        items.last()->setFixedSize(100, 20);
        flow->addWidget(items.last());
    }
    flow->setGeometry(QRect(0, 0, width, 100));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(items.at(i)->pos(), places.at(i));
    QCOMPARE(flow->heightForWidth(width), places.last().y() + 20);
    QCOMPARE(flow->sizeHint(), QSize(316, 20));
}

void tst_controls::filtersAreConverted_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("filters");
    QTest::newRow("one") << "Fichiers Usmira (*.usm)|*.usm"
                         << QStringList{QStringLiteral("Fichiers Usmira (*.usm)")};
    QTest::newRow("two, several patterns")
        << "Page HTML (*.htm)|*.htm;*.html|Tous|*.*"
        << QStringList{QStringLiteral("Page HTML (*.htm *.html)"), QStringLiteral("Tous (*.*)")};
}

void tst_controls::filtersAreConverted()
{
    QFETCH(const QString, filter);
    QFETCH(const QStringList, filters);
    QCOMPARE(dialogFilters(filter), filters);
}

void tst_controls::messageBoxesAnswer_data()
{
    QTest::addColumn<Prompts::Buttons>("buttons");
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("captions");
    QTest::addColumn<Prompts::Answer>("answer");
    using Buttons = Prompts::Buttons;
    using Answer = Prompts::Answer;
    const QStringList all{QStringLiteral("&Oui"), QStringLiteral("&Non"),
                          QStringLiteral("&Annuler")};
    const QStringList ok{QStringLiteral("OK")};
    QTest::newRow("enter is yes") << Buttons::YesNoCancel << int(Qt::Key_Return) << all
                                  << Answer::Yes;
    QTest::newRow("escape is cancel")
        << Buttons::YesNoCancel << int(Qt::Key_Escape) << all << Answer::Cancel;
    QTest::newRow("escape is no") << Buttons::YesNo << int(Qt::Key_Escape) << all.mid(0, 2)
                                  << Answer::No;
    QTest::newRow("enter is ok") << Buttons::Ok << int(Qt::Key_Return) << ok << Answer::Ok;
    QTest::newRow("escape is ok") << Buttons::Ok << int(Qt::Key_Escape) << ok << Answer::Ok;
}

void tst_controls::messageBoxesAnswer()
{
    QFETCH(const Prompts::Buttons, buttons);
    QFETCH(const int, key);
    QFETCH(const QStringList, captions);
    QFETCH(const Prompts::Answer, answer);
    QStringList shown;
    QString text;
    QTimer::singleShot(0, this, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        text = box->text();
        const QList<QAbstractButton *> found = box->buttons();
        for (const QAbstractButton *button : found)
            shown.append(button->text());
        QTest::keyClick(box, Qt::Key(key));
    });
    DialogPrompts prompts;
    const QString asked = QStringLiteral("L'aventure <b>Loup</b> ?");
    QCOMPARE(prompts.message(asked, QStringLiteral("Rappel amical"), buttons), answer);
    QCOMPARE(text, asked);
    shown.sort();
    QStringList expected = captions;
    expected.sort();
    QCOMPARE(shown, expected);
}

QTEST_MAIN(tst_controls)
#include "tst_controls.moc"
