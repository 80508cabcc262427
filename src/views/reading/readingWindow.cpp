#include "views/reading/readingWindow.h"

#include "check/BookWays.h"
#include "editor/FirstWords.h"
#include "editor/options/EditorComfort.h"
#include "editor/options/ZoomKeys.h"
#include "platform/Guarded.h"
#include "reading/RandomReadings.h"
#include "reading/ShortestWay.h"
#include "store/AdventureEvents.h"
#include "store/DamagedTexts.h"
#include "ui_readingWindow.h"
#include "views/reading/BookmarkPanel.h"
#include "views/reading/ReadingLinks.h"
#include "views/reading/ReadingSentences.h"

#include <QMenu>
#include <QShortcut>
#include <QSplitter>
#include <algorithm>
#include <utility>

namespace
{
// Those that have a digit.
constexpr int MostKeys = 9;

QString withTitle(const Variables &variables, int n)
{
    // What looks like a mnemonic is the author's.
    const QString words = firstWords(variables, n).replace(u'&', QLatin1String("&&"));
    return QCoreApplication::translate("readingWindow", "%1 : %2").arg(n).arg(words);
}
// The text takes what room there is.
void divide(QSplitter &splitter, const QList<int> &sizes, int text)
{
    splitter.setSizes(sizes);
    splitter.setStretchFactor(text, 1);
    splitter.setStretchFactor(1 - text, 0);
}
} // namespace

readingWindow::readingWindow(Variables &variables, Prompts &prompts, ComfortKeeper &comfort,
                             QWidget *parent)
    : QDialog(parent), m_variables(variables), m_prompts(prompts),
      m_ui(std::make_unique<Ui::readingWindow>()), m_marks(variables), m_steps(variables, this),
      m_choices(variables, this)
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    divide(*m_ui->sides, {240, 560}, 1);
    divide(*m_ui->pageSide, {400, 100}, 0);
    m_ui->way->setModel(&m_steps);
    m_ui->choices->setModel(&m_choices);
    m_bookmarks = std::make_unique<BookmarkPanel>(
        variables, prompts, m_marks, m_way,
        BookmarkPanel::Controls{*m_ui->bookmarks, *m_ui->btnMark, *m_ui->btnRename,
                                *m_ui->btnUnmark});
    m_ui->page->setTips(
        [this](const ReadingPage::Link &link) { return linkTip(m_variables, link); });
    new ZoomKeys(comfort, *m_ui->page, *this);
    const auto showComfort = [this, &comfort] {
        m_ui->page->setZoom(comfort.comfort().zoom);
        m_ui->page->setPageWidth(comfort.comfort().pageWidth);
    };
    connect(&comfort, &ComfortKeeper::changed, this, showComfort);
    showComfort();
    connectControls();
    addKeys();
    follow();
}

readingWindow::~readingWindow() = default;

void readingWindow::connectControls()
{
    const auto onClick = [this](const QAbstractButton *button, void (readingWindow::*slot)()) {
        connectGuarded(button, &QAbstractButton::clicked, this, m_prompts,
                       [this, slot] { (this->*slot)(); });
    };
    onClick(m_ui->btnStart, &readingWindow::readFromStart);
    onClick(m_ui->btnBack, &readingWindow::goBack);
    onClick(m_ui->btnRestore, &readingWindow::restore);
    onClick(m_ui->btnUnread, &readingWindow::btnUnread_Click);
    onClick(m_ui->btnRandom, &readingWindow::btnRandom_Click);
    onClick(m_ui->btnForget, &readingWindow::btnForget_Click);
    onClick(m_ui->btnEdit, &readingWindow::btnEdit_Click);
    connect(m_ui->btnClose, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_ui->page, &ReadingPage::chosen, this, &readingWindow::choose);
    connect(m_ui->choices, &LineList::chosen, this,
            [this](int row) { choose(m_choices.line(row).number); });
    connect(m_ui->way, &LineList::chosen, this, &readingWindow::returnTo);
    connect(m_bookmarks.get(), &BookmarkPanel::wanted, this, &readingWindow::showWay);
    connect(&m_marks, &ReadMarks::changed, this, [this] {
        if (isVisible())
            showMarks();
    });
}

