#include "WindowFixture.h"

#include "editor/options/EditorComfort.h"
#include "store/DamagedTexts.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeView>

namespace
{
// The window of the typography in the open book.
struct Scene {
    explicit Scene(const QStringList &lines) : fixture(AdventureBuilder(lines))
    {
        fixture.trigger("menuComTypography");
        window = &fixture.control<QDialog>("bookTypography");
        list = &child<QTreeView>(*window, "places");
        kinds = &child<QListWidget>(*window, "kinds");
    }

    // "Paragraphe 2 (2): Apostrophes droites|..." of what is seen, once all is looked at.
    QString listed() const
    {
        if (!QTest::qWaitFor([this] { return !state().startsWith("Paragraphes encore"); }))
            return "never";
        QStringList groups;
        const QAbstractItemModel &model = *list->model();
        for (int group = 0; group < model.rowCount(); ++group) {
            const QModelIndex parent = model.index(group, 0);
            QStringList places;
            for (int row = 0; row < model.rowCount(parent); ++row)
                places.append(model.index(row, 2, parent).data().toString());
            groups.append(parent.data().toString() + ": " + places.join(", "));
        }
        return groups.join(u'|');
    }
    QString state() const { return child<QLabel>(*window, "lblState").text(); }
    QModelIndex place(int group, int row) const
    {
        const QModelIndex parent = list->model()->index(group, 0);
        return row < 0 ? parent : list->model()->index(row, 0, parent);
    }
    void check(int group, int row, bool on) const
    {
        list->model()->setData(place(group, row), on ? Qt::Checked : Qt::Unchecked,
                               Qt::CheckStateRole);
    }
    void apply(const QString &told)
    {
        fixture.prompts.expect(told, "Typographie du Livre");
        click(*window, "btnApply");
    }
    QString text(int n)
    {
        QList<int> unreadable;
        return readablePlainText(fixture.variables, n, unreadable).value_or("?");
    }

    WindowFixture fixture;
    QDialog *window = nullptr;
    QTreeView *list = nullptr;
    QListWidget *kinds = nullptr;
};
} // namespace

class tst_typography : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsChosenIsDone()
    {
        Scene scene({"1: L'eau ! Va  au 12.", "3: L'ours et l'eau. Va au  12."});
        QCOMPARE(scene.listed(), "Paragraphe 1 (3): L’eau ! Va  au 12., L'eau⍽! Va  au 12., "
                                 "L'eau ! Va au 12.|Paragraphe 3 (3): L’ours et l'eau. Va au  12., "
                                 "L'ours et l’eau. Va au  12., … l'eau. Va au 12.");
        QCOMPARE(scene.state(), "Choisi : 5."); // the reference is not
        QCOMPARE(scene.kinds->item(4)->text(), "Apostrophes droites : 3");
        scene.check(1, 0, false);
        QCOMPARE(scene.kinds->item(4)->text(), "Apostrophes droites : 2 sur 3");
        QCOMPARE(scene.kinds->item(4)->checkState(), Qt::PartiallyChecked);
        scene.kinds->setCurrentRow(8);
        QCOMPARE(scene.listed(), "Paragraphe 1 (1): L'eau ! Va au 12.");
        scene.check(0, -1, false);
        scene.apply("3 corrections dans 2 paragraphes.");
        QCOMPARE(scene.text(1), "L’eau\u00a0! Va  au 12.");
        QCOMPARE(scene.text(3), "L'ours et l’eau. Va au  12.");
        QCOMPARE(scene.fixture.box().text(), scene.text(1));
        scene.kinds->setCurrentRow(0);
        QCOMPARE(scene.listed(), "Paragraphe 1 (1): L’eau\u00a0! Va au 12.|Paragraphe 3 (2): "
                                 "L’ours et l’eau. Va au  12., … l’eau. Va au 12.");
        QCOMPARE(scene.state(), "Choisi : 0."); // what was left stays left
        scene.kinds->item(12)->setCheckState(Qt::Checked);
        scene.apply("1 correction dans 1 paragraphe.");
        QCOMPARE(scene.text(3), "L'ours et l’eau. Va au 12.");
        scene.fixture.trigger("menuEditTakeBack");
        scene.fixture.trigger("menuEditTakeBack");
        QCOMPARE(scene.text(3), "L'ours et l'eau. Va au  12.");
    }

    void listFollowsTheBook()
    {
        Scene scene({"0: Oui !", "1: Oui.", "2: Ah ?"});
        QCOMPARE(scene.listed(), "Paragraphe 2 (1): Ah⍽?");
        scene.fixture.enter(scene.fixture.field("txtPargNum"), "1");
        scene.fixture.type(" L'eau");
        scene.fixture.window->SaveCurParg();
        QCOMPARE(scene.listed(), "Paragraphe 1 (1): Oui. L’eau|Paragraphe 2 (1): Ah⍽?");
        child<QRadioButton>(*scene.window, "optNarrow").click();
        click(*scene.window, "chkZero");
        QCOMPARE(scene.listed(), "Paragraphe 0 (1): Oui⍽ı!|Paragraphe 1 (1): Oui. L’eau|"
                                 "Paragraphe 2 (1): Ah⍽ı?");
        QVERIFY(scene.fixture.window->comfort().comfort().narrowSpaces);
        scene.list->setCurrentIndex(scene.place(2, 0));
        QTest::keyClick(scene.list, Qt::Key_Return);
        QCOMPARE(scene.fixture.current(), 2);
        QCOMPARE(scene.fixture.box().selText(), " ");
        scene.fixture.type(" Bah"); // unsaved, and not what was looked at
        scene.apply("2 corrections dans 2 paragraphes. Endroits laissés, parce que leur texte a "
                    "changé ou qu'un renvoi en serait devenu un autre : 1.");
        QCOMPARE(scene.listed(), "Paragraphe 2 (1): Ah⍽ı? Bah");
        scene.fixture.open(AdventureBuilder({"7: Oui !"}).bytes());
        QVERIFY(!scene.window->isVisible());
    }

    void optionsActWhileTyping()
    {
        WindowFixture fixture(AdventureBuilder({"1: Oui."}));
        fixture.type(" l'eau !");
        fixture.inDialog([&] { fixture.trigger("menuComOptions"); },
                         [](QDialog &dialog) {
                             child<QCheckBox>(dialog, "insecables").setChecked(true);
                             ::click(dialog, "OKButton");
                         });
        fixture.type(" L'ours ?");
        QCOMPARE(fixture.box().text(), "Oui. l'eau ! L'ours\u00a0?");
        fixture.start(); // the option is kept
        fixture.open(AdventureBuilder({"1: Oui."}).bytes());
        fixture.type(" Ah ! l'");
        QCOMPARE(fixture.box().text(), "Oui. Ah\u00a0! l'");
    }
};

QTEST_MAIN(tst_typography)
#include "tst_typography.moc"
