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
    setFormat(stoppable ? tr("%p % (Échap pour arrêter)") : QStringLiteral("%p %"));
    m_sinceBegin.start();
}

void WorkBar::progress(int done, int total)
{
    setRange(0, total);
    setValue(done);
    setVisible(m_sinceBegin.elapsed() > PatienceOfAuthor);
}
