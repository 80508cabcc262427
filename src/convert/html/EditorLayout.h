#pragma once

#include <QByteArrayView>

// Whether RTF keeps to the layout in which the editor writes (see docs/rtf.md), as far as the pass
// to HTML relies on it: then every character is known to arrive. One cheap walk. Texts of other
// programs may be in this layout, or in another that loses nothing.
bool isInEditorLayout(QByteArrayView rtf);
