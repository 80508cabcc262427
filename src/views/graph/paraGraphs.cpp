#include "views/graph/paraGraphs.h"

#include "platform/Guarded.h"
#include "store/AdventureEvents.h"
#include "store/references/ReferenceWeb.h"
#include "ui_paraGraphs.h"
#include "views/PreviewText.h"
#include "views/graph/BookLayout.h"
#include "views/graph/GraphFile.h"
#include "views/graph/GraphNodes.h"
#include "views/graph/TreeLayout.h"
#include "views/graph/TypedNumber.h"
#include "widgets/ToolWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <algorithm>

paraGraphs::paraGraphs(const Variables &variables, Prompts &prompts)
    : m_variables(variables), m_prompts(prompts), m_ui(std::make_unique<Ui::paraGraphs>())
{
    m_ui->setupUi(this);
    NumberBox::connectBeeps(*this, prompts);
    m_computing.setSingleShot(true);
    m_computing.setInterval(0);
    connectGuarded(&m_computing, &QTimer::timeout, this, prompts, [this] { compute(); });
    m_ui->spinDepth->setMaximum(TreeRequest::MostDepth);
    connectControls();
    connectGraph();
    connectSaving();
    follow();
    forgetPreview();
}

// A box that loses the focus only when the form is gone would still ask for it.
paraGraphs::~paraGraphs()
{
    hide();
}

void paraGraphs::connectControls()
{
    connect(m_ui->comboView, &QComboBox::currentIndexChanged, this, &paraGraphs::showView);
    connect(m_ui->spinDepth, &QSpinBox::valueChanged, this,
            [this] { computeSoon(GraphCanvas::Place::Kept); });
    connect(m_ui->stops, &StopPanel::changed, this,
            [this] { computeSoon(GraphCanvas::Place::Kept); });
    connect(m_ui->txtStart, &QLineEdit::returnPressed, this, &paraGraphs::txtStart_Enter);
    connect(m_ui->txtStart, &QLineEdit::editingFinished, this,
            [this] { m_ui->txtStart->setText(QString::number(start())); });
    connect(m_ui->txtFind, &QLineEdit::returnPressed, this, &paraGraphs::txtFind_Enter);
    connect(m_ui->btnClose, &QPushButton::clicked, this, &QWidget::close);
}

void paraGraphs::connectGraph()
{
    GraphCanvas *graph = m_ui->graph;
    connectGuarded(m_ui->btnFit, &QPushButton::clicked, this, m_prompts, [graph] { graph->fit(); });
    connect(m_ui->btnZoomIn, &QPushButton::clicked, graph, &GraphCanvas::zoomIn);
    connect(m_ui->btnZoomOut, &QPushButton::clicked, graph, &GraphCanvas::zoomOut);
    connect(graph, &GraphCanvas::previewWanted, this, &paraGraphs::preview);
    connect(graph, &GraphCanvas::wanted, this, &paraGraphs::wanted);
    connect(graph, &GraphCanvas::startWanted, this, &paraGraphs::setStart);
    connect(graph, &GraphCanvas::stopWanted, this, &paraGraphs::toggleStop);
    connect(graph, &GraphCanvas::menuWanted, this, &paraGraphs::showMenu);
    connect(graph, &GraphCanvas::scaleChanged, this, &paraGraphs::showCount);
}

void paraGraphs::connectSaving()
{
    m_ui->btnSvg->setVisible(DrawsSvg);
    connectGuarded(m_ui->btnSvg, &QPushButton::clicked, this, m_prompts,
                   [this] { save(QStringLiteral("svg"), tr("Dessins SVG")); });
    connectGuarded(m_ui->btnPng, &QPushButton::clicked, this, m_prompts,
                   [this] { save(QStringLiteral("png"), tr("Images PNG")); });
}

