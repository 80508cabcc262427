#pragma once

class TypographySource;

// Straight quotation marks that belong together become « and » with no-break spaces, within others
// “ and ”. One that is never closed, or measures inches, stays.
void mendQuotes(TypographySource &source);
