#include "editor/language/WordMenu.h"

#include "editor/RtfBox.h"
#include "editor/language/SpellingUnderlines.h"
#include "language/spelling/Spelling.h"
#include "platform/Guarded.h"
#include "richtext/Replacements.h"
#include "richtext/TextPositions.h"
#include "store/Variables.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QTextBlock>
#include <optional>

namespace
{
constexpr int Patience = 150;    // milliseconds that a menu waits for suggestions
constexpr int MostMeanings = 8;  // of a menu
constexpr int MostSynonyms = 12; // of a meaning

QAction *inserted(QMenu &menu, QAction *before, const QString &caption)
{
    auto *action = new QAction(QString(caption).replace(u'&', QStringLiteral("&&")), &menu);
    menu.insertAction(before, action);
    return action;
}

// The word that a position stands in or touches, nothing elsewhere.
std::optional<SpellingMarks::Range> wordAt(const QTextBlock &block, int position)
{
    const qsizetype inLine = position - block.position();
    const QString text = block.text();
    const TextRange around = wordsAround(text, {inLine, inLine});
    const QList<SpellingWord> words =
        spellingWords(QStringView(text).mid(around.begin, around.end - around.begin)).words;
    for (const SpellingWord &word : words) {
        const qsizetype begin = around.begin + word.position;
        if (begin <= inLine && inLine <= begin + word.length)
            return SpellingMarks::Range{block.position() + static_cast<int>(begin),
                                        block.position() + static_cast<int>(begin + word.length)};
    }
    return std::nullopt;
}

// "l'épée" is looked up as "épée".
SpellingMarks::Range withoutElision(SpellingMarks::Range word, const QString &text)
{
    const qsizetype apostrophe = std::max(text.lastIndexOf(u'\''), text.lastIndexOf(u'\u2019'));
    return {word.begin + static_cast<int>(apostrophe + 1), word.end};
}

// With a capital where the word has one.
QString inCaseOf(const QString &word, const QString &synonym)
{
    return !word.isEmpty() && word.front().isUpper()
               ? synonym.first(1).toUpper() + synonym.sliced(1)
               : synonym;
}
} // namespace

WordMenu::WordMenu(const Variables &variables, Prompts &prompts, Spelling &spelling, RtfBox &box,
                   const SpellingUnderlines &underlines)
    : QObject(&box), m_variables(variables), m_prompts(prompts), m_spelling(spelling), m_box(box),
      m_underlines(underlines)
{
    box.installEventFilter(this);
    box.viewport()->installEventFilter(this);
}

// The mouse asks the viewport, the key the box.
bool WordMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ContextMenu)
        return false;
    const auto &asked = *static_cast<QContextMenuEvent *>(event);
    const bool byKey = asked.reason() == QContextMenuEvent::Keyboard;
    return byKey == (watched == &m_box) && show(asked);
}

bool WordMenu::show(const QContextMenuEvent &event)
{
    if (m_box.isReadOnly() || !m_variables.AdventureOpen)
        return false;
    const bool byKey = event.reason() == QContextMenuEvent::Keyboard;
    const QTextCursor place = byKey ? m_box.textCursor() : m_box.cursorForPosition(event.pos());
    const std::optional<Range> doubtful =
        byKey ? m_underlines.at(place.position()) : m_underlines.under(event.pos());
    const std::optional<Range> word = doubtful ? doubtful : wordAt(place.block(), place.position());
    if (!word || m_underlines.isTaken(*word))
        return false;
    QMenu *menu = m_box.createStandardContextMenu(event.pos());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction *ordinary = menu->actions().value(0);
    if (doubtful) {
        addSuggestions(*menu, ordinary, *doubtful);
        addKeeping(*menu, ordinary, *doubtful);
    }
    addSynonyms(*menu, ordinary, *word);
    menu->popup(byKey ? m_box.viewport()->mapToGlobal(m_box.cursorRect().bottomLeft())
                      : event.globalPos());
    return true;
}

