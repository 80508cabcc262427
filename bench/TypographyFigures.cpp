#include "TypographyFigures.h"

#include "BenchEditor.h"
#include "Figures.h"
#include "editor/language/TypographyCommands.h"
#include "editor/search/SearchCommands.h"
#include "language/typography/FrenchWords.h"
#include "language/typography/TypedTypography.h"

#include <functional>
#include <memory>

namespace
{
constexpr int Runs = 5;

void print(const char *name, const std::function<void()> &prepare,
           const std::function<void()> &action)
{
    printFigure(QString::fromUtf8(name), medianMilliseconds(Runs, prepare, action),
                QStringLiteral("ms"));
}

void printKey(const TypographyRules &rules)
{
    const QString words = QStringLiteral("Rendez-vous au 26, la porte est close ; ");
    const QString line = words.repeated(50'000 / words.size());
    qsizetype caret = line.size();
    const double time = medianMilliseconds(
        100, [] {}, [&] { typedMends(line, caret--, {}, rules, typedTypographyKinds()); });
    printFigure(QStringLiteral("what all rules do at a key in a line of 50000 characters"), time,
                QStringLiteral("ms"));
}
} // namespace

void printTypographyFigures(const QString &path, const QString &folder)
{
    std::unique_ptr<BenchEditor> editor;
    std::function<bool(const QString &)> isWord;
    TypographyCommands::Looks looks;
    const auto look = [&] {
        QList<int> unreadable;
        TypographyCommands commands(editor->variables, editor->view, editor->view);
        looks = commands.lookAtAll(commands.rules(false, isWord), true, unreadable);
    };
    // The adventure is without faults: some come in.
    const auto spoil = [&] {
        editor = editorOnCopy(path, folder);
        isWord = frenchWords(editor->variables);
        if (isWord)
            isWord(QStringLiteral("a")); // the dictionary is read
        SearchCommands(editor->variables, editor->prompts, editor->view, editor->view)
            .replaceAll({QStringLiteral(". "), {}}, QStringLiteral("!  "),
                        SearchCommands::Where::Everywhere);
    };
    spoil();
    print(
        "look at the typography of 2000 paragraphs", [] {}, look);
    print(
        "mend it in one transaction",
        [&] {
            spoil();
            look();
        },
        [&] { TypographyCommands(editor->variables, editor->view, editor->view).apply(looks); });
    printKey({editor->variables.TargetPhrase, false, isWord});
}
