#pragma once

// The paragraphs that an export takes: low..high, both within 0..2000; the unwritten among them are
// passed over.
struct ExportRange {
    int low;
    int high;
};

// The range as two numbers were typed: rounded to whole numbers, a half to the even one, put in
// order and cut to 0..2000.
ExportRange exportRange(double first, double second);
