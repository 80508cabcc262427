#include "convert/rtf/convertRTF.h"

#include "convert/rtf/CompileCommand.h"
#include "platform/Guarded.h"
#include "store/ExportTarget.h"
#include "store/LenientNumbers.h"
#include "store/Variables.h"
#include "ui_convertRTF.h"
#include "widgets/WorkInDialog.h"

#include <QFontDatabase>
#include <algorithm>

namespace
{
constexpr double LargestShown = 400; // points: much more than the sample has room for
}

convertRTF::convertRTF(const Variables &variables, Prompts &prompts, WorkReport &report,
                       QWidget *parent)
    : NumberDialog(prompts, Enter::Beeps, parent), m_variables(variables), m_prompts(prompts),
      m_report(report), m_ui(std::make_unique<Ui::convertRTF>())
{
    m_ui->setupUi(this);
    QSizePolicy keepsPlace = m_ui->waitLabel->sizePolicy();
    keepsPlace.setRetainSizeWhenHidden(true);
    m_ui->waitLabel->setSizePolicy(keepsPlace);
    m_ui->waitLabel->hide();
    m_ui->demoLabel->setBackgroundRole(QPalette::Base);
    m_ui->demoLabel->setForegroundRole(QPalette::Text);
    connectForm(*m_ui->CancelButton, *m_ui->txtLow);
    connectGuarded(m_ui->OKButton, &QPushButton::clicked, this, prompts,
                   [this] { OKButton_Click(); });
    Form_Load();
    connectStyle();
    showStyle();
}

convertRTF::~convertRTF() = default;

void convertRTF::connectStyle()
{
    connect(m_ui->comboFonts, &QComboBox::currentTextChanged, this, &convertRTF::showStyle);
    connect(m_ui->txtSize, &QLineEdit::textChanged, this, &convertRTF::showStyle);
    connect(m_ui->txtSize, &QLineEdit::editingFinished, this, &convertRTF::txtSize_LostFocus);
    for (const QCheckBox *box :
         {m_ui->chkBold, m_ui->chkItalics, m_ui->chkUnderline, m_ui->chkCentered})
        connect(box, &QCheckBox::toggled, this, &convertRTF::showStyle);
}

void convertRTF::Form_Load()
{
    fillRange(*m_ui->txtLow, *m_ui->txtHigh, m_variables.LowestWritten, m_variables.HighestWritten);
    const NumberStyle style = defaultNumberStyle(m_variables);
    m_ui->comboFonts->addItems(QFontDatabase::families());
    m_ui->comboFonts->setCurrentIndex(m_ui->comboFonts->findText(style.fontName));
    m_ui->comboFonts->setEditText(style.fontName); // also one that this screen does not have
    m_ui->txtSize->setText(QString::number(style.points));
    m_ui->chkBold->setChecked(style.bold);
    m_ui->chkItalics->setChecked(style.italic);
    m_ui->chkUnderline->setChecked(style.underline);
    m_ui->chkCentered->setChecked(style.centred);
}

void convertRTF::OKButton_Click()
{
    const double low = lenientNumber(m_ui->txtLow->text());
    const double high = lenientNumber(m_ui->txtHigh->text());
    const QString path =
        m_prompts.saveName(tr("Enregistrer Fichier RTF"), tr("Fichiers RTF (*.rtf)|*.rtf"),
                           QStringLiteral("rtf"), proposedName(m_variables));
    if (path.isEmpty())
        return;
    m_ui->waitLabel->show();
    repaint();
    WorkInDialog work(m_report, *m_ui->barWork);
    const auto done =
        compileToRtf({m_variables, m_prompts, work}, {low, high, path}, chosenStyle(),
                     m_ui->chkLinks->isChecked() ? RtfLinks::With : RtfLinks::Without);
    m_ui->waitLabel->hide();
    if (done)
        accept();
}

void convertRTF::txtSize_LostFocus()
{
    if (lenientNumber(m_ui->txtSize->text()) == 0)
        m_ui->txtSize->setText(QStringLiteral("12"));
}

NumberStyle convertRTF::chosenStyle() const
{
    return {m_ui->comboFonts->currentText(), lenientNumber(m_ui->txtSize->text()),
            m_ui->chkBold->isChecked(),      m_ui->chkItalics->isChecked(),
            m_ui->chkUnderline->isChecked(), m_ui->chkCentered->isChecked()};
}

// A size that is just being typed over leaves the sample as large as it is.
void convertRTF::showStyle()
{
    const NumberStyle style = chosenStyle();
    QFont font = m_ui->demoLabel->font();
    font.setFamilies({style.fontName});
    if (style.points >= 1)
        font.setPointSizeF(std::min(style.points, LargestShown));
    font.setBold(style.bold);
    font.setItalic(style.italic);
    font.setUnderline(style.underline);
    m_ui->demoLabel->setFont(font);
    m_ui->demoLabel->setAlignment((style.centred ? Qt::AlignHCenter : Qt::AlignLeft) |
                                  Qt::AlignVCenter);
}
