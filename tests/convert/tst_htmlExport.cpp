#include "convert/epub/EpubCommand.h"
#include "convert/html/CodeSnippet.h"
#include "convert/html/HtmlCommands.h"
#include "convert/page/PageCommand.h"
#include "outil/HeadlessView.h"
#include "platform/Errors.h"
#include "platform/FileBatch.h"
#include "platform/OpenedFile.h"
#include "store/AdventureFile.h"
#include "support/AdventureBuilder.h"
#include "support/PromptRecorder.h"
#include "support/TestTable.h"

#include <QDir>
#include <QFile>
#include <QTest>

namespace
{
// Paragraphs 2, 7 and 30; 7 leads to 30 and to the unwritten 8.
struct Scene {
    explicit Scene(const AdventureBuilder &builder =
                       AdventureBuilder({"2: Début", "7: Va au 30 ou au 8", "30: Fin"}))
    {
        const QString path = adventure.file("a.usm", builder.bytes());
        takeOver(v, readAdventure(std::make_shared<OpenedFile>(path)));
        v.AdventurePath = path;
        v.AdventureFileName = QStringLiteral("Œil & <999>.usm");
        v.FilePrefix = QStringLiteral("a-");
    }

    bool one(double first, double second, const HtmlCodes &codes, const QString &name)
    {
        return exportToOneFile({v, prompts, view}, {first, second, adventure.path(name)}, codes);
    }
    bool many(const HtmlCodes &codes, const QString &prefix, const QString &folder)
    {
        return exportToManyFiles({v, prompts, view}, {1, 2000, adventure.path(folder)}, codes,
                                 prefix);
    }

    TestAdventure adventure;
    Variables &v = adventure.variables;
    PromptRecorder prompts;
    HeadlessView view{v};
};
} // namespace

