#pragma once

#include "widgets/NumberDialog.h"

#include <memory>

class AdventureSplit;
struct SplitRequest;
struct Variables;

namespace Ui
{
class splitFile;
}

// Asks for the range that goes into an adventure of its own, and whether it leaves the open one.
class splitFile : public NumberDialog
{
    Q_OBJECT

public:
    splitFile(const Variables &variables, Prompts &prompts, AdventureSplit &split, QWidget *parent);
    ~splitFile() override;

private:
    void Form_Load();
    void OKButton_Click();
    SplitRequest request() const;

    const Variables &m_variables;
    AdventureSplit &m_split;
    std::unique_ptr<Ui::splitFile> m_ui;
};
