#include "Look.h"
#include "platform/SafeFile.h"
#include "support/TestTable.h"

#include <QTest>

namespace
{
RichTextBox &found(RichTextBox &box, const QString &text)
{
    if (box.find(text, 0, {}) < 0)
        qFatal("not found: %s", qPrintable(text));
    return box;
}

void makeSimple(RichTextBox &box)
{
    box.setText("Rendez-vous au 26.\r\n\r\nOu au 103.\r\n");
}

void makeStyles(RichTextBox &box)
{
    box.setText("Gras puis maigre, puis tout\r\nencore tout\r\nfin");
    found(box, "Gras").setSelBold(true);
    found(box, "tout\r\nencore tout").setSelBold(true);
    box.setSelItalic(true);
    box.setSelUnderline(true);
    box.setSelStrikeThru(true);
}

void makeParagraphs(RichTextBox &box)
{
    box.setText("Titre\r\ncitation\r\ntableau\tdroite\r\n\r\nsignature\r\nsuite");
    found(box, "Titre").setSelAlignment(RichTextBox::Alignment::Centre);
    found(box, "citation").setSelIndent(1);
    box.setSelHangingIndent(-0.5);
    box.setSelRightIndent(2.54);
    found(box, "tableau").setSelTabs({5.08, 2.54});
    found(box, "signature\r\nsuite").setSelAlignment(RichTextBox::Alignment::Right);
}

void makeBullets(RichTextBox &box)
{
    box.setText("Prenez :\r\nl'épée\r\nla corde\r\nrien");
    found(box, "épée\r\nla").setSelBullet(true);
    found(box, "corde").setSelIndent(1);
}

void makeColours(RichTextBox &box)
{
    box.setText("noir rouge orange rouge autre");
    at(box, 5, 5).setSelColor(qRgb(255, 0, 0));
    at(box, 11, 6).setSelColor(qRgb(255, 128, 0));
    box.setSelFontName("Écriture {du} \\Mage; ★");
    box.setSelFontSize(10.5);
    at(box, 18, 5).setSelColor(qRgb(255, 0, 0));
    box.setSelFontName("Arial");
    at(box, 0, 4).setSelColor(qRgb(255, 0, 0));
    box.setSelColor(qRgb(0, 0, 0));
}

void makeCharacters(RichTextBox &box)
{
    box.setText("{a} \\b\u00a0« œuf – 1\u00a0€ » …\u2011 ★ 📘 \x7f" + QString(QChar(0x81)) +
                "\r\n★★é★\tab★\r\n★fin");
    found(box, "★★é★\tab★\r\n★fin").setSelBold(true);
}
} // namespace

class TestRtfWriter : public QObject
{
    Q_OBJECT
    using Make = void (*)(RichTextBox &);

private Q_SLOTS:
    void layoutIsPinned_data()
    {
        addTable<Make>({"make"}, {{"vide", [](RichTextBox &) {}},
                                  {"simple", makeSimple},
                                  {"styles", makeStyles},
                                  {"paragraphes", makeParagraphs},
                                  {"puces", makeBullets},
                                  {"couleurs", makeColours},
                                  {"caracteres", makeCharacters}});
    }
    // The HTML export goes by these bytes: a difference here is a change of the file format.
    void layoutIsPinned()
    {
        QFETCH(Make, make);
        HiddenBox box;
        make(box);
        const QString name = QString(USMIRA_TEST_DATA "/rtf/%1.rtf").arg(QTest::currentDataTag());
        const QByteArray wanted = readWholeFile(name, 10000);
        QCOMPARE(box.rtf(), wanted);
        const QString text = box.text();
        box.setRtf(wanted);
        QCOMPARE(box.rtf(), wanted);
        QCOMPARE(box.text(), text);
    }

    void nothingThatNoReaderTakesIsWritten()
    {
        HiddenBox box;
        // Straight into the document, past the cleaning of the box.
        QTextCursor(box.document())
            .insertText(QStringLiteral(u"a\ufffcb\u2028c\xd800") + QChar(0xdc01));
        QVERIFY(box.rtf().endsWith("\\fs24 ab\r\n\\par c\\u-10240 ?\\u-9215 ?\r\n\\par }"));
    }

    void fontNamesThatAreWrittenAlikeAreOne()
    {
        WithRtf box("{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1 A\\'01rial ;}{\\f2 " +
                    QByteArray(255, 'x') + " y;}}\\f0 a\\f1 b\\f2 c}");
        const QByteArray rtf = box.rtf();
        QCOMPARE(rtf.count("Arial"), 1);
        QVERIFY(rtf.contains(" ab"));
        box.setRtf(rtf);
        QCOMPARE(box.rtf(), rtf);
    }
};

QTEST_MAIN(TestRtfWriter)
#include "tst_rtfWriter.moc"
