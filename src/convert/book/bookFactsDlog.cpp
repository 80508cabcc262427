#include "convert/book/bookFactsDlog.h"

#include "convert/book/Book.h"
#include "platform/Guarded.h"
#include "store/AdventureChanges.h"
#include "store/ExportTarget.h"
#include "ui_bookFactsDlog.h"

#include <QScreen>
#include <QTextDocument>

namespace
{
// The box's own text would have plain spaces for no-break spaces.
QString textOf(const QPlainTextEdit &box)
{
    QString text = box.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    return text.replace(QChar::LineSeparator, u'\n').trimmed();
}

// By its name or by its code.
QString languageOf(const QComboBox &box)
{
    const QString typed = box.currentText().trimmed();
    const int named = box.findText(typed, Qt::MatchFixedString);
    return named < 0 ? typed : box.itemData(named).toString();
}
} // namespace

bookFactsDlog::bookFactsDlog(Variables &variables, Prompts &prompts, QWidget *parent)
    : QDialog(parent), m_variables(variables), m_prompts(prompts),
      m_ui(std::make_unique<Ui::bookFactsDlog>())
{
    m_ui->setupUi(this);
    m_ui->picCover->connectButtons(prompts, *m_ui->btnChoose, *m_ui->btnRemove);
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connectGuarded(m_ui->OKButton, &QPushButton::clicked, this, prompts,
                   [this] { OKButton_Click(); });
    Form_Load();
}

bookFactsDlog::~bookFactsDlog() = default;

// Frames and the title are not known before the window is there; 48 pixels hold all common ones.
void bookFactsDlog::showEvent(QShowEvent *event)
{
    constexpr int title = 48;
    resize(size().boundedTo(screen()->availableSize() - QSize(0, title)));
    QDialog::showEvent(event);
}

void bookFactsDlog::Form_Load()
{
    QComboBox &languages = *m_ui->comboLanguage;
    const std::pair<QString, const char *> named[] = {
        {tr("Français"), "fr"}, {tr("Anglais"), "en"}, {tr("Allemand"), "de"},
        {tr("Espagnol"), "es"}, {tr("Italien"), "it"}, {tr("Néerlandais"), "nl"},
        {tr("Portugais"), "pt"}};
    for (const auto &[name, code] : named)
        languages.addItem(name, QString::fromLatin1(code));
    const BookFacts &facts = m_variables.extras.book;
    const int known = languages.findData(facts.language);
    languages.setCurrentIndex(known);
    if (known < 0)
        languages.setEditText(facts.language);
    m_ui->txtTitle->setText(facts.title);
    m_ui->txtTitle->setPlaceholderText(proposedName(m_variables));
    m_ui->txtAuthor->setText(facts.author);
    m_ui->txtDedication->setPlainText(facts.dedication);
    m_ui->txtBefore->setPlainText(facts.before);
    m_ui->txtAfter->setPlainText(facts.after);
    m_ui->picCover->setCover(facts.cover);
    m_loaded = this->facts();
}

// What was typed may be a page of text.
void bookFactsDlog::reject()
{
    using Answer = Prompts::Answer;
    const Answer kept = facts() == m_loaded
                            ? Answer::No
                            : m_prompts.message(tr("Garder ce que vous avez changé ?"),
                                                tr("Songez-y"), Prompts::Buttons::YesNoCancel);
    if (kept == Answer::Yes)
        m_ui->OKButton->click();
    else if (kept == Answer::No)
        QDialog::reject();
}

void bookFactsDlog::OKButton_Click()
{
    const BookFacts facts = this->facts();
    if (!isLanguageCode(facts.language)) {
        m_prompts.message(
            tr("La langue se donne par son nom ou par un code comme fr, en ou fr-CA."), tr("Zut"),
            Prompts::Buttons::Ok);
        m_ui->comboLanguage->setFocus();
        return;
    }
    AdventureExtras extras = m_variables.extras;
    extras.book = facts;
    changeExtras(m_variables, extras);
    accept();
}

BookFacts bookFactsDlog::facts() const
{
    return {m_ui->txtTitle->text().trimmed(), m_ui->txtAuthor->text().trimmed(),
            languageOf(*m_ui->comboLanguage), textOf(*m_ui->txtDedication),
            textOf(*m_ui->txtBefore),         textOf(*m_ui->txtAfter),
            m_ui->picCover->cover()};
}

void connectBookLine(QLabel &line, const QPushButton &button, Variables &variables,
                     Prompts &prompts)
{
    const auto show = [&line, &variables] { line.setText(bookLine(bookFacts(variables))); };
    connectGuarded(&button, &QPushButton::clicked, &line, prompts,
                   [&line, &variables, &prompts, show] {
                       bookFactsDlog(variables, prompts, line.window()).exec();
                       show();
                   });
    show();
}
