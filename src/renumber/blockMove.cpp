#include "renumber/blockMove.h"

#include "platform/Guarded.h"
#include "renumber/NumberPreview.h"
#include "renumber/RenumberCommands.h"
#include "store/LenientNumbers.h"
#include "ui_blockMove.h"

blockMove::blockMove(const Variables &variables, Prompts &prompts, RenumberCommands &commands,
                     QWidget *parent)
    : NumberDialog(prompts, Enter::Beeps, parent), m_variables(variables), m_commands(commands),
      m_ui(std::make_unique<Ui::blockMove>())
{
    m_ui->setupUi(this);
    connectForm(*m_ui->CancelButton, *m_ui->txtLow);
    connectGuarded(m_ui->MoveDown, &QPushButton::clicked, this, prompts,
                   [this] { MoveDown_Click(); });
    connectGuarded(m_ui->MoveUp, &QPushButton::clicked, this, prompts, [this] { MoveUp_Click(); });
    Form_Load();
    new NumberPreview(m_variables, *this, *m_ui->preview, [this] {
        return previewMove(m_variables, lenientNumber(m_ui->txtLow->text()),
                           lenientNumber(m_ui->txtHigh->text()),
                           lenientNumber(m_ui->txtDelta->text()));
    });
}

blockMove::~blockMove() = default;

void blockMove::Form_Load()
{
    fillRange(*m_ui->txtLow, *m_ui->txtHigh, m_variables.LowestWritten, m_variables.HighestWritten);
    m_ui->txtDelta->setText(QStringLiteral("0"));
}

void blockMove::MoveDown_Click()
{
    run(&RenumberCommands::MoveDown);
}

void blockMove::MoveUp_Click()
{
    run(&RenumberCommands::MoveUp);
}

void blockMove::run(Move command)
{
    const double low = lenientNumber(m_ui->txtLow->text());
    const double high = lenientNumber(m_ui->txtHigh->text());
    const double delta = lenientNumber(m_ui->txtDelta->text());
    if ((m_commands.*command)(low, high, delta))
        accept();
}
