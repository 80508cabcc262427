#include "convert/rtf/CompileCommand.h"
#include "outil/HeadlessView.h"
#include "platform/OpenedFile.h"
#include "store/AdventureFile.h"
#include "store/ReferenceIndex.h"
#include "support/AdventureBuilder.h"
#include "support/PromptRecorder.h"
#include "support/TestTable.h"

#include <QDir>
#include <QTest>
#include <filesystem>

namespace
{
class CaptionView : public HeadlessView
{
public:
    using HeadlessView::HeadlessView;
    void begin(const QString &caption, Stopping /*stopping*/) override { captions.append(caption); }

    QStringList captions;
};

// Paragraphs 3, 7 and 12, with a document "livre.rtf" that is there already.
struct Scene {
    Scene() { open(texts()); }

    static AdventureBuilder texts()
    {
        return AdventureBuilder({"3: x", "7: x", "12: x"})
            .rawText(3, "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red255\\green0\\blue0;}"
                        "\\f0\\fs20 au {\\b 7}\\par\\pard\\ls1\\cf1 puce}")
            .rawText(7, "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red0\\green0\\blue255;}"
                        "\\pard\\li720\\fi-200\\ri100\\tx900\\f0\\fs40\\cf1\\strike\\'e9t\\'e9}")
            .rawText(12, "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0\\pard\\qc\\fs36\\b Fin\\par"
                         "\\pard\\qr\\plain\\i X\\par}");
    }

    void open(const AdventureBuilder &builder)
    {
        v.AdventurePath = adventure.file("a.usm", builder.bytes());
        v.FilePrefix = "a-";
        takeOver(v, readAdventure(std::make_shared<OpenedFile>(v.AdventurePath)));
    }

    bool compile(double first, double second, const NumberStyle &style, const QString &name)
    {
        return compileToRtf({v, prompts, view}, {first, second, adventure.path(name)}, style)
            .has_value();
    }

    QByteArray document() const { return adventure.content("livre.rtf"); }

    TestAdventure adventure;
    Variables &v = adventure.variables;
    PromptRecorder prompts;
    CaptionView view{v};
    const QString old = adventure.file("livre.rtf", "ancien");
};

const NumberStyle Plain{"", 0, false, false, false, false};
} // namespace

