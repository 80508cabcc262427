#include "editor/language/SpellingAids.h"

#include "editor/RtfBox.h"
#include "editor/language/SpellingUnderlines.h"
#include "editor/language/WordMenu.h"
#include "editor/references/ReferenceUnderlines.h"
#include "language/spelling/Spelling.h"

#include <QGuiApplication>

SpellingAids::SpellingAids(const Variables &variables, Prompts &prompts, Spelling &spelling,
                           RtfBox &box, const ReferenceUnderlines &references)
    : QObject(&box), m_underlines(new SpellingUnderlines(
                         variables, spelling, box, [&references](SpellingUnderlines::Range word) {
                             return references.isDoubtful(word.begin, word.end);
                         }))
{
    new WordMenu(variables, prompts, spelling, box, *m_underlines);
    // The author may come from an editor in which he has changed his own words.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, &spelling,
            [&spelling](Qt::ApplicationState state) {
                if (state == Qt::ApplicationActive)
                    spelling.refreshOwnWords();
            });
}

void SpellingAids::setShown(bool shown)
{
    m_underlines->setShown(shown);
}
