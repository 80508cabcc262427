// usmira-textes SOURCES TARGET: makes the bundled texts anew.
//   SOURCES/copyright.txt, aide.txt, help.txt -> TARGET/documents/*.rtf
//   SOURCES/adventure.txt -> TARGET/samples/<title>.usm
//   SOURCES/usmira.1.txt, usmira-outil.1.txt -> TARGET/man/man1, and the French ones, *.fr.1.txt,
//     -> TARGET/man/fr/man1
// adventure.txt begins with "titre: ..." and "mots: ...", the words that spelling takes as right;
// "=== 12" begins a paragraph, with "fixe" behind it one that MasterMix leaves alone, with "fin" an
// ending that the author has accepted, with "juste:MOT" one in which that word is right. In a
// manual page "@ TITLE" stands for what the help has under that title.

#include "ManPage.h"
#include "Markup.h"
#include "check/CheckBook.h"
#include "language/spelling/Spelling.h"
#include "platform/Errors.h"
#include "platform/SafeFile.h"
#include "richtext/HiddenBox.h"
#include "store/AdventureFile.h"
#include "store/ParagraphStore.h"

#include <QDir>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstdio>

namespace
{
constexpr qint64 LargestSource = 10 * 1024 * 1024;

QStringList linesOf(const QString &path)
{
    return QString::fromUtf8(readWholeFile(path, LargestSource)).split(u'\n');
}

void makeDocument(const QString &source, const QString &target)
{
    HiddenBox box;
    setMarkup(box, linesOf(source));
    box.saveFile(target);
}

// What the help says is not said a second time.
void makeManPage(const QString &source, const QString &help, const QString &target)
{
    QStringList lines;
    for (const QString &line : linesOf(source))
        if (line.startsWith(QStringLiteral("@ ")))
            lines += sectionOf(linesOf(help), line.mid(2));
        else
            lines += line;
    writeWholeFile(target, manPage(lines), Durability::Data, Links::Follow);
}

void makeManPages(const QString &sources, const QString &help, const QString &language,
                  const QString &folder)
{
    QDir().mkpath(folder);
    for (const char *program : {"usmira", "usmira-outil"})
        makeManPage(QStringLiteral("%1/%2%3.1.txt").arg(sources, QLatin1String(program), language),
                    sources + help, QStringLiteral("%1/%2.1").arg(folder, QLatin1String(program)));
}

// Collects the adventure in a working folder of its own, as the editor does.
class AdventureMaker
{
public:
    AdventureMaker()
    {
        m_variables.WorkingFolder = m_folder.path() + u'/';
        m_variables.FilePrefix = QStringLiteral("x-");
        m_variables.LowestWritten = Variables::LastParagraph;
    }

    void make(const QStringList &lines, const QString &folder)
    {
        QString title;
        for (const QString &line : lines) {
            if (line.startsWith(QStringLiteral("titre: ")))
                title = line.mid(7);
            else if (line.startsWith(QStringLiteral("mots: ")))
                m_words = line.mid(6).split(u' ');
            else if (line.startsWith(QStringLiteral("=== ")))
                begin(line.mid(4).split(u' '));
            else
                m_paragraph.append(line);
        }
        end();
        acceptEndings();
        for (const QString &word : m_words)
            m_variables.extras = withWord(m_variables.extras, word);
        m_variables.extras.ignored = m_ignored;
        m_variables.CurrentParagraph = m_variables.LowestWritten;
        writeAdventure(m_variables, folder + u'/' + title + QStringLiteral(".usm"));
    }

private:
    void begin(const QStringList &words)
    {
        end();
        m_variables.CurrentParagraph = static_cast<qint16>(words.first().toInt());
        m_variables.ParagraphDirty = true;
        if (words.contains(QStringLiteral("fixe")))
            m_variables.Unmixable.at(words.first().toInt()) = 1;
        if (words.contains(QStringLiteral("fin")))
            m_endings.append(words.first().toInt());
        for (const QString &word : words)
            if (word.startsWith(QStringLiteral("juste:")))
                m_ignored.append({words.first().toInt(), word.mid(6)});
    }

    void end()
    {
        if (m_variables.ParagraphDirty) {
            setMarkup(m_box, m_paragraph);
            SaveCurParg(m_variables, m_box);
        }
        m_paragraph.clear();
    }

    void acceptEndings()
    {
        QList<Finding> endings = CheckBook(m_variables, plainTexts(m_variables)).findings;
        endings.removeIf([this](const Finding &finding) {
            return finding.kind != FindingKind::Ending || !m_endings.contains(finding.number);
        });
        m_variables.extras = withAccepted(m_variables.extras, endings);
    }

    QTemporaryDir m_folder;
    Variables m_variables;
    HiddenBox m_box;
    QStringList m_paragraph;
    QList<int> m_endings;
    QStringList m_words;
    QList<IgnoredWord> m_ignored;
};

void makeAll(const QString &sources, const QString &target)
{
    const QString documents = target + QStringLiteral("/documents/");
    const QString samples = target + QStringLiteral("/samples");
    QDir().mkpath(documents);
    QDir().mkpath(samples);
    makeDocument(sources + QStringLiteral("/copyright.txt"),
                 documents + QStringLiteral("Copyright.rtf"));
    makeDocument(sources + QStringLiteral("/welcome.txt"),
                 documents + QStringLiteral("Welcome.rtf"));
    makeDocument(sources + QStringLiteral("/aide.txt"),
                 documents + QStringLiteral("Aide Française.rtf"));
    makeDocument(sources + QStringLiteral("/help.txt"),
                 documents + QStringLiteral("English Help.rtf"));
    makeManPages(sources, QStringLiteral("/help.txt"), {}, target + QStringLiteral("/man/man1"));
    makeManPages(sources, QStringLiteral("/aide.txt"), QStringLiteral(".fr"),
                 target + QStringLiteral("/man/fr/man1"));
    AdventureMaker().make(linesOf(sources + QStringLiteral("/adventure.txt")), samples);
}
} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: usmira-textes SOURCES TARGET\n", stderr);
        return 2;
    }
    try {
        makeAll(arguments.at(1), arguments.at(2));
    } catch (const UsmiraError &error) {
        std::fprintf(stderr, "usmira-textes: %s\n", error.what());
        return 1;
    }
    return 0;
}