class tst_rtfCompilation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingReachesFromOnePartIntoTheNext()
    {
        Scene scene;
        QVERIFY(scene.compile(3, 12, {"Verdana", 14, false, true, true, true}, "livre.rtf"));
        QCOMPARE(scene.view.captions, QStringList("Conversion en Cours Veuillez Attendre"));
        QCOMPARE(scene.document(),
                 "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deftab720{\\fonttbl{\\f0\\fnil Verdana;}"
                 "{\\f1\\fnil Arial;}{\\f2\\fnil Times New Roman;}}\r\n"
                 "{\\colortbl\\red0\\green0\\blue0;\\red255\\green0\\blue0;"
                 "\\red0\\green0\\blue255;}\r\n"
                 "{\\*\\listtable{\\list\\listtemplateid1\\listsimple1{\\listlevel\\levelnfc23"
                 "\\leveljc0\\levelfollow0\\levelstartat1{\\leveltext\\'01\\'95;}{\\levelnumbers;}"
                 "\\fi-360\\li360}{\\listname ;}\\listid1}}\r\n"
                 "{\\*\\listoverridetable{\\listoverride\\listid1\\listoverridecount0\\ls1}}\r\n"
                 "\\deflang1036\\pard\\qc \\f0\\plain\\f0\\fs28\\i\\ul 3\r\n"
                 "\\par \\pard \\f0\\plain\\f1\\fs20 au \\f0\\plain\\f1\\fs20\\b 7\r\n"
                 "\\par \\pard\\li360\\fi-360\\ls1 \\f0\\plain\\f1\\fs20\\cf1 puce\r\n"
                 "\\par \\pard \\f0\\plain\\f2\\fs24 \r\n"
                 "\\par \\pard\\qc \\f0\\plain\\f0\\fs28\\i\\ul 7\r\n"
                 "\\par \\pard\\li720\\fi-200\\ri100\\tx900 \\f0\\plain\\f1\\fs40\\cf2\\strike "
                 "\\'e9t\\'e9\r\n"
                 "\\par \\pard \\f0\\plain\\f2\\fs24 \r\n"
                 "\\par \\pard\\qc \\f0\\plain\\f0\\fs28\\i\\ul 12\r\n"
                 "\\par \\f0\\plain\\f1\\fs36\\b Fin\r\n"
                 "\\par \\pard\\qr \\f0\\plain\\f1\\fs24\\i X\r\n"
                 "\\par \\pard \\f0\\plain\\f2\\fs24 \r\n"
                 "\\par \r\n"
                 "\\par }");
    }

    // 7 is in the document, 20 is not, and nobody has written 83.
    void referencesBecomeLinks()
    {
        Scene scene;
        scene.open(
            AdventureBuilder({"7: x", "12: fin", "20: fin"})
                .rawText(7, "{\\rtf1 x au {\\b 1}2, au 20, au 83\\par\\pard\\qc{\\i  au 7}!}"));
        RebuildReferenceIndex(scene.v, [](int, int) {});
        QVERIFY(compileToRtf({scene.v, scene.prompts, scene.view},
                             {7, 12, scene.adventure.path("livre.rtf")}, Plain, RtfLinks::With));
        const QByteArray document = scene.document();
        QCOMPARE(document.sliced(document.indexOf("\\deflang")),
                 "\\deflang1036\\pard \\f0\\plain\\f0\\fs24 7{\\*\\bkmkstart P0007}"
                 "{\\*\\bkmkend P0007}\r\n"
                 "\\par x au {\\field{\\*\\fldinst{HYPERLINK \\\\l \"P0012\"}}{\\fldrslt\\cs1 "
                 "\\f0\\plain\\f0\\fs24\\cs1\\b 1\\f0\\plain\\f0\\fs24\\cs1 2}}, au 20, au 83\r\n"
                 "\\par \\pard\\qc \\f0\\plain\\f0\\fs24\\i  au {\\field{\\*\\fldinst{HYPERLINK "
                 "\\\\l \"P0007\"}}{\\fldrslt\\cs1 7}}\\f0\\plain\\f0\\fs24 !\r\n"
                 "\\par \\pard \\f0\\plain\\f0\\fs24 \r\n"
                 "\\par 12{\\*\\bkmkstart P0012}{\\*\\bkmkend P0012}\r\n"
                 "\\par fin\r\n\\par \r\n\\par \r\n\\par }");
        HiddenBox linked;
        linked.setRtf(document);
        QVERIFY(scene.compile(7, 12, Plain, "livre.rtf"));
        HiddenBox plain;
        plain.setRtf(scene.document());
        QCOMPARE(linked.rtf(), plain.rtf());
        QVERIFY(!scene.document().contains("P0007"));
    }

    void theRangeIsLenient_data()
    {
        addTable<double, double, QString>({"first", "second", "lines"},
                                          {{"exchanged", 9, 0, "3|au 7|puce||7|été||"},
                                           {"rounded and cut", 6.5, 1e9, "7|été||12|Fin|X||"},
                                           {"one", 12, 12, "12|Fin|X||"},
                                           {"none written", 4, 6, ""}});
    }
    void theRangeIsLenient()
    {
        QFETCH(double, first);
        QFETCH(double, second);
        Scene scene;
        QVERIFY(scene.compile(first, second, Plain, "livre.rtf"));
        HiddenBox box;
        box.setRtf(scene.document());
        QTEST(box.text().replace("\r\n", "|"), "lines");
    }

    void unreadableTextsLeaveTheOldFile()
    {
        Scene scene;
        scene.open(Scene::texts().rawText(3, "no RTF").rawText(12, ""));
        scene.v.Extracted.at(7) = 1; // its working file is missing
        scene.prompts.expect("Erreur de lecture de fichier. Paragraphes illisibles : 3, 7.", "BUG");
        QVERIFY(!scene.compile(1, 12, Plain, "livre.rtf"));
        QCOMPARE(scene.document(), "ancien");
    }

    void aDocumentThatCannotBeSavedIsTold()
    {
        Scene scene;
        scene.prompts.expect("Erreur d'enregistrement du fichier", "BUG");
        QVERIFY(!scene.compile(1, 12, Plain, "nulle part/livre.rtf"));
        scene.prompts.expect("Erreur d'enregistrement du fichier", "BUG");
        QVERIFY(!scene.compile(1, 12, Plain, "Dossier Usmira"));
    }

    void ownFilesAreRefused_data()
    {
        addTable<QString, bool>(
            {"name", "refused"},
            {{"the adventure", "a.usm", true},
             {"by a detour, replaced meanwhile", "Dossier Usmira/../a.usm", true},
             {"by a link", "link.rtf", true},
             {"by a hard link", "hard.rtf", true},
             {"moved away meanwhile", "moved.rtf", true},
             {"a working file", "Dossier Usmira/a-0003.rtf", true},
             {"by a hard link to a working file", "working.rtf", true},
             {"by a link to a working file to come", "dangling.rtf", true},
             {"through a linked folder", "folder/a-2000.rtf", true},
             {"another adventure's", "Dossier Usmira/LTdI-0007.rtf", true},
             {"the journal", "Dossier Usmira/Session/Journal.xyz", true},
             {"an author's file", "Dossier Usmira/Tome-2001.rtf", false},
             {"such a name elsewhere", "a-0003.rtf", false}});
    }
    void ownFilesAreRefused()
    {
#ifdef Q_OS_WIN
        QSKIP("Windows lets administrators alone make links");
#endif
        namespace fs = std::filesystem;
        QFETCH(QString, name);
        QFETCH(bool, refused);
        Scene scene;
        const fs::path folder(scene.adventure.path("").toStdString());
        const QString working = scene.adventure.file("Dossier Usmira/a-0003.rtf", "{\\rtf1 texte}");
        QVERIFY(QDir(scene.v.WorkingFolder).mkdir("Session"));
        fs::create_symlink("a.usm", folder / "chain");
        fs::create_symlink("chain", folder / "link.rtf");
        fs::create_hard_link(folder / "a.usm", folder / "hard.rtf");
        fs::create_symlink("Dossier Usmira/a-0012.rtf", folder / "dangling.rtf");
        fs::create_symlink("Dossier Usmira", folder / "folder");
        fs::create_hard_link(working.toStdString(), folder / "working.rtf");
        if (name == "moved.rtf")
            fs::rename(folder / "a.usm", folder / "moved.rtf");
        if (name == "Dossier Usmira/../a.usm")
            scene.adventure.file("a.usm", "une autre");
        const QByteArray before = scene.adventure.content(name);
        if (refused)
            scene.prompts.expect("Erreur pendant l'écriture du fichier.", "BUG");
        QCOMPARE(scene.compile(1, 12, Plain, name), !refused);
        QCOMPARE(scene.adventure.content(name) == before, refused);
        QVERIFY(refused || scene.adventure.content(name).startsWith("{\\rtf1"));
    }
};

QTEST_MAIN(tst_rtfCompilation)
#include "tst_rtfCompilation.moc"
