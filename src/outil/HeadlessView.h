#pragma once

#include "richtext/HiddenBox.h"
#include "store/AdventureCommands.h"

// Shows the adventure to nobody: the current paragraph stands in a box without a screen.
class HeadlessView : public AdventureView
{
public:
    explicit HeadlessView(Variables &variables) : m_variables(variables) {}

    RichTextBox &editingBox() override { return m_box; }
    void LoadParg(int n) override;
    void adventureReplaced() override {}
    void longWorkBegins(const QString & /*caption*/) override {}
    void longWorkProgress(int /*done*/, int /*total*/) override {}
    void longWorkEnds() override {}
    void announce(const QString & /*text*/) override {}

private:
    Variables &m_variables;
    HiddenBox m_box;
};
