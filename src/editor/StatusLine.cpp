#include "editor/StatusLine.h"

#include "richtext/RichTextBox.h"
#include "richtext/WordCount.h"
#include "store/AdventureChanges.h"
#include "store/ReferenceIndex.h"

#include <QLabel>
#include <QStatusBar>

QString describeParagraph(int n, QStringView text, const QString &targetPhrase)
{
    const int words = countWords(text);
    const auto references =
        static_cast<int>(referenceEntry(text, targetPhrase).size() / IndexEntryLength);
    return StatusLine::tr("paragraphe %1 · %2 · %3")
        .arg(QString::number(n), StatusLine::tr("%n mot(s)", nullptr, words),
             StatusLine::tr("%n renvoi(s)", nullptr, references));
}

StatusLine::StatusLine(const Variables &variables, const RichTextBox &box, QStatusBar &bar)
    : m_variables(variables), m_box(box), m_counts(new QLabel(&bar)), m_saved(new QLabel(&bar))
{
    m_counts->setObjectName(QStringLiteral("lblCounts"));
    m_saved->setObjectName(QStringLiteral("lblSaved"));
    bar.setContentsMargins(8, 0, 8, 0);
    bar.addWidget(m_counts, 1);
    bar.addPermanentWidget(m_saved);
    constexpr int countingDelay = 200; // milliseconds
    m_counting.setSingleShot(true);
    m_counting.setInterval(countingDelay);
    connect(&m_counting, &QTimer::timeout, this, &StatusLine::count);
    const AdventureEvents *events = variables.Events.get();
    connect(events, &AdventureEvents::paragraphSaved, this, &StatusLine::refresh);
    connect(events, &AdventureEvents::modifiedChanged, this, &StatusLine::refresh);
    connect(events, &AdventureEvents::adventureReplaced, this, &StatusLine::refresh);
    refresh();
}

// Counting takes as long as the text is, which no key shall have to wait for.
void StatusLine::refresh()
{
    if (!m_variables.AdventureOpen) {
        m_counts->setText(tr("aucune aventure ouverte"));
        m_saved->clear();
        return;
    }
    if (!m_variables.ParagraphDirty || m_counted != m_variables.CurrentParagraph)
        count();
    else if (!m_counting.isActive())
        m_counting.start();
    const bool modified = m_variables.ParagraphDirty || hasUnsavedChanges(m_variables);
    m_saved->setText(modified ? tr("modifié") : tr("enregistré"));
}

void StatusLine::count()
{
    m_counting.stop();
    m_counted = m_variables.CurrentParagraph;
    m_counts->setText(describeParagraph(m_counted, m_box.text(), m_variables.TargetPhrase));
}
