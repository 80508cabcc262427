// usmira-textes SOURCES TARGET: makes the bundled texts anew.
//   SOURCES/copyright.txt, aide.txt, help.txt -> TARGET/documents/*.rtf
//   SOURCES/adventure.txt -> TARGET/samples/<title>.usm
// adventure.txt begins with "titre: ..."; "=== 12" begins a paragraph, with "fixe" behind it one
// that MasterMix leaves alone, with "fin" an ending that the author has accepted.

#include "Markup.h"
#include "check/CheckBook.h"
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
            else if (line.startsWith(QStringLiteral("=== ")))
                begin(line.mid(4).split(u' '));
            else
                m_paragraph.append(line);
        }
        end();
        acceptEndings();
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
};

void makeAll(const QString &sources, const QString &target)
{
    const QString documents = target + QStringLiteral("/documents/");
    const QString samples = target + QStringLiteral("/samples");
    QDir().mkpath(documents);
    QDir().mkpath(samples);
    makeDocument(sources + QStringLiteral("/copyright.txt"),
                 documents + QStringLiteral("Copyright.rtf"));
    makeDocument(sources + QStringLiteral("/aide.txt"),
                 documents + QStringLiteral("Aide Française.rtf"));
    makeDocument(sources + QStringLiteral("/help.txt"),
                 documents + QStringLiteral("English Help.rtf"));
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
