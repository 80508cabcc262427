#pragma once

#include <QByteArrayView>

// Whether the HTML of a text lacks something that a reader of the text sees, or shows something
// else: the pass is made for what the editor writes, and texts of other programs may come to an
// early end in it or lose words. Bullets count, the amount of white space does not. Of bytes that
// no reader takes for RTF the pass is held to give all.
bool losesInHtml(QByteArrayView rtf);
