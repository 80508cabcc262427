#include "SpellingFigures.h"

#include "BenchEditor.h"
#include "Figures.h"
#include "editor/RtfBox.h"
#include "editor/language/SpellingUnderlines.h"
#include "editor/references/ReferenceUnderlines.h"
#include "language/spelling/BookSpelling.h"
#include "language/spelling/Spelling.h"
#include "platform/SafeFile.h"

#include <QImage>
#include <QPainter>
#include <limits>
#include <utility>

namespace
{
constexpr int Runs = 100;
constexpr int Characters = 50'000;
constexpr qint64 NoLimit = std::numeric_limits<qint64>::max();

void print(const QString &name, double milliseconds)
{
    printFigure(name, milliseconds, QStringLiteral("ms"));
}

// With a doubtful word and a reference in most lines of the screen.
QString longLine()
{
    const QString sentences = QStringLiteral(
        "Le guerier Elric pousse la grille de l'epée, qui grince, et le froid de la crypte vous "
        "saisit. Au fond luit une lampe. Si vous entrez, rendez-vous au 26 ; si vous restez "
        "dehors, "
        "il faudra attendre le jour, et la nuit est longue pour qui a peur des loups "
        "<b>gris</b>. ");
    return sentences.repeated(Characters / sentences.size() + 1);
}

// The box with its text in one line, or in lines, and the caret in its middle.
struct LongText {
    explicit LongText(const QString &text)
    {
        variables.AdventureOpen = true;
        box.resize(800, 600);
        box.setText(text);
        box.show();
        box.select(static_cast<int>(text.size()) / 2, 0);
        box.ensureCursorVisible();
        box.viewport()->grab();
    }

    // Milliseconds of what is done for a key by all that underlines: once when the text has
    // changed, and once when its line is painted.
    double keyTime()
    {
        QImage page(box.viewport()->size(), QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&page);
        const auto type = [this] {
            box.viewport()->grab();
            box.textCursor().insertText(QStringLiteral("x"));
        };
        return medianMilliseconds(Runs, type, [&] {
            Q_EMIT box.changedAt(box.textCursor().position() - 1, 0, 0);
            const QRect caret = box.cursorRect();
            Q_EMIT box.painted(painter, QRect(0, caret.y(), page.width(), caret.height()));
        });
    }

    Variables variables;
    RtfBox box;
};

// Texts of the size of a whole book, of all words that the dictionary has, one in twenty of them
// doubtful: more different words than any book has.
QStringList textsOfAllWords(const QString &dictionary)
{
    constexpr qsizetype size = 3 * 1024 * 1024;
    QStringList texts;
    QString text;
    const QStringList lines = QString::fromUtf8(readWholeFile(dictionary, 100 * size)).split(u'\n');
    for (qsizetype i = 1, all = 0; all < size; i = i % (lines.size() - 1) + 1) {
        const QString word = lines.at(i).section(u'/', 0, 0).section(u'\t', 0, 0);
        text += (i % 20 == 0 ? QStringLiteral("zz") : QString()) + word + u' ';
        all += word.size() + 1;
        if (text.size() > size / 2000)
            texts.append(std::exchange(text, QString()));
    }
    return texts;
}

void printWordFigures(const Spelling &spelling)
{
    const QStringList texts = textsOfAllWords(findDictionary(QStringLiteral("fr"))->words);
    QElapsedTimer timer;
    timer.start();
    for (const QString &text : texts)
        static_cast<void>(spelling.doubtsIn(1, text));
    print(QStringLiteral("spell 3 MB of 80000 different words, one in 20 doubtful"),
          static_cast<double>(timer.nsecsElapsed()) / 1e6);
}

void printKeyFigures()
{
    for (const bool lines : {false, true}) {
        QString text = longLine();
        if (lines)
            text.replace(QStringLiteral(". Au"), QStringLiteral(".\nAu"));
        const QString name = lines ? QStringLiteral("many lines") : QStringLiteral("one line");
        LongText marked(text);
        Spelling spelling(marked.variables);
        spelling.bringUp();
        const ReferenceUnderlines references(marked.variables, marked.box);
        SpellingUnderlines underlines(marked.variables, spelling, marked.box,
                                      [&references](SpellingUnderlines::Range word) {
                                          return references.isDoubtful(word.begin, word.end);
                                      });
        marked.box.viewport()->grab();
        QElapsedTimer timer;
        timer.start();
        underlines.readFor(NoLimit);
        print(QStringLiteral("spell 50000 characters for the first time, %1").arg(name),
              static_cast<double>(timer.nsecsElapsed()) / 1e6);
        print(QStringLiteral("underline words and references after a key in them, %1").arg(name),
              marked.keyTime());
    }
}
} // namespace

void printSpellingFigures(const QString &path, const QString &folder)
{
    printKeyFigures();
    BenchEditor editor(folder + QStringLiteral("/spelling"));
    editor.commands.OpenAdventure(path);
    QElapsedTimer timer;
    timer.start();
    Spelling spelling(editor.variables);
    if (!spelling.bringUp())
        return;
    print(QStringLiteral("read the dictionary"), static_cast<double>(timer.nsecsElapsed()) / 1e6);
    BookSpelling book(editor.variables, spelling);
    const auto readAll = [&] { book.readAll([](int, int) {}); };
    timer.start();
    readAll();
    print(QStringLiteral("spell 2000 paragraphs for the first time"),
          static_cast<double>(timer.nsecsElapsed()) / 1e6);
    print(QStringLiteral("spell them again"), medianMilliseconds(
                                                  Runs / 10, [] {}, readAll));
    print(QStringLiteral("list their doubtful words"),
          medianMilliseconds(
              Runs / 10, [] {}, [&] { static_cast<void>(book.words()); }));
    printWordFigures(spelling);
}
