#include "platform/Errors.h"
#include "platform/SafeFile.h"
#include "richtext/HiddenBox.h"
#include "richtext/RtfPlainText.h"
#include "richtext/RtfReader.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTest>

namespace
{
// Files whose expected text shows what we deliberately leave out.
const QStringList otherTaste = {
    // The address of a link stands behind its text there; we keep the text of links only.
    QStringLiteral("striprtf-hyperlink.rtf"),
    QStringLiteral("striprtf-hyperlinks.rtf"),
    QStringLiteral("striprtf-mac_textedit_hyperlink.rtf"),
};

// Lines without blanks at their ends, without empty lines at the end of the text.
QString comparable(QString text)
{
    QStringList lines = text.remove(u'\r').split(u'\n');
    for (QString &line : lines) {
        while (line.endsWith(u' ') || line.endsWith(u'\t'))
            line.chop(1);
    }
    while (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines.join(u'\n');
}
} // namespace

// Reads files by many programs from the folder that the environment names. Skipped without it.
class TestRtfCorpus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void fileIsReadAndStable_data() { addFiles(QStringLiteral("*.rtf")); }
    void fileIsReadAndStable();
    void textIsAsExpected_data() { addFiles(QStringLiteral("*.expected.txt")); }
    void textIsAsExpected();

private:
    void addFiles(const QString &pattern) const;

    QDir m_folder;
};

void TestRtfCorpus::initTestCase()
{
    const QString folder = qEnvironmentVariable("USMIRA_RTF_CORPUS");
    if (folder.isEmpty())
        QSKIP("USMIRA_RTF_CORPUS names no folder");
    m_folder = QDir(folder);
    QVERIFY2(!m_folder.entryList({QStringLiteral("*.rtf")}).isEmpty(), qPrintable(folder));
}

void TestRtfCorpus::addFiles(const QString &pattern) const
{
    QTest::addColumn<QString>("name");
    for (const QString &name : m_folder.entryList({pattern}, QDir::Files))
        QTest::newRow(qPrintable(name)) << name;
}

void TestRtfCorpus::fileIsReadAndStable()
{
    QFETCH(QString, name);
    const QByteArray rtf = readWholeFile(m_folder.filePath(name), RtfReader::MaxBytes);
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

void TestRtfCorpus::textIsAsExpected()
{
    QFETCH(QString, name);
    const QString rtfName = name.chopped(13) + QStringLiteral(".rtf");
    const QString wanted =
        QString::fromUtf8(readWholeFile(m_folder.filePath(name), RtfReader::MaxBytes));
    const QByteArray rtf = readWholeFile(m_folder.filePath(rtfName), RtfReader::MaxBytes);
    if (otherTaste.contains(rtfName))
        QEXPECT_FAIL("", "the expectation prints what we leave out", Continue);
    QCOMPARE(comparable(rtfToPlainText(rtf)), comparable(wanted));
}

QTEST_MAIN(TestRtfCorpus)
#include "tst_rtfCorpus.moc"
