#include "WindowFixture.h"

#include "check/CheckBook.h"
#include "store/AdventureChanges.h"

#include <QCheckBox>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>
#include <QTreeView>

namespace
{
// The window of the check in the open book.
struct Scene {
    explicit Scene(const QStringList &lines) : fixture(AdventureBuilder(lines))
    {
        fixture.trigger("menuComCheck");
        window = &fixture.control<QDialog>("bookCheck");
        list = &child<QTreeView>(*window, "findings");
    }

    // "Fins (2): 3 7|...".
    QString listed() const
    {
        QStringList groups;
        const QAbstractItemModel &model = *list->model();
        for (int group = 0; group < model.rowCount(); ++group) {
            const QModelIndex parent = model.index(group, 0);
            QString text = parent.data().toString() + u':';
            for (int row = 0; row < model.rowCount(parent); ++row)
                text += u' ' + model.index(row, 0, parent).data().toString();
            groups.append(text);
        }
        return groups.join(u'|');
    }
    // Chooses a finding, or a group when there is no row.
    QModelIndex choose(int group, int row = -1) const
    {
        const QModelIndex parent = list->model()->index(group, 0);
        const QModelIndex index = row < 0 ? parent : list->model()->index(row, 0, parent);
        list->setCurrentIndex(index);
        return index;
    }
    QString current() const { return list->currentIndex().siblingAtColumn(0).data().toString(); }
    QString state(const char *label = "lblState") const
    {
        return child<QLabel>(*window, label).text();
    }
    QPushButton &button(const char *name) const { return child<QPushButton>(*window, name); }
    QString counts() const { return fixture.control<QPushButton>("btnCheck").text(); }
    QString selected() const { return fixture.box().selText(); }
    void starts(const char *text) const
    {
        fixture.enter(child<QLineEdit>(*window, "txtStarts"), text);
    }

    WindowFixture fixture;
    QDialog *window = nullptr;
    QTreeView *list = nullptr;
};
} // namespace

