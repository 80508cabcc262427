#include "convert/pdf/bookPdfDlog.h"

#include "convert/book/bookFactsDlog.h"
#include "convert/pdf/BookPreview.h"
#include "convert/pdf/BookPrinting.h"
#include "convert/pdf/PageSetupFile.h"
#include "convert/pdf/PdfCommand.h"
#include "platform/Guarded.h"
#include "store/ExportTarget.h"
#include "store/LenientNumbers.h"
#include "store/Variables.h"
#include "ui_bookPdfDlog.h"
#include "widgets/WorkInDialog.h"

#include <QKeyEvent>

bookPdfDlog::bookPdfDlog(Variables &variables, Prompts &prompts, WorkReport &report,
                         QWidget *parent)
    : NumberDialog(prompts, Enter::Confirms, parent), m_variables(variables), m_prompts(prompts),
      m_report(report), m_ui(std::make_unique<Ui::bookPdfDlog>())
{
    m_ui->setupUi(this);
    m_preview = std::make_unique<BookPreview>(variables, *m_ui->spread);
    connectForm(*m_ui->CancelButton, *m_ui->txtLow);
    Form_Load();
    connectControls();
    showSetup();
    showPlace();
}

bookPdfDlog::~bookPdfDlog() = default;

void bookPdfDlog::Form_Load()
{
    fillRange(*m_ui->txtLow, *m_ui->txtHigh, m_variables.LowestWritten, m_variables.HighestWritten);
    m_ui->txtLow->keepNumber();
    m_ui->txtHigh->keepNumber();
    m_ui->panel->setSetup(readPageSetup(m_variables));
}

void bookPdfDlog::connectControls()
{
    connectGuarded(m_ui->btnBook, &QPushButton::clicked, this, m_prompts,
                   [this] { btnBook_Click(); });
    connectGuarded(m_ui->btnPrint, &QPushButton::clicked, this, m_prompts,
                   [this] { btnPrint_Click(); });
    connectGuarded(m_ui->OKButton, &QPushButton::clicked, this, m_prompts,
                   [this] { OKButton_Click(); });
    connect(m_ui->panel, &PageSetupPanel::changed, this, &bookPdfDlog::showSetup);
    for (const QLineEdit *box : {m_ui->txtLow, m_ui->txtHigh})
        connect(box, &QLineEdit::textChanged, this, &bookPdfDlog::showSetup);
    connect(m_preview.get(), &BookPreview::changed, this, &bookPdfDlog::showPlace);
    connect(m_ui->btnBefore, &QToolButton::clicked, this, [this] { m_preview->turn(-1); });
    connect(m_ui->btnNext, &QToolButton::clicked, this, [this] { m_preview->turn(1); });
}

void bookPdfDlog::OKButton_Click()
{
    if (!isSetupSound())
        return;
    const QString path =
        m_prompts.saveName(tr("Enregistrer Livre Imprimable"), tr("Fichiers PDF (*.pdf)|*.pdf"),
                           QStringLiteral("pdf"), proposedName(m_variables));
    if (path.isEmpty())
        return;
    const PdfChoice choice{bookFacts(m_variables), m_ui->panel->setup()};
    m_preview->rest();
    WorkInDialog work(m_report, *m_ui->barWork);
    if (exportToPdf({m_variables, m_prompts, work}, request(path), choice))
        accept();
    else
        showSetup();
}

void bookPdfDlog::btnPrint_Click()
{
    if (!isSetupSound())
        return;
    const PdfChoice choice{bookFacts(m_variables), m_ui->panel->setup()};
    m_preview->rest();
    WorkInDialog work(m_report, *m_ui->barWork);
    if (printBook({m_variables, m_prompts, work}, request({}), choice, *this))
        accept();
    else
        showSetup();
}

void bookPdfDlog::btnBook_Click()
{
    bookFactsDlog(m_variables, m_prompts, this).exec();
    showSetup();
}

// One that is goes into the file of setups.
bool bookPdfDlog::isSetupSound()
{
    const PageSetup setup = m_ui->panel->setup();
    const QString fault = pageSetupFault(setup);
    if (fault.isEmpty())
        keepPageSetup(m_variables, setup);
    else
        m_prompts.message(fault, tr("Zut"), Prompts::Buttons::Ok);
    return fault.isEmpty();
}

ExportRequest bookPdfDlog::request(const QString &place) const
{
    return {lenientNumber(m_ui->txtLow->text()), lenientNumber(m_ui->txtHigh->text()), place};
}

// The pages stay as they were while the boxes make no sense.
void bookPdfDlog::showSetup()
{
    const PageSetup setup = m_ui->panel->setup();
    const QString fault = pageSetupFault(setup);
    m_ui->lblFault->say(fault.isEmpty() ? m_preview->remarks() : fault);
    const ExportRequest asked = request({});
    if (fault.isEmpty())
        m_preview->show({exportRange(asked.first, asked.second), bookFacts(m_variables), setup});
}

void bookPdfDlog::showPlace()
{
    if (pageSetupFault(m_ui->panel->setup()).isEmpty())
        m_ui->lblFault->say(m_preview->remarks());
    m_ui->lblPlace->setText(m_preview->place());
    m_ui->btnBefore->setEnabled(m_preview->hasBefore());
    m_ui->btnNext->setEnabled(m_preview->hasNext());
}

void bookPdfDlog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_PageUp)
        m_preview->turn(-1);
    else if (event->key() == Qt::Key_PageDown)
        m_preview->turn(1);
    else
        NumberDialog::keyPressEvent(event);
}
