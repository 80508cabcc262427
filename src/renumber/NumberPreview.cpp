#include "renumber/NumberPreview.h"

#include "renumber/DoubtfulDialog.h"
#include "widgets/NumberBox.h"
#include "widgets/PreviewLine.h"

#include <QDialog>
#include <QEvent>
#include <QTimer>
#include <algorithm>
#include <iterator>

NumberPreview::NumberPreview(const Variables &variables, QDialog &dialog, PreviewLine &line,
                             const Preview &preview)
    : QObject(&dialog), m_variables(variables), m_dialog(dialog), m_line(line), m_compute(preview)
{
    const QList<NumberBox *> boxes = dialog.findChildren<NumberBox *>();
    for (const NumberBox *box : boxes)
        connect(box, &QLineEdit::textChanged, this, &NumberPreview::update);
    connect(&line, &PreviewLine::linkChosen, this, &NumberPreview::showDoubtful);
    dialog.installEventFilter(this);
    update();
}

void NumberPreview::update()
{
    m_preview = m_compute();
    const int doubtful = static_cast<int>(concerned().size());
    m_line.say(m_preview.text,
               doubtful == 0 ? QString() : tr("%n renvoi(s) douteux.", nullptr, doubtful));
}

bool NumberPreview::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        QTimer::singleShot(0, this, &NumberPreview::readDoubtful);
    }
    return false;
}

// What cannot be read is told when the command needs it.
void NumberPreview::readDoubtful()
{
    QList<int> unreadable;
    m_doubtful = doubtfulReferences(m_variables, unreadable);
    update();
}

QList<DoubtfulReference> NumberPreview::concerned() const
{
    QList<DoubtfulReference> references;
    std::copy_if(
        m_doubtful.begin(), m_doubtful.end(), std::back_inserter(references),
        [this](const DoubtfulReference &one) { return isConcerned(m_variables, m_preview, one); });
    return references;
}

void NumberPreview::showDoubtful()
{
    DoubtfulDialog(concerned(), m_variables.TargetPhrase, &m_dialog).exec();
}
