#pragma once

#include "richtext/RtfTokenizer.h"

// What stands in a \listtext or \pntext group: the bullet or number that a program without lists
// would show in front of a paragraph.
enum class RtfListLabel {
    Bullet,
    Number, // kept as text, since a bullet would lose it
    Items,  // whole paragraphs, which one program puts there
};

// Looks ahead from inside the group to its end.
RtfListLabel rtfListLabel(RtfTokenizer ahead);
