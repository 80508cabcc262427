#include "renumber/masterMix.h"

#include "platform/Guarded.h"
#include "renumber/NumberPreview.h"
#include "renumber/RenumberCommands.h"
#include "store/LenientNumbers.h"
#include "ui_masterMix.h"

#include <QRandomGenerator>

masterMix::masterMix(const Variables &variables, Prompts &prompts, RenumberCommands &commands,
                     QWidget *parent, Clock clock)
    : NumberDialog(prompts, Enter::Confirms, parent), m_variables(variables), m_commands(commands),
      m_clock(std::move(clock)), m_ui(std::make_unique<Ui::masterMix>())
{
    m_ui->setupUi(this);
    connectForm(*m_ui->CancelButton, *m_ui->txtLowerLimit);
    connectGuarded(m_ui->OKButton, &QPushButton::clicked, this, prompts,
                   [this] { OKButton_Click(); });
    Form_Load();
    new NumberPreview(m_variables, *this, *m_ui->preview, [this] {
        return previewMix(m_variables, lenientNumber(m_ui->txtLowerLimit->text()),
                          lenientNumber(m_ui->txtUpperLimit->text()));
    });
}

masterMix::~masterMix() = default;

void masterMix::Form_Load()
{
    fillRange(*m_ui->txtLowerLimit, *m_ui->txtUpperLimit, m_variables.LowestWritten,
              m_variables.HighestWritten);
}

// Every click draws afresh, also after one that was refused.
void masterMix::OKButton_Click()
{
    QRandomGenerator random(static_cast<quint32>(m_clock().msecsSinceStartOfDay()));
    const double low = lenientNumber(m_ui->txtLowerLimit->text());
    const double high = lenientNumber(m_ui->txtUpperLimit->text());
    if (m_commands.MasterMix(low, high, [&random] { return random.generateDouble(); }))
        accept();
}
