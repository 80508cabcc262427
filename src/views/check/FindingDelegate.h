#pragma once

#include "widgets/WordsDelegate.h"

class FindingModel;

// Paints a list of findings: groups in bold over the whole width, the place of a finding in bold
// among the words around it, what was accepted paler.
class FindingDelegate : public WordsDelegate
{
    Q_OBJECT

public:
    FindingDelegate(const FindingModel &model, QObject *parent);

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
    std::optional<BoldWords> wordsOf(const QModelIndex &index) const override;

private:
    const FindingModel &m_model;
};
