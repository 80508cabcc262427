#include "views/language/bookSpelling.h"

#include "editor/search/MatchDelegate.h"
#include "editor/search/SearchCommands.h"
#include "language/spelling/Spelling.h"
#include "platform/Failures.h"
#include "store/AdventureEvents.h"
#include "store/DamagedTexts.h"
#include "store/Variables.h"
#include "ui_bookSpelling.h"
#include "widgets/ToolWindow.h"

#include <QHeaderView>
#include <QHideEvent>
#include <QLineEdit>
#include <algorithm>

namespace
{
constexpr qsizetype MostPlaces = 500; // of a word, in the list
constexpr int WidthOfWord = 180;
constexpr int WidthOfCount = 70;
} // namespace

bookSpelling::bookSpelling(const Variables &variables, Spelling &spelling, Prompts &prompts,
                           QWidget *parent)
    : QDialog(parent), m_variables(variables), m_spelling(spelling), m_prompts(prompts),
      m_ui(std::make_unique<Ui::bookSpelling>()), m_book(variables, spelling)
{
    m_ui->setupUi(this);
    m_ui->words->setModel(&m_model);
    m_ui->words->sortByColumn(SpellingModel::Count, Qt::DescendingOrder);
    m_ui->words->header()->resizeSection(SpellingModel::Word, WidthOfWord);
    m_ui->words->header()->resizeSection(SpellingModel::Count, WidthOfCount);
    m_ui->places->setModel(&m_places);
    m_ui->places->setItemDelegate(new MatchDelegate(m_places, this));
    connectControls();
    follow();
    showWord();
}

bookSpelling::~bookSpelling() = default;

void bookSpelling::connectControls()
{
    connect(m_ui->words->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &bookSpelling::showWord);
    connect(m_ui->words->header(), &QHeaderView::sortIndicatorChanged, this,
            [this] { m_ui->words->setCurrentIndex(m_model.index(m_model.rowOf(m_shown), 0)); });
    connect(m_ui->words, &QTreeView::activated, this, [this] {
        if (const DoubtfulWord *word = current())
            Q_EMIT wanted(word->places.first(), word->word);
    });
    connect(m_ui->places, &QListView::activated, this, [this](const QModelIndex &index) {
        if (const DoubtfulWord *word = current())
            Q_EMIT wanted(WordPlace(word->places.at(index.row())), QString(word->word));
    });
    connect(m_ui->places->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &bookSpelling::showButtons);
    connect(m_ui->btnReplace, &QPushButton::clicked, this, [this] { replace(false); });
    connect(m_ui->btnReplaceAll, &QPushButton::clicked, this, [this] { replace(true); });
    connect(m_ui->btnAddToAdventure, &QPushButton::clicked, this, [this] {
        addingWord(m_prompts, [this] { m_spelling.addToAdventure(QString(m_shown)); });
    });
    connect(m_ui->btnAddToOwn, &QPushButton::clicked, this, [this] {
        addingWord(m_prompts, [this] { m_spelling.addToOwnWords(QString(m_shown)); });
    });
    connect(m_ui->btnIgnore, &QPushButton::clicked, this, &bookSpelling::ignoreChosen);
    connect(m_ui->btnClose, &QPushButton::clicked, this, &QDialog::reject);
}

// Nothing is followed for a list that nobody sees.
void bookSpelling::follow()
{
    const AdventureEvents *events = m_variables.Events.get();
    connect(events, &AdventureEvents::paragraphSaved, this, [this](int n) { readAgain({n}); });
    connect(events, &AdventureEvents::textsChanged, this, &bookSpelling::readAgain);
    connect(events, &AdventureEvents::adventureReplaced, this, &QWidget::hide);
    connect(&m_spelling, &Spelling::changed, this, &bookSpelling::judgeAgain);
    connect(&m_spelling.suggestions(), &Suggestions::found, this,
            [this](const QString &word, const QStringList &suggestions) {
                if (word == m_shown)
                    fillSuggestions(suggestions);
            });
}

void bookSpelling::read(const Progress &progress)
{
    m_book.readAll(progress);
    fill();
}

void bookSpelling::readAgain(const QList<int> &numbers)
{
    if (!isVisible())
        return;
    for (const int n : numbers)
        m_book.read(n);
    fill();
}

void bookSpelling::judgeAgain(bool onlyFewer)
{
    if (!isVisible())
        return;
    if (onlyFewer)
        m_book.judgeAgain();
    else
        m_book.readAll([](int, int) {});
    fill();
}

void bookSpelling::focusList()
{
    m_ui->words->setFocus();
}

void bookSpelling::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    if (event->spontaneous())
        return;
    m_model.setWords({});
    showWord();
}

