#include "editor/ParagraphPage.h"

#include "editor/FormattingBar.h"
#include "editor/NumberList.h"
#include "editor/PadNumber.h"
#include "editor/RtfBox.h"
#include "editor/TabPanel.h"
#include "platform/Failures.h"
#include "store/AdventureChanges.h"
#include "store/DamagedTexts.h"
#include "store/ParagraphStore.h"
#include "store/ReferenceIndex.h"
#include "widgets/NumberBox.h"

#include <QAbstractButton>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QShortcut>

ParagraphPage::ParagraphPage(Variables &variables, Prompts &prompts, const Controls &controls)
    : m_variables(variables), m_prompts(prompts), m_controls(controls), m_visited(controls.visited)
{
    m_controls.formattingBar.attach(m_controls.box);
    m_controls.tabPanel.attach(m_controls.box);
    const AdventureEvents *events = variables.Events.get();
    connect(events, &AdventureEvents::adventureReplaced, this, &ParagraphPage::adventureReplaced);
    connect(events, &AdventureEvents::numbersChanged, this, [this](const auto &newNumbers) {
        m_texts.renumber(newNumbers);
        if (m_shown >= 0)
            m_shown = numberAfter(m_shown, newNumbers);
    });
    connect(events, &AdventureEvents::textsChanged, this, [this](const QList<int> &numbers) {
        m_stale |= numbers.contains(m_variables.CurrentParagraph);
    });
    const RtfBox *box = &m_controls.box;
    connect(box, &RtfBox::edited, this, &ParagraphPage::rtfBox_Change);
    connect(box, &QTextEdit::selectionChanged, this, &ParagraphPage::refreshFormatting);
    connect(box, &QTextEdit::cursorPositionChanged, this, &ParagraphPage::refreshFormatting);
    for (const auto moved : {&QTextEdit::selectionChanged, &QTextEdit::cursorPositionChanged})
        connect(box, moved, this, [this] { m_placeBeforeSave.reset(); });
    connect(&m_controls.fixed, &QAbstractButton::clicked, this, &ParagraphPage::btnUnmixable_Click);
    connect(&m_controls.emptyVisited, &QAbstractButton::clicked, this,
            &ParagraphPage::btnVider_Click);
    connect(&m_controls.formattingBar, &FormattingBar::moreClicked, this,
            &ParagraphPage::btnMore_Click);
    // A number that was not confirmed is dropped when the focus goes.
    connect(&m_controls.number, &QLineEdit::editingFinished, this, &ParagraphPage::showNumber);
    const auto *escape =
        new QShortcut(Qt::Key_Escape, &m_controls.number, nullptr, nullptr, Qt::WidgetShortcut);
    connect(escape, &QShortcut::activated, this, [this] {
        showNumber();
        focusEditor();
    });
    setEditable(false);
    m_controls.fixed.setEnabled(false);
    m_controls.number.setFiltering(false);
    showNumber();
}

void ParagraphPage::adventureReplaced()
{
    m_shown = -1;
    m_visited.clear();
    m_texts.clear();
    m_controls.fixed.setEnabled(true);
    m_controls.number.setFiltering(true);
}

RichTextBox &ParagraphPage::editingBox()
{
    return m_controls.box;
}

void ParagraphPage::LoadParg(int n)
{
    const QByteArray rtf = textToShow(m_variables, n, m_prompts);
    // The box may then hold the last copy of the text.
    const bool lastCopy = m_variables.Damaged.at(n) == 1 && n == m_shown && !m_stale;
    if (!lastCopy && !isShown(n, rtf))
        show(n, rtf);
    m_stale = false;
    m_variables.CurrentParagraph = static_cast<qint16>(n);
    m_visited.visit(n);
    setEditable(true);
    showCurrent();
    m_variables.ParagraphDirty = lastCopy && m_controls.box.textLength() > 0;
}

// What the author typed has been saved, or it would be dirty: the stored text tells whether it is
// still what the box holds.
bool ParagraphPage::isShown(int n, const QByteArray &rtf) const
{
    if (n != m_shown || m_variables.ParagraphDirty)
        return false;
    if (!m_edited)
        return rtf == m_given;
    return rtf.isEmpty() ? m_controls.box.textLength() == 0 : rtf == m_controls.box.rtf();
}

// What is shown stays in the box until the other text could be put in.
void ParagraphPage::show(int n, const QByteArray &rtf)
{
    RtfBox &box = m_controls.box;
    const QScopedValueRollback loading(m_loading, true);
    std::optional<VisitedText> next;
    if (m_variables.Damaged.at(n) == 0)
        next = m_texts.comeTo(n, rtf);
    const bool keeps = m_shown >= 0 && m_shown != n && !m_variables.ParagraphDirty;
    const bool keepsSteps = keeps && box.page().hasSteps();
    const bool comesBack = next && next->document;
    VisitedText left = keeps ? leftText() : VisitedText();
    if (keepsSteps || comesBack)
        left.document = box.exchange(comesBack ? std::move(next->document) : nullptr);
    auto stay = qScopeGuard([&] {
        if (left.document)
            box.exchange(std::move(left.document));
        if (keeps)
            left.place.restore(box);
    });
    if (!comesBack)
        box.setRtf(rtf);
    stay.dismiss();
    if (!keepsSteps)
        left.document.reset();
    if (keeps)
        m_texts.leave(m_shown, std::move(left));
    if (next)
        next->place.restore(box);
    noteShown(n, rtf);
}