void paraGraphs::follow()
{
    m_ui->stops->follow(m_variables, m_prompts);
    const AdventureEvents *events = m_variables.Events.get();
    const auto again = [this] { computeSoon(GraphCanvas::Place::Kept); };
    connect(events, &AdventureEvents::paragraphSaved, this, again);
    connect(events, &AdventureEvents::textsChanged, this, again);
    connect(events, &AdventureEvents::marksChanged, this, again);
    connect(events, &AdventureEvents::targetPhraseChanged, this, again);
    connect(events, &AdventureEvents::numbersChanged, this,
            [this, again](const ParagraphArray<qint16, 2001> &newNumbers) {
                m_start = newNumbers.at(m_start);
                m_focus = newNumbers.at(m_focus);
                if (m_bookStart)
                    m_bookStart = newNumbers.at(*m_bookStart);
                if (m_previewed)
                    m_previewed = newNumbers.at(*m_previewed);
                again();
            });
    connect(events, &AdventureEvents::adventureReplaced, this, [this] {
        forgetPreview();
        m_bookStart.reset();
        beginAtCurrent();
    });
}

paraGraphs::View paraGraphs::view() const
{
    return static_cast<View>(m_ui->comboView->currentIndex());
}

int paraGraphs::start() const
{
    return view() == View::Book ? m_bookStart.value_or(m_variables.LowestWritten) : m_start;
}

void paraGraphs::showCurrent()
{
    if (!isVisible()) {
        forgetPreview();
        beginAtCurrent();
    }
    const QWidget *asker = QApplication::activeWindow();
    if (!isVisible() && asker != nullptr)
        moveWithinScreen(*this, asker->geometry().center() - rect().center());
    show();
    raise();
    activateWindow();
    m_ui->graph->setFocus();
}

// A tree begins there; in the book one finds it.
void paraGraphs::beginAtCurrent()
{
    m_start = m_variables.CurrentParagraph;
    m_focus = m_start;
    computeSoon(GraphCanvas::Place::Begin);
}

void paraGraphs::setStart(int n)
{
    if (view() == View::Book)
        m_bookStart = n;
    else
        m_start = n;
    m_focus = n;
    computeSoon(GraphCanvas::Place::Begin);
}

// The book has no depth, and stops nowhere.
void paraGraphs::showView()
{
    const bool tree = view() != View::Book;
    m_ui->spinDepth->setEnabled(tree);
    m_ui->stops->setEnabled(tree);
    if (tree)
        m_focus = m_start;
    computeSoon(GraphCanvas::Place::Begin);
}

// A new beginning that is still to be shown is not lost to a change behind it.
void paraGraphs::computeSoon(GraphCanvas::Place place)
{
    if (!m_due || place == GraphCanvas::Place::Begin)
        m_place = place;
    m_due = true;
    if (isVisible())
        m_computing.start();
}

void paraGraphs::compute()
{
    m_due = false;
    m_ui->txtStart->setText(QString::number(start()));
    m_current = m_variables.CurrentParagraph;
    const GraphDrawing computed = drawing();
    if (m_place == GraphCanvas::Place::Begin || computed != m_ui->graph->drawing())
        m_ui->graph->setDrawing(computed, m_place, m_focus);
    if (m_previewed)
        preview(*m_previewed);
    showCount();
}

GraphDrawing paraGraphs::drawing() const
{
    const ReferenceWeb web(m_variables);
    const auto tree = [&](TreeRequest::Way way) {
        return layOutTree(
            referenceTree(web, {m_start, way, m_ui->spinDepth->value(), m_ui->stops->stops()}),
            way);
    };
    GraphDrawing drawing = view() == View::Book      ? layOutBook(m_variables, web, start())
                           : view() == View::Forward ? tree(TreeRequest::Way::Forward)
                                                     : tree(TreeRequest::Way::Backward);
    describeNodes(drawing, m_variables);
    return drawing;
}

