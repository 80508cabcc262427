#include "WindowFixture.h"

#include "app/WindowPlacement.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QSet>

namespace
{
QChar mnemonicOf(const QString &caption)
{
    for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
        if (caption.at(i) != u'&')
            continue;
        if (caption.at(i + 1) != u'&')
            return caption.at(i + 1).toLower();
        ++i;
    }
    return {};
}

bool isControl(const QWidget *widget)
{
    return qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QLabel *>(widget) ||
           qobject_cast<const QComboBox *>(widget) || qobject_cast<const QLineEdit *>(widget) ||
           qobject_cast<const QAbstractScrollArea *>(widget);
}

// The named controls that are on the screen, without the parts that Qt makes them of.
QList<QWidget *> controls(const WindowFixture &fixture)
{
    QList<QWidget *> found;
    const QList<QWidget *> all = fixture.window->findChildren<QWidget *>();
    for (QWidget *widget : all) {
        if (widget->isVisible() && isControl(widget) && !widget->objectName().startsWith(u"qt_"))
            found.append(widget);
    }
    return found;
}
} // namespace

class tst_layout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsCut_data();
    void nothingIsCut();
    void windowIsNoSmallerThanItsSmallestSize();
    void editorTakesTheRoom();
    void longTextWrapsWithinThePage();
    void everyControlHasANameAndAToolTip();
    void mnemonicsDifferWithinAMenu();
    void shortcutsDiffer();
    void windowIsPlacedOnAScreen_data();
    void windowIsPlacedOnAScreen();
};

void tst_layout::nothingIsCut_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("panel");
    QTest::newRow("smallest") << QSize(576, 444) << false;
    QTest::newRow("smallest with the panel") << QSize(576, 444) << true;
    QTest::newRow("usual with the panel") << QSize(1080, 720) << true;
    QTest::newRow("large") << QSize(3840, 2100) << false;
}

void tst_layout::nothingIsCut()
{
    QFETCH(const QSize, size);
    QFETCH(const bool, panel);
    const WindowFixture fixture(AdventureBuilder({QStringLiteral("1: Un.")}));
    if (panel)
        fixture.click("btnMore");
    fixture.window->resize(size);
    QTRY_COMPARE(fixture.window->size(), size);
    QCoreApplication::processEvents();
    const QList<QWidget *> all = controls(fixture);
    for (const QWidget *control : all) {
        const QByteArray name = control->objectName().toLatin1();
        QVERIFY2(control->parentWidget()->rect().contains(control->geometry()), name);
        // What scrolls may be smaller than it would like, down to what the form says.
        const bool scrolls = qobject_cast<const QAbstractScrollArea *>(control) != nullptr;
        const QSize needed = scrolls ? control->minimumSize() : control->minimumSizeHint();
        QVERIFY2(control->width() >= needed.width() && control->height() >= needed.height(), name);
        for (const QWidget *other : all) {
            const bool siblings = control->parentWidget() == other->parentWidget();
            if (control == other || !siblings || name == "labBehind" ||
                other->objectName() == QStringLiteral("labBehind"))
                continue;
            QVERIFY2(!control->geometry().intersects(other->geometry()), name);
        }
    }
}

void tst_layout::windowIsNoSmallerThanItsSmallestSize()
{
    const WindowFixture fixture;
    fixture.window->resize(100, 100);
    QTRY_COMPARE(fixture.window->size(), QSize(576, 444));
}

void tst_layout::editorTakesTheRoom()
{
    const WindowFixture fixture;
    const int before = fixture.box().width();
    fixture.click("btnMore");
    QTRY_VERIFY(fixture.box().width() < before);
    const auto &panel = fixture.control<QWidget>("frameTabPanel");
    QVERIFY(panel.mapTo(fixture.window.get(), QPoint()).x() >
            fixture.box().mapTo(fixture.window.get(), QPoint(fixture.box().width(), 0)).x());
    fixture.click("btnMore");
    QTRY_COMPARE(fixture.box().width(), before);
}