class tst_htmlExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneFile_data()
    {
        const QString two = "<A NAME=\"P0002\"></A>[2|2]<P ALIGN=\"Left\">D&#233;but<BR>\r\n";
        const QString seven =
            "<A NAME=\"P0007\"></A>[7|7]<P ALIGN=\"Left\">Va au <A HREF=\"#P0030\">30</A> ou "
            "au <A HREF=\"#P0008\">8</A><BR>\r\n";
        const QString thirty = "<A NAME=\"P0030\"></A>[30|30]<P ALIGN=\"Left\">Fin<BR>\r\n";
        addTable<double, double, QString>({"first", "second", "body"},
                                          {{"all", 1, 2000, two + seven + thirty},
                                           {"swapped and rounded", 29.6, 6.5, seven + thirty},
                                           {"nothing written", 8, 29, ""}});
    }
    void oneFile()
    {
        Scene scene;
        QFETCH(double, first);
        QFETCH(double, second);
        QFETCH(QString, body);
        QVERIFY(scene.one(first, second, {"tête <AVENTURE>\nici", "[<999>|<999>]", "pied <999>"},
                          "a.htm"));
        const QString html =
            QString::fromLatin1(scene.adventure.content("a.htm")).replace("\r\n<BR>", "<BR>");
        QCOMPARE(html, "tête \u008cil &amp; &lt;999&gt;\r\nici\r\n" + body + "pied <999>\r\n");
    }

    void manyFiles()
    {
        Scene scene;
        QVERIFY(QDir().mkpath(scene.adventure.path("pages")));
        scene.adventure.file("pages/É-0030.htm", "old");
        QVERIFY(scene.many({"<AVENTURE> <999>:", "unused", "(<999>)"}, "É-", "pages"));
        const QDir folder(scene.adventure.path("pages"));
        QCOMPARE(folder.entryList(QDir::Files).join(u' '), "É-0002.htm É-0007.htm É-0030.htm");
        const QByteArray seven = scene.adventure.content("pages/É-0007.htm");
        QVERIFY2(seven.startsWith("\x8cil &amp; &lt;999&gt; 7:<P ALIGN=\"Left\">Va au <A "
                                  "HREF=\"\xc9-0030.htm\">30</A>"),
                 seven);
        QVERIFY(seven.endsWith("(<999>)\r\n"));
        QVERIFY(scene.adventure.content("pages/É-0030.htm").contains("Fin"));
    }

    void stoppedExportWritesNothing()
    {
        struct Impatient : HeadlessView {
            using HeadlessView::HeadlessView;
            bool progress(int done, int /*total*/) override { return done >= 7; }
            void announce(const QString &text) override { announced.append(text); }
            QStringList announced;
        };
        Scene scene;
        Impatient view(scene.v);
        const ExportCommand command(scene.v, scene.prompts, view);
        scene.adventure.file("a.htm", "old");
        QVERIFY(QDir().mkpath(scene.adventure.path("p")));
        QVERIFY(!exportToOneFile(command, {1, 2000, scene.adventure.path("a.htm")}, {}));
        QVERIFY(!exportToManyFiles(command, {1, 2000, scene.adventure.path("p")}, {}, {}));
        QVERIFY(!exportToEpub(command, {1, 2000, scene.adventure.path("a.htm")}, {}));
        QVERIFY(!exportToPage(command, {1, 2000, scene.adventure.path("a.htm")}, true));
        const QString stopped = "Conversion arrêtée : aucun fichier n'a été écrit.";
        QCOMPARE(view.announced, QStringList({stopped, stopped, stopped, stopped}));
        QCOMPARE(scene.adventure.content("a.htm"), "old");
        QVERIFY(QDir(scene.adventure.path("p")).isEmpty());
    }

    void theHeaderChoosesTheCharset_data()
    {
        addTable<QString, QByteArray>(
            {"header", "written"},
            {{"none", "é ⇒", "\xe9 &#8658;"},
             {"UTF-8", "<meta charset=\"UTF-8\"> é ⇒", "<meta charset=\"UTF-8\"> é ⇒"},
             {"UTF-8, old form", "'charset=utf8' é", "'charset=utf8' é"}});
    }
    void theHeaderChoosesTheCharset()
    {
        Scene scene;
        QFETCH(QString, header);
        QFETCH(QByteArray, written);
        QVERIFY(scene.one(8, 9, {header, {}, {}}, "a.htm"));
        QCOMPARE(scene.adventure.content("a.htm"), written + "\r\n\r\n");
    }

    // Texts in which the pass would lose something are made ours, others go out as they are.
    void noWordIsMissing_data()
    {
        addTable<QByteArray, QByteArray>(
            {"body", "html"},
            {{"no space, no body", "{\\b Gras}\\par\r\n", "<P ALIGN=\"Left\"><B>Gras\r\n<BR></B>"},
             {"early end", "\\b a \\} b\\b0  c", "<P ALIGN=\"Left\"><B>a &#125; b</B> c\r\n<BR>"},
             {"escapes", "a\\'e9 \\{b\\} c", "<P ALIGN=\"Left\">a&#233; &#123;b&#125; c\r\n<BR>"},
             {"signs in a run", "l\\rquote\\b eau", "<P ALIGN=\"Left\">l&#146;<B>eau\r\n<BR></B>"},
             {"bullets alone", "{\\pntext\\'B7\\tab}{\\*\\pn\\pnlvlblt}\\fi-360\\li360 a",
              "<P ALIGN=\"Left\">&#149;&nbsp;a\r\n<BR>"},
             {"nothing lost", "\\b a\\b0  <I>x</I> & c\r\n\\par d",
              "<B>a <I>x</I> & c\r\n<BR>d</B>"}});
    }
    void noWordIsMissing()
    {
        QFETCH(QByteArray, body);
        Scene scene(AdventureBuilder({"2: x"}).rawText(2, "{\\rtf1 " + body + '}'));
        QVERIFY(scene.one(1, 9, {}, "a.htm"));
        QFETCH(QByteArray, html);
        QCOMPARE(scene.adventure.content("a.htm"),
                 "\r\n<A NAME=\"P0002\"></A>" + html + "\r\n\r\n");
    }

    void failuresKeepTheOldFiles_data()
    {
        addTable<QString, QString>(
            {"target", "message"},
            {{"the adventure", "a.usm", "Erreur pendant l'écriture du fichier."},
             {"a working file", "Dossier Usmira/a-0007.rtf",
              "Erreur pendant l'écriture du fichier."},
             {"no folder, said nowhere", "none/a.htm", ""},
             {"damaged text", "old.htm", "Erreur de lecture de fichier."}});
    }
    void failuresKeepTheOldFiles()
    {
        QFETCH(QString, target);
        QFETCH(QString, message);
        const bool damage = target == "old.htm";
        const AdventureBuilder builder({"2: x", "7: y"});
        Scene scene(damage ? AdventureBuilder(builder).rawText(7, "no RTF") : builder);
        scene.adventure.file("old.htm", "old");
        scene.adventure.file("Dossier Usmira/a-0007.rtf", "old");
        const QByteArray before = scene.adventure.content(target);
        if (!message.isEmpty())
            scene.prompts.expect(message, "BUG");
        QVERIFY(!scene.one(1, 9, {}, target));
        QCOMPARE(scene.adventure.content(target), before);
        if (damage) {
            scene.adventure.file("a-0002.htm", "old page");
            scene.prompts.expect(message, "BUG");
            QVERIFY(!scene.many({}, "a-", "."));
            QCOMPARE(scene.adventure.content("a-0002.htm"), "old page");
        }
        QVERIFY(QDir(scene.adventure.path(".")).entryList({"*part*", "*htm.*"}).isEmpty());
    }

    void snippetsKeepTheirEncoding_data()
    {
        const QByteArray declaring = "charset=Windows-1252";
        addTable<QByteArray, QString, QByteArray>(
            {"file", "added", "saved"},
            {{"UTF-8", "é\r\nü", "", "é\r\nü\r\n"},
             {"beyond Windows-1252", "\xe9", "⇒", "é⇒\r\n"},
             {"ASCII, then UTF-8", "e", "é", "eé\r\n"},
             {"ASCII, then as declared", declaring, "é", declaring + "\xe9\r\n"}});
    }
    void snippetsKeepTheirEncoding()
    {
        TestAdventure adventure;
        QFETCH(QByteArray, file);
        QFETCH(QString, added);
        const QString path = adventure.file("s.txt", file);
        CodeSnippet snippet = readSnippet(path);
        snippet.text += added;
        saveSnippet(path, snippet);
        QTEST(adventure.content("s.txt"), "saved");
        QCOMPARE(readSnippet(adventure.path("absent.txt")).text, QString());
    }

    void aBatchFollowsLinksAndLeavesReadOnlyFiles()
    {
#ifdef Q_OS_WIN
        QSKIP("what Qt calls a link there is a file of the Explorer");
#endif
        TestAdventure adventure;
        const QString real = adventure.file("real.htm", "old");
        QVERIFY(QFile::link(real, adventure.path("link.htm")));
        FileBatch batch;
        batch.add(adventure.path("link.htm"), "new");
        QCOMPARE(adventure.content("real.htm"), "old");
        batch.commit();
        QCOMPARE(adventure.content("real.htm"), "new");
        QVERIFY(QFile(adventure.path("link.htm")).symLinkTarget() == real);
        QVERIFY(QDir().mkpath(adventure.path("folder.htm")));
        QVERIFY_THROWS_EXCEPTION(FileError, batch.add(adventure.path("folder.htm"), "new"));
    }
};

QTEST_MAIN(tst_htmlExport)
#include "tst_htmlExport.moc"
