#pragma once

#include "store/Variables.h"
#include "widgets/NumberDialog.h"

#include <memory>

namespace Ui
{
class proximityScan;
}

// Lists the references that land too close to where they come from. It stays open beside the
// editing box, and its list until the next one is made or another adventure is opened: the author
// strikes off what he has dealt with.
class proximityScan : public NumberDialog
{
    Q_OBJECT

public:
    proximityScan(const Variables &variables, Prompts &prompts, QWidget *parent);
    ~proximityScan() override;

    // The author begins with the number.
    void focusNumber();

Q_SIGNALS:
    // He wants to see this paragraph in the editing box.
    void wanted(int n);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void Form_Activate();
    void btnCompute_Click();
    void btnRemove_Click();
    void emptyList();
    void goToCurrent();

    const Variables &m_variables;
    Prompts &m_prompts;
    std::unique_ptr<Ui::proximityScan> m_ui;
};
