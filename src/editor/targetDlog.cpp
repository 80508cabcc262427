#include "editor/targetDlog.h"

#include "editor/TargetPhrase.h"
#include "platform/Guarded.h"
#include "ui_targetDlog.h"

targetDlog::targetDlog(const QString &phrase, Prompts &prompts, QWidget *parent)
    : QDialog(parent), m_before(phrase), m_prompts(prompts),
      m_ui(std::make_unique<Ui::targetDlog>())
{
    m_ui->setupUi(this);
    connectGuarded(m_ui->OKButton, &QPushButton::clicked, this, prompts,
                   [this] { OKButton_Click(); });
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    Form_Activate();
}

targetDlog::~targetDlog() = default;

QString targetDlog::phrase() const
{
    return phraseOf(m_ui->txtTarget->text());
}

void targetDlog::Form_Activate()
{
    m_ui->txtTarget->setText(shownPhrase(m_before));
    m_ui->txtTarget->setFocus();
    m_ui->txtTarget->selectAll();
}

// A phrase that differs in the case of its letters alone is another one: required, although
// references are found in any case.
void targetDlog::OKButton_Click()
{
    if (phrase() == m_before)
        reject();
    else if (canKeepPhrase(phrase(), m_prompts))
        accept();
}
