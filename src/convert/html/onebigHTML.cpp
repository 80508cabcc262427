#include "convert/html/onebigHTML.h"

#include "convert/html/HtmlCommands.h"
#include "platform/Guarded.h"
#include "store/ExportTarget.h"
#include "store/LenientNumbers.h"
#include "store/WorkingFiles.h"
#include "ui_onebigHTML.h"
#include "widgets/WorkInDialog.h"

onebigHTML::onebigHTML(const Variables &variables, Prompts &prompts, WorkReport &report,
                       QWidget *parent)
    : NumberDialog(prompts, Enter::Beeps, parent), m_variables(variables), m_prompts(prompts),
      m_report(report), m_ui(std::make_unique<Ui::onebigHTML>())
{
    m_ui->setupUi(this);
    connectForm(*m_ui->Cancel, *m_ui->txtLow);
    connectCodeBoxes();
    connectGuarded(m_ui->HTML, &QPushButton::clicked, this, prompts, [this] { HTML_Click(); });
    Form_Load();
}

onebigHTML::~onebigHTML() = default;

void onebigHTML::connectCodeBoxes()
{
    const CodeBox::FileKind kind{tr("Fichiers TXT (*.txt)|*.txt"), QStringLiteral("txt")};
    m_ui->txtHeader->connectButtons(m_variables, m_prompts, *m_ui->btnLoad1, *m_ui->btnSave1, kind);
    m_ui->txtFooter->connectButtons(m_variables, m_prompts, *m_ui->btnLoad2, *m_ui->btnSave2, kind);
    m_ui->txtNumbers->connectButtons(m_variables, m_prompts, *m_ui->btnLoad3, *m_ui->btnSave3,
                                     kind);
}

// The end of the file is by default the end that pages of their own have.
void onebigHTML::Form_Load()
{
    for (NumberBox *box : {m_ui->txtLow, m_ui->txtHigh})
        setCodeFont(*box);
    fillRange(*m_ui->txtLow, *m_ui->txtHigh, m_variables.LowestWritten, m_variables.HighestWritten);
    const WorkingFiles files(m_variables);
    m_ui->txtHeader->readFile(files.document(WorkingFiles::Document::OneFileHeader));
    m_ui->txtFooter->readFile(files.document(WorkingFiles::Document::Footer));
    m_ui->txtNumbers->readFile(files.document(WorkingFiles::Document::Numbers));
}

void onebigHTML::HTML_Click()
{
    const double low = lenientNumber(m_ui->txtLow->text());
    const double high = lenientNumber(m_ui->txtHigh->text());
    const QString path =
        m_prompts.saveName(tr("Enregistrer Fichier HTML"), tr("Fichiers HTML (*.htm)|*.htm"),
                           QStringLiteral("htm"), proposedName(m_variables));
    if (path.isEmpty())
        return;
    const HtmlCodes codes{m_ui->txtHeader->code(), m_ui->txtNumbers->code(),
                          m_ui->txtFooter->code()};
    WorkInDialog work(m_report, *m_ui->barWork);
    if (exportToOneFile({m_variables, m_prompts, work}, {low, high, path}, codes))
        accept();
}
