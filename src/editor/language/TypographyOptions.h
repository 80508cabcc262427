#pragma once

#include "language/typography/TypographyKinds.h"

#include <QGroupBox>
#include <vector>

class QCheckBox;

// The options about typography while one types: a box for each kind that can be mended then.
class TypographyOptions : public QGroupBox
{
    Q_OBJECT

public:
    explicit TypographyOptions(QWidget *parent = nullptr);

    void setKinds(const TypographyKinds &kinds);
    TypographyKinds kinds() const;

private:
    struct Option {
        TypographyKind kind;
        QCheckBox *box;
    };
    std::vector<Option> m_options;
};
