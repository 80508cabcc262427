#pragma once

#include <QLocale>

// The languages that the program speaks. French is that of the sources; the table that is loaded
// for it holds plurals only ("1 mot", "2 mots"), without which texts show both forms at once.
enum class Language { French, English };

// The desktop's language if the program speaks it, and English if not.
Language desktopLanguage();

// Makes the running application speak a language. Once an application, after it is made and before
// its first text.
void loadTranslations(Language language);

// In which numbers and dates stand in our texts, whatever the desktop's own is.
QLocale localeOfTexts();
