#pragma once

#include <QStringView>
#include <limits>

// Words are runs of letters and digits. A hyphen within joins: "peut-être" is one word; an
// apostrophe parts: "l'épée" is two. Counting may stop early: a result of most stands for more.
int countWords(QStringView text, int most = std::numeric_limits<int>::max());

// Characters, blanks among them, as publishers count: line breaks and accents that stand on the
// letter before them are none.
int countSigns(QStringView text);
