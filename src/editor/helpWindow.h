#pragma once

#include "store/Variables.h"

#include <QWidget>
#include <memory>

namespace Ui
{
class helpWindow;
}

// Shows one of the two help files of the working folder.
class helpWindow : public QWidget
{
    Q_OBJECT

public:
    enum class Tag { French, English };

    explicit helpWindow(const Variables &variables);
    ~helpWindow() override;

    // Loads the help in that language, or a text that says that it is missing, and comes to the
    // front.
    void showHelp(Tag tag);

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void load(Tag tag);

    const Variables &m_variables;
    std::unique_ptr<Ui::helpWindow> m_ui;
};