VisitedText ParagraphPage::leftText() const
{
    const RtfBox &box = m_controls.box;
    VisitedText left{m_given, m_placeBeforeSave.value_or(TextPlace::in(box)), nullptr};
    if (m_edited)
        left.rtf = box.textLength() == 0 ? QByteArray() : box.rtf();
    return left;
}

void ParagraphPage::noteShown(int n, const QByteArray &rtf)
{
    m_shown = n;
    m_given = rtf;
    m_edited = false;
    m_placeBeforeSave.reset();
    ++m_shows;
}

void ParagraphPage::showAgain()
{
    try {
        LoadParg(m_variables.CurrentParagraph);
    } catch (const UsmiraError &) {
        if (m_stale)
            showNothing();
        throw;
    }
}

void ParagraphPage::showNothing()
{
    {
        const QScopedValueRollback loading(m_loading, true);
        m_controls.box.setRtf({});
    }
    noteShown(-1, {});
    setEditable(false);
    showCurrent();
}

void ParagraphPage::showCurrent()
{
    m_variables.ParagraphDirty = false;
    showNumber();
    m_controls.fixed.setChecked(m_variables.Unmixable.at(m_variables.CurrentParagraph) == 1);
    refreshFormatting();
    fillIncomingList();
    Q_EMIT changed();
}

void ParagraphPage::SaveCurParg()
{
    const bool saves = m_variables.ParagraphDirty;
    const TextPlace place = TextPlace::in(m_controls.box);
    ::SaveCurParg(m_variables, m_controls.box, m_prompts);
    if (saves)
        m_placeBeforeSave = place;
}

void ParagraphPage::keepingPlace(const std::function<void()> &work)
{
    RtfBox &box = m_controls.box;
    const QTextCursor caret = box.textCursor();
    const int scrolled = box.verticalScrollBar()->value();
    const int text = m_shows;
    const auto putBack = qScopeGuard([&] {
        if (m_shows != text)
            return;
        box.setTextCursor(caret);
        box.verticalScrollBar()->setValue(scrolled);
    });
    work();
}

void ParagraphPage::Form_Deactivate()
{
    if (!m_variables.AdventureOpen || !m_variables.ParagraphDirty)
        return;
    reportingFailures(m_prompts, [this] {
        // Going to another window is no moment for a question.
        keepingPlace([this] { ::SaveCurParg(m_variables, m_controls.box); });
        return true;
    });
}

QRect ParagraphPage::revealSelection()
{
    const RtfBox &box = m_controls.box;
    m_controls.box.ensureCursorVisible();
    QTextCursor start = box.textCursor();
    start.setPosition(start.selectionStart());
    const QRect selection = box.cursorRect(start).united(box.cursorRect());
    return {box.viewport()->mapToGlobal(selection.topLeft()), selection.size()};
}

void ParagraphPage::focusEditor()
{
    m_controls.box.setFocus();
}

void ParagraphPage::showWelcome(const QString &path)
{
    m_controls.box.setBaseFont(m_variables.defaultFontName, m_variables.defaultFontSize);
    try {
        const QScopedValueRollback loading(m_loading, true);
        m_controls.box.loadFile(path);
    } catch (const UsmiraError &) {
        m_controls.box.setText({}); // the author writes just as well without the welcome
    }
    refreshFormatting();
}

void ParagraphPage::setEditable(bool on)
{
    m_controls.box.setReadOnly(!on);
    m_controls.formattingBar.setEditable(on);
    m_controls.tabPanel.setEnabled(on);
}

void ParagraphPage::showTabPanel()
{
    m_controls.tabPanel.setVisible(m_variables.showTabPanel != 0);
    m_controls.formattingBar.setMoreShown(m_variables.showTabPanel != 0);
    refreshFormatting();
}

void ParagraphPage::showNumber()
{
    m_controls.number.setText(
        m_variables.AdventureOpen ? QString::number(m_variables.CurrentParagraph) : tr("Vide"));
}

void ParagraphPage::refreshFormatting()
{
    if (m_loading)
        return;
    m_controls.formattingBar.refresh();
    if (m_variables.showTabPanel != 0)
        m_controls.tabPanel.refresh();
}

void ParagraphPage::fillIncomingList()
{
    m_controls.incoming.clear();
    const QList<int> incoming = incomingParagraphs(m_variables, m_variables.CurrentParagraph);
    for (const int from : incoming)
        m_controls.incoming.addItem(PadNumber(from));
}

void ParagraphPage::rtfBox_Change()
{
    if (!m_variables.AdventureOpen)
        return;
    m_variables.ParagraphDirty = true;
    m_edited = true;
    refreshFormatting();
    Q_EMIT changed();
}

void ParagraphPage::btnUnmixable_Click()
{
    if (m_variables.AdventureOpen)
        setFixed(m_variables, m_variables.CurrentParagraph, m_controls.fixed.isChecked());
}

void ParagraphPage::btnVider_Click()
{
    m_visited.clear();
    if (m_variables.AdventureOpen)
        m_visited.visit(m_variables.CurrentParagraph);
    focusEditor();
}

void ParagraphPage::btnMore_Click()
{
    m_variables.showTabPanel = m_variables.showTabPanel != 0 ? 0 : -1;
    showTabPanel();
}
