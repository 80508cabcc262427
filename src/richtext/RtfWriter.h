#pragma once

#include <QByteArray>

class QFont;
class QTextDocument;

// Writes a document, or the characters between two document positions, as RTF: 7-bit, in one fixed
// layout, on which the HTML export relies (see docs/rtf.md):
//
//   {\rtf1\ansi\ansicpg1252\deff0\deftab720{\fonttbl{\f0\fnil Times New Roman;}}
//   {\colortbl\red0\green0\blue0;}
//   [two lines of list tables, when there is a bullet]
//   \deflang1036\pard \plain\f0\fs24 text
//   \par more text
//   \par }
//
// Fonts and colours are listed in the order of their first use. What names no font has the base
// font. Frames and pictures are left out.
QByteArray writeRtf(const QTextDocument &document, const QFont &base);
QByteArray writeRtf(const QTextDocument &document, const QFont &base, int from, int to);
