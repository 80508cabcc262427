#include "editor/uniformFormat.h"

#include "platform/Guarded.h"
#include "ui_uniformFormat.h"
#include "widgets/WorkInDialog.h"

#include <QFontDatabase>
#include <QLineEdit>

uniformFormat::uniformFormat(Variables &variables, Prompts &prompts, WorkReport &report,
                             QWidget *parent)
    : QDialog(parent), m_variables(variables), m_prompts(prompts), m_report(report),
      m_ui(std::make_unique<Ui::uniformFormat>())
{
    m_ui->setupUi(this);
    Form_Load();
    connect(m_ui->comboFonts, &QComboBox::textActivated, this, &uniformFormat::comboFonts_Click);
    connect(m_ui->comboFonts->lineEdit(), &QLineEdit::textEdited, this,
            &uniformFormat::comboFonts_Click);
    connect(m_ui->comboSizes, &QComboBox::textActivated, this, &uniformFormat::comboSizes_Click);
    connect(m_ui->comboSizes->lineEdit(), &QLineEdit::textEdited, this,
            &uniformFormat::comboSizes_Click);
    connectGuarded(m_ui->OKButton, &QPushButton::clicked, this, prompts,
                   [this] { OKButton_Click(); });
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connectGuarded(m_ui->count, &QPushButton::clicked, this, prompts, [this] { countAll(); });
    for (const QComboBox *box : {m_ui->comboFonts, m_ui->comboSizes})
        connect(box, &QComboBox::currentTextChanged, this, &uniformFormat::forgetCount);
    for (const QCheckBox *box : {m_ui->chFonts, m_ui->chSizes})
        connect(box, &QCheckBox::toggled, this, &uniformFormat::forgetCount);
}

uniformFormat::~uniformFormat() = default;

// A font that this machine has not is proposed by its name all the same.
void uniformFormat::Form_Load()
{
    m_ui->comboFonts->addItems(QFontDatabase::families());
    m_ui->comboFonts->setCurrentText(m_variables.defaultFontName);
    m_size = QString::number(m_variables.defaultFontSize);
    m_ui->comboSizes->setCurrentText(m_size);
    m_ui->comboSizes->setCompleter(nullptr); // a 1 is meant as it is typed
}

// Whoever chooses something wants it applied.
void uniformFormat::comboFonts_Click()
{
    m_ui->chFonts->setChecked(true);
}

void uniformFormat::comboSizes_Click()
{
    m_ui->chSizes->setChecked(true);
}

// A size that no text can have gives way to the one before. False: it has.
bool uniformFormat::checkSize()
{
    const bool possible = typedFontSize(m_ui->comboSizes->currentText()).has_value();
    if (possible)
        m_size = m_ui->comboSizes->currentText();
    else
        m_ui->comboSizes->setCurrentText(m_size);
    return possible;
}

void uniformFormat::OKButton_Click()
{
    if (!checkSize() && m_ui->chSizes->isChecked()) {
        m_prompts.beep(); // the author has not meant the size that is there again
        return;
    }
    WorkInDialog work(m_report, *m_ui->barWork);
    if (makeAllUniform(m_variables, m_prompts, work, formatting()))
        accept();
}

UniformFormatting uniformFormat::formatting() const
{
    UniformFormatting formatting;
    if (m_ui->chFonts->isChecked())
        formatting.fontName = m_ui->comboFonts->currentText();
    if (m_ui->chSizes->isChecked())
        formatting.fontSize = typedFontSize(m_ui->comboSizes->currentText());
    return formatting;
}

void uniformFormat::countAll()
{
    const UniformFormatting wanted = formatting();
    if (m_ui->chSizes->isChecked() && !wanted.fontSize) {
        m_ui->preview->say(tr("La taille doit être entre 1 et 1638 points."));
        return;
    }
    WorkInDialog work(m_report, *m_ui->barWork);
    m_ui->preview->say(countedUniform(m_variables, work, wanted));
}

void uniformFormat::forgetCount()
{
    m_ui->preview->say(QString());
}
