#include "views/language/bookTypography.h"

#include "editor/options/EditorComfort.h"
#include "language/typography/FrenchWords.h"
#include "platform/Failures.h"
#include "store/AdventureEvents.h"
#include "ui_bookTypography.h"
#include "views/language/TypographyDelegate.h"
#include "views/language/TypographyWords.h"
#include "widgets/CheckDelegate.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QHideEvent>
#include <QScrollBar>
#include <algorithm>

namespace
{
constexpr qint64 AtATime = 20;  // milliseconds of looking between two looks at the keyboard
constexpr int WidthOfWhat = 36; // characters
constexpr int MostUnfolded = 20000;
constexpr int KindRole = Qt::UserRole;

// By which a place is known again: what is mended beside it changes no letters.
QString lettersAround(const QString &text, const TypographyMend &mend)
{
    constexpr qsizetype most = 4; // on each side
    QString letters;
    for (qsizetype at = mend.position - 1; at >= 0 && letters.size() < most; --at)
        if (text.at(at).isLetterOrNumber())
            letters.prepend(text.at(at));
    const qsizetype before = letters.size();
    for (qsizetype at = mend.position + mend.length;
         at < text.size() && letters.size() < before + most; ++at)
        if (text.at(at).isLetterOrNumber())
            letters.append(text.at(at));
    return letters;
}
} // namespace

bookTypography::bookTypography(const Variables &variables, const TypographyCommands &commands,
                               ComfortKeeper &comfort, QWidget *parent)
    : QDialog(parent), m_variables(variables), m_commands(commands), m_comfort(comfort),
      m_ui(std::make_unique<Ui::bookTypography>()), m_kinds(safeTypographyKinds())
{
    m_ui->setupUi(this);
    m_ui->places->setModel(&m_model);
    m_ui->places->setItemDelegate(new TypographyDelegate(m_model, this));
    m_ui->lblSigns->setText(typographySigns());
    QHeaderView &header = *m_ui->places->header();
    header.resizeSection(TypographyModel::What,
                         m_ui->places->fontMetrics().averageCharWidth() * WidthOfWhat);
    for (const int words : {TypographyModel::Before, TypographyModel::After})
        header.setSectionResizeMode(words, QHeaderView::Stretch);
    addKinds();
    showCounts();
    connectControls();
    follow();
}

bookTypography::~bookTypography() = default;

WorkBar &bookTypography::workBar()
{
    return *m_ui->barWork;
}

void bookTypography::addKinds()
{
    auto *all = new QListWidgetItem(m_ui->kinds);
    all->setData(KindRole, -1);
    for (int i = 0; i < TypographyKindCount; ++i) {
        const auto kind = static_cast<TypographyKind>(i);
        auto *item = new QListWidgetItem(m_ui->kinds);
        item->setData(KindRole, i);
        item->setToolTip(typographyKindPurpose(kind));
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(m_kinds.test(indexOf(kind)) ? Qt::Checked : Qt::Unchecked);
    }
    m_ui->kinds->setItemDelegate(new CheckDelegate(m_ui->kinds));
    m_ui->kinds->setCurrentRow(0);
}

void bookTypography::connectControls()
{
    connect(&m_model, &TypographyModel::chosenChanged, this, &bookTypography::showCounts);
    connect(m_ui->kinds, &QListWidget::currentRowChanged, this, &bookTypography::showKind);
    connect(m_ui->kinds, &QListWidget::itemChanged, this, [this](const QListWidgetItem *item) {
        if (!m_showing)
            chooseKind(*item);
    });
    connect(m_ui->places, &QTreeView::activated, this, &bookTypography::activate);
    // The key for a box is that of the first column.
    connect(m_ui->places->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &index) {
                if (index.column() > TypographyModel::What)
                    m_ui->places->setCurrentIndex(index.siblingAtColumn(TypographyModel::What));
            });
    connect(m_ui->optNarrow, &QRadioButton::toggled, this, &bookTypography::takeNarrow);
    connect(m_ui->chkZero, &QCheckBox::toggled, this, [this] { lookAt(0); });
    connect(m_ui->btnApply, &QPushButton::clicked, this, &bookTypography::applyWanted);
    connect(m_ui->btnClose, &QPushButton::clicked, this, &QDialog::reject);
    connect(&m_looking, &QTimer::timeout, this, &bookTypography::lookAtSome);
}

