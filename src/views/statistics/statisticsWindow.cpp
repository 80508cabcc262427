#include "views/statistics/statisticsWindow.h"

#include "check/BookWays.h"
#include "platform/Guarded.h"
#include "store/AdventureEvents.h"
#include "ui_statisticsWindow.h"
#include "views/statistics/Histogram.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QToolTip>
#include <algorithm>

namespace
{
constexpr int MostBars = 40;

QString linked(int n)
{
    return QStringLiteral("<a href=\"%1\">%1</a>").arg(n);
}

// A text asks for no more room than so many lines take: what stands beside it can do with it.
void limitLines(QTextBrowser &browser, int lines)
{
    const int around = 2 * (browser.frameWidth() + qRound(browser.document()->documentMargin()));
    browser.setFixedHeight(lines * browser.fontMetrics().lineSpacing() + around);
}

// Nothing moves where nothing has changed. The text takes its links' colour with it.
void showSentences(QTextBrowser &browser, const QStringList &sentences)
{
    const QString html = QStringLiteral("<style>a { color: %1 }</style>")
                             .arg(browser.palette().color(QPalette::Link).name()) +
                         sentences.join(QStringLiteral("<br>"));
    if (browser.property("shown").toString() == html)
        return;
    browser.setProperty("shown", html);
    browser.setHtml(html);
}
} // namespace

statisticsWindow::statisticsWindow(const Variables &variables, Prompts &prompts,
                                   const std::function<QString(int)> &words, QWidget *parent)
    : QDialog(parent), m_variables(variables), m_prompts(prompts), m_words(words),
      m_ui(std::make_unique<Ui::statisticsWindow>())
{
    m_ui->setupUi(this);
    NumberBox::connectBeeps(*this, prompts);
    m_computing.setSingleShot(true);
    m_computing.setInterval(0);
    connectGuarded(&m_computing, &QTimer::timeout, this, prompts, [this] { compute(); });
    limitLines(*m_ui->book, 7);
    limitLines(*m_ui->ending, 4);
    limitLines(*m_ui->readings, 6);
    setUpTables();
    connectControls();
    follow();
}

statisticsWindow::~statisticsWindow() = default;

void statisticsWindow::setUpTables()
{
    m_ui->paragraphs->setUp(
        {tr("Numéro"), tr("Mots"), tr("Signes"), tr("Choix"), tr("Lectures"), tr("Premiers mots")},
        m_words, tr("Paragraphes"), tr("Un double-clic ou Entrée va au paragraphe"));
    m_ui->endings->setUp(
        {tr("Fin"), tr("Lectures"), tr("Longueur"), tr("Passages"), tr("Premiers mots")}, m_words,
        tr("Fins"), tr("Un clic ou Entrée lit le chemin le plus court jusqu'à cette fin"));
    m_ui->sizeChart->setTitles(tr("mots"), tr("paragraphes"));
    m_ui->choiceChart->setTitles(tr("choix"), tr("paragraphes"));
    m_ui->lengthChart->setTitles(tr("paragraphes lus"), tr("lectures"));
}

void statisticsWindow::connectControls()
{
    setUpLinks(*m_ui->book);
    setUpLinks(*m_ui->ending);
    setUpLinks(*m_ui->readings);
    connect(m_ui->paragraphs, &FigureTable::activated, this, &statisticsWindow::wanted);
    connect(m_ui->endings, &FigureTable::currentChanged, this, &statisticsWindow::showEnding);
    connect(m_ui->endings, &FigureTable::clicked, this, &statisticsWindow::readTo);
    connect(m_ui->endings, &FigureTable::activated, this, &statisticsWindow::readTo);
    connectGuarded(m_ui->btnRead, &QPushButton::clicked, this, m_prompts,
                   [this] { btnRead_Click(); });
    connectGuarded(m_ui->txtSeed, &QLineEdit::returnPressed, this, m_prompts,
                   [this] { txtSeed_Enter(); });
    connect(m_ui->chkShades, &QCheckBox::toggled, this, &statisticsWindow::giveShades);
    connectGuarded(m_ui->btnCopy, &QPushButton::clicked, this, m_prompts, [this] { copy(); });
    connect(m_ui->btnClose, &QPushButton::clicked, this, &QDialog::reject);
}