// French keyboards have the digits with Shift, and these characters without.
void readingWindow::addKeys()
{
    constexpr Qt::Key withoutShift[MostKeys] = {
        Qt::Key_Ampersand,  Qt::Key_Eacute,     Qt::Key_QuoteDbl,
        Qt::Key_Apostrophe, Qt::Key_ParenLeft,  Qt::Key_Minus,
        Qt::Key_Egrave,     Qt::Key_Underscore, Qt::Key_Ccedilla};
    const auto add = [this](const QList<QKeySequence> &keys, const auto &work) {
        auto *shortcut = new QShortcut(this);
        shortcut->setKeys(keys);
        connectGuarded(shortcut, &QShortcut::activated, this, m_prompts, work);
    };
    for (int row = 0; row < MostKeys; ++row)
        add({Qt::Key_1 + row, withoutShift[row]}, [this, row] { chooseRow(row); });
    add({Qt::Key_Backspace, Qt::ALT | Qt::Key_Left}, [this] { goBack(); });
    add({Qt::ALT | Qt::Key_Right}, [this] { restore(); });
    add({Qt::Key_Home}, [this] { readFromStart(); });
    add({Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Enter}, [this] { btnEdit_Click(); });
}

void readingWindow::follow()
{
    const AdventureEvents *events = m_variables.Events.get();
    connect(events, &AdventureEvents::paragraphSaved, this, &readingWindow::refresh);
    connect(events, &AdventureEvents::textsChanged, this, &readingWindow::refresh);
    connect(events, &AdventureEvents::targetPhraseChanged, this, &readingWindow::refresh);
    connect(events, &AdventureEvents::numbersChanged, this, [this](const NumberMap &newNumbers) {
        m_way.follow(newNumbers);
        m_ui->page->follow(newNumbers);
    });
    connect(events, &AdventureEvents::adventureReplaced, this, [this] {
        m_way.clear();
        refresh();
        tell({});
    });
}

void readingWindow::readFrom(int n)
{
    m_way.come({n});
    come();
}

void readingWindow::readFromStart()
{
    QList<int> starts = BookWays(m_variables).starts;
    if (starts.isEmpty())
        starts = readingStarts(m_variables);
    if (starts.size() == 1) {
        readFrom(starts.first());
        return;
    }
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const int n : starts)
        connect(menu->addAction(withTitle(m_variables, n)), &QAction::triggered, this,
                [this, n] { readFrom(n); });
    menu->popup(m_ui->btnStart->mapToGlobal(QPoint(0, 0)));
    menu->setActiveAction(menu->actions().constFirst());
}

void readingWindow::showWay(const QList<int> &way)
{
    m_way.come(way);
    come();
}

// He stays before a paragraph that is not written yet.
void readingWindow::choose(int target)
{
    if (m_variables.Written.at(target) == 0) {
        tell(tr("Le paragraphe %1 est encore vide.").arg(target));
        m_prompts.beep();
        return;
    }
    m_marks.noteChoices({*m_way.current(), target});
    m_way.goOn({target});
    come();
}

void readingWindow::chooseRow(int row)
{
    if (row < m_choices.rowCount())
        choose(m_choices.line(row).number);
    else
        m_prompts.beep();
}

void readingWindow::goBack()
{
    if (m_way.at() > 0)
        returnTo(static_cast<int>(m_way.at()) - 1);
}

void readingWindow::returnTo(int step)
{
    m_way.returnTo(step);
    come();
}

void readingWindow::restore()
{
    if (!m_way.canRestore())
        return;
    m_way.restore();
    come();
}

void readingWindow::btnUnread_Click()
{
    if (!m_way.current()) {
        readFromStart();
        return;
    }
    const ReferenceWeb web(m_variables);
    const QList<int> way = shortestWay(web, *m_way.current(), m_marks.unread());
    if (way.isEmpty()) {
        tell(nothingUnread(m_variables, m_marks.unread()));
        return;
    }
    m_marks.noteChoices(QList<int>{*m_way.current()} + way);
    m_way.goOn(way);
    come();
}

// From where he is, or from the start when nothing leads on from there.
void readingWindow::btnRandom_Click()
{
    const BookWays ways(m_variables);
    const int here = m_way.current().value_or(0);
    const bool goesOn = !ways.web.outgoing.at(here).isEmpty();
    if (!goesOn && ways.starts.isEmpty()) {
        tell(tr("Il n'y a rien à lire."));
        return;
    }
    const int from = goesOn ? here : ways.starts.first();
    const RandomReading reading = RandomReader(m_variables, ways, anySeed()).read(from);
    m_way.come((goesOn ? m_way.steps().first(m_way.at()) : QList<int>()) + reading.way);
    come();
    tell(randomSentence(reading));
}

