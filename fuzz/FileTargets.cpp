#include "Scratch.h"
#include "Seeds.h"
#include "Targets.h"

#include "app/Settings.h"
#include "outil/HeadlessView.h"
#include "outil/ScriptPrompts.h"
#include "platform/Errors.h"
#include "platform/OpenedFile.h"
#include "richtext/RtfPlainText.h"
#include "store/AdventureFile.h"
#include "store/AdventureMerge.h"
#include "store/CommandHistory.h"
#include "store/DamagedTexts.h"
#include "store/ParagraphStore.h"
#include "store/ParagraphTexts.h"
#include "store/Session.h"
#include "support/AdventureBuilder.h"

#include <QFileInfo>

namespace
{
constexpr int LongestAdventure = 8192; // the older layout alone takes five thousand
constexpr int LongestSettings = 2048;

void open(Variables &variables, const QString &path)
{
    takeOver(variables, readAdventure(path));
    variables.AdventurePath = path;
    variables.AdventureOpen = true;
    variables.WorkingFolder = scratchFolder().path();
    variables.FilePrefix = QStringLiteral("a-");
}

// What can be read of a file can be written, and is then read as the same.
void adventure(const QByteArray &bytes)
{
    Variables variables;
    try {
        open(variables, scratchFolder().put(QStringLiteral("a.usm"), bytes));
    } catch (const FileError &) {
        return;
    }
    const QString written = scratchFolder().path() + QStringLiteral("b.usm");
    const auto text = [&variables](int n) {
        QList<int> leftOut;
        return readableText(variables, n, leftOut);
    };
    writeAdventure(variables, written, text, [](int, int) {});
}

// An adventure of anybody's comes into one of ours.
void merge(const QByteArray &bytes)
{
    static const QString ours = scratchFolder().put(
        QStringLiteral("o.usm"),
        AdventureBuilder({QStringLiteral("1: un"), QStringLiteral("3: trois")}).bytes());
    Variables variables;
    open(variables, ours);
    QString said;
    QTextStream errors(&said);
    ScriptPrompts prompts(errors, Prompts::Answer::Yes);
    HeadlessView view(variables);
    AdventureMerge(variables, prompts, view)
        .ImportFrom(scratchFolder().put(QStringLiteral("a.usm"), bytes));
    for (int n = 0; n <= Variables::LastParagraph; ++n)
        if (variables.Written.at(n) == 1)
            rtfToPlainText(GetParagraphRtf(variables, n));
    promise(variables.Written.at(1) == 1 && variables.Written.at(3) == 1,
            "merging removes no paragraph");
    forgetHistory(variables);
    forgetSession(variables.WorkingFolder);
    DiscardWorkingFiles(variables);
    promise(!QFileInfo::exists(scratchFolder().path() + QStringLiteral("Session")),
            "a merge leaves nothing behind");
}

void settings(const QByteArray &bytes)
{
    const auto read = [](const QByteArray &file, Variables &variables) {
        WindowGeometry geometry;
        readSettings(scratchFolder().put(QStringLiteral("s.xyz"), file), variables, geometry);
        return geometry;
    };
    Variables variables;
    const WindowGeometry geometry = read(bytes, variables);
    const QString written = scratchFolder().path() + QStringLiteral("t.xyz");
    writeSettings(written, variables, geometry);
    Variables again;
    WindowGeometry geometryAgain;
    readSettings(written, again, geometryAgain);
    promise(geometry == geometryAgain || geometry == WindowGeometry(), "a window stays in place");
    promise(again.defaultFontName == variables.defaultFontName &&
                again.defaultFontSize == variables.defaultFontSize,
            "a font stays");
}

QList<QByteArray> settingsSeeds()
{
    return {"#TRUE#,#FALSE#,#TRUE#,-1\r\n#FALSE#,#TRUE#,#TRUE#,0\r\n#FALSE#,-1\r\n"
            "15000,9000,-200,300\r\n\"Arial, gras\"\r\n12\r\n",
            "#TRUE#\r\n\r\n1,2\r\n\"\r\n", ""};
}

} // namespace

QList<FuzzTarget> fileTargets()
{
    return {{"aventure", &adventure, &adventureSeeds, LongestAdventure},
            {"fusion", &merge, &adventureSeeds, LongestAdventure},
            {"reglages", &settings, &settingsSeeds, LongestSettings}};
}
