#pragma once

#include "store/Variables.h"

#include <QObject>
#include <QTimer>

class QLabel;
class QStatusBar;
class RichTextBox;

// What the line under the editing box says of the paragraph on screen and of the adventure.
class StatusLine : public QObject
{
    Q_OBJECT

public:
    StatusLine(const Variables &variables, const RichTextBox &box, QStatusBar &bar);

    void refresh();

private:
    void count();

    const Variables &m_variables;
    const RichTextBox &m_box;
    QLabel *m_counts;
    QLabel *m_saved;
    QTimer m_counting;
    int m_counted = -1; // the paragraph whose counts are shown
};

// "paragraphe 26 · 134 mots · 3 renvois". A word holds at least one letter or digit, so that a dash
// or a French colon between spaces is none.
QString describeParagraph(int n, QStringView text, const QString &targetPhrase);
