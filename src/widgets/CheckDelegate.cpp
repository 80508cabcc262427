#include "widgets/CheckDelegate.h"

#include "widgets/Shade.h"

namespace
{
constexpr double EdgeShare = 0.8; // of the text's contrast
constexpr int Dark = 128;         // the lightness below which a page is
} // namespace

// Styles draw the edge of a box a shade darker than the window around it, and fill it as the page.
void CheckDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (option->palette.color(QPalette::Base).lightness() < Dark)
        option->palette.setColor(QPalette::Window, shade(option->palette, EdgeShare));
}
