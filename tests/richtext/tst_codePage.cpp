#include "richtext/CodePage.h"

#include <QTest>

class TestCodePage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyByteOfWindows1252RoundTrips();
    void typographicCharactersHaveTheirByte();
    void characterOutsideHasNoByte();
    void pagesDecode_data();
    void pagesDecode();
    void fontCharsetNamesPage_data();
    void fontCharsetNamesPage();
};

void TestCodePage::everyByteOfWindows1252RoundTrips()
{
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    const QString text = fromWindows1252(all);
    QCOMPARE(text.size(), 256);
    QCOMPARE(toWindows1252(text), std::optional(all));
}

void TestCodePage::typographicCharactersHaveTheirByte()
{
    QCOMPARE(
        toWindows1252(QStringLiteral("€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ é")),
        std::optional(QByteArray("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8a\x8b\x8c\x8e\x91"
                                 "\x92\x93\x94\x95\x96\x97\x98\x99\x9a\x9b\x9c\x9e\x9f \xe9")));
    // The C1 controls that stand for undefined bytes are those of exactly these five.
    QCOMPARE(fromWindows1252("\x81\x8d\x8f\x90\x9d"),
             QStringLiteral(u"\u0081\u008d\u008f\u0090\u009d"));
}

void TestCodePage::characterOutsideHasNoByte()
{
    QVERIFY(!toWindows1252(QStringLiteral("abc★")));
    QVERIFY(!toWindows1252(QString(QChar(0x80))));
    QVERIFY(!windows1252Byte(QChar(0x2011)));
}

void TestCodePage::pagesDecode_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("Cyrillic") << 1251 << QByteArray("\xcf\xf0\xe8") << QStringLiteral("При");
    QTest::newRow("Central European")
        << 1250 << QByteArray("\xb3\xf3\x9f") << QStringLiteral("łóź");
    QTest::newRow("Greek") << 1253 << QByteArray("\xe1\xe2\xe3") << QStringLiteral("αβγ");
    QTest::newRow("Japanese") << 932 << QByteArray("\x93\xfa\x83\x41") << QStringLiteral("日ア");
    QTest::newRow("Chinese") << 936 << QByteArray("\xc4\xe3") << QStringLiteral("你");
    QTest::newRow("Korean") << 949 << QByteArray("\xb0\xa1") << QStringLiteral("가");
    QTest::newRow("Thai") << 874 << QByteArray("\xa1") << QStringLiteral("ก");
    QTest::newRow("Mac Roman") << 10000 << QByteArray("\x8e\x8f") << QStringLiteral("éè");
    QTest::newRow("DOS") << 437 << QByteArray("\x82\x8a") << QStringLiteral("éè");
    QTest::newRow("DOS Latin 1") << 850 << QByteArray("\xd0") << QStringLiteral("ð");
    QTest::newRow("UTF-8") << 65001 << QByteArray("\xc3\xa9") << QStringLiteral("é");
    QTest::newRow("unknown") << 4711 << QByteArray("\xe9\x80") << QStringLiteral("é€");
    QTest::newRow("cut in two") << 932 << QByteArray("a\x93") << QString(u'a');
}

void TestCodePage::pagesDecode()
{
    QFETCH(int, page);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    CodePage codePage;
    QCOMPARE(codePage.decode(bytes, page), text);
    // A converter that kept something from the last call would show here.
    QCOMPARE(codePage.decode(bytes, page), text);
}

void TestCodePage::fontCharsetNamesPage_data()
{
    QTest::addColumn<int>("charset");
    QTest::addColumn<int>("page");
    QTest::newRow("western") << 0 << 1252;
    QTest::newRow("default") << 1 << 0;
    QTest::newRow("Macintosh") << 77 << 10000;
    QTest::newRow("Russian") << 204 << 1251;
    QTest::newRow("unknown") << 99 << 0;
}

void TestCodePage::fontCharsetNamesPage()
{
    QFETCH(int, charset);
    QFETCH(int, page);
    QCOMPARE(CodePage::fromFontCharset(charset), page);
}

QTEST_GUILESS_MAIN(TestCodePage)
#include "tst_codePage.moc"
