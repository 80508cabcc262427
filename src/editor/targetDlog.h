#pragma once

#include <QDialog>
#include <memory>

class Prompts;

namespace Ui
{
class targetDlog;
}

// Asks for the target phrase, with its spaces shown as underscores. Accepted when the author gave
// another phrase than before.
class targetDlog : public QDialog
{
    Q_OBJECT

public:
    targetDlog(const QString &phrase, Prompts &prompts, QWidget *parent);
    ~targetDlog() override;

    // As typed, with real spaces.
    QString phrase() const;

private:
    void Form_Activate();
    void OKButton_Click();

    const QString m_before;
    Prompts &m_prompts;
    std::unique_ptr<Ui::targetDlog> m_ui;
};
