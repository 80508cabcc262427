#include "editor/TabPanel.h"

#include "editor/RtfBox.h"
#include "platform/Twips.h"
#include "richtext/TextStates.h"
#include "store/LenientNumbers.h"
#include "ui_TabPanel.h"

#include <QCoreApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <cmath>

namespace
{
QString severalIndents()
{
    return QCoreApplication::translate("TabPanel", "(mix)");
}

QString severalTabs()
{
    return QCoreApplication::translate("TabPanel", "(mixed)");
}

// At least one decimal and at most three, with a point in every language.
QString asCentimetres(double number)
{
    QString text = QString::number(number, 'f', 3);
    while (text.endsWith(u'0') && !text.endsWith(QStringLiteral(".0")))
        text.chop(1);
    return text == QStringLiteral("-0.0") ? text.mid(1) : text;
}

// Texts keep whole twips: 1.5 comes back as 1.4993. Shown is the shortest number that is the same
// in twips, which is what the author typed.
double asTyped(double centimetres)
{
    constexpr double halfTwip = 0.5 / Twips::PerCentimetre;
    for (const double parts : {10.0, 100.0}) {
        const double shorter = std::round(centimetres * parts) / parts;
        if (std::abs(shorter - centimetres) <= halfTwip)
            return shorter;
    }
    return centimetres;
}

// Unlike a paragraph number, an indent may be negative: a first line that hangs. Text that is no
// number is an indent of 0: required. Only the mark of several indents, also while it is being
// typed over, is none.
std::optional<double> indentOf(const QString &text)
{
    const QString number = text.trimmed();
    if (number.startsWith(u'('))
        return std::nullopt;
    return number.startsWith(u'-') ? -lenientMeasure(number.mid(1)) : lenientMeasure(number);
}

void showIndent(QLineEdit &field, std::optional<double> value)
{
    field.setText(value ? asCentimetres(asTyped(*value)) : severalIndents());
}
} // namespace

TabPanel::TabPanel(QWidget *parent) : QGroupBox(parent), m_ui(std::make_unique<Ui::TabPanel>())
{
    m_ui->setupUi(this);
    for (QLineEdit *field : {m_ui->txtLeft, m_ui->txtFirst, m_ui->txtRight, m_ui->txtNewTab})
        field->installEventFilter(this);
}

TabPanel::~TabPanel() = default;

void TabPanel::attach(RtfBox &box)
{
    m_box = &box;
    connectIndent(*m_ui->txtLeft, &RichTextBox::setSelIndent);
    connectIndent(*m_ui->txtFirst, &RichTextBox::setSelHangingIndent);
    connectIndent(*m_ui->txtRight, &RichTextBox::setSelRightIndent);
    connect(m_ui->btnAddTab, &QPushButton::clicked, this, &TabPanel::addTab);
    connect(m_ui->txtNewTab, &QLineEdit::returnPressed, this, &TabPanel::addTab);
    connect(m_ui->btnRemoveTab, &QPushButton::clicked, this, &TabPanel::removeTab);
    connect(m_ui->btnClearTabs, &QPushButton::clicked, this, &TabPanel::clearTabs);
}

// Only what the author edits is applied: applying what refresh() writes would change nothing but
// the undo list.
void TabPanel::connectIndent(QLineEdit &field, Setter set)
{
    connect(&field, &QLineEdit::textEdited, this,
            [this, set](const QString &text) { applyIndent(set, text); });
    connect(&field, &QLineEdit::editingFinished, this, &TabPanel::refresh);
}

void TabPanel::applyIndent(Setter set, const QString &text)
{
    const std::optional<double> indent = indentOf(text);
    if (!indent)
        return;
    const QScopedValueRollback applying(m_applying, true);
    RichTextBox &box = *m_box;
    (box.*set)(*indent);
}

void TabPanel::refresh()
{
    if (m_applying)
        return;
    showIndent(*m_ui->txtLeft, m_box->selIndent());
    showIndent(*m_ui->txtRight, m_box->selRightIndent());
    showIndent(*m_ui->txtFirst, m_box->selHangingIndent());
    m_ui->tabList->clear();
    const std::optional<QList<double>> tabs = m_box->selTabs();
    if (!tabs)
        m_ui->tabList->addItem(severalTabs());
    else
        for (const double tab : *tabs)
            m_ui->tabList->addItem(asCentimetres(asTyped(tab)));
}

bool TabPanel::eventFilter(QObject *watched, QEvent *event)
{
    auto *field = qobject_cast<QLineEdit *>(watched);
    const bool clicked = event->type() == QEvent::MouseButtonRelease;
    const bool mark = field != nullptr && field->text() == severalIndents();
    if ((clicked && (mark || field == m_ui->txtNewTab)) ||
        (mark && event->type() == QEvent::FocusIn))
        field->selectAll();
    return QGroupBox::eventFilter(watched, event);
}

void TabPanel::addTab()
{
    const QString tab = asCentimetres(lenientMeasure(m_ui->txtNewTab->text()));
    const double twips = tab.toDouble() * Twips::PerCentimetre;
    if (twips <= 0 || twips > ParagraphState::MaxTwips) {
        m_ui->txtNewTab->selectAll();
        Q_EMIT tabRefused();
        return;
    }
    m_ui->txtNewTab->setText(tab);
    if (!m_ui->tabList->findItems(tab, Qt::MatchExactly).isEmpty())
        return;
    if (m_ui->tabList->count() > 0 && m_ui->tabList->item(0)->text() == severalTabs())
        delete m_ui->tabList->takeItem(0);
    m_ui->tabList->insertItem(rowFor(tab.toDouble()), tab);
    applyTabs();
}

// Tab stops are listed from left to right.
int TabPanel::rowFor(double position) const
{
    int row = 0;
    while (row < m_ui->tabList->count() && m_ui->tabList->item(row)->text().toDouble() < position)
        ++row;
    return row;
}

void TabPanel::removeTab()
{
    const int row = m_ui->tabList->currentRow();
    if (row < 0)
        return;
    delete m_ui->tabList->takeItem(row);
    applyTabs();
}

void TabPanel::clearTabs()
{
    m_ui->tabList->clear();
    applyTabs();
}

void TabPanel::applyTabs()
{
    QList<double> tabs;
    for (int row = 0; row < m_ui->tabList->count(); ++row)
        tabs.append(m_ui->tabList->item(row)->text().toDouble());
    const QScopedValueRollback applying(m_applying, true);
    m_box->setSelTabs(tabs);
}
