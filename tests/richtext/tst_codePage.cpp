#include "richtext/CodePage.h"
#include "support/TestTable.h"

#include <QTest>
#include <numeric>

class TestCodePage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void windows1252RoundTrips()
    {
        QByteArray all(256, '\0');
        std::iota(all.begin(), all.end(), '\0');
        const QString text = fromWindows1252(all);
        QCOMPARE(text.size(), 256);
        QCOMPARE(toWindows1252(text), std::optional(all));
        QCOMPARE(toWindows1252("€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ é"),
                 QByteArray("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8a\x8b\x8c\x8e\x91\x92\x93\x94"
                            "\x95\x96\x97\x98\x99\x9a\x9b\x9c\x9e\x9f \xe9"));
        // The C1 controls that stand for undefined bytes are those of exactly these five.
        QCOMPARE(fromWindows1252("\x81\x8d\x8f\x90\x9d"),
                 QStringLiteral(u"\u0081\u008d\u008f\u0090\u009d"));
        QVERIFY(!toWindows1252("abc★") && !toWindows1252(QChar(0x80)));
    }

    void pagesDecode()
    {
        const Table<int, QByteArray, QString> rows{
            {"Cyrillic", 1251, "\xcf\xf0\xe8", "При"},
            {"Central European", 1250, "\xb3\xf3\x9f", "łóź"},
            {"Japanese", 932, "\x93\xfa\x83\x41", "日ア"},
            {"Mac Roman", 10000, "\x8e\x8f", "éè"},
            {"DOS", 437, "\x82\x8a", "éè"},
            {"UTF-8", 65001, "\xc3\xa9", "é"},
            {"unknown", 4711, "\xe9\x80", "é€"},
            {"cut in two", 932, "a\x93", "a"}};
        for (const auto &[name, page, bytes, text] : rows) {
            CodePage codePage;
            // A converter that kept something from the first call would show in the second.
            for (int call = 0; call < 2; ++call)
                QCOMPARE(codePage.decode(bytes, page), text);
        }
    }
};

QTEST_GUILESS_MAIN(TestCodePage)
#include "tst_codePage.moc"
