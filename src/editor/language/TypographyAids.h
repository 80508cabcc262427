#pragma once

#include "language/typography/TypographyRules.h"

#include <QObject>

class ComfortKeeper;
class RtfBox;
struct Variables;

// The rules of typography while the author types, as far as he wants them. Where a typing aid has
// made something of the key it stands alone.
class TypographyAids : public QObject
{
public:
    // All must outlive it.
    TypographyAids(const Variables &variables, const ComfortKeeper &comfort, RtfBox &box);

private:
    void follow();
    void readDictionary();

    const Variables &m_variables;
    const ComfortKeeper &m_comfort;
    RtfBox &m_box;
    TypographyRules m_rules;
};
