#pragma once

#include "store/Variables.h"

#include <QMap>
#include <QWidget>
#include <memory>

namespace Ui
{
class helpWindow;
}

// Shows one of the two help files of the working folder, at the place where the reader left it.
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
    void load();
    void keepPlace();

    const Variables &m_variables;
    Tag m_tag = Tag::French;
    QMap<Tag, int> m_places; // how far each was scrolled
    std::unique_ptr<Ui::helpWindow> m_ui;
};
