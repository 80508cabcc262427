#pragma once

#include <QByteArray>
#include <QString>
#include <memory>

class QMimeData;
class RichTextBox;

// What goes between a box and other programs. Content from outside is reduced to the formatting
// that the box knows, and nothing that it refers to is ever fetched.
namespace RichTextClipboard
{
// HTML as RTF: pictures are left out, a table's rows become lines with tabs between the cells,
// numbered items keep their number as text. Texts that name no font have the given one. Throws
// LimitError for more characters than the bytes that a text may have.
QByteArray rtfFromHtml(const QString &html, const QString &fontName, double points);

// The selection as RTF, as HTML and as plain text; null when nothing is selected.
std::unique_ptr<QMimeData> mimeData(const RichTextBox &box);

bool canPaste(const QMimeData &data);

// Replaces the selection by the best form that the data has: RTF, else HTML, else plain text. RTF
// that cannot be read counts as not there. False when there was nothing to paste. Throws
// LimitError, and changes nothing, when the text would be too large.
bool paste(RichTextBox &box, const QMimeData &data);

// The same with the text alone, in the format of the text that it replaces.
bool pastePlain(RichTextBox &box, const QMimeData &data);
} // namespace RichTextClipboard
