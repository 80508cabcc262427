#include "views/reading/ReadingLines.h"

#include "editor/FirstWords.h"
#include "widgets/Shade.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

ReadingLines::ReadingLines(const Variables &variables, QObject *parent)
    : QAbstractListModel(parent), m_variables(variables)
{
}

void ReadingLines::show(const QList<Line> &lines)
{
    const auto before = static_cast<int>(m_lines.size());
    const auto now = static_cast<int>(lines.size());
    if (now < before)
        beginRemoveRows({}, now, before - 1);
    else if (now > before)
        beginInsertRows({}, before, now - 1);
    m_lines = lines;
    if (now < before)
        endRemoveRows();
    else if (now > before)
        endInsertRows();
    if (now > 0)
        Q_EMIT dataChanged(index(0), index(now - 1));
}

void ReadingLines::forgetWords()
{
    m_words.clear();
    if (!m_lines.isEmpty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

int ReadingLines::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
}

QString ReadingLines::words(int n) const
{
    const auto known = m_words.constFind(n);
    if (known != m_words.constEnd())
        return *known;
    return *m_words.insert(n, m_variables.Written.at(n) == 1 ? firstWords(m_variables, n)
                                                             : tr("(Vide)"));
}

QString ReadingLines::text(const Line &line) const
{
    const QString key = line.key > 0 ? tr("[%1]  ").arg(line.key) : QString();
    const QString tick = line.ticked ? QStringLiteral("\u2713 ") : QString();
    return key + tick + QString::number(line.number) + QStringLiteral("  ") + words(line.number);
}

QVariant ReadingLines::data(const QModelIndex &index, int role) const
{
    const Line &line = m_lines.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(line);
    case Qt::ToolTipRole: // the words are the author's and may look like markup
        return QStringLiteral("<qt>") + words(line.number).toHtmlEscaped();
    case Qt::FontRole:
        if (isEmpty(line)) {
            QFont struck;
            struck.setStrikeOut(true);
            return struck;
        }
        break;
    case Qt::ForegroundRole:
        if (line.faint)
            return shade(QGuiApplication::palette(), 0.68);
        break;
    default:
        break;
    }
    return {};
}
