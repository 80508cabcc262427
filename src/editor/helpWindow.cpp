#include "editor/helpWindow.h"

#include "store/WorkingFiles.h"
#include "ui_helpWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <exception>

helpWindow::helpWindow(const Variables &variables)
    : m_variables(variables), m_ui(std::make_unique<Ui::helpWindow>())
{
    m_ui->setupUi(this);
    m_ui->rtfHelp->setReadOnly(true);
    connect(m_ui->btnClose, &QPushButton::clicked, this, &QWidget::close);
}

helpWindow::~helpWindow() = default;

void helpWindow::showHelp(Tag tag)
{
    keepPlace();
    m_tag = tag;
    load();
    // Where the author left it, once it is open.
    const QWidget *asker = QApplication::activeWindow();
    if (!isVisible() && asker != nullptr)
        move(asker->geometry().center() - rect().center());
    show();
    m_ui->rtfHelp->verticalScrollBar()->setValue(m_places.value(tag));
    raise();
    activateWindow();
    m_ui->rtfHelp->setFocus();
}

// The text goes with the window, and its place with the text.
void helpWindow::keepPlace()
{
    if (isVisible())
        m_places[m_tag] = m_ui->rtfHelp->verticalScrollBar()->value();
}

void helpWindow::load()
{
    const bool french = m_tag == Tag::French;
    const auto help =
        french ? WorkingFiles::Document::FrenchHelp : WorkingFiles::Document::EnglishHelp;
    try {
        m_ui->rtfHelp->loadFile(WorkingFiles(m_variables).document(help));
    } catch (const std::exception &) {
        m_ui->rtfHelp->setText(french ? tr("Aide Française Non Trouvée")
                                      : tr("English Help File Not Found"));
    }
}

void helpWindow::closeEvent(QCloseEvent *event)
{
    keepPlace();
    m_ui->rtfHelp->setText({});
    QWidget::closeEvent(event);
}

void helpWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}