void paraGraphs::showCount()
{
    const GraphDrawing &drawing = m_ui->graph->drawing();
    const auto whole =
        std::count_if(drawing.nodes.begin(), drawing.nodes.end(),
                      [](const GraphNode &node) { return node.kind != GraphNode::Kind::Shown; });
    m_ui->labCount->setText(tr("Paragraphes : %1   Renvois : %2   Échelle : %3 %")
                                .arg(whole)
                                .arg(drawing.edges.size())
                                .arg(qRound(m_ui->graph->view().scale * 100)));
}

void paraGraphs::followEditor()
{
    if (m_current == m_variables.CurrentParagraph)
        return;
    m_current = m_variables.CurrentParagraph;
    if (!m_due)
        m_ui->graph->redescribe(m_variables);
}

void paraGraphs::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_due)
        m_computing.start();
}

void paraGraphs::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void paraGraphs::txtStart_Enter()
{
    const std::optional<int> n = typedParagraph(m_ui->txtStart->text());
    if (n) {
        setStart(*n);
    } else {
        refuse(n);
        m_ui->txtStart->setText(QString::number(start()));
    }
    m_ui->txtStart->selectAll();
}

void paraGraphs::txtFind_Enter()
{
    const std::optional<int> n = typedParagraph(m_ui->txtFind->text());
    if (n && m_ui->graph->find(*n)) {
        preview(*n);
    } else {
        refuse(n);
    }
    m_ui->txtFind->selectAll();
}

void paraGraphs::refuse(std::optional<int> n)
{
    m_prompts.beep();
    m_ui->labCount->setText(n ? tr("Le paragraphe %1 n'est pas dans ce graphe.").arg(*n)
                              : tr("Un numéro de 1 à 2000 est attendu."));
}

void paraGraphs::preview(int n)
{
    m_previewed = n;
    m_ui->labPreview->setText(tr("Paragraphe %1").arg(n));
    m_ui->txtPreview->setPlainText(previewText(m_variables, n));
}

void paraGraphs::forgetPreview()
{
    m_previewed.reset();
    m_ui->labPreview->setText(tr("Aperçu"));
    m_ui->txtPreview->setPlainText(tr("Cliquez sur un paragraphe pour lire un aperçu.\n"
                                      "Shift-cliquez pour vous rendre à ce paragraphe.\n"
                                      "Double-cliquez pour en faire le départ."));
}

// Where they count.
void paraGraphs::toggleStop(int n)
{
    if (view() != View::Book)
        m_ui->stops->toggle(n);
}

// A key that stands behind a tabulator is shown as such; the graph answers it itself.
void paraGraphs::showMenu(int n, const QPoint &place)
{
    QMenu menu;
    const bool stopped = m_ui->stops->stops().contains(n);
    menu.addAction(tr("&Départ ici\tEntrée"), this, [this, n] { setStart(n); });
    menu.addAction(tr("&Aller dans l'éditeur\tMaj+Entrée"), this, [this, n] { Q_EMIT wanted(n); });
    menu.addAction(tr("A&perçu\tEspace"), this, [this, n] { preview(n); });
    if (view() != View::Book)
        menu.addAction(stopped ? tr("&Retirer le point d'arrêt\tA") : tr("&Point d'arrêt\tA"), this,
                       [this, n] { toggleStop(n); });
    menu.exec(place);
}

void paraGraphs::save(const QString &extension, const QString &kind)
{
    const QString pattern = QStringLiteral("*.") + extension;
    const QString path = m_prompts.saveName(tr("Enregistrer le Graphe"),
                                            QStringLiteral("%1 (%2)|%2").arg(kind, pattern),
                                            extension, graphName(m_variables, start()));
    if (path.isEmpty())
        return;
    const double scale =
        saveGraph(m_variables, m_ui->graph->drawing(), path, graphName(m_variables, start()));
    m_ui->labCount->setText(
        scale < 1 ? tr("Enregistré, réduit à %1 % : %2").arg(scale * 100, 0, 'f', 1).arg(path)
                  : tr("Enregistré : %1").arg(path));
}
