#include "WindowFixture.h"

#include "editor/language/SpellingUnderlines.h"
#include "language/spelling/Spelling.h"
#include "store/AdventureChanges.h"

#include <QComboBox>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTreeView>
#include <limits>

namespace
{
constexpr qint64 NoLimit = std::numeric_limits<qint64>::max();

// The window of spelling in the open book.
struct Scene {
    explicit Scene(const QStringList &lines) : fixture(AdventureBuilder(lines))
    {
        fixture.trigger("menuComSpelling");
        window = &fixture.control<QDialog>("bookSpelling");
        words = &child<QTreeView>(*window, "words");
        places = &child<QListView>(*window, "places");
    }

    // "guerier 2: 1, 3|...".
    QString listed() const
    {
        QStringList rows;
        const QAbstractItemModel &model = *words->model();
        for (int row = 0; row < model.rowCount(); ++row)
            rows.append(QString("%1 %2: %3")
                            .arg(model.index(row, 0).data().toString(),
                                 model.index(row, 1).data().toString(),
                                 model.index(row, 2).data().toString()));
        return rows.join(u'|');
    }
    void choose(int row) const { words->setCurrentIndex(words->model()->index(row, 0)); }
    void by(const char *text) const
    {
        child<QComboBox>(*window, "comboBy").setEditText(QString::fromUtf8(text));
    }
    void press(const char *button) const { child<QPushButton>(*window, button).click(); }
    QString textOf(int n) const
    {
        fixture.window->LoadParg(n);
        return fixture.box().text();
    }

    WindowFixture fixture;
    QDialog *window = nullptr;
    QTreeView *words = nullptr;
    QListView *places = nullptr;
};

// The doubtful words of the box, each by its beginning and end, as they are known.
QString marks(const SpellingUnderlines &underlines, int length)
{
    QString all;
    for (int at = 0; at < length; ++at)
        if (const auto word = underlines.at(at); word && word->begin == at)
            all += QString("%1-%2 ").arg(word->begin).arg(word->end);
    return all;
}

// Whether anything in the box is as red as a wave.
bool hasWave(RtfBox &box)
{
    const QImage page = box.viewport()->grab().toImage();
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x)
            if (const QColor c = page.pixelColor(x, y); c.red() > 180 && c.green() < 120)
                return true;
    return false;
}

QMenu *menuAtCaret(RtfBox &box)
{
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
    QCoreApplication::sendEvent(&box, &event);
    return box.findChild<QMenu *>();
}

QAction *actionOf(const QMenu &menu, const QString &text)
{
    for (QAction *action : menu.actions())
        if (action->text() == text)
            return action;
    return nullptr;
}
} // namespace

