#include "convert/epub/epubDlog.h"

#include "convert/book/bookFactsDlog.h"
#include "convert/epub/EpubCommand.h"
#include "platform/Guarded.h"
#include "store/ExportTarget.h"
#include "store/LenientNumbers.h"
#include "store/Variables.h"
#include "ui_epubDlog.h"
#include "widgets/WorkInDialog.h"

epubDlog::epubDlog(Variables &variables, Prompts &prompts, WorkReport &report, QWidget *parent)
    : NumberDialog(prompts, Enter::Confirms, parent), m_variables(variables), m_prompts(prompts),
      m_report(report), m_ui(std::make_unique<Ui::epubDlog>())
{
    m_ui->setupUi(this);
    connectForm(*m_ui->CancelButton, *m_ui->txtLow);
    connectBookLine(*m_ui->lblBook, *m_ui->btnBook, variables, prompts);
    connectGuarded(m_ui->OKButton, &QPushButton::clicked, this, prompts,
                   [this] { OKButton_Click(); });
    Form_Load();
}

epubDlog::~epubDlog() = default;

void epubDlog::Form_Load()
{
    fillRange(*m_ui->txtLow, *m_ui->txtHigh, m_variables.LowestWritten, m_variables.HighestWritten);
    m_ui->txtLow->keepNumber();
    m_ui->txtHigh->keepNumber();
}

void epubDlog::OKButton_Click()
{
    const double low = lenientNumber(m_ui->txtLow->text());
    const double high = lenientNumber(m_ui->txtHigh->text());
    const QString path = m_prompts.saveName(tr("Enregistrer Livre Numérique"),
                                            tr("Livres numériques (*.epub)|*.epub"),
                                            QStringLiteral("epub"), proposedName(m_variables));
    if (path.isEmpty())
        return;
    WorkInDialog work(m_report, *m_ui->barWork);
    const auto files =
        m_ui->optEach->isChecked() ? EpubPages::Files::Each : EpubPages::Files::Hundreds;
    if (exportToEpub({m_variables, m_prompts, work}, {low, high, path},
                     {bookFacts(m_variables), files}))
        accept();
}
