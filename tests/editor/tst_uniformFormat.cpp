#include "app/WindowFixture.h"
#include "editor/UniformFormatting.h"
#include "richtext/HiddenBox.h"
#include "store/ParagraphTexts.h"
#include "support/TestTable.h"
#include "widgets/PreviewLine.h"

#include <QCheckBox>
#include <QComboBox>

class tst_uniformFormat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sizesThatNoTextCanHaveAreRefused_data()
    {
        addTable<QString, double>({"typed", "size"}, {{"plain", "12", 12},
                                                      {"to the half point", "11.3", 11.5},
                                                      {"none", "grand", 0},
                                                      {"too small", "0.9", 0},
                                                      {"largest", "1638", 1638},
                                                      {"too large", "1638.5", 0}});
    }
    void sizesThatNoTextCanHaveAreRefused()
    {
        QFETCH(const QString, typed);
        QTEST(typedFontSize(typed).value_or(0), "size");
    }

    void givesAllParagraphsOneLook()
    {
        const QByteArray mixed = "{\\rtf1{\\fonttbl{\\f0 Times New Roman;}{\\f1 Georgia;}}"
                                 "\\f0\\fs20 Va \\f1\\fs40\\b au 9}";
        const QByteArray uniform = "{\\rtf1{\\fonttbl{\\f0 Garamond;}}\\f0\\fs20 Fini}";
        WindowFixture fixture(
            AdventureBuilder({"2: x", "5: x", "9: x"}).rawText(2, mixed).rawText(5, uniform));
        const QString unsized = "Garamond";
        QString counted;
        const auto apply = [&](const char *box, const char *combo, const QString &text) {
            const auto work = [&](QDialog &dialog) {
                child<QComboBox>(dialog, combo).setCurrentText(text);
                child<QCheckBox>(dialog, box).setChecked(true);
                ::click(dialog, "count");
                counted = child<PreviewLine>(dialog, "preview").accessibleName();
                ::click(dialog, "OKButton");
            };
            return fixture.inDialog([&] { fixture.trigger("menuComUniform"); }, work);
        };
        QCOMPARE(apply("chFonts", "comboFonts", unsized), "uniformFormat");
        QCOMPARE(counted, "2 paragraphes changent.");
        HiddenBox box;
        box.setRtf(GetParagraphRtf(fixture.variables, 2));
        box.select(0, box.textLength());
        QCOMPARE(box.selFontName().value_or(""), unsized);
        QVERIFY(!box.selFontSize() && !box.selBold());
        QVERIFY(fixture.variables.AdventureModified && fixture.box().text() == "Va au 9");
        QCOMPARE(GetParagraphRtf(fixture.variables, 5), uniform);
        QCOMPARE(fixture.variables.Extracted.at(5), 0);
        QCOMPARE(fixture.variables.Extracted.at(9), 1);
        const std::pair<QString, double> sizes[] = {{"0", 0}, {"1639", 0}, {"14,5", 14.5}};
        for (const auto &[typed, size] : sizes) {
            apply("chSizes", "comboSizes", typed);
            box.setRtf(GetParagraphRtf(fixture.variables, 2));
            box.select(0, box.textLength());
            QCOMPARE(box.selFontSize().value_or(0), size);
        }
        QCOMPARE(counted, "3 paragraphes changent.");
        QCOMPARE(fixture.prompts.beeps(), 2); // and the dialog stayed
    }
};

QTEST_MAIN(tst_uniformFormat)
#include "tst_uniformFormat.moc"