QString WordMenu::textOf(Range word) const
{
    QTextCursor cursor(m_box.document());
    cursor.setPosition(word.begin);
    cursor.setPosition(word.end, QTextCursor::KeepAnchor);
    return cursor.selectedText();
}

// The menu comes at once. Where looking them up takes longer, they take the place of what says so.
void WordMenu::addSuggestions(QMenu &menu, QAction *before, Range word)
{
    const QString asked = spellingForm(textOf(word));
    const std::optional<QStringList> known = m_spelling.suggestions().askFor(asked, Patience);
    QAction *end = menu.insertSeparator(before);
    if (known) {
        fillSuggestions(menu, end, *known, word);
        return;
    }
    QAction *waiting = inserted(menu, end, tr("Recherche de suggestions..."));
    waiting->setEnabled(false);
    connect(
        &m_spelling.suggestions(), &Suggestions::found, &menu,
        [this, &menu, waiting, asked, word](const QString &found, const QStringList &suggestions) {
            if (found != asked || !menu.actions().contains(waiting))
                return;
            fillSuggestions(menu, waiting, suggestions, word);
            menu.removeAction(waiting);
        });
}

void WordMenu::fillSuggestions(QMenu &menu, QAction *before, const QStringList &suggestions,
                               Range word)
{
    if (suggestions.isEmpty())
        inserted(menu, before, tr("Aucune suggestion"))->setEnabled(false);
    const QString was = textOf(word);
    for (const QString &suggestion : suggestions) {
        QAction *action = inserted(menu, before, suggestion);
        QFont bold = action->font();
        bold.setBold(true);
        action->setFont(bold);
        connectGuarded(action, &QAction::triggered, this, m_prompts, [this, word, was, suggestion] {
            replace(word, was, withApostropheOf(was, suggestion));
        });
    }
}

void WordMenu::addKeeping(QMenu &menu, QAction *before, Range range)
{
    const QString word = textOf(range);
    const auto add = [&](const QString &caption, const std::function<void()> &action) {
        connect(inserted(menu, before, caption), &QAction::triggered, this,
                [this, action] { addingWord(m_prompts, action); });
    };
    add(tr("Ajouter à l'aventure"), [this, word] { m_spelling.addToAdventure(word); });
    add(tr("Ajouter à mon dictionnaire"), [this, word] { m_spelling.addToOwnWords(word); });
    add(tr("Ignorer ici"),
        [this, word, n = m_variables.CurrentParagraph] { m_spelling.ignore(n, word); });
    menu.insertSeparator(before);
}

void WordMenu::addSynonyms(QMenu &menu, QAction *before, Range range)
{
    const Range word = withoutElision(range, textOf(range));
    const QString was = textOf(word);
    const QList<Thesaurus::Meaning> meanings = m_spelling.synonyms(was);
    if (meanings.isEmpty())
        return;
    auto *submenu = new QMenu(tr("Synonymes"), &menu);
    for (const Thesaurus::Meaning &meaning : meanings.mid(0, MostMeanings)) {
        inserted(*submenu, nullptr, meaning.kind)->setEnabled(false);
        for (const QString &synonym : meaning.words.mid(0, MostSynonyms))
            connectGuarded(
                inserted(*submenu, nullptr, synonym), &QAction::triggered, this, m_prompts,
                [this, word, was, synonym] { replace(word, was, inCaseOf(was, synonym)); });
    }
    menu.insertMenu(before, submenu);
    menu.insertSeparator(before);
}

// The text may have changed while the menu was there.
void WordMenu::replace(Range word, const QString &was, const QString &by)
{
    if (word.end >= m_box.document()->characterCount() || textOf(word) != was)
        return;
    const int position = TextPositions::toText(*m_box.document(), word.begin);
    replaceInBox(m_box, {{position, word.end - word.begin, by}});
}
