#include "convert/pdf/PageSetupPanel.h"

#include "store/LenientNumbers.h"
#include "ui_PageSetupPanel.h"

#include <QFontDatabase>
#include <QRegularExpression>
#include <limits>

namespace
{
void showMeasure(QLineEdit &box, double value)
{
    box.setText(QString::number(value, 'g', 5));
}

// An emptied box is no measure of 0.
double measureIn(const QLineEdit &box)
{
    return box.text().contains(QRegularExpression(QStringLiteral("[0-9]")))
               ? lenientMeasure(box.text())
               : std::numeric_limits<double>::quiet_NaN();
}

void showFont(QComboBox &box, const QString &family)
{
    box.setCurrentIndex(box.findText(family));
    box.setEditText(family); // also one that this screen does not have
}
} // namespace

PageSetupPanel::PageSetupPanel(QWidget *parent)
    : QTabWidget(parent), m_ui(std::make_unique<Ui::PageSetupPanel>())
{
    m_ui->setupUi(this);
    const QStringList families = QFontDatabase::families();
    m_ui->comboFonts->addItems(families);
    m_ui->comboNumberFonts->addItems(families);
    connectBoxes();
}

PageSetupPanel::~PageSetupPanel() = default;

void PageSetupPanel::connectBoxes()
{
    connect(m_ui->comboPaper, &QComboBox::activated, this, &PageSetupPanel::comboPaper_Click);
    for (const QLineEdit *box : {m_ui->txtWidth, m_ui->txtHeight})
        connect(box, &QLineEdit::textEdited, this, &PageSetupPanel::showPaper);
    for (const auto *box : findChildren<QLineEdit *>())
        connect(box, &QLineEdit::textChanged, this, &PageSetupPanel::changed);
    for (const auto *box : findChildren<QCheckBox *>())
        connect(box, &QCheckBox::toggled, this, &PageSetupPanel::changed);
    for (const auto *box : findChildren<QComboBox *>())
        connect(box, &QComboBox::currentTextChanged, this, &PageSetupPanel::changed);
}

void PageSetupPanel::setSetup(const PageSetup &setup)
{
    showMeasure(*m_ui->txtWidth, setup.paper.width());
    showMeasure(*m_ui->txtHeight, setup.paper.height());
    showMeasure(*m_ui->txtInside, setup.inside);
    showMeasure(*m_ui->txtOutside, setup.outside);
    showMeasure(*m_ui->txtTop, setup.top);
    showMeasure(*m_ui->txtFoot, setup.foot);
    m_ui->chkTwoSided->setChecked(setup.twoSided);
    showFont(*m_ui->comboFonts, setup.font);
    showMeasure(*m_ui->txtSize, setup.points);
    showMeasure(*m_ui->txtLeading, setup.leading);
    m_ui->chkJustified->setChecked(setup.justified);
    m_ui->chkHyphenated->setChecked(setup.hyphenated);
    m_ui->chkBlack->setChecked(setup.black);
    m_ui->chkPageEach->setChecked(setup.flow == PageSetup::Flow::PageEach);
    showNumber(setup.number);
    m_ui->comboReferences->setCurrentIndex(static_cast<int>(setup.references));
    m_ui->comboHead->setCurrentIndex(static_cast<int>(setup.head));
    m_ui->chkPageNumbers->setChecked(setup.pageNumbers);
    showPaper();
}

PageSetup PageSetupPanel::setup() const
{
    PageSetup setup;
    setup.paper = {measureIn(*m_ui->txtWidth), measureIn(*m_ui->txtHeight)};
    setup.inside = measureIn(*m_ui->txtInside);
    setup.outside = measureIn(*m_ui->txtOutside);
    setup.top = measureIn(*m_ui->txtTop);
    setup.foot = measureIn(*m_ui->txtFoot);
    setup.twoSided = m_ui->chkTwoSided->isChecked();
    setup.font = m_ui->comboFonts->currentText();
    setup.points = measureIn(*m_ui->txtSize);
    setup.leading = measureIn(*m_ui->txtLeading);
    setup.justified = m_ui->chkJustified->isChecked();
    setup.hyphenated = m_ui->chkHyphenated->isChecked();
    setup.black = m_ui->chkBlack->isChecked();
    setup.flow = m_ui->chkPageEach->isChecked() ? PageSetup::Flow::PageEach
                                                : PageSetup::Flow::OneAfterAnother;
    setup.number = number();
    setup.references = static_cast<PageSetup::References>(m_ui->comboReferences->currentIndex());
    setup.head = static_cast<PageSetup::Head>(m_ui->comboHead->currentIndex());
    setup.pageNumbers = m_ui->chkPageNumbers->isChecked();
    return setup;
}

// The first entry stands for the font of the text.
void PageSetupPanel::showNumber(const NumberStyle &style)
{
    if (!style.fontName.isEmpty() && m_ui->comboNumberFonts->findText(style.fontName) < 0)
        m_ui->comboNumberFonts->addItem(style.fontName);
    m_ui->comboNumberFonts->setCurrentIndex(
        style.fontName.isEmpty() ? 0 : m_ui->comboNumberFonts->findText(style.fontName));
    showMeasure(*m_ui->txtNumberSize, style.points);
    m_ui->chkBold->setChecked(style.bold);
    m_ui->chkItalics->setChecked(style.italic);
    m_ui->chkUnderline->setChecked(style.underline);
    m_ui->chkCentered->setChecked(style.centred);
}

NumberStyle PageSetupPanel::number() const
{
    const bool own = m_ui->comboNumberFonts->currentIndex() > 0;
    return {own ? m_ui->comboNumberFonts->currentText() : QString(),
            measureIn(*m_ui->txtNumberSize),
            m_ui->chkBold->isChecked(),
            m_ui->chkItalics->isChecked(),
            m_ui->chkUnderline->isChecked(),
            m_ui->chkCentered->isChecked()};
}

// The name that goes with the measures, else the last entry.
void PageSetupPanel::showPaper()
{
    const QSizeF paper(measureIn(*m_ui->txtWidth), measureIn(*m_ui->txtHeight));
    int index = 0;
    for (const Paper &known : knownPapers()) {
        if (known.millimetres == paper)
            break;
        ++index;
    }
    m_ui->comboPaper->setCurrentIndex(index);
}

void PageSetupPanel::comboPaper_Click()
{
    const auto index = static_cast<std::size_t>(m_ui->comboPaper->currentIndex());
    if (index >= knownPapers().size()) {
        m_ui->txtWidth->setFocus();
        return;
    }
    const QSizeF paper = knownPapers().at(index).millimetres;
    showMeasure(*m_ui->txtWidth, paper.width());
    showMeasure(*m_ui->txtHeight, paper.height());
}