void readingWindow::btnForget_Click()
{
    const auto answer = m_prompts.message(
        tr("Oublier quels paragraphes ont été lus, et par quels choix ? Les marque-pages restent."),
        tr("Oublier les lectures"), Prompts::Buttons::YesNo);
    if (answer == Prompts::Answer::Yes)
        m_marks.forget();
}

void readingWindow::btnEdit_Click()
{
    if (m_way.current())
        Q_EMIT editWanted(*m_way.current(), m_ui->page->place());
}

// To where the way leads now.
void readingWindow::come()
{
    m_ui->page->forgetFocus();
    showPage();
    if (m_variables.Written.at(*m_way.current()) == 1)
        m_marks.noteRead(*m_way.current());
    m_ui->choices->setCurrentRow(0);
}

// Nothing is read for a window that nobody sees.
void readingWindow::refresh()
{
    m_steps.forgetWords();
    m_choices.forgetWords();
    if (isVisible())
        showPage();
}

void readingWindow::showPage()
{
    const std::optional<int> n = m_way.current();
    m_ui->lblTitle->setText(n ? tr("Paragraphe %1").arg(*n) : tr("Aucune lecture en cours"));
    const QString failure = n ? showText(*n) : showNothing();
    showMarks();
    tell(failure.isEmpty() ? endSentence() : failure);
    m_ui->btnBack->setEnabled(m_way.at() > 0);
    m_ui->btnRestore->setEnabled(m_way.canRestore());
    m_ui->btnEdit->setEnabled(n.has_value());
}

QString readingWindow::showNothing()
{
    m_ui->page->showNothing();
    return tr("La touche Début commence au départ du livre, F5 au paragraphe de l'éditeur.");
}

// Says why there is none to be read. The text that is there already stays, with its place.
QString readingWindow::showText(int n)
{
    QList<int> unreadable;
    const bool written = m_variables.Written.at(n) == 1;
    const QByteArray rtf =
        written ? readableText(m_variables, n, unreadable).value_or(QByteArray()) : QByteArray();
    if (!m_ui->page->showText(n, rtf, {m_variables.defaultFontName, m_variables.defaultFontSize}))
        unreadable.append(n);
    if (!unreadable.isEmpty())
        return tr("Le texte de ce paragraphe est illisible.");
    return written ? QString() : tr("Ce paragraphe est vide.");
}

// What was read shows in the links, in both lists and in the count.
void readingWindow::showMarks()
{
    const int read = m_marks.readCount();
    const auto written = static_cast<int>(
        std::count(m_variables.Written.begin() + 1, m_variables.Written.end() - 1, 1));
    m_ui->lblRead->setText(tr("Lus : %1 sur %2").arg(read).arg(written));
    showChoices();
    showSteps();
    m_bookmarks->refresh();
}

void readingWindow::showChoices()
{
    const ParagraphSet taken = m_marks.takenFrom(m_way.current().value_or(0));
    const QList<ReadingPage::Link> links = linksOf(*m_ui->page, m_variables, taken);
    QList<ReadingLines::Line> lines;
    ParagraphSet listed;
    for (const ReadingPage::Link &link : links) {
        if (std::exchange(listed.at(link.target), true))
            continue;
        const auto key = static_cast<int>(lines.size()) + 1;
        lines.append({link.target, key <= MostKeys ? key : 0, m_marks.isRead(link.target), false});
    }
    m_ui->page->setLinks(links);
    m_choices.show(lines);
}

void readingWindow::showSteps()
{
    QList<ReadingLines::Line> lines;
    const QList<int> &steps = m_way.steps();
    lines.reserve(steps.size());
    for (qsizetype i = 0; i < steps.size(); ++i)
        lines.append({steps.at(i), 0, m_marks.isRead(steps.at(i)), i > m_way.at()});
    m_steps.show(lines);
    m_ui->way->setCurrentRow(static_cast<int>(m_way.at()));
}

void readingWindow::tell(const QString &sentence)
{
    m_ui->lblState->setText(sentence);
}

QString readingWindow::endSentence() const
{
    if (m_choices.rowCount() == 0)
        return tr("Fin : aucun renvoi ne part d'ici.");
    return tr("1 à 9 : choisir ; Retour arrière : revenir ; Début : recommencer.");
}

bool readingWindow::event(QEvent *event)
{
    if (event->type() == QEvent::WindowDeactivate)
        keep();
    return QDialog::event(event);
}

void readingWindow::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    showPage();
}

void readingWindow::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    keep();
}
