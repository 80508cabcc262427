#pragma once

class QListWidget;
class QString;

// The paragraphs shown since the adventure was opened, the latest first, each once.
class VisitedList
{
public:
    explicit VisitedList(QListWidget &list);

    // Paragraph n has been shown: its entry comes to the top.
    void visit(int n);

    void clear();

private:
    QListWidget &m_list;
};
