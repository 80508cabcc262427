#pragma once

#include "richtext/TextStates.h"

#include <QTextBlock>
#include <QTextCursor>
#include <functional>
#include <optional>

// Formats within a selection. A paragraph belongs to a selection that does not merely end at its
// start; paragraph breaks have no character format of their own.
namespace SelectionFormats
{
// Calls visit for each run of characters of one format, until it returns false. A selection
// without characters is one run: what would be typed next.
void forEachRun(const QTextCursor &selection,
                const std::function<bool(const QTextCharFormat &)> &visit);
void forEachBlock(const QTextCursor &selection,
                  const std::function<bool(const QTextBlock &)> &visit);

// The format of the first selected character, or of what would be typed.
QTextCharFormat firstCharFormat(const QTextCursor &selection);

// The one value that all runs or all blocks have; empty when there are several.
template <typename Value> class Common
{
public:
    bool add(const Value &value)
    {
        if (m_value && *m_value != value) {
            m_value.reset();
            return false;
        }
        m_value = value;
        return true;
    }
    const std::optional<Value> &value() const { return m_value; }

private:
    std::optional<Value> m_value;
};

template <typename Get> auto commonOfRuns(const QTextCursor &selection, Get get)
{
    Common<decltype(get(QTextCharFormat()))> common;
    forEachRun(selection, [&](const QTextCharFormat &format) { return common.add(get(format)); });
    return common.value();
}

template <typename Get> auto commonOfBlocks(const QTextCursor &selection, Get get)
{
    Common<decltype(get(QTextBlock()))> common;
    forEachBlock(selection, [&](const QTextBlock &block) { return common.add(get(block)); });
    return common.value();
}

// Changes within one step of the undo list.
void mergeIntoRuns(QTextCursor selection, const QTextCharFormat &format);
void changeBlocks(QTextCursor selection, const std::function<void(ParagraphState &)> &change);
// Replaces every format: the characters get this one, the paragraphs the empty one.
void setPlain(QTextCursor &selection, const QTextCharFormat &format);
} // namespace SelectionFormats
