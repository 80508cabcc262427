#pragma once

#include "check/Finding.h"
#include "store/references/WiderLookAlikes.h"

struct BookWays;
struct Variables;

// What can be found in the text of one paragraph and its references.
class TextCheck
{
public:
    // Both must outlive it.
    TextCheck(const Variables &variables, const BookWays &ways);

    // Of a written paragraph, in no order. text: its plain text; null when it cannot be read.
    QList<Finding> findings(int n, const QString *text) const;

private:
    const Variables &m_variables;
    const BookWays &m_ways;
    WiderLookAlikes m_lookAlikes;
    bool m_phraseLinks; // the HTML can have links with this phrase
};
