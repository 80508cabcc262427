#include "SearchFigures.h"

#include "BenchEditor.h"
#include "BigAdventure.h"
#include "Figures.h"
#include "editor/UniformFormatting.h"
#include "editor/search/MatchFinder.h"
#include "editor/search/SearchCommands.h"

#include <memory>

namespace
{
constexpr int Runs = 5;

void printFigureOf(const char *name, const std::function<void()> &prepare,
                   const std::function<void()> &action)
{
    printFigure(QString::fromUtf8(name), medianMilliseconds(Runs, prepare, action),
                QStringLiteral("ms"));
}

void printList(const char *name, const BenchEditor &editor, const SearchCommands &search,
               const ListQuery &query)
{
    const MatchFinder finder(query);
    QList<int> unreadable;
    const auto list = [&] {
        for (int n = 1; n <= editor.variables.HighestWritten; ++n)
            search.lines(finder, n, unreadable);
    };
    printFigureOf(
        name, [] {}, list);
}
} // namespace

void printSearchFigures(const QString &path, const QString &folder)
{
    std::unique_ptr<BenchEditor> editor = editorOnCopy(path, folder);
    SearchCommands search(editor->variables, editor->prompts, editor->view, editor->view);
    printFigureOf(
        "search 2000 paragraphs to the end", [] {},
        [&] {
            search.all({QStringLiteral("introuvable"), {}});
        });
    const QString word = QStringLiteral("rendez-vous");
    printList("list the matches of 2000 paragraphs", *editor, search, {word, {}, false, false});
    printList("list them without accents", *editor, search, {word, {}, false, true});
    printList("list them by a regular expression", *editor, search,
              {QStringLiteral("\\brendez-\\w+ au (\\d+)"), {}, true, false});
    const auto reopen = [&] { editor = editorOnCopy(path, folder); };
    printFigureOf("replace in 2000 paragraphs", reopen, [&] {
        SearchCommands replacing(editor->variables, editor->prompts, editor->view, editor->view);
        replacing.replaceAll({word, {}}, QStringLiteral("Allez"),
                             SearchCommands::Where::Everywhere);
    });
    printFigureOf("give 2000 paragraphs another font", reopen, [&] {
        makeAllUniform(editor->variables, editor->prompts, editor->view,
                       {QStringLiteral("Georgia"), 11.0});
    });
}