// The word that was chosen stays so, or the one that has come into its row.
void bookSpelling::fill()
{
    const int before = m_ui->words->currentIndex().row();
    m_model.setWords(m_book.words());
    int row = m_model.rowOf(m_shown);
    if (row < 0)
        row = std::clamp(before, 0, std::max(m_model.rowCount() - 1, 0));
    m_ui->words->setCurrentIndex(m_model.index(row, 0));
    if (m_model.rowCount() == 0)
        showWord();
}

const DoubtfulWord *bookSpelling::current() const
{
    const QModelIndex index = m_ui->words->currentIndex();
    return index.isValid() ? &m_model.at(index.row()) : nullptr;
}

void bookSpelling::showWord()
{
    const DoubtfulWord *word = current();
    const QString shown = word != nullptr ? word->word : QString();
    const bool another = shown != m_shown;
    m_shown = shown;
    m_places.clear();
    if (word != nullptr)
        showPlaces(*word);
    if (another)
        showSuggestions(shown);
    showState();
    showButtons();
}

void bookSpelling::showPlaces(const DoubtfulWord &word)
{
    QList<MatchLine> lines;
    QList<int> unreadable;
    int number = -1;
    QString text;
    for (const WordPlace &place : word.places.mid(0, MostPlaces)) {
        if (place.number != number)
            text = readablePlainText(m_variables, place.number, unreadable).value_or(QString());
        number = place.number;
        lines.append(matchLine(number, text, {place.position, place.length, {}}));
    }
    m_places.append(lines);
}

// They are looked up for the chosen word alone.
void bookSpelling::showSuggestions(const QString &word)
{
    m_ui->comboBy->clear();
    m_ui->comboBy->lineEdit()->setPlaceholderText(QString());
    if (word.isEmpty())
        return;
    if (const std::optional<QStringList> known = m_spelling.suggestions().ask(word))
        fillSuggestions(*known);
    else
        m_ui->comboBy->lineEdit()->setPlaceholderText(tr("Recherche de suggestions..."));
}

// What the author has typed meanwhile stays.
void bookSpelling::fillSuggestions(const QStringList &suggestions)
{
    const QString typed = m_ui->comboBy->currentText();
    m_ui->comboBy->clear();
    m_ui->comboBy->addItems(suggestions);
    m_ui->comboBy->lineEdit()->setPlaceholderText(suggestions.isEmpty() ? tr("Aucune suggestion")
                                                                        : QString());
    if (!typed.isEmpty())
        m_ui->comboBy->setEditText(typed);
    showButtons();
}

void bookSpelling::showState()
{
    int places = 0;
    for (int row = 0; row < m_model.rowCount(); ++row)
        places += static_cast<int>(m_model.at(row).places.size());
    QString state = tr("Aucun mot douteux.");
    if (m_model.rowCount() > 0)
        state = tr("%n mot(s) douteux", nullptr, m_model.rowCount()) + u' ' +
                tr("en %n endroit(s).", nullptr, places);
    const DoubtfulWord *word = current();
    if (word != nullptr && word->places.size() > MostPlaces)
        state += u' ' + tr("Les %1 premiers endroits du mot choisi.").arg(MostPlaces);
    if (!m_book.unreadable().isEmpty())
        state += u'\n' + tr("Paragraphes illisibles : %1").arg(paragraphNames(m_book.unreadable()));
    m_ui->lblState->setText(state);
}

void bookSpelling::showButtons()
{
    const bool word = !m_shown.isEmpty();
    const bool places = m_ui->places->selectionModel()->hasSelection();
    m_ui->btnReplace->setEnabled(word && places);
    m_ui->btnReplaceAll->setEnabled(word);
    m_ui->btnAddToAdventure->setEnabled(word);
    m_ui->btnAddToOwn->setEnabled(word);
    m_ui->btnIgnore->setEnabled(word && places);
}

QList<WordPlace> bookSpelling::chosenPlaces() const
{
    QList<WordPlace> places;
    const DoubtfulWord *word = current();
    const QModelIndexList rows = m_ui->places->selectionModel()->selectedIndexes();
    for (const QModelIndex &row : rows)
        if (word != nullptr && row.row() < word->places.size())
            places.append(word->places.at(row.row()));
    return places;
}

void bookSpelling::replace(bool everywhere)
{
    // What was pasted may have ends of lines, which the box shows as blanks.
    const QString by = m_ui->comboBy->currentText().simplified();
    if (by.isEmpty()) {
        m_ui->lblState->setText(tr("Par quoi remplacer ce mot ?"));
        m_ui->comboBy->setFocus();
        return;
    }
    Q_EMIT replaceWanted(
        {m_shown, by, everywhere, everywhere ? QList<WordPlace>() : chosenPlaces()});
}

// A word is ignored in the whole of a paragraph.
void bookSpelling::ignoreChosen()
{
    const QString word = m_shown;
    const QList<WordPlace> places = chosenPlaces();
    addingWord(m_prompts, [&] {
        for (const WordPlace &place : places)
            m_spelling.ignore(place.number, word);
    });
}