void bookTypography::follow()
{
    const AdventureEvents *events = m_variables.Events.get();
    connect(events, &AdventureEvents::paragraphSaved, this, &bookTypography::lookAt);
    connect(events, &AdventureEvents::textsChanged, this, [this](const QList<int> &numbers) {
        for (const int n : numbers)
            lookAt(n);
    });
    connect(events, &AdventureEvents::targetPhraseChanged, this, [this] {
        if (isVisible())
            lookAgain();
    });
    connect(events, &AdventureEvents::adventureReplaced, this, &QWidget::hide);
}

void bookTypography::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    const bool narrow = m_comfort.comfort().narrowSpaces;
    m_showing = true;
    (narrow ? m_ui->optNarrow : m_ui->optWide)->setChecked(true);
    m_showing = false;
    lookAgain();
}

// Nothing is followed for a window that nobody sees.
void bookTypography::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    if (event->spontaneous())
        return;
    m_looking.stop();
    m_unread.clear();
    m_unreadable.clear();
    m_found.clear();
    m_rules = {};
    m_model.setGroups({});
}

void bookTypography::lookAgain()
{
    m_rules = m_commands.rules(m_comfort.comfort().narrowSpaces, frenchWords(m_variables));
    for (int n = 0; n <= Variables::LastParagraph; ++n)
        if (m_variables.Written.at(n) == 1 || m_found.count(n) > 0)
            m_unread.insert(n);
    begin();
}

void bookTypography::lookAt(int n)
{
    if (!isVisible())
        return;
    m_unread.insert(n);
    begin();
}

// What the author has chosen in the list so far is known when the places are found again.
void bookTypography::begin()
{
    if (!m_looking.isActive())
        for (const TypographyGroup &group : m_model.groups())
            m_found.insert_or_assign(group.number, group);
    m_looking.start();
    showState();
}

void bookTypography::lookAtSome()
{
    QElapsedTimer timer;
    timer.start();
    while (!m_unread.empty() && timer.elapsed() < AtATime) {
        const int n = *m_unread.begin();
        m_unread.erase(m_unread.begin());
        m_unreadable.removeAll(n);
        TypographyGroup group{n, {}, {}, {}};
        TypographyLook look;
        if (n > 0 || m_ui->chkZero->isChecked())
            look = m_commands.look(n, m_rules, m_unreadable, &group.text);
        group.textSum = look.textSum;
        const auto known = m_found.find(n);
        const TypographyGroup *before = known == m_found.end() ? nullptr : &known->second;
        for (const TypographyMend &mend : std::as_const(look.mends))
            group.places.append({mend, isChosen(before, group, mend)});
        if (group.places.isEmpty())
            m_found.erase(n);
        else
            m_found.insert_or_assign(n, group);
    }
    if (m_unread.empty())
        finish();
    showState();
}

// As it was before the text has changed around it, else as others of its kind.
bool bookTypography::isChosen(const TypographyGroup *before, const TypographyGroup &group,
                              const TypographyMend &mend) const
{
    const auto same = [&](const TypographyPlace &place) {
        return place.mend.kind == mend.kind && place.mend.replacement == mend.replacement &&
               lettersAround(before->text, place.mend) == lettersAround(group.text, mend);
    };
    if (before != nullptr)
        for (const TypographyPlace &place : before->places)
            if (same(place))
                return place.chosen;
    return m_kinds.test(indexOf(mend.kind));
}

void bookTypography::finish()
{
    m_looking.stop();
    std::sort(m_unreadable.begin(), m_unreadable.end());
    showGroups();
}

