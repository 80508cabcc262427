#include "widgets/WorkBar.h"

namespace
{
constexpr qint64 PatienceOfAuthor = 500; // milliseconds
}

WorkBar::WorkBar(QWidget *parent) : QProgressBar(parent)
{
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    hide();
}

void WorkBar::begin(bool stoppable)
{
    hide();
    setFormat(stoppable ? stoppableFormat() : QStringLiteral("%p %"));
    m_sinceBegin.start();
}

void WorkBar::progress(int done, int total)
{
    setRange(0, total);
    setValue(done);
    setVisible(m_sinceBegin.elapsed() > PatienceOfAuthor);
}

QSize WorkBar::sizeHint() const
{
    const QSize usual = QProgressBar::sizeHint();
    if (!isTextVisible())
        return usual;
    const QString longest = stoppableFormat().replace(QStringLiteral("%p"), QStringLiteral("100"));
    return usual.expandedTo({fontMetrics().horizontalAdvance(longest) + usual.height(), 0});
}

QString WorkBar::stoppableFormat()
{
    return tr("%p % (Échap pour arrêter)");
}
