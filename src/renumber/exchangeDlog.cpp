#include "renumber/exchangeDlog.h"

#include "platform/Guarded.h"
#include "renumber/NumberPreview.h"
#include "renumber/RenumberCommands.h"
#include "store/LenientNumbers.h"
#include "ui_exchangeDlog.h"

exchangeDlog::exchangeDlog(const Variables &variables, Prompts &prompts, RenumberCommands &commands,
                           QWidget *parent)
    : NumberDialog(prompts, Enter::Confirms, parent), m_variables(variables), m_commands(commands),
      m_ui(std::make_unique<Ui::exchangeDlog>())
{
    m_ui->setupUi(this);
    connectForm(*m_ui->CancelButton, *m_ui->txtOne);
    connectGuarded(m_ui->OKButton, &QPushButton::clicked, this, prompts,
                   [this] { OKButton_Click(); });
    Form_Load();
    new NumberPreview(m_variables, *this, *m_ui->preview, [this] {
        return previewSwap(m_variables, lenientNumber(m_ui->txtOne->text()),
                           lenientNumber(m_ui->txtTwo->text()));
    });
}

exchangeDlog::~exchangeDlog() = default;

void exchangeDlog::Form_Load()
{
    const QString current = QString::number(m_variables.CurrentParagraph);
    m_ui->txtOne->setText(current);
    m_ui->txtTwo->setText(current);
}

void exchangeDlog::OKButton_Click()
{
    const double a = lenientNumber(m_ui->txtOne->text());
    const double b = lenientNumber(m_ui->txtTwo->text());
    if (m_commands.Swap(a, b))
        accept();
}
