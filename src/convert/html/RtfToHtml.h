#pragma once

#include "store/Variables.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

// Paragraph n's RTF as a fragment of HTML, for both HTML exports.
//
// This is no reader of RTF. It is one textual pass over the bytes that the editor writes (see
// docs/rtf.md), in which control words are recognised by the characters of a whole run of them, and
// a second pass that makes the references hyperlinks. Authors rely on the very HTML that this gives
// (text goes out as it stands, so that they can write tags of their own; tags may overlap): the
// passes must not be made cleverer.
//
// Links go to refIndex[n]'s paragraphs: to the anchors "P0026" of the same file, or with manyFiles
// to the files filePrefix + "0026.htm", in whose addresses # % ? and " are percent-encoded.
//
// The result is in Windows-1252; of RTF that the editor wrote it is 7-bit, the prefix aside. What
// Windows-1252 lacks is written as numeric entities. Empty bytes give an empty result.
//
// Throws FormatError when the bytes have no body, or a control run or the last text has no end, and
// LimitError when n is not within 0..2000 or the HTML would be larger than HtmlText::MaxBytes.
QByteArray RtfToHtml(const Variables &variables, QByteArrayView rtf, const QString &filePrefix,
                     int n, bool manyFiles);
