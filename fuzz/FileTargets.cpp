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
#include "store/DamagedTexts.h"
#include "store/Journal.h"
#include "store/ParagraphStore.h"
#include "store/ParagraphTexts.h"
#include "store/Session.h"
#include "support/AdventureBuilder.h"

#include <QDir>
#include <QTemporaryDir>

namespace
{
constexpr int LongestAdventure = 8192; // the older layout alone takes five thousand
constexpr int LongestLines = 2048;

// In memory where the system has a folder for that: hundreds of files a second are written.
class Scratch
{
public:
    Scratch()
        : m_folder(QFileInfo(QStringLiteral("/dev/shm")).isWritable()
                       ? QStringLiteral("/dev/shm/usmira-fuzz-XXXXXX")
                       : QDir::tempPath() + QStringLiteral("/usmira-fuzz-XXXXXX"))
    {
    }

    QString folder() const { return m_folder.path() + u'/'; }
    QString put(const QString &name, const QByteArray &bytes) const
    {
        QFile file(m_folder.filePath(name));
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
        return file.fileName();
    }

private:
    QTemporaryDir m_folder;
};

const Scratch &scratch()
{
    static const Scratch folder;
    return folder;
}

void open(Variables &variables, const QString &path)
{
    takeOver(variables, readAdventure(path));
    variables.AdventurePath = path;
    variables.AdventureOpen = true;
    variables.WorkingFolder = scratch().folder();
    variables.FilePrefix = QStringLiteral("a-");
}

// What can be read of a file can be written, and is then read as the same.
void adventure(const QByteArray &bytes)
{
    Variables variables;
    try {
        open(variables, scratch().put(QStringLiteral("a.usm"), bytes));
    } catch (const FileError &) {
        return;
    }
    const QString written = scratch().folder() + QStringLiteral("b.usm");
    const auto text = [&variables](int n) {
        QList<int> leftOut;
        return readableText(variables, n, leftOut);
    };
    writeAdventure(variables, written, text, [](int, int) {});
}

// An adventure of anybody's comes into one of ours.
void merge(const QByteArray &bytes)
{
    static const QString ours = scratch().put(
        QStringLiteral("o.usm"),
        AdventureBuilder({QStringLiteral("1: un"), QStringLiteral("3: trois")}).bytes());
    Variables variables;
    open(variables, ours);
    QString said;
    QTextStream errors(&said);
    ScriptPrompts prompts(errors, Prompts::Answer::Yes);
    HeadlessView view(variables);
    AdventureMerge(variables, prompts, view)
        .ImportFrom(scratch().put(QStringLiteral("a.usm"), bytes));
    for (int n = 0; n <= Variables::LastParagraph; ++n)
        if (variables.Written.at(n) == 1)
            rtfToPlainText(GetParagraphRtf(variables, n));
    promise(variables.Written.at(1) == 1 && variables.Written.at(3) == 1,
            "merging removes no paragraph");
    forgetSession(variables.WorkingFolder);
    DiscardWorkingFiles(variables);
    promise(!QFileInfo::exists(scratch().folder() + QStringLiteral("Session")),
            "a merge leaves nothing behind");
}

void settings(const QByteArray &bytes)
{
    const auto read = [](const QByteArray &file, Variables &variables) {
        WindowGeometry geometry;
        readSettings(scratch().put(QStringLiteral("s.xyz"), file), variables, geometry);
        return geometry;
    };
    Variables variables;
    const WindowGeometry geometry = read(bytes, variables);
    const QString written = scratch().folder() + QStringLiteral("t.xyz");
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

QByteArray withSum(const QByteArray &lines)
{
    return lines + "sum " + textSha256(lines) + "\r\n";
}

// As the start of the program finds it beside two parked texts.
void recover(const QByteArray &bytes)
{
    QTemporaryDir folder(scratch().folder() + QStringLiteral("j-XXXXXX"));
    const auto put = [&folder](const QString &name, const QByteArray &content) {
        QFile file(folder.filePath(name));
        file.open(QIODevice::WriteOnly);
        file.write(content);
    };
    QDir(folder.path()).mkdir(QStringLiteral("Session"));
    put(QStringLiteral("Session/Journal.xyz"), bytes);
    put(QStringLiteral("0012.xyz"), "x");
    put(QStringLiteral("0013.xyz"), "x");
    put(QStringLiteral("Note.rtf"), "y");
    recoverJournal(folder.path() + u'/');
    promise(QFileInfo(folder.filePath(QStringLiteral("Note.rtf"))).size() == 1,
            "a file of the author's stays");
    promise(!QFileInfo::exists(folder.filePath(QStringLiteral("Session"))),
            "a start leaves no journal behind");
}

// A journal, its checksum aside.
void journal(const QByteArray &lines)
{
    journalOf(lines);
    const QByteArray bytes = withSum(lines);
    const std::optional<Journal> journal = journalOf(bytes);
    if (journal)
        promise(journalBytes(*journal) == bytes, "a journal is read as it was written");
    if (journal || lines.size() % 16 == 0) // folders take time
        recover(bytes);
}

QList<QByteArray> journalSeeds()
{
    const auto lines = [](const Journal &journal) {
        const QByteArray bytes = journalBytes(journal);
        return bytes.first(bytes.lastIndexOf("sum "));
    };
    const QByteArray sum = textSha256("x");
    return {lines({QStringLiteral("Éà-"),
                   {{12, 340, true, sum, QStringLiteral("0012/0026/")}, {13, 12, false, sum, {}}},
                   {{13, true}, {9, false}}}),
            lines({QStringLiteral("a-"), {{12, 13, false, sum, {}}}, {}})};
}
} // namespace

QList<FuzzTarget> fileTargets()
{
    return {{"aventure", &adventure, &adventureSeeds, LongestAdventure},
            {"fusion", &merge, &adventureSeeds, LongestAdventure},
            {"reglages", &settings, &settingsSeeds, LongestLines},
            {"journal", &journal, &journalSeeds, LongestLines}};
}
