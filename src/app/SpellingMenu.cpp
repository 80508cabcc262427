#include "app/SpellingMenu.h"

#include "editor/CommandRunner.h"
#include "editor/EditorView.h"
#include "editor/Navigation.h"
#include "editor/ParagraphSearch.h"
#include "editor/RtfBox.h"
#include "editor/language/SpellingAids.h"
#include "editor/options/EditorComfort.h"
#include "editor/search/TextReplacing.h"
#include "language/spelling/BookSpelling.h"
#include "store/CommandHistory.h"
#include "store/LongWork.h"
#include "views/language/bookSpelling.h"
#include "widgets/ToolWindow.h"

#include <QAction>
#include <algorithm>

using Kind = CommandRunner::Kind;

SpellingMenu::SpellingMenu(Variables &variables, Prompts &prompts, WorkReport &report,
                           ComfortKeeper &comfort, const EditorAccess &editor, QWidget &window)
    : m_variables(variables), m_prompts(prompts), m_report(report), m_comfort(comfort),
      m_editor(editor), m_window(window), m_spelling(variables)
{
}

SpellingMenu::~SpellingMenu() = default;

void SpellingMenu::connectItems(const Items &items)
{
    m_editor.runner.add(items.book, Kind::Saved, [this] { showList(); });
    QObject::connect(&items.whileTyping, &QAction::triggered, &m_spelling, [this](bool on) {
        EditorComfort comfort = m_comfort.comfort();
        comfort.spelling = on;
        m_comfort.change(comfort);
        m_comfort.save();
    });
    const auto follow = [this, &typing = items.whileTyping] {
        const EditorComfort &comfort = m_comfort.comfort();
        typing.setChecked(comfort.spelling);
        m_spelling.choose({comfort.dictionary, {comfort.skipsCapitals, comfort.skipsDigits}});
    };
    QObject::connect(&m_comfort, &ComfortKeeper::changed, &m_spelling, follow);
    follow();
}

void SpellingMenu::connectBox(RtfBox &box, const ReferenceUnderlines &references)
{
    auto *aids = new SpellingAids(m_variables, m_prompts, m_spelling, box, references);
    QObject::connect(&m_comfort, &ComfortKeeper::changed, aids,
                     [this, aids] { aids->setShown(m_comfort.comfort().spelling); });
    QObject::connect(&m_spelling, &Spelling::troubled, &box,
                     [this](const QString &trouble) { m_report.announce(trouble); });
}

bookSpelling &SpellingMenu::list()
{
    if (m_list)
        return *m_list;
    m_list = std::make_unique<bookSpelling>(m_variables, m_spelling, m_prompts, &m_window);
    bookSpelling *list = m_list.get();
    QObject::connect(list, &bookSpelling::wanted, list,
                     [this](const WordPlace &place, const QString &word) {
                         m_editor.runner.run(Kind::Editing, [&] { goTo(place, word); });
                     });
    QObject::connect(list, &bookSpelling::replaceWanted, list,
                     [this](const SpellingChange &change) {
                         m_editor.runner.run(Kind::Rewriting, [&] { replace(change); });
                     });
    return *list;
}

void SpellingMenu::showList()
{
    if (!m_spelling.bringUp()) {
        m_prompts.message(m_spelling.trouble(), tr("Orthographe"), Prompts::Buttons::Ok);
        return;
    }
    m_spelling.refreshOwnWords();
    try {
        LongWork work(m_report, tr("Orthographe..."), WorkReport::Stopping::OnEscape);
        list().read(work.progress());
    } catch (const WorkStopped &) {
        m_report.announce(tr("Orthographe arrêtée."));
        return;
    }
    showAside(list());
    list().focusList();
}

// The text may have changed since the word was listed.
void SpellingMenu::goTo(const WordPlace &place, const QString &word)
{
    m_editor.navigation.goTo(place.number);
    RichTextBox &box = m_editor.view.editingBox();
    box.select(static_cast<int>(place.position), static_cast<int>(place.length));
    if (spellingForm(box.selText()) != word) {
        box.select(static_cast<int>(place.position), 0);
        m_prompts.beep();
    }
    keepClear(list(), m_editor.view.revealSelection());
    m_window.activateWindow(); // the author goes on in the text
}

// Where the word still stands as it was listed, or wherever it stands by now.
void SpellingMenu::replace(const SpellingChange &change)
{
    QList<int> numbers = writtenParagraphs(m_variables);
    const auto isChosen = [&change](int n, const SpellingWord &doubt) {
        return change.everywhere ||
               change.places.contains(WordPlace{n, doubt.position, doubt.length});
    };
    numbers.removeIf([&change](int n) {
        return !change.everywhere &&
               std::none_of(change.places.begin(), change.places.end(),
                            [n](const WordPlace &place) { return place.number == n; });
    });
    LongWork work(m_report, tr("Correction..."));
    const int before = m_variables.History->newId();
    const int count = replaceInParagraphs(
        m_variables, m_editor.view.editingBox(),
        tr("Orthographe : « %1 » par « %2 »").arg(change.word, change.by), numbers,
        [&](int n, const QString &text) {
            QList<Replacement> replacements;
            const QList<SpellingWord> doubts = m_spelling.doubtsIn(n, text);
            for (const SpellingWord &doubt : doubts)
                if (doubt.text == change.word && isChosen(n, doubt))
                    replacements.append(
                        {doubt.position, doubt.length,
                         withApostropheOf(text.mid(doubt.position, doubt.length), change.by)});
            return replacements;
        },
        work.progress());
    announceDone(m_variables, m_report, before, tr("%n mot(s) remplacé(s).", nullptr, count));
}
