#include "renumber/splitFile.h"

#include "platform/Guarded.h"
#include "renumber/AdventureSplit.h"
#include "renumber/NumberPreview.h"
#include "store/LenientNumbers.h"
#include "store/Variables.h"
#include "ui_splitFile.h"

splitFile::splitFile(const Variables &variables, Prompts &prompts, AdventureSplit &split,
                     QWidget *parent)
    : NumberDialog(prompts, Enter::Beeps, parent), m_variables(variables), m_split(split),
      m_ui(std::make_unique<Ui::splitFile>())
{
    m_ui->setupUi(this);
    connectForm(*m_ui->CancelButton, *m_ui->txtLow);
    connectGuarded(m_ui->OKButton, &QPushButton::clicked, this, prompts,
                   [this] { OKButton_Click(); });
    Form_Load();
    auto *preview = new NumberPreview(m_variables, *this, *m_ui->preview,
                                      [this] { return previewSplit(m_variables, request()); });
    connect(m_ui->Murder, &QCheckBox::toggled, preview, &NumberPreview::update);
}

splitFile::~splitFile() = default;

void splitFile::Form_Load()
{
    fillRange(*m_ui->txtLow, *m_ui->txtHigh, m_variables.LowestWritten, m_variables.HighestWritten);
}

void splitFile::OKButton_Click()
{
    if (m_split.Export(request()))
        accept();
}

SplitRequest splitFile::request() const
{
    return {lenientNumber(m_ui->txtLow->text()), lenientNumber(m_ui->txtHigh->text()),
            m_ui->Murder->isChecked()};
}
