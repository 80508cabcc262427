#pragma once

#include <QListWidget>
#include <functional>

// A list of paragraph numbers to go to. An entry is chosen with a click or with Enter; pointing at
// one shows how its paragraph begins.
class NumberList : public QListWidget
{
    Q_OBJECT

public:
    explicit NumberList(QWidget *parent = nullptr);

    // Asked for the tool tip of an entry only when it is to be shown.
    void setFirstWords(std::function<QString(int)> firstWords);

    // The number of an entry; the current one when chosen() is emitted.
    int numberOf(int row) const;

Q_SIGNALS:
    void chosen();

protected:
    bool viewportEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool showToolTip(const QHelpEvent &event);

    std::function<QString(int)> m_firstWords;
};
