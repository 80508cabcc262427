#include "app/WindowFixture.h"
#include "convert/book/BookCover.h"
#include "convert/book/bookFactsDlog.h"
#include "store/AdventureChanges.h"
#include "support/TestTable.h"

#include <QBuffer>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QPushButton>

namespace
{
QByteArray picture(QSize size, const char *format, QImage::Format pixels = QImage::Format_RGB32)
{
    QImage image(size, pixels);
    image.fill(Qt::darkRed);
    QBuffer buffer;
    image.save(&buffer, format);
    return buffer.data();
}

struct Scene : WindowFixture {
    Scene() : WindowFixture(AdventureBuilder({"1: Un."})) {}

    // Works in the dialog and leaves it by this button.
    void inFacts(const char *button, const std::function<void(QWidget &)> &work)
    {
        bookFactsDlog dialog(variables, prompts, window.get());
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        work(dialog);
        ::click(dialog, button);
    }
    const BookFacts &facts() const { return variables.extras.book; }
};
} // namespace

class tst_bookFacts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void factsAreKeptWithTheAdventure()
    {
        Scene scene;
        const auto nothing = [](QWidget & /*dialog*/) {};
        scene.inFacts("OKButton", nothing);
        QVERIFY(!hasUnsavedChanges(scene.variables));
        const QByteArray png = picture({30, 40}, "png");
        const auto fill = [&](QWidget &dialog) {
            QCOMPARE(child<QLineEdit>(dialog, "txtTitle").placeholderText(), "Le Loup");
            typeOver(child<QLineEdit>(dialog, "txtTitle"), " La Tour ");
            typeOver(child<QLineEdit>(dialog, "txtAuthor"), "Moi");
            child<QComboBox>(dialog, "comboLanguage").setEditText("anglais");
            child<QPlainTextEdit>(dialog, "txtDedication")
                .setPlainText("À toi\xC2\xA0!\nEt à eux.\n");
            child<QPlainTextEdit>(dialog, "txtBefore").setPlainText("avant");
            child<QPlainTextEdit>(dialog, "txtAfter").setPlainText("après");
            scene.prompts.expectFileDialog("Choisir une Image", scene.adventure.file("a.png", png));
            ::click(dialog, "btnChoose");
        };
        scene.prompts.expect("Garder ce que vous avez changé ?", "Songez-y",
                             Prompts::Buttons::YesNoCancel, Prompts::Answer::No);
        scene.inFacts("CancelButton", fill);
        QCOMPARE(scene.facts(), BookFacts());
        scene.inFacts("OKButton", fill);
        QCOMPARE(scene.facts(), (BookFacts{"La Tour", "Moi", "en", "À toi\xC2\xA0!\nEt à eux.",
                                           "avant", "après", png}));
        QVERIFY(hasUnsavedChanges(scene.variables));
        setSaved(scene.variables);
        scene.inFacts("OKButton", nothing);
        QVERIFY(!hasUnsavedChanges(scene.variables));
        scene.inFacts("OKButton", [](QWidget &dialog) { ::click(dialog, "btnRemove"); });
        QVERIFY(scene.facts().cover.isEmpty() && scene.facts().title == "La Tour");
    }

    void aLanguageIsANameOrACode_data()
    {
        addTable<QString, QString>({"typed", "kept"}, {{"code", "fr-CA", "fr-CA"},
                                                       {"of another", "oc", "oc"},
                                                       {"name", "Allemand", "de"},
                                                       {"no code", "français moyen", ""},
                                                       {"nothing", " ", ""}});
    }
    void aLanguageIsANameOrACode()
    {
        QFETCH(const QString, typed);
        QFETCH(const QString, kept);
        Scene scene;
        scene.inFacts("OKButton", [&](QWidget &dialog) {
            child<QComboBox>(dialog, "comboLanguage").setEditText(typed);
            if (kept.isEmpty())
                scene.prompts.expect(
                    "La langue se donne par son nom ou par un code comme fr, en ou fr-CA.", "Zut");
        });
        QCOMPARE(scene.facts().language, kept.isEmpty() ? "fr" : kept);
    }

    void theLargestCoverCanBeRead()
    {
        const QByteArray deep = picture({WidestCover, 3400}, "png", QImage::Format_RGBA64);
        QCOMPARE(coverImage(deep, {50, 50}).size(), QSize(50, 34));
    }

    void whatIsNoCoverLeavesTheOldOne_data()
    {
        const QString none = "Ce fichier n'est pas une image PNG ou JPEG.";
        const QString cut = "Cette image est abîmée ou incomplète.";
        const QString large = "Cette image est trop grande : une couverture a 8 Mo et 5000 points "
                              "de côté au plus.";
        addTable<QByteArray, QString>(
            {"bytes", "text"},
            {{"text", "bonjour", none},
             {"nothing", "", none},
             {"other kind", picture({3, 3}, "bmp"), none},
             {"half a picture", picture({300, 300}, "png").left(200), cut},
             {"half a photograph", picture({300, 300}, "jpeg").chopped(400), cut},
             {"a photograph without its end", picture({300, 300}, "jpeg").chopped(2), cut},
             {"too wide", picture({5001, 1}, "png"), large},
             {"too long", picture({3, 3}, "png") + QByteArray(LargestCover, 'x'), large}});
    }
    void whatIsNoCoverLeavesTheOldOne()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, text);
        const QByteArray old = picture({30, 40}, "jpeg");
        Scene scene;
        AdventureExtras extras;
        extras.book.cover = old;
        changeExtras(scene.variables, extras);
        scene.inFacts("OKButton", [&](QWidget &dialog) {
            scene.prompts.expectFileDialog("Choisir une Image",
                                           scene.adventure.file("a.png", bytes));
            scene.prompts.expect(text, "Zut");
            ::click(dialog, "btnChoose");
        });
        QCOMPARE(scene.facts().cover, old);
    }
};

QTEST_MAIN(tst_bookFacts)
#include "tst_bookFacts.moc"