// The author stays where he is in the list.
void bookTypography::showGroups()
{
    QList<TypographyGroup> groups;
    for (const auto &[number, group] : m_found)
        groups.append(group);
    const int scrolled = m_ui->places->verticalScrollBar()->value();
    m_model.setGroups(std::move(groups));
    unfold();
    m_ui->places->verticalScrollBar()->setValue(scrolled);
    if (!m_ui->places->currentIndex().isValid())
        m_ui->places->setCurrentIndex(m_model.index(0, 0));
}

// Of very many places only the paragraphs: unfolding them all would take seconds.
void bookTypography::unfold()
{
    if (m_model.shownCount() <= MostUnfolded)
        m_ui->places->expandAll();
    else
        m_ui->places->expand(m_model.index(0, 0));
}

void bookTypography::showCounts()
{
    m_showing = true;
    TypographyModel::Count all;
    for (int row = 1; row < m_ui->kinds->count(); ++row) {
        QListWidgetItem &item = *m_ui->kinds->item(row);
        const auto kind = static_cast<TypographyKind>(item.data(KindRole).toInt());
        all.all += m_model.count(kind).all;
        showCount(item, kind);
    }
    m_ui->kinds->item(0)->setText(tr("Toutes les sortes : %1").arg(all.all));
    m_showing = false;
    showState();
}

void bookTypography::showCount(QListWidgetItem &item, TypographyKind kind)
{
    const TypographyModel::Count count = m_model.count(kind);
    const bool some = count.chosen > 0 && count.chosen < count.all;
    const QString title = typographyKindTitle(kind);
    item.setText(some ? tr("%1 : %2 sur %3").arg(title).arg(count.chosen).arg(count.all)
                      : tr("%1 : %2").arg(title).arg(count.all));
    if (count.all > 0)
        item.setCheckState(some                ? Qt::PartiallyChecked
                           : count.chosen == 0 ? Qt::Unchecked
                                               : Qt::Checked);
}

void bookTypography::showState()
{
    const bool looking = m_looking.isActive();
    QString text;
    if (looking)
        text = tr("Paragraphes encore à lire : %1").arg(m_unread.size());
    else if (m_found.empty())
        text = tr("Rien à changer dans ce livre.");
    else
        text = tr("Choisi : %1.").arg(m_model.chosenCount());
    if (!m_unreadable.isEmpty())
        text += u'\n' + tr("Paragraphes illisibles : %1").arg(paragraphNames(m_unreadable));
    m_ui->lblState->setText(text);
    m_ui->btnApply->setEnabled(!looking && m_model.chosenCount() > 0);
}

// The box of a kind chooses all its places, and those that are found later.
void bookTypography::chooseKind(const QListWidgetItem &item)
{
    const auto kind = static_cast<TypographyKind>(item.data(KindRole).toInt());
    const bool chosen = item.checkState() == Qt::Checked;
    m_kinds.set(indexOf(kind), chosen);
    m_model.choose(kind, chosen);
}

void bookTypography::showKind(int row)
{
    const int kind = row < 1 ? -1 : m_ui->kinds->item(row)->data(KindRole).toInt();
    m_model.show(kind < 0 ? std::nullopt : std::optional(static_cast<TypographyKind>(kind)));
    unfold();
    m_ui->places->setCurrentIndex(m_model.index(0, 0));
}

void bookTypography::activate(const QModelIndex &index)
{
    if (TypographyModel::isGroup(index))
        m_ui->places->setExpanded(index, !m_ui->places->isExpanded(index));
    else // the list may change meanwhile
        Q_EMIT wanted(m_model.groupAt(index).number, TypographyMend(m_model.placeAt(index).mend));
}

void bookTypography::takeNarrow(bool narrow)
{
    if (m_showing)
        return;
    EditorComfort comfort = m_comfort.comfort();
    comfort.narrowSpaces = narrow;
    m_comfort.change(comfort);
    lookAgain();
}
