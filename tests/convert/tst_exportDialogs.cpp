#include "app/WindowFixture.h"
#include "richtext/HiddenBox.h"
#include "support/TestTable.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QStatusBar>

namespace
{
const QString HtmlKind = "Fichiers HTML (*.htm)|*.htm;htm";
const QString RtfKind = "Fichiers RTF (*.rtf)|*.rtf;rtf";

// Written are 3, 5 and 12; 5 is on the screen, with its end just typed.
struct Scene : WindowFixture {
    Scene() : WindowFixture(AdventureBuilder({"3: Trois.", "5: Cinq", "12: Douze."}).current(5))
    {
        type(" au 3");
    }

    QString in(const char *item, const std::function<void(QDialog &)> &work) const
    {
        return inDialog([&] { trigger(item); }, work);
    }
    QString path(const char *name) const { return adventure.path(name); }
    QString shown(const char *name) const { return QDir::toNativeSeparators(path(name)); }
    QString status() const { return control<QStatusBar>("statusBar").currentMessage(); }
};

// Types over the boxes with these names.
void fill(const QWidget &dialog, std::initializer_list<std::pair<QString, QString>> texts)
{
    for (const auto &[box, text] : texts)
        typeOver(child<QLineEdit>(dialog, box), text);
}

// A wrapped caption in a layout that is too low is cut.
QString cutCaption(const QWidget &dialog)
{
    for (const auto *label : dialog.findChildren<QLabel *>()) {
        if (label->wordWrap() && label->height() < label->heightForWidth(label->width()))
            return label->text();
    }
    return {};
}
} // namespace

