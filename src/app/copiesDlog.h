#pragma once

#include "store/DatedCopies.h"

#include <QDialog>
#include <memory>

namespace Ui
{
class copiesDlog;
}

// Lists the dated copies of the open adventure, the newest first. Accepted when the author has
// chosen one.
class copiesDlog : public QDialog
{
    Q_OBJECT

public:
    copiesDlog(const Variables &variables, QWidget *parent);
    ~copiesDlog() override;

    const DatedCopy &chosen() const;

private:
    void Form_Load();

    const QList<DatedCopy> m_copies;
    std::unique_ptr<Ui::copiesDlog> m_ui;
};
