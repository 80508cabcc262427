#include "editor/FormattingBar.h"

#include "editor/RtfBox.h"
#include "store/LenientNumbers.h"
#include "ui_FormattingBar.h"
#include "widgets/ColorButton.h"
#include "widgets/FlowLayout.h"
#include "widgets/StruckIcon.h"

#include <QEvent>
#include <QFontDatabase>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionComboBox>

namespace
{
// Qt gives the field within a box less than the field asks for where the letters are tall.
void giveFieldItsHeight(QComboBox &combo)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.editable = true;
    option.rect.setSize(combo.sizeHint());
    const QRect field = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxEditField, &combo);
    const int frame = option.rect.height() - field.height();
    combo.setMinimumHeight(combo.lineEdit()->sizeHint().height() + frame);
}
} // namespace

FormattingBar::FormattingBar(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::FormattingBar>())
{
    m_ui->setupUi(this);
    auto *flow = new FlowLayout(this);
    flow->setContentsMargins(0, 0, 0, 0);
    flow->setSpacing(8);
    const QList<QWidget *> groups = findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *group : groups)
        flow->addWidget(group);
    giveFieldItsHeight(*m_ui->comboFonts);
    giveFieldItsHeight(*m_ui->comboSizes);
    m_colors = findChildren<ColorButton *>();
    drawIcons();
}

FormattingBar::~FormattingBar() = default;

void FormattingBar::attach(RtfBox &box)
{
    m_box = &box;
    m_ui->comboFonts->addItems(QFontDatabase::families());
    connectStyles();
    connectParagraphs();
    connectCombo(*m_ui->comboFonts, &FormattingBar::applyFontName);
    connectCombo(*m_ui->comboSizes, &FormattingBar::applyFontSize);
    connect(m_ui->btnMore, &QToolButton::clicked, this, &FormattingBar::moreClicked);
}

void FormattingBar::connectStyles()
{
    connect(m_ui->btnBold, &QToolButton::clicked, this, &FormattingBar::toggleBold);
    connect(m_ui->btnItalic, &QToolButton::clicked, this, &FormattingBar::toggleItalic);
    connect(m_ui->btnUnderline, &QToolButton::clicked, this, &FormattingBar::toggleUnderline);
    connect(m_ui->btnPlain, &QToolButton::clicked, this, &FormattingBar::applyPlain);
    for (const ColorButton *button : std::as_const(m_colors))
        connect(button, &QToolButton::clicked, this, [this, button] { applyColor(*button); });
}

void FormattingBar::connectParagraphs()
{
    using Alignment = RichTextBox::Alignment;
    connect(m_ui->btnLeft, &QToolButton::clicked, this, [this] { align(Alignment::Left); });
    connect(m_ui->btnCenter, &QToolButton::clicked, this, &FormattingBar::centre);
    connect(m_ui->btnRight, &QToolButton::clicked, this, [this] { align(Alignment::Right); });
    connect(m_ui->btnBullets, &QToolButton::clicked, this, [this] { setBullet(true); });
    connect(m_ui->btnNoBullets, &QToolButton::clicked, this, [this] { setBullet(false); });
}

// An entry is chosen from the list or typed and confirmed; one left unconfirmed is dropped.
void FormattingBar::connectCombo(QComboBox &combo, void (FormattingBar::*apply)())
{
    connect(&combo, &QComboBox::activated, this, apply);
    connect(combo.lineEdit(), &QLineEdit::returnPressed, this, apply);
    connect(combo.lineEdit(), &QLineEdit::editingFinished, this, &FormattingBar::refresh);
    combo.installEventFilter(this);
}

// The wheel over a box that does not have the focus is meant for something else.
bool FormattingBar::eventFilter(QObject *watched, QEvent *event)
{
    const auto *combo = qobject_cast<QComboBox *>(watched);
    if (combo != nullptr && event->type() == QEvent::Wheel && !combo->hasFocus()) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void FormattingBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        drawIcons();
}

