#include "editor/language/TypographyOptions.h"

#include <QCheckBox>
#include <QGridLayout>

TypographyOptions::TypographyOptions(QWidget *parent) : QGroupBox(parent)
{
    constexpr int columns = 2;
    auto *grid = new QGridLayout(this);
    for (int i = 0; i < TypographyKindCount; ++i) {
        const auto kind = static_cast<TypographyKind>(i);
        if (!typedTypographyKinds().test(indexOf(kind)))
            continue;
        auto *box = new QCheckBox(typographyKindTitle(kind), this);
        box->setObjectName(typographyKindName(kind));
        box->setToolTip(typographyKindPurpose(kind));
        const auto place = static_cast<int>(m_options.size());
        grid->addWidget(box, place / columns, place % columns);
        m_options.push_back({kind, box});
    }
    grid->setVerticalSpacing(4);
    setFocusProxy(m_options.front().box);
}

void TypographyOptions::setKinds(const TypographyKinds &kinds)
{
    for (const Option &option : m_options)
        option.box->setChecked(kinds.test(indexOf(option.kind)));
}

TypographyKinds TypographyOptions::kinds() const
{
    TypographyKinds kinds;
    for (const Option &option : m_options)
        kinds.set(indexOf(option.kind), option.box->isChecked());
    return kinds;
}
