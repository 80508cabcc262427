#include "app/copiesDlog.h"

#include "platform/Translations.h"
#include "ui_copiesDlog.h"

#include <QHeaderView>

copiesDlog::copiesDlog(const Variables &variables, QWidget *parent)
    : QDialog(parent), m_copies(datedCopies(variables)), m_ui(std::make_unique<Ui::copiesDlog>())
{
    m_ui->setupUi(this);
    connect(m_ui->OKButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_ui->copiesList, &QTreeWidget::itemDoubleClicked, this, &QDialog::accept);
    Form_Load();
}

copiesDlog::~copiesDlog() = default;

const DatedCopy &copiesDlog::chosen() const
{
    return m_copies.at(m_ui->copiesList->indexOfTopLevelItem(m_ui->copiesList->currentItem()));
}

void copiesDlog::Form_Load()
{
    const QLocale locale = localeOfTexts();
    for (const DatedCopy &copy : m_copies) {
        const QString date = locale.toString(copy.kept, QStringLiteral("d MMMM yyyy, HH:mm:ss"));
        auto *row = new QTreeWidgetItem({date, sizeText(copy), paragraphsText(copy)});
        row->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        row->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
        m_ui->copiesList->addTopLevelItem(row);
    }
    for (const int number : {1, 2})
        m_ui->copiesList->headerItem()->setTextAlignment(number, Qt::AlignRight);
    for (int column = 0; column < 3; ++column)
        m_ui->copiesList->header()->setSectionResizeMode(
            column, column == 0 ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
    const bool any = !m_copies.isEmpty();
    m_ui->lblNone->setVisible(!any);
    m_ui->lblExplanation->setVisible(any);
    m_ui->copiesList->setVisible(any);
    m_ui->OKButton->setEnabled(any);
    m_ui->copiesList->setCurrentItem(m_ui->copiesList->topLevelItem(0));
    m_ui->CancelButton->setDefault(!any);
    if (any)
        m_ui->copiesList->setFocus();
    else
        m_ui->CancelButton->setFocus();
}
