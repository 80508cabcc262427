#pragma once

#include "store/Variables.h"

#include <QGroupBox>
#include <memory>

class Prompts;

namespace Ui
{
class StopPanel;
}

// The list of the paragraphs at which trees of references stop. It lives as long as the adventure
// is open, follows its numbers, and is forgotten when another one is opened.
class StopPanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit StopPanel(QWidget *parent = nullptr);
    ~StopPanel() override;

    void follow(const Variables &variables, Prompts &prompts);

    // Ascending, each once.
    const QList<int> &stops() const { return m_stops; }

    // Sets a stop where there is none, and takes it away where there is one.
    void toggle(int n);

Q_SIGNALS:
    void changed();

private:
    void set(QList<int> stops);
    void add(Prompts &prompts);
    void removeSelected();

    std::unique_ptr<Ui::StopPanel> m_ui;
    QList<int> m_stops;
};
