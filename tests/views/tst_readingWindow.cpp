#include "app/WindowFixture.h"
#include "store/AdventureChanges.h"
#include "store/ParagraphTexts.h"
#include "support/TestTable.h"
#include "views/reading/LineList.h"
#include "views/reading/ReadingPage.h"

#include <QMenu>
#include <QScrollBar>

namespace
{
// 5 is empty, 3 and 6 are endings, 4 leads in a ring.
AdventureBuilder forest()
{
    return AdventureBuilder({"1: Le bois. Va au 2, au 4 ou au 2.", "2: La fosse. Va au 3 ou au 5.",
                             "3: Fin.", "4: Le pont. Va au 1, au 6 ou au 4.", "6: Le bac."})
        .list(1, "0002/0004/0002/")
        .list(2, "0003/0005/")
        .list(4, "0001/0006/0004/");
}

class ReadingFixture : public WindowFixture
{
public:
    explicit ReadingFixture(const AdventureBuilder &builder) : WindowFixture(builder)
    {
        trigger("menuComReading");
        QVERIFY(QTest::qWaitForWindowActive(&reading()));
    }
    QDialog &reading() const { return control<QDialog>("readingWindow"); }
    ReadingPage &page() const { return control<ReadingPage>("page"); }
    QString told() const { return label("lblState"); }
    QString read() const { return label("lblRead"); }
    void edit(int n) const { enter(field("txtPargNum"), QByteArray::number(n)); }
    // Keys that work in all of the window need it to be the active one.
    void activate() const
    {
        reading().activateWindow();
        QVERIFY(QTest::qWaitFor([this] { return QApplication::activeWindow() == &reading(); }));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers keys = {}) const
    {
        activate();
        QTest::keyClick(&page(), key, keys);
    }
    void clickLine(const char *list, int row) const
    {
        const auto &lines = control<LineList>(list);
        const QRect line = lines.visualRect(lines.model()->index(row, 0));
        QTest::mouseClick(lines.viewport(), Qt::LeftButton, {}, line.center());
    }
    QStringList lines(const char *list) const
    {
        QStringList texts;
        const auto &model = *control<LineList>(list).model();
        for (int row = 0; row < model.rowCount(); ++row)
            texts.append(model.index(row, 0).data().toString());
        return texts;
    }
    // "1 [2] 3": the way, and where the reader is on it.
    QString way() const
    {
        QStringList numbers;
        for (const QString &line : lines("way"))
            numbers.append(QString(line).remove(QChar(0x2713)).trimmed().section(u' ', 0, 0));
        const int row = control<LineList>("way").currentRow();
        if (row >= 0)
            numbers[row] = u'[' + numbers.at(row) + u']';
        return numbers.join(u' ');
    }
};
} // namespace

