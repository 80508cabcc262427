#include "renumber/packHoles.h"

#include "platform/Guarded.h"
#include "renumber/NumberPreview.h"
#include "renumber/RenumberCommands.h"
#include "store/LenientNumbers.h"
#include "ui_packHoles.h"

packHoles::packHoles(const Variables &variables, Prompts &prompts, RenumberCommands &commands,
                     QWidget *parent)
    : NumberDialog(prompts, Enter::Beeps, parent), m_variables(variables), m_commands(commands),
      m_ui(std::make_unique<Ui::packHoles>())
{
    m_ui->setupUi(this);
    connectForm(*m_ui->CancelButton, *m_ui->txtLow);
    connectGuarded(m_ui->OKButton, &QPushButton::clicked, this, prompts,
                   [this] { OKButton_Click(); });
    Form_Load();
    new NumberPreview(m_variables, *this, *m_ui->preview, [this] {
        return previewPack(m_variables, lenientNumber(m_ui->txtLow->text()),
                           lenientNumber(m_ui->txtHigh->text()));
    });
}

packHoles::~packHoles() = default;

void packHoles::Form_Load()
{
    fillRange(*m_ui->txtLow, *m_ui->txtHigh, m_variables.LowestWritten, m_variables.HighestWritten);
}

void packHoles::OKButton_Click()
{
    const double low = lenientNumber(m_ui->txtLow->text());
    const double high = lenientNumber(m_ui->txtHigh->text());
    if (m_commands.PackHoles(low, high))
        accept();
}
