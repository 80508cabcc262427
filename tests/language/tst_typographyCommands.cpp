#include "editor/language/TypographyCommands.h"
#include "outil/HeadlessView.h"
#include "platform/SafeFile.h"
#include "richtext/RtfPlainText.h"
#include "store/AdventureCommands.h"
#include "store/LongWork.h"
#include "store/ParagraphTexts.h"
#include "support/AdventureBuilder.h"
#include "support/PromptRecorder.h"
#include "support/TestTable.h"

namespace
{
// Somebody who stops what can be stopped, when so much of it is done.
class Impatient : public WorkReport
{
public:
    void begin(const QString &, Stopping stopping) override
    {
        stoppable = stopping == Stopping::OnEscape;
    }
    bool progress(int done, int) override { return stoppable && done >= patience; }
    void end() override {}
    void announce(const QString &) override {}

    int patience = 9999;
    bool stoppable = false;
};

struct Scene {
    explicit Scene(const AdventureBuilder &builder)
        : view(adventure.variables), commands(adventure.variables, view, report)
    {
        AdventureCommands(adventure.variables, prompts, view, view)
            .OpenAdventure(adventure.file("a.usm", builder.bytes()));
    }

    TypographyCommands::Looks looks()
    {
        QList<int> unreadable;
        return commands.lookAtAll(commands.rules(false, {}), false, unreadable);
    }
    QString text(int n) const { return rtfToPlainText(GetParagraphRtf(adventure.variables, n)); }

    TestAdventure adventure;
    PromptRecorder prompts;
    HeadlessView view;
    Impatient report;
    TypographyCommands commands;
};
} // namespace

class tst_typographyCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stoppedWorkChangesNothing()
    {
        Scene scene(AdventureBuilder({"1: L'eau", "2: L'eau", "3: L'eau"}));
        const auto looks = scene.looks();
        QCOMPARE(looks.size(), std::size_t{3});
        scene.report.patience = 2;
        QVERIFY_THROWS_EXCEPTION(WorkStopped, scene.commands.apply(looks));
        QVERIFY_THROWS_EXCEPTION(WorkStopped, scene.looks());
        QCOMPARE(scene.text(1), "L'eau");
        QVERIFY(!scene.adventure.variables.AdventureModified);
        scene.report.patience = 9999;
        QCOMPARE(scene.commands.apply(looks).mends, 3);
        QCOMPARE(scene.text(1), "L’eau");
    }

    // Whatever is chosen: the dots would make a reference of the number behind them.
    void chosenMendsChangeNoReference()
    {
        Scene scene(AdventureBuilder({"1: L'eau ou ...13", "13: Oui"}));
        scene.adventure.variables.TargetPhrase = "…";
        auto looks = scene.looks();
        QCOMPARE(looks.at(1).mends.size(), 1);
        looks.at(1).mends.append({TypographyKind::Ellipsis, 9, 3, "…"});
        QCOMPARE(scene.commands.apply(looks).mends, 1);
        QCOMPARE(scene.text(1), "L’eau ou ...13");
    }

    void formattingStays()
    {
        const QByteArray rtf =
            "{\\rtf1{\\fonttbl{\\f0 Arial;}}\\f0\\fs24 L\\b 'eau\\b0  !\\i  \"Oui\"}";
        Scene scene(AdventureBuilder({"1: x"}).rawText(1, rtf));
        QCOMPARE(scene.commands.apply(scene.looks()).mends, 4);
        const QByteArray written = GetParagraphRtf(scene.adventure.variables, 1);
        const QByteArray body = written.mid(written.indexOf("\\pard"));
        QCOMPARE(body, "\\pard \\plain\\f0\\fs24 L\\plain\\f0\\fs24\\b \\'92eau\\plain\\f0\\fs24 "
                       "\\~!\\plain\\f0\\fs24\\i  \\'ab\\~Oui\\~\\'bb\r\n\\par }");
    }

    void textsThatHaveChangedAreLeft()
    {
        Scene scene(AdventureBuilder({"1: L'eau", "2: L'eau"}));
        auto looks = scene.looks();
        looks.at(2).textSum = "another";
        QCOMPARE(scene.commands.apply(looks).paragraphs, 1);
        QCOMPARE(scene.text(2), "L'eau");
    }
};

QTEST_MAIN(tst_typographyCommands)
#include "tst_typographyCommands.moc"
