#pragma once

#include "store/Variables.h"

// Makes the adventure that everything is measured on: 2000 paragraphs of about 1.5 kB, French prose
// with accents, several runs of formatting and three references each. Always the same bytes.
namespace BigAdventure
{
constexpr int Paragraphs = Variables::LastParagraph;

// RTF of paragraph n, as the editor writes it.
QByteArray paragraphRtf(int n);

// Writes the adventure to path by way of a working folder of its own.
void make(const QString &path);
} // namespace BigAdventure
