#pragma once

#include "richtext/HiddenBox.h"
#include "store/AdventureCommands.h"
#include "store/WorkReport.h"

// Shows the adventure and the work on it to nobody: the current paragraph stands in a box without a
// screen.
class HeadlessView : public AdventureView, public WorkReport
{
public:
    explicit HeadlessView(Variables &variables) : m_variables(variables) {}

    RichTextBox &editingBox() override { return m_box; }
    void LoadParg(int n) override;
    void begin(const QString & /*caption*/, Stopping /*stopping*/) override {}
    bool progress(int /*done*/, int /*total*/) override { return false; }
    void end() override {}
    void announce(const QString & /*text*/) override {}

private:
    Variables &m_variables;
    HiddenBox m_box;
};