class tst_bookCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listFollowsTheBook()
    {
        Scene scene({"1: Il faut partir : au 2 ou au 9.", "2: Tout est fini, vous dormez enfin.",
                     "3: Personne ne vient jamais ici, au 2."});
        const QString before = "Renvois à un paragraphe vide (1): 1|"
                               "Paragraphes où aucune lecture n'arrive (1): 3|Fins (1): 2";
        QCOMPARE(scene.listed(), before);
        QCOMPARE(scene.counts(), "Contrôle : 2 fautes, 1 remarque");
        scene.choose(2, 0);
        scene.fixture.type(" Ou bien au 3.");
        scene.fixture.window->SaveCurParg();
        QTRY_COMPARE(scene.listed(), "Renvois à un paragraphe vide (1): 1|Fins (1): 2");
        QCOMPARE(scene.current(), "2"); // the choice stays
        QCOMPARE(scene.counts(), "Contrôle : 1 faute, 1 remarque");
        scene.fixture.inDialog([&] { scene.fixture.trigger("menuComSwap"); },
                               [](QDialog &dialog) {
                                   typeOver(child<QLineEdit>(dialog, "txtOne"), "2");
                                   typeOver(child<QLineEdit>(dialog, "txtTwo"), "40");
                                   ::click(dialog, "OKButton");
                               });
        QTRY_COMPARE(scene.listed(), "Renvois à un paragraphe vide (1): 1|Fins (1): 40");
        QCOMPARE(scene.current(), "40");
        scene.fixture.open(AdventureBuilder({"7: Tout est fini, vous dormez enfin."}).bytes());
        QTRY_COMPARE(scene.listed(), "Fins (1): 7");
        QCOMPARE(scene.state("lblStartsNote"), "");
        scene.fixture.trigger("menuEditSelectAll");
        scene.fixture.box().cut();
        scene.fixture.window->SaveCurParg();
        QTRY_COMPARE(scene.listed(), "Livre sans fin (1): 1");
    }

    void keysGoToTheVeryPlaces()
    {
        Scene scene({"1: Il faut partir au plus vite.", "2: Un mot, puis au 77, ou au 78.",
                     "30: Allez donc vite au 2."});
        scene.window->reject();
        auto &box = scene.fixture.box();
        const auto press = [&](Qt::KeyboardModifiers keys = {}) {
            scene.fixture.window->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(scene.fixture.window.get()));
            QTest::keyClick(&box, Qt::Key_F8, keys);
        };
        press(); // opens the window
        QVERIFY(scene.window->isVisible());
        QCOMPARE(scene.listed(), "Renvois à un paragraphe vide (2): 2 2|"
                                 "Paragraphes où aucune lecture n'arrive (2): 2 30|Fins (1): 1");
        press();
        QCOMPARE(scene.selected(), "au 77");
        press();
        QCOMPARE(scene.selected(), "au 78");
        press(Qt::ShiftModifier);
        QCOMPARE(scene.selected(), "au 77");
        press(Qt::ShiftModifier); // round
        QCOMPARE(scene.fixture.current(), 1);
        QCOMPARE(scene.selected(), "Il faut partir au plus vite.");
        press();
        QTest::keyClicks(&box, "au 30"); // mends what is selected, so that the next is the next
        press();
        QCOMPARE(scene.selected(), "au 78");
        scene.choose(0, 0);
        box.setText("Bien des mots devant, puis encore au 78."); // unsaved
        QTest::keyClick(scene.list, Qt::Key_Return);
        QCOMPARE(scene.selected(), "au 78");
    }

    void endingsAreAcceptedInOneGo()
    {
        Scene scene({"1: Il faut partir : au 2 ou au 3.", "2: Tout est fini, vous dormez enfin.",
                     "3: Tout est perdu, vous coulez à pic."});
        QCOMPARE(scene.listed(), "Fins (2): 2 3");
        scene.choose(0);
        scene.button("btnAccept").click();
        QCOMPARE(scene.listed(), "");
        QCOMPARE(scene.counts(), "Contrôle : 0 faute, 0 remarque");
        QVERIFY(hasUnsavedChanges(scene.fixture.variables));
        child<QCheckBox>(*scene.window, "chkAccepted").click();
        QCOMPARE(scene.listed(), "Fins (2): 2 3");
        scene.choose(0, 1);
        QCOMPARE(scene.button("btnAccept").text(), "Ne plus &accepter");
        scene.button("btnAccept").click();
        QCOMPARE(scene.counts(), "Contrôle : 0 faute, 1 remarque");
        child<QToolButton>(*scene.window, "btnRemarks").click();
        QCOMPARE(scene.listed(), "");
    }

    void mendsAreOneCommandThatIsTakenBack()
    {
        Scene scene({"1: Allez au12 maintenant, ou bien voir 12.", "12: Allez au  1, revenez donc.",
                     "13: Allez à la page 1 du livre, ou au 1."});
        QVERIFY(scene.listed().contains("Renvois douteux (1): 12|Renvois qui ne sont pas suivis"));
        const auto text = [&](int n) {
            scene.fixture.window->LoadParg(n);
            return scene.fixture.box().text();
        };
        scene.list->selectAll();
        scene.button("btnMend").click();
        QCOMPARE(text(1), "Allez au 12 maintenant, ou bien voir au 12.");
        QCOMPARE(text(12), "Allez au 1, revenez donc.");
        QVERIFY(!scene.listed().contains("douteux"));
        scene.fixture.trigger("menuEditTakeBack");
        QCOMPARE(text(1), "Allez au12 maintenant, ou bien voir 12.");
        QCOMPARE(text(12), "Allez au  1, revenez donc.");
    }

    void startsAreAField()
    {
        Scene scene({"3: Il faut partir, ou rester au 3.", "5: Un autre récit commence au 3."});
        const auto &field = child<QLineEdit>(*scene.window, "txtStarts");
        QCOMPARE(field.text(), "3");
        scene.starts("3, 5");
        QCOMPARE(scene.fixture.variables.extras.starts, QList<int>({3, 5}));
        QVERIFY(!scene.listed().contains("arrive"));
        scene.starts("3 loup");
        QCOMPARE(scene.state("lblStartsNote"),
                 "« loup » n'est pas un numéro de 1 à 2000 : rien n'a changé.");
        QCOMPARE(field.text(), "3 loup");
        QCOMPARE(scene.fixture.variables.extras.starts, QList<int>({3, 5}));
        scene.starts("8");
        QCOMPARE(scene.state("lblStartsNote"), "Sans texte : 8. Le contrôle part donc du 3.");
    }

    // The slips of the sample are there on purpose, and its endings are accepted in its file.
    void sampleHasItsSlipsAndATrapThatIsAdded()
    {
        QFile sample(QString(USMIRA_RESOURCES) + "/samples/La Dernière Tournée.usm");
        QVERIFY(sample.open(QIODevice::ReadOnly));
        Scene scene({"1: Rien."});
        scene.fixture.open(sample.readAll());
        const QString slips = "Renvois à un paragraphe vide (1): 33|"
                              "Paragraphes où aucune lecture n'arrive (1): 23";
        QTRY_COMPARE(scene.listed(), slips);
        const std::array<std::pair<int, const char *>, 3> added{
            {{33, " Ou bien au 201."},
             {201, "Le courant vous emporte au 202."},
             {202, "Le remous vous rejette au 201."}}};
        for (const auto &[n, text] : added) {
            scene.fixture.window->LoadParg(n);
            scene.fixture.type(text);
            scene.fixture.window->SaveCurParg();
        }
        QTRY_COMPARE(scene.listed(), slips + "|Pièges d'où aucune fin n'est possible (1): 201");
        const Variables &book = scene.fixture.variables; // checked from the beginning
        const QList<Finding> all = CheckBook(book, plainTexts(book)).findings;
        QCOMPARE(scene.counts(), "Contrôle : " + findingCounts(all));
    }

    void listIsSavedAsItIsShown()
    {
        Scene scene({"1: Tout est fini, vous dormez enfin."});
        const QString path = scene.fixture.adventure.path("constats.csv");
        scene.fixture.prompts.expectFileDialog("Enregistrer la Liste", path, "Le Loup constats");
        scene.button("btnSave").menu()->actions().last()->trigger();
        QCOMPARE(scene.fixture.prompts.fileKind(), "Fichiers CSV (*.csv)|*.csv;csv");
        QVERIFY(scene.fixture.adventure.content("constats.csv").contains("\"fin\";\"1\";"));
        QCOMPARE(scene.state(), "Enregistré : " + path);
    }
};

QTEST_MAIN(tst_bookCheck)
#include "tst_bookCheck.moc"
