#include "richtext/HiddenBox.h"

#include <QGuiApplication>

// That this links is the test; that the box works without a widget is seen on the way.
int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    HiddenBox box;
    box.setText(QStringLiteral("Rendez-vous au 26"));
    return box.text() == QStringLiteral("Rendez-vous au 26") ? 0 : 1;
}