class tst_exportDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void menuIsEnabledWhileAnAdventureIsOpen()
    {
        WindowFixture fixture;
        auto &menu = fixture.control<QMenu>("menuConv");
        for (const bool open : {false, true, false}) {
            fixture.variables.AdventureOpen = open;
            Q_EMIT menu.aboutToShow();
            for (const QAction *item : menu.actions())
                QVERIFY(item->isSeparator() || !item->isVisible() || item->isEnabled() == open);
        }
    }

    // That it also leaves the author where he was is seen with the other commands.
    void opensFilledAnewAndLeavesWithoutAWord()
    {
        const Scene scene;
        const std::tuple<const char *, QString, QString> cases[] = {
            {"menuConv1toHTML", "onebigHTML", "Cancel"},
            {"menuConvNtoHTML", "manyHTML", "Cancel"},
            {"menuConvRTF", "convertRTF", "CancelButton"},
            {"menuConvPdf", "bookPdfDlog", "CancelButton"},
            {"menuConvEpub", "epubDlog", "CancelButton"},
            {"menuConvPage", "pageDlog", "CancelButton"}};
        for (const auto &[item, name, cancel] : cases) {
            if (!scene.control<QAction>(item).isVisible())
                continue; // built without it
            const auto leave = [&, button = cancel](const QDialog &dialog) {
                auto &low = child<QLineEdit>(dialog, "txtLow");
                QCOMPARE(low.text() + '|' + child<QLineEdit>(dialog, "txtHigh").text(), "3|12");
                QTRY_VERIFY(low.hasFocus());
                const QPoint away = dialog.geometry().center() - scene.window->geometry().center();
                QVERIFY2(away.manhattanLength() < 48, "not centred on the window");
                click(dialog, button);
                QVERIFY(!dialog.isVisible());
            };
            QCOMPARE(scene.in(item, leave), name);
            QVERIFY(scene.editorHasFocus());
        }
        QCOMPARE(scene.adventure.workingFiles().filter(".rtf"), QStringList("LL-0005.rtf"));
    }

    void captionsAreWholeOnASmallScreen()
    {
        const Scene scene;
        for (const char *item : {"menuConv1toHTML", "menuConvNtoHTML", "menuConvRTF", "menuConvPdf",
                                 "menuConvEpub", "menuConvPage"}) {
            if (!scene.control<QAction>(item).isVisible())
                continue;
            scene.in(item, [&](QDialog &dialog) {
                QFont font = dialog.font();
                font.setPointSize(12);
                dialog.setFont(font);
                dialog.resize(100, 100);
                QTRY_COMPARE(cutCaption(dialog), "");
                QVERIFY2(dialog.width() <= 1000 && dialog.height() <= 540, item);
            });
        }
    }

    // The range is swapped, a cancelled file dialog and a file that cannot be opened end silently
    // and leave the dialog, and each box's code comes where it belongs.
    void oneFileIsWritten()
    {
        Scene scene;
        scene.adventure.file("Dossier Usmira/Début du Fichier Unique.txt", "début\r\né");
        scene.adventure.file("Dossier Usmira/Numéros de Paragraphes.txt", "<999>:");
        scene.adventure.file("Dossier Usmira/Fin de Chaque Paragraphe.txt", "fin");
        scene.in("menuConv1toHTML", [&](const QDialog &dialog) {
            fill(dialog, {{"txtLow", "5.6"}, {"txtHigh", "2"}});
            for (const char *name : {"", "absent/a.htm", "a.htm"}) {
                QVERIFY(dialog.isVisible());
                scene.prompts.expectFileDialog("Enregistrer Fichier HTML",
                                               *name == '\0' ? QString() : scene.path(name),
                                               "Le Loup");
                click(dialog, "HTML");
                QCOMPARE(scene.prompts.fileKind(), HtmlKind);
            }
            QVERIFY(!dialog.isVisible());
        });
        QCOMPARE(scene.adventure.content("a.htm"),
                 "d\xE9"
                 "but\r\n\xE9\r\n<A NAME=\"P0003\"></A>3:<P ALIGN=\"Left\">Trois.\r\n<BR>\r\n"
                 "<A NAME=\"P0005\"></A>5:<P ALIGN=\"Left\">Cinq au "
                 "<A HREF=\"#P0003\">3</A>\r\n<BR>\r\nfin\r\n");
        QCOMPARE(scene.status(), "2 paragraphes écrits : " + scene.shown("a.htm"));
    }

    void pagesGoIntoTheFolderThatIsTyped()
    {
        Scene scene;
        const QString folder = QDir::toNativeSeparators(scene.path("pages/neuves"));
        const QString parent = QDir::toNativeSeparators(scene.path(""));
        const QString offer = "Ce dossier n'existe pas :\n" + folder + "\nLe créer?";
        using Answer = Prompts::Answer;
        scene.in("menuConvNtoHTML", [&](const QDialog &dialog) {
            auto &folderBox = child<QLineEdit>(dialog, "folderBox");
            QCOMPARE(child<QLineEdit>(dialog, "txtPrefix").text(), "LL-");
            scene.prompts.expectFileDialog("Choisissez un Dossier", {}, scene.path(""));
            click(dialog, "btnBrowse");
            QCOMPARE(folderBox.text(), parent);
            const int beeps = scene.prompts.beeps();
            typeOver(folderBox, " ");
            click(dialog, "HTML");
            QCOMPARE(scene.prompts.beeps(), beeps + 1);
            child<QPlainTextEdit>(dialog, "txtHeader").setPlainText("[<999>]");
            child<QPlainTextEdit>(dialog, "txtFooter").setPlainText("{<999>}");
            fill(dialog, {{"txtLow", "12"}, {"txtHigh", "4"}, {"txtPrefix", "p"}});
            typeOver(folderBox, "pages/neuves"); // beside the adventure
            for (const Answer answer : {Answer::No, Answer::Yes}) {
                QVERIFY(dialog.isVisible() && !QFileInfo::exists(folder));
                scene.prompts.expect(offer, "Attention", Prompts::Buttons::YesNo, answer);
                click(dialog, "HTML");
            }
            QVERIFY(!dialog.isVisible());
        });
        QCOMPARE(QDir(folder).entryList(QDir::Files), QStringList({"p0005.htm", "p0012.htm"}));
        QCOMPARE(scene.adventure.content("pages/neuves/p0005.htm"),
                 "[5]<P ALIGN=\"Left\">Cinq au <A HREF=\"p0003.htm\">3</A>\r\n<BR>{<999>}\r\n");
        QCOMPARE(scene.status(), "2 paragraphes écrits : " + folder);
        scene.in("menuConvNtoHTML", [&](const QDialog &dialog) {
            QCOMPARE(child<QLineEdit>(dialog, "folderBox").text(), folder);
            QCOMPARE(child<QLineEdit>(dialog, "txtPrefix").text(), "LL-");
        });
    }

    void sampleShowsTheStyle()
    {
        Scene scene;
        scene.variables.defaultFontName = "Inconnue";
        scene.variables.defaultFontSize = 14;
        scene.in("menuConvRTF", [&](QDialog &dialog) {
            const auto &sample = child<QLabel>(dialog, "demoLabel");
            const auto look = [&sample] {
                const QFont font = sample.font();
                return QString("%1 %2 %3%4%5%6")
                    .arg(font.family())
                    .arg(font.pointSizeF())
                    .arg(font.bold() ? "b" : "", font.italic() ? "i" : "",
                         font.underline() ? "u" : "",
                         sample.alignment() & Qt::AlignHCenter ? "c" : "");
            };
            auto &fonts = child<QComboBox>(dialog, "comboFonts");
            QCOMPARE(fonts.currentText(), "Inconnue");
            QCOMPARE(look(), "Inconnue 14 bc");
            for (const char *box : {"chkBold", "chkItalics", "chkUnderline", "chkCentered"})
                child<QCheckBox>(dialog, box).click();
            QCOMPARE(look(), "Inconnue 14 iu");
            fonts.setCurrentIndex(0);
            const QString first = fonts.itemText(0);
            const QSize size = dialog.size();
            auto &points = child<QLineEdit>(dialog, "txtSize");
            typeOver(points, "99999999");
            QVERIFY(sample.font().pointSizeF() < 1000);
            QCoreApplication::processEvents();
            QCOMPARE(dialog.size(), size);
            for (const char *nothing : {"", "0", "."}) {
                typeOver(points, nothing);
                child<QLineEdit>(dialog, "txtLow").setFocus();
                QCOMPARE(points.text(), "12");
                QCOMPARE(look(), first + " 12 iu");
            }
        });
    }

    void documentIsCompiledInTheChosenStyle()
    {
        Scene scene;
        scene.in("menuConvRTF", [&](const QDialog &dialog) {
            fill(dialog, {{"txtLow", "12"}, {"txtHigh", "4"}, {"txtSize", "20"}});
            child<QComboBox>(dialog, "comboFonts").setEditText("Courier New");
            child<QCheckBox>(dialog, "chkItalics").click();
            auto &wait = child<QLabel>(dialog, "waitLabel");
            QVERIFY(!wait.isVisible());
            QVERIFY(QTest::qWaitForWindowExposed(wait.window()));
            wait.installEventFilter(this);
            for (const char *name : {"", "absent/a.rtf", "a.rtf"}) {
                QVERIFY(dialog.isVisible());
                scene.prompts.expectFileDialog("Enregistrer Fichier RTF",
                                               *name == '\0' ? QString() : scene.path(name),
                                               "Le Loup");
                if (QString(name).startsWith("absent"))
                    scene.prompts.expect("Erreur d'enregistrement du fichier", "BUG");
                m_painted = false;
                click(dialog, "OKButton");
                QCOMPARE(m_painted, *name != '\0');
                QCOMPARE(scene.prompts.fileKind(), RtfKind);
                QVERIFY(!wait.isVisible());
            }
            QVERIFY(!dialog.isVisible());
        });
        HiddenBox document;
        document.loadFile(scene.path("a.rtf"));
        QCOMPARE(document.text(), "5\r\nCinq au 3\r\n\r\n12\r\nDouze.\r\n\r\n");
        document.select(0, 1);
        QCOMPARE(document.selFontName(), "Courier New");
        QCOMPARE(document.selFontSize(), 20.0);
        QVERIFY(document.selBold() == true && document.selItalic() == true);
        QCOMPARE(scene.status(), "2 paragraphes écrits : " + scene.shown("a.rtf"));
    }

    void anEpubIsWritten()
    {
        Scene scene;
        scene.in("menuConvEpub", [&](QDialog &dialog) {
            const auto &book = child<QLabel>(dialog, "lblBook");
            QCOMPARE(book.text(), "Le Loup");
            scene.inDialog([&] { click(dialog, "btnBook"); },
                           [](QDialog &facts) {
                               typeOver(child<QLineEdit>(facts, "txtAuthor"), "Moi");
                               click(facts, "OKButton");
                           });
            QCOMPARE(book.text(), "Le Loup, par Moi");
            fill(dialog, {{"txtLow", "6"}, {"txtHigh", "11"}});
            scene.prompts.expectFileDialog("Enregistrer Livre Numérique", scene.path("a.epub"),
                                           "Le Loup");
            scene.prompts.expect("Aucun paragraphe n'est écrit de 6 à 11.", "Zut");
            click(dialog, "OKButton");
            QVERIFY(dialog.isVisible() && !QFileInfo::exists(scene.path("a.epub")));
            fill(dialog, {{"txtLow", "5"}, {"txtHigh", "12"}});
            child<QAbstractButton>(dialog, "optEach").click();
            scene.prompts.expectFileDialog("Enregistrer Livre Numérique", scene.path("a.epub"),
                                           "Le Loup");
            fill(dialog, {{"txtHigh", ""}}); // left empty, it is what it was
            QTest::keyClick(&child<QLineEdit>(dialog, "txtHigh"), Qt::Key_Return);
            QVERIFY(!dialog.isVisible());
        });
        QVERIFY(scene.adventure.content("a.epub").contains("p0012.xhtml"));
        QCOMPARE(scene.status(), "2 paragraphes écrits : " + scene.shown("a.epub"));
    }

    void aPageForReadingIsWritten()
    {
        Scene scene;
        scene.in("menuConvPage", [&](QDialog &dialog) {
            scene.prompts.expectFileDialog("Enregistrer Page de Lecture", scene.path("a.html"),
                                           "Le Loup");
            click(dialog, "OKButton");
            QVERIFY(!dialog.isVisible());
        });
        QVERIFY(scene.adventure.content("a.html").contains("id=\"die\""));
        QCOMPARE(scene.status(), "3 paragraphes écrits : " + scene.shown("a.html"));
    }

    // With the setup that the next book begins with.
    void aPrintedBookIsWrittenAsItWasShown()
    {
        Scene scene;
        scene.in("menuConvPdf", [&](QDialog &dialog) {
            const auto &place = child<QLabel>(dialog, "lblPlace");
            QTRY_COMPARE(place.text(), "Page 1 de 1");
            child<QCheckBox>(dialog, "chkPageEach").click();
            QTRY_COMPARE(place.text(), "Pages 2 et 3 de 3"); // with paragraph 5, the current one
            click(dialog, "btnBefore");
            QCOMPARE(place.text(), "Page 1 de 3");
            QVERIFY(!child<QAbstractButton>(dialog, "btnBefore").isEnabled());
            child<QCheckBox>(dialog, "chkTwoSided").click();
            QTRY_COMPARE(place.text(), "Pages 1 et 2 de 3");
            auto &paper = child<QComboBox>(dialog, "comboPaper");
            fill(dialog, {{"txtWidth", "60"}});
            QCOMPARE(paper.currentText(), "Autres mesures");
            const QString fault = "Les marges intérieure et extérieure ne laissent pas 25 mm au "
                                  "texte sur un papier large de 50 mm.";
            fill(dialog, {{"txtWidth", "50"}});
            QCOMPARE(child<QLabel>(dialog, "lblFault").text(), fault);
            scene.prompts.expect(fault, "Zut");
            click(dialog, "OKButton");
            fill(dialog, {{"txtWidth", "140"}, {"txtInside", ""}});
            QVERIFY(child<QLabel>(dialog, "lblFault").text().contains("de 0 à 500 mm"));
            fill(dialog, {{"txtInside", "18"}});
            QCOMPARE(paper.currentText(), "14 x 21 cm");
            scene.prompts.expectFileDialog("Enregistrer Livre Imprimable", scene.path("a.pdf"),
                                           "Le Loup");
            click(dialog, "OKButton");
            QVERIFY(!dialog.isVisible());
        });
        QVERIFY(scene.adventure.content("a.pdf").startsWith("%PDF"));
        QVERIFY(scene.status().startsWith("3 paragraphes écrits : " + scene.shown("a.pdf")));
        scene.in("menuConvPdf", [&](QDialog &dialog) {
            QCOMPARE(child<QLineEdit>(dialog, "txtWidth").text(), "140");
            QVERIFY(child<QCheckBox>(dialog, "chkPageEach").isChecked());
            QVERIFY(!child<QCheckBox>(dialog, "chkTwoSided").isChecked());
            click(dialog, "CancelButton");
        });
    }

    void eachBoxHasItsFile_data()
    {
        QTest::addColumn<QString>("control");
        for (const char *box : {"menuConv1toHTML txtHeader 1", "menuConv1toHTML txtFooter 2",
                                "menuConv1toHTML txtNumbers 3", "menuConvNtoHTML txtHeader 1",
                                "menuConvNtoHTML txtFooter 2"})
            QTest::newRow(box) << QString(box);
    }
    void eachBoxHasItsFile()
    {
        QFETCH(const QString, control);
        const QStringList words = control.split(' ');
        const QString &item = words.at(0);
        const QString &box = words.at(1);
        Scene scene;
        const QString kind = item == "menuConv1toHTML" ? "Fichiers TXT (*.txt)|*.txt;txt" : ";";
        scene.in(item.toLatin1(), [&](const QDialog &dialog) {
            const auto choose = [&](const char *title, const QString &button, const QString &path) {
                scene.prompts.expectFileDialog(title, path);
                click(dialog, button + words.at(2));
            };
            const QString file = scene.adventure.file("a.txt", "\xE9t\xE9\xA0!\r\n");
            for (const QString &path : {file, QString(), scene.path("absent.txt"), scene.path("")})
                choose("Ouvrir Fichier Texte", "btnLoad", path);
            for (const QString &path : {QString(), scene.path("absent/c.txt"), scene.path("b.txt")})
                choose("Enregistrer Fichier Texte", "btnSave", path);
            QCOMPARE(scene.prompts.fileKind(), kind);
            QCOMPARE(scene.adventure.content("b.txt"), "\xE9t\xE9\xA0!\r\n\r\n");
            for (const auto *edit : dialog.findChildren<QPlainTextEdit *>())
                QCOMPARE(edit->toPlainText().size(), edit->objectName() == box ? 6 : 0);
        });
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }

private:
    bool m_painted = false; // the label that asks to wait
};

QTEST_MAIN(tst_exportDialogs)
#include "tst_exportDialogs.moc"