void statisticsWindow::setUpLinks(QTextBrowser &browser)
{
    browser.setOpenLinks(false);
    connect(&browser, &QTextBrowser::anchorClicked, this,
            [this](const QUrl &url) { Q_EMIT wanted(url.toString().toInt()); });
}

void statisticsWindow::follow()
{
    const AdventureEvents *events = m_variables.Events.get();
    connect(events, &AdventureEvents::paragraphSaved, this, [this](int n) { textsAreOld({n}); });
    connect(events, &AdventureEvents::textsChanged, this, &statisticsWindow::textsAreOld);
    connect(events, &AdventureEvents::numbersChanged, this, [this](const NumberMap &newNumbers) {
        m_ui->paragraphs->renumber(newNumbers);
        m_ui->endings->renumber(newNumbers);
        m_ending = newNumbers.at(m_ending);
    });
    connect(events, &AdventureEvents::targetPhraseChanged, this, &statisticsWindow::computeSoon);
    connect(events, &AdventureEvents::extrasChanged, this, &statisticsWindow::computeSoon);
    connect(events, &AdventureEvents::adventureReplaced, this, &statisticsWindow::allIsOld);
}

void statisticsWindow::textsAreOld(const QList<int> &numbers)
{
    if (!m_allOld)
        m_oldTexts.append(numbers);
    computeSoon();
}

void statisticsWindow::allIsOld()
{
    m_allOld = true;
    m_oldTexts.clear();
    m_seed = UsualSeed;
    computeSoon();
}

// Nothing is read for a window that nobody sees.
void statisticsWindow::computeSoon()
{
    m_due = true;
    if (isVisible())
        m_computing.start();
}

void statisticsWindow::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (m_due)
        m_computing.start();
}

void statisticsWindow::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && isVisible())
        computeSoon();
}

// Where the shades came from could not be seen any more.
void statisticsWindow::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    m_ui->chkShades->setChecked(false);
}

void statisticsWindow::focusPages()
{
    m_ui->pages->tabBar()->setFocus();
}

void statisticsWindow::compute()
{
    m_due = false;
    readTexts();
    const BookWays ways(m_variables);
    m_book = bookStatistics(m_variables, ways, m_sizes);
    readAtRandom(ways);
}

void statisticsWindow::readTexts()
{
    if (m_allOld)
        m_sizes = textSizes(m_variables);
    for (const int n : std::as_const(m_oldTexts))
        m_sizes.read(m_variables, n);
    m_oldTexts.clear();
    m_allOld = false;
}

void statisticsWindow::readAtRandom(const BookWays &ways)
{
    m_readings = randomReadings(m_variables, ways, UsualReadings, m_seed);
    showAll();
    giveShades();
}

// A seed that has been typed is taken, and otherwise another one is drawn.
void statisticsWindow::btnRead_Click()
{
    if (m_ui->txtSeed->text() == QString::number(m_seed))
        m_seed = anySeed();
    else if (!takeTypedSeed())
        return;
    readAtRandom(BookWays(m_variables));
}

void statisticsWindow::txtSeed_Enter()
{
    if (takeTypedSeed())
        readAtRandom(BookWays(m_variables));
}

void statisticsWindow::tellSeedRefused()
{
    m_prompts.beep();
    QLineEdit *box = m_ui->txtSeed;
    QToolTip::showText(box->mapToGlobal(QPoint(0, box->height())),
                       tr("Une graine est un nombre de 0 à 4294967295."), box);
}

