#pragma once

class TypographySource;

// The spaces that belong to high signs and guillemets, and those that are too many. Tabs and what a
// line begins with stay. narrow: U+202F stands before ; ! ? and U+00A0 elsewhere.
void mendSpaces(TypographySource &source, bool narrow);
