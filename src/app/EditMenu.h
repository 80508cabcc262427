#pragma once

class QMenu;
class RtfBox;

namespace Ui
{
class formUsmira;
}

// Connects the usual commands of the edit menu to the editing box. Each is enabled while it has
// something to work on.
void connectEditMenu(const Ui::formUsmira &ui, RtfBox &box);