void tst_layout::longTextWrapsWithinThePage()
{
    WindowFixture fixture;
    const QString paragraph = QStringLiteral("Une phrase qui remplit les lignes. ").repeated(12);
    fixture.adventure.file(QStringLiteral("Dossier Usmira/Copyright.rtf"),
                           rtfOf((paragraph + QStringLiteral("\r\n")).repeated(30)));
    fixture.start();
    const RtfBox &box = fixture.box();
    QTRY_VERIFY(box.verticalScrollBar()->maximum() > 0);
    QCOMPARE(box.horizontalScrollBar()->maximum(), 0);
}

// Screen readers read the name; a label that is a buddy gives its own.
void tst_layout::everyControlHasANameAndAToolTip()
{
    const WindowFixture fixture;
    fixture.click("btnMore");
    const QList<QWidget *> all = controls(fixture);
    QSet<const QWidget *> labelled;
    for (const QWidget *control : all) {
        if (const auto *label = qobject_cast<const QLabel *>(control))
            labelled.insert(label->buddy());
    }
    for (const QWidget *control : all) {
        const auto *button = qobject_cast<const QAbstractButton *>(control);
        const bool named = !control->accessibleName().isEmpty() || labelled.contains(control) ||
                           (button != nullptr && !button->text().isEmpty());
        const bool inside = qobject_cast<const QComboBox *>(control->parentWidget()) != nullptr;
        const bool label = qobject_cast<const QLabel *>(control) != nullptr;
        QVERIFY2(named || label || inside, qPrintable(control->objectName()));
        QVERIFY2(button == nullptr || !control->toolTip().isEmpty(),
                 qPrintable(control->objectName()));
    }
}

void tst_layout::mnemonicsDifferWithinAMenu()
{
    const WindowFixture fixture;
    QList<QList<QAction *>> menus{fixture.window->menuBar()->actions()};
    for (const QAction *top : std::as_const(menus.first()))
        menus.append(top->menu()->actions());
    QVERIFY(menus.size() >= 6);
    for (const QList<QAction *> &menu : std::as_const(menus)) {
        QSet<QChar> used;
        for (const QAction *action : menu) {
            const QChar mnemonic = mnemonicOf(action->text());
            QVERIFY2(mnemonic.isNull() || !used.contains(mnemonic), qPrintable(action->text()));
            used.insert(mnemonic);
        }
    }
}

void tst_layout::shortcutsDiffer()
{
    const WindowFixture fixture;
    // Keys of commands of the editing box, and of those of the functions menu that come later.
    QSet<QString> used;
    for (const char *key : {"B", "I", "U", "3", "L", "G", "D", "M", "H", "P", "E", "T", "J", "F"})
        used.insert(QStringLiteral("Ctrl+") + QLatin1String(key));
    const QList<QAction *> actions = fixture.window->findChildren<QAction *>();
    for (const QAction *action : actions) {
        const QString key = action->shortcut().toString(QKeySequence::PortableText);
        if (key.isEmpty() || !action->objectName().startsWith(u"menu"))
            continue;
        QVERIFY2(!used.contains(key), qPrintable(key));
        used.insert(key);
    }
}

void tst_layout::windowIsPlacedOnAScreen_data()
{
    QTest::addColumn<QRect>("wanted");
    QTest::addColumn<QRect>("placed");
    QTest::newRow("inside") << QRect(100, 50, 800, 600) << QRect(100, 50, 800, 600);
    QTest::newRow("on the second") << QRect(1700, 50, 800, 600) << QRect(1700, 50, 800, 600);
    QTest::newRow("over the right edge") << QRect(2500, 50, 800, 600) << QRect(2080, 50, 800, 600);
    QTest::newRow("on a screen that is gone")
        << QRect(-3000, 9000, 800, 600) << QRect(0, 300, 800, 600);
    QTest::newRow("too small") << QRect(10, 10, 1, 1) << QRect(10, 10, 576, 444);
    QTest::newRow("too large") << QRect(10, 10, 90000, 90000) << QRect(0, 0, 1600, 900);
}

void tst_layout::windowIsPlacedOnAScreen()
{
    QFETCH(const QRect, wanted);
    QFETCH(const QRect, placed);
    const QList<QRect> screens{{0, 0, 1600, 900}, {1600, 0, 1280, 1024}};
    QCOMPARE(withinScreens(wanted, QSize(576, 444), screens), placed);
}

QTEST_MAIN(tst_layout)
#include "tst_layout.moc"
