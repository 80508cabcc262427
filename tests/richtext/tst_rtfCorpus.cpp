#include "platform/Errors.h"
#include "platform/SafeFile.h"
#include "richtext/HiddenBox.h"
#include "richtext/RtfPlainText.h"
#include "richtext/TextLimit.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>

namespace
{
// Lines without blanks at their ends, without empty lines at the end of the text.
QString comparable(QString text)
{
    text.remove(u'\r').remove(QRegularExpression("[ \t]+(?=\n|$)"));
    return text.remove(QRegularExpression("\n+$"));
}
} // namespace

// Reads files by many programs from the folder that the environment names. Skipped without it.
class TestRtfCorpus : public QObject
{
    Q_OBJECT

    QDir m_folder;

    void addFiles(const QString &pattern) const
    {
        QTest::addColumn<QString>("name");
        for (const QString &name : m_folder.entryList({pattern}, QDir::Files))
            QTest::newRow(qPrintable(name)) << name;
    }
    QByteArray content(const QString &name) const
    {
        return readWholeFile(m_folder.filePath(name), LargestText);
    }

private Q_SLOTS:
    void initTestCase()
    {
        const QString folder = qEnvironmentVariable("USMIRA_RTF_CORPUS");
        if (folder.isEmpty())
            QSKIP("USMIRA_RTF_CORPUS names no folder");
        m_folder = QDir(folder);
        QVERIFY2(!m_folder.entryList({"*.rtf"}).isEmpty(), qPrintable(folder));
    }

    void fileIsReadAndStable_data() { addFiles("*.rtf"); }
    void fileIsReadAndStable()
    {
        QFETCH(QString, name);
        const QByteArray rtf = content(name);
        QElapsedTimer timer;
        timer.start();
        HiddenBox box;
        if (!rtf.startsWith("{\\rtf") && !rtf.startsWith("\xef\xbb\xbf{\\rtf")) {
            QVERIFY_THROWS_EXCEPTION(FormatError, box.setRtf(rtf));
            return;
        }
        box.setRtf(rtf);
        const QString text = box.text();
        QCOMPARE(rtfToPlainText(rtf), text);
        const QByteArray written = box.rtf();
        box.setRtf(written);
        QCOMPARE(box.rtf(), written);
        QCOMPARE(box.text(), text);
        // No file is above 150 kB: only work that grows faster than the text comes near this.
        QVERIFY(timer.elapsed() < 10000);
    }

    void textIsAsExpected_data() { addFiles("*.expected.txt"); }
    void textIsAsExpected()
    {
        QFETCH(QString, name);
        const QString rtfName = name.chopped(13) + ".rtf";
        // The address of a link stands behind its text there; we keep the text of links only.
        if (QStringList({"striprtf-hyperlink.rtf", "striprtf-hyperlinks.rtf",
                         "striprtf-mac_textedit_hyperlink.rtf"})
                .contains(rtfName))
            QEXPECT_FAIL("", "the expectation prints what we leave out", Continue);
        QCOMPARE(comparable(rtfToPlainText(content(rtfName))), comparable(content(name)));
    }
};

QTEST_MAIN(TestRtfCorpus)
#include "tst_rtfCorpus.moc"