class tst_readingWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choicesLeadOn()
    {
        ReadingFixture fixture(forest());
        QCOMPARE(fixture.page().text(), "Le bois. Va au 2, au 4 ou au 2.");
        QCOMPARE(fixture.lines("choices").size(), 2);
        QVERIFY(fixture.lines("choices").at(1).startsWith("[2]  4  Le pont."));
        fixture.press(Qt::Key_3);
        QCOMPARE(fixture.prompts.beeps(), 1);
        fixture.press(Qt::Key_1);
        QCOMPARE(fixture.page().text(), "La fosse. Va au 3 ou au 5.");
        fixture.press(Qt::Key_Eacute); // 2 on French keyboards
        QCOMPARE(fixture.told(), "Le paragraphe 5 est encore vide.");
        QCOMPARE(fixture.way(), "1 [2]");
        fixture.press(Qt::Key_Tab);
        fixture.press(Qt::Key_Return);
        QCOMPARE(fixture.way(), "1 2 [3]");
        QCOMPARE(fixture.told(), "Fin : aucun renvoi ne part d'ici.");
        fixture.press(Qt::Key_Backspace);
        fixture.press(Qt::Key_Home);
        QCOMPARE(fixture.way(), "[1] 2 3");
        fixture.clickLine("choices", 1);
        QCOMPARE(fixture.way(), "1 [4]");
        QTest::mouseClick(fixture.page().viewport(), Qt::LeftButton, {},
                          fixture.page().rect().center()); // no link
        QCOMPARE(fixture.way(), "1 [4]");
        fixture.press(Qt::Key_Right, Qt::AltModifier);
        QCOMPARE(fixture.way(), "1 2 [3]");
        fixture.clickLine("way", 1);
        QCOMPARE(fixture.way(), "1 [2] 3");
        QVERIFY(fixture.lines("choices").first().startsWith(QStringLiteral("[1]  \u2713 3")));
    }

    void linksAreToldApartAndClicked()
    {
        const ReadingFixture fixture(forest());
        fixture.press(Qt::Key_1);
        const QList<QTextEdit::ExtraSelection> links = fixture.page().extraSelections();
        QCOMPARE(links.size(), 2);
        QCOMPARE(links.at(0).cursor.selectedText(), "3");
        QVERIFY(!links.at(0).format.fontStrikeOut() && links.at(1).format.fontStrikeOut());
        QVERIFY(links.at(0).format.foreground() != links.at(1).format.foreground());
        QTextCursor number(fixture.page().document());
        number.setPosition(links.at(0).cursor.selectionStart());
        const QPoint place = fixture.page().cursorRect(number).center() + QPoint(3, 0);
        QTest::mouseClick(fixture.page().viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(fixture.way(), "1 2 [3]");
        fixture.press(Qt::Key_Backspace);
        QVERIFY(fixture.page().extraSelections().at(0).format.foreground() !=
                links.at(0).format.foreground()); // it was taken
    }

    void theWritingIsFollowed()
    {
        ReadingFixture fixture(forest());
        fixture.press(Qt::Key_1);
        fixture.edit(2);
        fixture.type(QByteArray("\r").repeated(60) + "Enfin, va au 6.");
        fixture.edit(5);
        fixture.type("La source.");
        fixture.edit(1);
        QCOMPARE(fixture.lines("choices").size(), 3);
        QVERIFY(fixture.lines("choices").at(1).contains("5  La source."));
        fixture.page().verticalScrollBar()->setValue(200);
        fixture.edit(2);
        fixture.type(" Tard.");
        fixture.edit(1);
        QVERIFY(fixture.page().text().endsWith("va au 6. Tard."));
        QCOMPARE(fixture.page().verticalScrollBar()->value(), 200);
        fixture.inDialog([&] { fixture.trigger("menuComSwap"); },
                         [&](QDialog &dialog) {
                             typeOver(child<QLineEdit>(dialog, "txtOne"), "2");
                             typeOver(child<QLineEdit>(dialog, "txtTwo"), "6");
                             ::click(dialog, "OKButton");
                         });
        QCOMPARE(fixture.way(), "1 [6]");
        QCOMPARE(fixture.page().verticalScrollBar()->value(), 200);
        fixture.open(AdventureBuilder({"7: Seul."}).bytes());
        QCOMPARE(fixture.way(), "");
        QCOMPARE(fixture.page().text(), "");
        fixture.press(Qt::Key_1);
        fixture.press(Qt::Key_Home);
        QCOMPARE(fixture.way(), "[7]");
    }

    void theAuthorWritesWhereHeReads()
    {
        const ReadingFixture fixture(AdventureBuilder({"1: Un.", "2: Ici. Va au 1. Va au 3."}));
        fixture.edit(2);
        fixture.trigger("menuComReading");
        fixture.edit(1);
        fixture.press(Qt::Key_Tab);
        fixture.press(Qt::Key_Tab);
        fixture.press(Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(fixture.current(), 2);
        QCOMPARE(fixture.box().selStart(), 20); // at the second number
        QVERIFY(fixture.editorHasFocus());
        fixture.box().select(0, 0);
        fixture.press(Qt::Key_Return, Qt::ControlModifier); // it is shown already
        QCOMPARE(fixture.box().selStart(), 20);
    }

    void whatWasReadBelongsToTheAdventure()
    {
        ReadingFixture fixture(forest());
        fixture.press(Qt::Key_2);
        QCOMPARE(fixture.read(), "Lus : 2 sur 5");
        ::click(fixture.reading(), "btnUnread"); // 6 is nearer than 2
        QCOMPARE(fixture.way(), "1 4 [6]");
        ::click(fixture.reading(), "btnUnread");
        QCOMPARE(fixture.told(),
                 "D'ici, tout est lu ; depuis le début, il reste 2 paragraphes à lire.");
        fixture.press(Qt::Key_Home);
        ::click(fixture.reading(), "btnUnread");
        ::click(fixture.reading(), "btnUnread");
        QCOMPARE(fixture.way(), "1 2 [3]");
        ::click(fixture.reading(), "btnUnread");
        QCOMPARE(fixture.told(), "Tout est lu.");
        fixture.reading().hide();
        QVERIFY(hasUnsavedChanges(fixture.variables));
        fixture.trigger("menuAvSave");
        fixture.open(fixture.adventure.content("Le Loup.usm"));
        fixture.trigger("menuComReadingStart");
        QCOMPARE(fixture.read(), "Lus : 5 sur 5");
        fixture.prompts.expect(
            "Oublier quels paragraphes ont été lus, et par quels choix ? Les marque-pages restent.",
            "Oublier les lectures", Prompts::Buttons::YesNo, Prompts::Answer::Yes);
        ::click(fixture.reading(), "btnForget");
        QCOMPARE(fixture.read(), "Lus : 0 sur 5");
    }

    void whatWasReadIsThereBeforeTheProgramAsks()
    {
        ReadingFixture fixture(forest());
        fixture.press(Qt::Key_1);
        fixture.prompts.expect(
            "ATTENTION : Vous n'avez pas enregistré l'aventure Le Loup.usm. Voulez-vous le "
            "faire? Sinon, vous perdrez tous les changements!",
            "Rappel amical", Prompts::Buttons::YesNoCancel, Prompts::Answer::Cancel);
        fixture.window->close();
        QCOMPARE(fixture.variables.extras.reading.read, QList<int>({1, 2}));
    }

    void oddBooksAreRead()
    {
        QString all;
        QByteArray index;
        for (int n = 1; n <= 2000; ++n) {
            all += QStringLiteral(" au %1").arg(n);
            index += fourDigits(n).toLatin1() + '/';
        }
        const auto book = [](const QStringList &lines, const QByteArray &list) {
            return AdventureBuilder(lines).list(1, list);
        };
        const char *const keys =
            "1 à 9 : choisir ; Retour arrière : revenir ; Début : recommencer.";
        const Table<AdventureBuilder, const char *, const char *, const char *> rows{
            {"nothing", AdventureBuilder(), "Ce paragraphe est vide.", "Il n'y a rien à lire.", ""},
            {"one", AdventureBuilder({"1: Seul."}), "Fin : aucun renvoi ne part d'ici.",
             "Au hasard : 1 paragraphe jusqu'à une fin.", ""},
            {"ring", book({"1: Va au 2.", "2: Va au 1."}, "0002/").list(2, "0001/"), keys,
             "Au hasard : arrêté après 3 paragraphes, car la lecture tourne en rond : 1, 2.", keys},
            {"to nothing", book({"1: Va au 9."}, "0009/"), keys,
             "Au hasard : 1 paragraphe, puis un renvoi à un paragraphe vide.",
             "Le paragraphe 9 est encore vide."},
            {"2000 references", book({"1:" + all}, index), keys, "",
             "Le paragraphe 2 est encore vide."},
        };
        for (const auto &[name, adventure, first, atRandom, chosen] : rows) {
            ReadingFixture fixture(adventure);
            QCOMPARE(fixture.told(), first);
            ::click(fixture.reading(), "btnRandom");
            if (*atRandom != 0)
                QCOMPARE(fixture.told(), atRandom);
            ::click(fixture.reading(), "btnUnread");
            fixture.press(Qt::Key_Home);
            QVERIFY(fixture.way().startsWith("[1]"));
            fixture.press(Qt::Key_1);
            if (*chosen != 0)
                QCOMPARE(fixture.told(), chosen);
        }
    }

    void anUnreadableTextIsTold()
    {
        const ReadingFixture fixture(forest());
        fixture.edit(2);
        fixture.type("Partie.");
        fixture.edit(1);
        QVERIFY(QFile::remove(extractedTextPath(fixture.variables, 2)));
        fixture.press(Qt::Key_1);
        QCOMPARE(fixture.told(), "Le texte de ce paragraphe est illisible.");
        QCOMPARE(fixture.page().text(), "");
    }

    void ofSeveralStartsOneIsChosen()
    {
        const ReadingFixture fixture(forest());
        AdventureExtras extras = fixture.variables.extras;
        extras.starts = {4, 5, 2}; // 5 is empty
        changeExtras(fixture.variables, extras);
        fixture.press(Qt::Key_Home);
        const auto *menu = fixture.reading().findChild<QMenu *>();
        QVERIFY(menu != nullptr);
        QCOMPARE(menu->actions().size(), 2);
        menu->actions().at(1)->trigger();
        QCOMPARE(fixture.way(), "[2]");
    }

    void bookmarksAreGoneBackTo()
    {
        const ReadingFixture fixture(forest());
        auto &list = fixture.control<QListWidget>("bookmarks");
        const auto enter = [&](const char *name) {
            auto *edit = list.findChild<QLineEdit *>();
            QVERIFY(edit != nullptr);
            typeOver(*edit, name);
            QTest::keyClick(edit, Qt::Key_Return);
            QTRY_VERIFY(list.findChild<QLineEdit *>() == nullptr);
        };
        fixture.press(Qt::Key_2);
        fixture.activate();
        ::click(fixture.reading(), "btnMark");
        enter("Le 9e pont"); // the digit chooses nothing
        QCOMPARE(fixture.entries("bookmarks"), "Le 9e pont");
        fixture.press(Qt::Key_2);
        ::click(fixture.reading(), "btnMark");
        enter("   ");
        QCOMPARE(fixture.entries("bookmarks"), "Le 9e pont|6 : Le bac.");
        list.setCurrentRow(0);
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(fixture.way(), "1 [4] 6");
        ::click(fixture.reading(), "btnUnmark");
        QCOMPARE(fixture.entries("bookmarks"), "6 : Le bac.");
        QCOMPARE(fixture.variables.extras.reading.bookmarks.first().way, QList<int>({1, 4, 6}));
    }
};

QTEST_MAIN(tst_readingWindow)
#include "tst_readingWindow.moc"
