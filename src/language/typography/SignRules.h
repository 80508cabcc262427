#pragma once

class TypographySource;

// Apostrophes between letters, three full stops, and two hyphens within a line.
void mendSigns(TypographySource &source);