class tst_bookSpelling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsReplacesAndKeeps()
    {
        Scene scene({"1: Le guerier Elric et l’epée.", "3: Un guerier, un guerier d’Elric.",
                     "5: Rien à redire."});
        QCOMPARE(scene.listed(), "guerier 3: 1, 3|Elric 2: 1, 3|epée 1: 1");
        scene.words->sortByColumn(0, Qt::AscendingOrder);
        QCOMPARE(scene.listed(), "Elric 2: 1, 3|epée 1: 1|guerier 3: 1, 3");
        scene.choose(0);
        scene.press("btnAddToAdventure");
        QCOMPARE(scene.fixture.variables.extras.words, QStringList{"Elric"});
        QCOMPARE(scene.listed(), "epée 1: 1|guerier 3: 1, 3");
        scene.choose(1);
        scene.places->setCurrentIndex(scene.places->model()->index(2, 0));
        scene.by("guerrier");
        scene.press("btnReplace");
        QCOMPARE(scene.textOf(3), "Un guerier, un guerrier d’Elric.");
        QCOMPARE(scene.listed(), "epée 1: 1|guerier 2: 1, 3");
        scene.press("btnReplaceAll");
        QCOMPARE(scene.textOf(1), "Le guerrier Elric et l’epée.");
        QCOMPARE(scene.listed(), "epée 1: 1");
        scene.fixture.trigger("menuEditTakeBack");
        QCOMPARE(scene.listed(), "epée 1: 1|guerier 2: 1, 3");
        scene.choose(1);
        scene.places->setCurrentIndex(scene.places->model()->index(1, 0));
        scene.press("btnIgnore");
        QCOMPARE(scene.listed(), "epée 1: 1|guerier 1: 1");
        scene.press("btnAddToOwn");
        QCOMPARE(scene.listed(), "epée 1: 1");
        QVERIFY(scene.fixture.adventure.workingFiles().contains("Usmira Mots.xyz"));
    }

    void followsTheTextsAndShowsPlaces()
    {
        Scene scene({"1: Bon.", "7: Là un guerier passe."});
        QTest::keyClick(scene.words, Qt::Key_Return);
        QCOMPARE(scene.fixture.current(), 7);
        QCOMPARE(scene.fixture.box().selText(), "guerier");
        QTest::keyClicks(&scene.fixture.box(), "ogrre");
        scene.fixture.window->SaveCurParg();
        QCOMPARE(scene.listed(), "ogrre 1: 7");
        QTRY_COMPARE(child<QComboBox>(*scene.window, "comboBy").currentText(), "ogre");
        scene.window->close();
        scene.fixture.trigger("menuComSpelling");
        QCOMPARE(scene.listed(), "ogrre 1: 7");
        scene.fixture.open(AdventureBuilder({"1: Autre."}).bytes());
        QVERIFY(!scene.window->isVisible());
    }

    void ignoredWordsGoWithTheirParagraph()
    {
        Scene scene({"1: Un zzqx.", "2: Un zzqx."});
        Spelling(scene.fixture.variables).ignore(1, "zzqx");
        QCOMPARE(scene.listed(), "zzqx 1: 2");
        scene.fixture.inDialog([&] { scene.fixture.trigger("menuComSwap"); },
                               [](QDialog &dialog) {
                                   typeOver(child<QLineEdit>(dialog, "txtOne"), "1");
                                   typeOver(child<QLineEdit>(dialog, "txtTwo"), "2");
                                   ::click(dialog, "OKButton");
                               });
        QCOMPARE(scene.listed(), "zzqx 1: 1");
    }

    void withoutADictionaryItIsTold()
    {
        WindowFixture fixture(AdventureBuilder({"1: Un zzqx."}));
        fixture.inDialog([&] { fixture.trigger("menuComOptions"); },
                         [](QDialog &dialog) {
                             auto &combo = child<QComboBox>(dialog, "comboDictionary");
                             combo.setItemData(combo.currentIndex(), "klingon");
                             ::click(dialog, "OKButton");
                         });
        fixture.prompts.expect(
            "Le dictionnaire « klingon » n'est pas installé : l'orthographe n'est pas vérifiée.",
            "Orthographe");
        fixture.trigger("menuComSpelling");
        QVERIFY(!hasWave(fixture.box()));
    }

    void underlinesComeWhenTheWordIsLeft()
    {
        const WindowFixture fixture(AdventureBuilder({"1: Un ."}));
        RtfBox &box = fixture.box();
        auto &underlines = *box.findChild<SpellingUnderlines *>();
        QTRY_VERIFY(underlines.isRead());
        box.select(3, 0);
        QTest::keyClicks(&box, "zzqx");
        QTRY_VERIFY(underlines.isRead());
        QVERIFY(underlines.at(5) && !hasWave(box));
        box.moveCursor(QTextCursor::End);
        QVERIFY(hasWave(box));
        box.select(5, 0);
        QVERIFY(hasWave(box)); // nothing of it is changed
        QTest::keyClick(&box, Qt::Key_Backspace);
        QVERIFY(!hasWave(box));
        const QByteArray rtf = box.rtf();
        box.moveCursor(QTextCursor::End);
        fixture.trigger("menuEditSpelling");
        QVERIFY(!hasWave(box) && !fixture.window->comfort().comfort().spelling);
        QCOMPARE(box.rtf(), rtf);
    }

    void editsLeaveTheMarksOfAFreshReading()
    {
        const WindowFixture fixture(AdventureBuilder({"1: Un."}));
        RtfBox &box = fixture.box();
        auto &underlines = *box.findChild<SpellingUnderlines *>();
        Spelling spelling(fixture.variables);
        QVERIFY(spelling.bringUp());
        QTRY_VERIFY(underlines.isRead());
        QRandomGenerator random(7);
        const QStringList pieces{
            "zz",   "épée", " ",  "'",  "-",       "<b",     "<",
            ">",    "\n",   "@",  "un", "e\u0301", "\u00AD", "zzqx ogre <i>rr</i> d’epée\nzz",
            "</b>", ",",    "://"};
        for (int step = 0; step < 3000; ++step) {
            QTextCursor cursor(box.document());
            const int length = box.document()->characterCount() - 1;
            cursor.setPosition(static_cast<int>(random.bounded(length + 1)));
            const int other = cursor.position() + static_cast<int>(random.bounded(9)) - 4;
            cursor.setPosition(std::clamp(other, 0, length), QTextCursor::KeepAnchor);
            const int choice = static_cast<int>(random.bounded(40));
            if (choice == 0)
                box.undo();
            else if (choice < 25 && length < 300)
                cursor.insertText(pieces.at(choice % pieces.size()));
            else
                cursor.removeSelectedText();
            if (step % 3 == 0)
                continue; // several changes between two readings
            underlines.readFor(NoLimit);
            SpellingUnderlines fresh(fixture.variables, spelling, box, [](auto) { return false; });
            fresh.readFor(NoLimit);
            const int end = box.document()->characterCount();
            QCOMPARE(marks(underlines, end), marks(fresh, end));
        }
    }

    void theMenuReplacesAndAdds()
    {
        const WindowFixture fixture(
            AdventureBuilder({"1: ."}).rawText(1, "{\\rtf1 Un {\\b guerier} orik orik.}"));
        RtfBox &box = fixture.box();
        auto &underlines = *box.findChild<SpellingUnderlines *>();
        QTRY_VERIFY(underlines.isRead());
        box.select(5, 0);
        QMenu *menu = menuAtCaret(box);
        QVERIFY(menu != nullptr && actionOf(*menu, "Ajouter à mon dictionnaire") != nullptr);
        QTRY_VERIFY(actionOf(*menu, "guerrier") != nullptr);
        actionOf(*menu, "guerrier")->trigger();
        QCOMPARE(box.text(), "Un guerrier orik orik.");
        QVERIFY(box.rtf().contains("\\b guerrier") && fixture.variables.ParagraphDirty);
        box.undo();
        QCOMPARE(box.text(), "Un guerier orik orik.");
        delete menu;
        QTRY_VERIFY(underlines.isRead());
        box.select(13, 0);
        menu = menuAtCaret(box);
        actionOf(*menu, "Ignorer ici")->trigger();
        QCOMPARE(fixture.variables.extras.ignored, (QList<IgnoredWord>{{1, "orik"}}));
        delete menu;
        QTRY_VERIFY(underlines.isRead() && !underlines.at(13) && underlines.at(5));
        box.select(0, 0);
        menu = menuAtCaret(box); // over a word that is right there are no such entries
        QVERIFY(menu == nullptr || actionOf(*menu, "Ignorer ici") == nullptr);
    }
};

QTEST_MAIN(tst_bookSpelling)
#include "tst_bookSpelling.moc"
