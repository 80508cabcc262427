#pragma once

#include <QListView>

// A list of which a line is chosen by one click, or with Enter. Many lines cost no more than few.
class LineList : public QListView
{
    Q_OBJECT

public:
    explicit LineList(QWidget *parent = nullptr);

    int currentRow() const { return currentIndex().row(); } // -1: none
    void setCurrentRow(int row);

Q_SIGNALS:
    void chosen(int row);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
