#include "convert/html/manyHTML.h"

#include "convert/html/HtmlCommands.h"
#include "platform/Guarded.h"
#include "store/LenientNumbers.h"
#include "store/WorkingFiles.h"
#include "ui_manyHTML.h"
#include "widgets/WorkInDialog.h"

#include <QDir>

manyHTML::manyHTML(const Variables &variables, Prompts &prompts, WorkReport &report,
                   QString &lastFolder, QWidget *parent)
    : NumberDialog(prompts, Enter::Beeps, parent), m_variables(variables), m_prompts(prompts),
      m_report(report), m_lastFolder(lastFolder), m_ui(std::make_unique<Ui::manyHTML>())
{
    m_ui->setupUi(this);
    connectForm(*m_ui->Cancel, *m_ui->txtLow);
    connectCodeBoxes();
    connectGuarded(m_ui->btnBrowse, &QPushButton::clicked, this, prompts,
                   [this] { btnBrowse_Click(); });
    connectGuarded(m_ui->HTML, &QPushButton::clicked, this, prompts, [this] { HTML_Click(); });
    Form_Load();
}

manyHTML::~manyHTML() = default;

// The file dialogs of these boxes show every file: required.
void manyHTML::connectCodeBoxes()
{
    m_ui->txtHeader->connectButtons(m_variables, m_prompts, *m_ui->btnLoad1, *m_ui->btnSave1, {});
    m_ui->txtFooter->connectButtons(m_variables, m_prompts, *m_ui->btnLoad2, *m_ui->btnSave2, {});
}

void manyHTML::Form_Load()
{
    for (QLineEdit *box : {static_cast<QLineEdit *>(m_ui->txtLow), m_ui->folderBox,
                           static_cast<QLineEdit *>(m_ui->txtHigh), m_ui->txtPrefix})
        setCodeFont(*box);
    fillRange(*m_ui->txtLow, *m_ui->txtHigh, m_variables.LowestWritten, m_variables.HighestWritten);
    setFolder(m_lastFolder.isEmpty() ? QFileInfo(m_variables.AdventurePath).absolutePath()
                                     : m_lastFolder);
    m_ui->txtPrefix->setText(m_variables.FilePrefix);
    const WorkingFiles files(m_variables);
    m_ui->txtHeader->readFile(files.document(WorkingFiles::Document::PageHeader));
    m_ui->txtFooter->readFile(files.document(WorkingFiles::Document::Footer));
}

void manyHTML::btnBrowse_Click()
{
    const QString folder = m_prompts.folderName(tr("Choisissez un Dossier"), typedFolder());
    if (!folder.isEmpty())
        setFolder(folder);
}

void manyHTML::HTML_Click()
{
    const double low = lenientNumber(m_ui->txtLow->text());
    const double high = lenientNumber(m_ui->txtHigh->text());
    if (m_ui->folderBox->text().trimmed().isEmpty()) {
        m_prompts.beep();
        m_ui->folderBox->setFocus();
        return;
    }
    const QString folder = typedFolder();
    if (!QFileInfo::exists(folder) && !makesFolder(folder))
        return;
    m_lastFolder = folder;
    const HtmlCodes codes{m_ui->txtHeader->code(), QString(), m_ui->txtFooter->code()};
    WorkInDialog work(m_report, *m_ui->barWork);
    if (exportToManyFiles({m_variables, m_prompts, work}, {low, high, folder}, codes,
                          m_ui->txtPrefix->text()))
        accept();
}

// What is no full path starts beside the adventure.
QString manyHTML::typedFolder() const
{
    const QDir beside = QFileInfo(m_variables.AdventurePath).absoluteDir();
    const QString typed = QDir::fromNativeSeparators(m_ui->folderBox->text());
    return QDir::cleanPath(beside.absoluteFilePath(typed));
}

void manyHTML::setFolder(const QString &folder)
{
    m_ui->folderBox->setText(QDir::toNativeSeparators(folder));
}

bool manyHTML::makesFolder(const QString &folder)
{
    const auto answer = m_prompts.message(
        tr("Ce dossier n'existe pas :\n%1\nLe créer?").arg(QDir::toNativeSeparators(folder)),
        tr("Attention"), Prompts::Buttons::YesNo);
    if (answer != Prompts::Answer::Yes)
        return false;
    if (!QDir().mkpath(folder))
        throw FileError(FileError::Operation::Write, folder, QStringLiteral("cannot be made"));
    return true;
}
