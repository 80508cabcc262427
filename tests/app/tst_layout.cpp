#include "WindowFixture.h"

#include "app/WindowPlacement.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QStatusBar>

namespace
{
template <typename Kind> bool is(const QObject *object)
{
    return qobject_cast<const Kind *>(object) != nullptr;
}

// The named controls that are on the screen, without the parts that Qt makes them of.
QList<QWidget *> controls(const WindowFixture &fixture)
{
    QList<QWidget *> found;
    const QList<QWidget *> all = fixture.window->findChildren<QWidget *>();
    for (QWidget *widget : all) {
        const bool control = is<QAbstractButton>(widget) || is<QLabel>(widget) ||
                             is<QComboBox>(widget) || is<QLineEdit>(widget) ||
                             is<QAbstractScrollArea>(widget);
        if (widget->isVisible() && control && !widget->objectName().startsWith(u"qt_"))
            found.append(widget);
    }
    return found;
}
} // namespace

class tst_layout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QApplication::setFont(m_font); }

    void nothingIsCut_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("panel");
        QTest::addColumn<QFont>("font");
        QTest::newRow("smallest") << QSize(576, 444) << false << m_font;
        QTest::newRow("large") << QSize(3840, 2100) << false << m_font;
        // Desktops have taller and wider letters than the system that we are tried on.
        const QFont fonts[] = {m_font, QFont("Liberation Sans", 11), QFont("DejaVu Sans", 11),
                               QFont("Noto Sans", 9), QFont("Noto Sans", 10)};
        for (const QFont &font : fonts) {
            for (const QSize size : {QSize(576, 444), QSize(1080, 720)})
                QTest::addRow("panel, %s %d, %d", qPrintable(font.family()), font.pointSize(),
                              size.width())
                    << size << true << font;
        }
    }
    void nothingIsCut()
    {
        QFETCH(const QSize, size);
        QFETCH(const bool, panel);
        QFETCH(const QFont, font);
        // This one is no part of the tests' fonts, and on most desktops.
        QFontDatabase::addApplicationFont("/usr/share/fonts/truetype/noto/NotoSans-Regular.ttf");
        if (font != m_font && !QFontDatabase::families().contains(font.family()))
            QSKIP(qPrintable(font.family() + " is not installed"));
        QApplication::setFont(font);
        QString text = QString("1999: ") + QString("un mot ").repeated(600);
        for (int n = 101; n < 213; ++n)
            text += QString(" au %1 au %1").arg(n);
        const WindowFixture fixture(AdventureBuilder({text}).current(1999));
        if (panel)
            fixture.click("btnMore");
        fixture.window->resize(size);
        QTRY_COMPARE(fixture.window->size(), size);
        QTRY_VERIFY(fixture.control<QWidget>("btnCheck").isVisible());
        QCoreApplication::processEvents();
        const auto &behind = fixture.control<QWidget>("labBehind");
        const QList<QWidget *> all = controls(fixture);
        for (const QWidget *control : all) {
            const QByteArray name = control->objectName().toLatin1();
            const QRect place = control->geometry();
            QVERIFY2(control->parentWidget()->rect().contains(place), name);
            // What scrolls may be smaller than it would like, down to what the form says.
            const QSize needed = is<QAbstractScrollArea>(control) ? control->minimumSize()
                                                                  : control->minimumSizeHint();
            QVERIFY2(place.size().expandedTo(needed) == place.size(), name);
            if (const auto *area = qobject_cast<const QScrollArea *>(control))
                QTRY_VERIFY2(area->widget()->width() <= area->viewport()->width(), name);
            for (const QWidget *other : all) {
                if (control != other && control->parentWidget() == other->parentWidget() &&
                    control != &behind && other != &behind)
                    QVERIFY2(!place.intersects(other->geometry()), name);
            }
        }
        fixture.window->resize(100, 100);
        QTRY_COMPARE(fixture.window->size(), QSize(576, 444));
        auto &bar = fixture.control<QStatusBar>("statusBar");
        for (const auto &[words, fits] : {std::pair(1, true), {40, false}, {0, true}}) {
            bar.showMessage(QString("long ").repeated(words));
            QCOMPARE(fixture.control<QWidget>("btnCheck").isVisible(), fits);
        }
    }

    void longTextWrapsWithinThePage()
    {
        WindowFixture fixture;
        const QString line = QString("Une phrase qui remplit les lignes. ").repeated(12);
        fixture.adventure.file("Dossier Usmira/Copyright.rtf", rtfOf((line + "\r\n").repeated(30)));
        fixture.start();
        QTRY_VERIFY(fixture.box().verticalScrollBar()->maximum() > 0);
        QCOMPARE(fixture.box().horizontalScrollBar()->maximum(), 0);
    }

    // Screen readers read the name; a label that is a buddy gives its own.
    void everyControlHasANameAndAToolTip()
    {
        const WindowFixture fixture;
        fixture.click("btnMore");
        const QList<QWidget *> all = controls(fixture);
        QSet<const QWidget *> labelled;
        for (const auto *label : fixture.window->findChildren<QLabel *>())
            labelled.insert(label->buddy());
        for (const QWidget *control : all) {
            const auto *button = qobject_cast<const QAbstractButton *>(control);
            const bool named = !control->accessibleName().isEmpty() || labelled.contains(control) ||
                               (button != nullptr && !button->text().isEmpty());
            const bool needsNone = is<QComboBox>(control->parentWidget()) || is<QLabel>(control);
            QVERIFY2((named || needsNone) && (button == nullptr || !control->toolTip().isEmpty()),
                     qPrintable(control->objectName()));
        }
    }

    void shortcutsOfMenusDiffer()
    {
        const WindowFixture fixture;
        // Keys of commands of the editing box, and the swap's other one.
        QSet<QString> shortcuts{"Ctrl+B", "Ctrl+I", "Ctrl+U", "Ctrl+3"};
        const QList<QAction *> tops = fixture.window->menuBar()->actions();
        QVERIFY(tops.size() >= 6);
        for (const QAction *top : tops)
            for (const QAction *action : top->menu()->actions()) {
                const QString key = action->shortcut().toString(QKeySequence::PortableText);
                QVERIFY2(key.isEmpty() || !shortcuts.contains(key), qPrintable(key));
                shortcuts.insert(key);
            }
    }

    void windowIsPlacedOnAScreen()
    {
        const QList<QRect> screens{{0, 0, 1600, 900}, {1600, 0, 1280, 1024}};
        const std::pair<QRect, QRect> cases[] = {
            {{100, 50, 800, 600}, {100, 50, 800, 600}},
            {{1700, 50, 800, 600}, {1700, 50, 800, 600}},  // on the second
            {{2500, 50, 800, 600}, {2080, 50, 800, 600}},  // over the right edge
            {{-3000, 9000, 800, 600}, {0, 300, 800, 600}}, // on a screen that is gone
            {{10, 10, 1, 1}, {10, 10, 576, 444}},
            {{10, 10, 90000, 90000}, {0, 0, 1600, 900}}};
        for (const auto &[wanted, placed] : cases)
            QCOMPARE(withinScreens(wanted, QSize(576, 444), screens), placed);
    }

private:
    const QFont m_font = QApplication::font();
};

QTEST_MAIN(tst_layout)
#include "tst_layout.moc"
