#include "views/grid/paraGrid.h"

#include "store/AdventureEvents.h"
#include "ui_paraGrid.h"
#include "views/PreviewText.h"
#include "views/grid/GridGeometry.h"

#include <QCoreApplication>
#include <QKeyEvent>

paraGrid::paraGrid(const Variables &variables, QWidget *parent)
    : QDialog(parent), m_variables(variables), m_ui(std::make_unique<Ui::paraGrid>())
{
    m_ui->setupUi(this);
    m_ui->surface->attach(variables, m_statuses, *m_ui->vGridScroll);
    m_ui->vGridScroll->setPageStep(GridGeometry::Rows);
    connect(m_ui->vGridScroll, &QScrollBar::valueChanged, this, &paraGrid::DrawGrid);
    connect(m_ui->surface, &GridSurface::pressed, this, &paraGrid::Form_MouseDown);
    connect(m_ui->surface, &GridSurface::previewWanted, this, &paraGrid::preview);
    connect(m_ui->surface, &GridSurface::wanted, this, &paraGrid::wanted);
    connect(m_ui->btnClose, &QPushButton::clicked, this, &paraGrid::btnClose_Click);
    previewNothing();
    followAdventure();
}

paraGrid::~paraGrid() = default;

void paraGrid::followAdventure()
{
    const AdventureEvents *events = m_variables.Events.get();
    connect(events, &AdventureEvents::paragraphSaved, this, &paraGrid::refresh);
    connect(events, &AdventureEvents::textsChanged, this, &paraGrid::refresh);
    connect(events, &AdventureEvents::marksChanged, this, &paraGrid::refresh);
    connect(events, &AdventureEvents::targetPhraseChanged, this, &paraGrid::refresh);
    connect(events, &AdventureEvents::numbersChanged, this,
            [this](const ParagraphArray<qint16, 2001> &newNumbers) {
                if (m_previewed)
                    m_previewed = newNumbers.at(*m_previewed);
            });
    connect(events, &AdventureEvents::adventureReplaced, this, [this] {
        previewNothing();
        m_current = -1; // the next one shown is another, whatever its number
        m_ui->vGridScroll->setValue(0);
        refresh();
    });
}

bool paraGrid::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate)
        Form_Activate();
    return QDialog::event(event);
}

// What was missed while nobody saw the window is made good.
void paraGrid::Form_Activate()
{
    ClassifyParagraphs();
    DrawGrid();
    showPreview();
}

void paraGrid::ClassifyParagraphs()
{
    m_statuses = classifyParagraphs(m_variables);
    const int maximum = gridScrollMaximum(m_statuses.maxShown);
    m_ui->vGridScroll->setMaximum(maximum); // brings the value back as well
    m_ui->vGridScroll->setEnabled(maximum > 0);
}

void paraGrid::DrawGrid()
{
    m_ui->surface->update();
}

// Nothing is read for a window that nobody sees.
void paraGrid::refresh()
{
    if (isVisible())
        Form_Activate();
}

void paraGrid::followEditor()
{
    if (!isVisible() || m_current == m_variables.CurrentParagraph)
        return;
    m_current = m_variables.CurrentParagraph;
    m_ui->surface->setFocusNumber(m_current);
}

void paraGrid::setShades(const std::optional<GridShades> &shades)
{
    m_shades = shades;
    m_ui->surface->setShades(m_shades ? &*m_shades : nullptr);
    m_ui->legend->setShaded(m_shades.has_value());
    m_ui->lblLegend->setText(m_shades ? tr("Lectures au hasard") : tr("Légende"));
}

void paraGrid::focusGrid()
{
    ClassifyParagraphs();
    m_current = m_variables.CurrentParagraph;
    m_ui->surface->setFocusNumber(m_current);
    m_ui->surface->setFocus();
}

void paraGrid::Form_MouseDown(const QMouseEvent &event, double x, double y)
{
    const std::optional<int> n = numberAt(x, y, m_ui->vGridScroll->value());
    if (!n || event.button() != Qt::LeftButton)
        return;
    if (event.modifiers().testFlag(Qt::ShiftModifier)) {
        Q_EMIT wanted(*n);
    } else {
        preview(*n);
        m_ui->btnClose->setFocus();
    }
}

void paraGrid::btnClose_Click()
{
    hide();
}

// A click leaves the focus to the button, and the keys that scroll are to work on.
void paraGrid::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        QCoreApplication::sendEvent(m_ui->surface, event);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (focusWidget() == m_ui->btnClose)
            m_ui->btnClose->click();
        break;
    default:
        QDialog::keyPressEvent(event);
    }
}

void paraGrid::preview(int n)
{
    m_previewed = n;
    showPreview();
}

void paraGrid::previewNothing()
{
    m_previewed.reset();
    showPreview();
}

void paraGrid::showPreview()
{
    m_ui->lblPreview->setText(m_previewed ? tr("Aperçu du %1").arg(*m_previewed) : tr("Aperçu"));
    const QString text = m_previewed ? previewText(m_variables, *m_previewed)
                                     : tr("Cliquez sur un paragraphe pour lire un aperçu.\n"
                                          "Shift-cliquez pour vous rendre à ce paragraphe.");
    if (m_shownText != text) // else the author's place in it would go
        m_ui->txtPreview->setPlainText(text);
    m_shownText = text;
}