bool statisticsWindow::takeTypedSeed()
{
    bool ok = false;
    const quint32 seed = m_ui->txtSeed->text().toUInt(&ok);
    if (ok)
        m_seed = seed;
    else
        tellSeedRefused();
    m_ui->txtSeed->selectAll();
    return ok;
}

void statisticsWindow::showAll()
{
    m_ui->txtSeed->setText(QString::number(m_seed));
    showSentences(*m_ui->book, bookSentences(m_book, &linked));
    showSentences(*m_ui->readings, readingSentences(m_book, m_readings, &linked));
    showParagraphs();
    showEndings();
    showEnding(m_ending);
    showCharts();
}

void statisticsWindow::showParagraphs()
{
    QList<FigureModel::Row> rows;
    for (const BookStatistics::Paragraph &paragraph : std::as_const(m_book.paragraphs)) {
        const int met = m_readings.met.at(paragraph.number);
        FigureModel::Row row{paragraph.number, {}};
        for (const int figure : {paragraph.words, paragraph.signs, paragraph.choices})
            row.cells.append({static_cast<double>(figure), QString::number(figure)});
        row.cells.append({static_cast<double>(met), shareOf(met, m_readings)});
        rows.append(row);
    }
    m_ui->paragraphs->setRows(rows);
}

void statisticsWindow::showEndings()
{
    QList<FigureModel::Row> rows;
    for (const BookStatistics::Ending &ending : std::as_const(m_book.endings)) {
        const int ended = m_readings.ended.at(ending.number);
        FigureModel::Row row{ending.number, {}};
        row.cells.append({static_cast<double>(ended), shareOf(ended, m_readings)});
        for (const qsizetype figure : {ending.way.size(), ending.passages.size()})
            row.cells.append({static_cast<double>(figure), QString::number(figure)});
        rows.append(row);
    }
    m_ui->endings->setRows(rows);
}

void statisticsWindow::showEnding(int n)
{
    m_ending = n;
    const BookStatistics::Ending *ending = endingAt(n);
    showSentences(
        *m_ui->ending,
        ending == nullptr
            ? QStringList(tr("Choisissez une fin : le chemin le plus court et les passages "
                             "obligés s'affichent ici."))
            : endingSentences(*ending, &linked));
}

void statisticsWindow::showCharts()
{
    QMap<int, int> sizes;
    for (const BookStatistics::Paragraph &paragraph : std::as_const(m_book.paragraphs))
        ++sizes[paragraph.words];
    m_ui->sizeChart->setBars(histogram(sizes, MostBars));
    m_ui->choiceChart->setBars(histogram(choiceCounts(m_book), MostBars));
    m_ui->lengthChart->setBars(histogram(m_readings.lengths, MostBars));
}

void statisticsWindow::giveShades()
{
    if (!m_ui->chkShades->isChecked()) {
        Q_EMIT shadesChanged(std::nullopt);
        return;
    }
    GridShades shades;
    for (int n = 1; n <= Variables::LastParagraph; ++n)
        shades.at(n) = static_cast<double>(m_readings.met.at(n)) / std::max(m_readings.count, 1);
    Q_EMIT shadesChanged(shades);
}

void statisticsWindow::readTo(int ending)
{
    const BookStatistics::Ending *found = endingAt(ending);
    if (found != nullptr && !found->way.isEmpty())
        Q_EMIT wayWanted(found->way);
    else
        m_prompts.beep();
}

const BookStatistics::Ending *statisticsWindow::endingAt(int n) const
{
    const auto ending =
        std::find_if(m_book.endings.begin(), m_book.endings.end(),
                     [n](const BookStatistics::Ending &e) { return e.number == n; });
    return ending == m_book.endings.end() ? nullptr : &*ending;
}

void statisticsWindow::copy()
{
    QGuiApplication::clipboard()->setText(statisticsLines(m_book, m_readings, m_words).join(u'\n') +
                                          u'\n');
}