void FormattingBar::drawIcons()
{
    m_ui->btnNoBullets->setIcon(
        struckOut(m_ui->btnBullets->icon(), palette().color(QPalette::ButtonText)));
}

void FormattingBar::setEditable(bool on)
{
    const QList<QWidget *> groups = findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *group : groups)
        group->setEnabled(on || group == m_ui->groupMore);
}

void FormattingBar::setMoreShown(bool shown)
{
    m_ui->btnMore->setChecked(shown);
}

void FormattingBar::refresh()
{
    using Alignment = RichTextBox::Alignment;
    m_ui->comboFonts->setEditText(m_box->selFontName().value_or(QString()));
    const std::optional<double> size = m_box->selFontSize();
    m_ui->comboSizes->setEditText(size ? u' ' + QString::number(*size) : QString());
    m_ui->btnBold->setChecked(m_box->selBold().value_or(false));
    m_ui->btnItalic->setChecked(m_box->selItalic().value_or(false));
    m_ui->btnUnderline->setChecked(m_box->selUnderline().value_or(false));
    const std::optional<Alignment> alignment = m_box->selAlignment();
    m_ui->btnLeft->setChecked(alignment == Alignment::Left);
    m_ui->btnCenter->setChecked(alignment == Alignment::Centre);
    m_ui->btnRight->setChecked(alignment == Alignment::Right);
    const std::optional<bool> bullet = m_box->selBullet();
    m_ui->btnBullets->setChecked(bullet == true);
    m_ui->btnNoBullets->setChecked(bullet == false);
    refreshColors();
}

void FormattingBar::refreshColors()
{
    const std::optional<QRgb> color = m_box->selColor();
    for (ColorButton *button : std::as_const(m_colors))
        button->setChecked(color.has_value() && QColor(*color).rgb() == button->color().rgb());
}

void FormattingBar::toggleBold()
{
    toggle(&RichTextBox::selBold, &RichTextBox::setSelBold);
}

void FormattingBar::toggleItalic()
{
    toggle(&RichTextBox::selItalic, &RichTextBox::setSelItalic);
}

void FormattingBar::toggleUnderline()
{
    toggle(&RichTextBox::selUnderline, &RichTextBox::setSelUnderline);
}

void FormattingBar::centre()
{
    align(RichTextBox::Alignment::Centre);
}

void FormattingBar::toggle(Getter get, Setter set)
{
    if (m_box->isReadOnly())
        return;
    const bool on = !(m_box->*get)().value_or(false);
    (m_box->*set)(on);
    done();
}

void FormattingBar::align(RichTextBox::Alignment alignment)
{
    if (m_box->isReadOnly())
        return;
    m_box->setSelAlignment(alignment);
    done();
}

void FormattingBar::setBullet(bool on)
{
    m_box->setSelBullet(on);
    refresh();
}

void FormattingBar::applyPlain()
{
    const RichTextBox::EditStep step(*m_box);
    m_box->setSelBold(false);
    m_box->setSelItalic(false);
    m_box->setSelStrikeThru(false);
    m_box->setSelUnderline(false);
    done();
}

// The name that the box shows already is not applied again: it would only add a step to undo.
void FormattingBar::applyFontName()
{
    const QString name = m_ui->comboFonts->currentText().trimmed();
    if (!name.isEmpty() && m_box->selFontName() != name)
        m_box->setSelFontName(name);
    done();
}

void FormattingBar::applyFontSize()
{
    const double size = lenientMeasure(m_ui->comboSizes->currentText());
    if (size > 0 && m_box->selFontSize() != size)
        m_box->setSelFontSize(size);
    done();
}

void FormattingBar::applyColor(const ColorButton &button)
{
    m_box->setSelColor(button.color().rgb());
    done();
}

void FormattingBar::done()
{
    refresh();
    m_box->setFocus();
}
