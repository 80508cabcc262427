#pragma once

// What the underlined references cost at each key in a line of 50,000 characters.
void printReferenceFigures();
