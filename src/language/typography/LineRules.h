#pragma once

class TypographySource;

// A hyphen that opens a line becomes a dash where somebody speaks: a capital or a quotation mark
// follows, the line ends as a sentence does, and no reference is in it; and so it is with all the
// lines with hyphens that follow one another, since lists look the same.
void mendDialogues(TypographySource &source);

// Of several empty lines in a row one stays.
void mendEmptyLines(TypographySource &source);
