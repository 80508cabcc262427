#include "richtext/RtfReader.h"

#include "platform/Errors.h"
#include "richtext/TextLimit.h"

#include <algorithm>
#include <array>
#include <utility>

namespace
{
QByteArrayView withoutByteOrderMark(QByteArrayView rtf)
{
    return rtf.startsWith("\xef\xbb\xbf") ? rtf.sliced(3) : rtf;
}
} // namespace

bool RtfReader::beginsAsRtf(QByteArrayView bytes)
{
    return withoutByteOrderMark(bytes).startsWith("{\\rtf");
}

RtfReader::RtfReader(QByteArrayView rtf) : m_tokens(withoutByteOrderMark(rtf))
{
    if (!beginsAsRtf(rtf))
        throw FormatError(0, QStringLiteral("{\\rtf"));
    if (rtf.size() > LargestText)
        throw FormatError(LargestText, QStringLiteral("the end of the text"));
    m_states.emplace_back();
}

void RtfReader::read(RtfHandler &handler)
{
    RtfParagraphs paragraphs(handler);
    m_paragraphs = &paragraphs;
    m_tokens.next(); // the opening brace of the whole
    while (readToken())
        continue;
    flush();
    paragraphs.addText(m_text.takeLast(), state());
    paragraphs.finish(state());
    m_paragraphs = nullptr;
}

bool RtfReader::readToken()
{
    const RtfToken token = m_tokens.next();
    if (m_fallbackLeft > 0 && skipsAsFallback(token))
        return true;
    switch (token.kind) {
    case RtfToken::Kind::End:
        return false;
    case RtfToken::Kind::GroupOpen:
        openGroup();
        break;
    case RtfToken::Kind::GroupClose:
        return closeGroup();
    case RtfToken::Kind::Word:
        word(token);
        break;
    case RtfToken::Kind::Symbol:
        symbol(token.byte);
        break;
    case RtfToken::Kind::Hex:
        m_text.addByte(token.byte);
        break;
    case RtfToken::Kind::Text:
        text(token.bytes);
        break;
    case RtfToken::Kind::Binary:
        break;
    }
    return true;
}

// True when the token belongs whole to the fallback of a \u.
bool RtfReader::skipsAsFallback(const RtfToken &token)
{
    switch (token.kind) {
    case RtfToken::Kind::End:
    case RtfToken::Kind::GroupOpen:
    case RtfToken::Kind::GroupClose:
        m_fallbackLeft = 0;
        return false;
    case RtfToken::Kind::Text: {
        const qsizetype taken = std::min<qsizetype>(m_fallbackLeft, token.bytes.size());
        m_fallbackLeft -= static_cast<int>(taken);
        text(token.bytes.sliced(taken));
        return true;
    }
    default:
        --m_fallbackLeft;
        return true;
    }
}

void RtfReader::openGroup()
{
    flush();
    m_starred = false;
    if (static_cast<int>(m_states.size()) >= MaxDepth)
        ++m_flatDepth;
    else
        m_states.push_back(state());
}

// False at the end of the whole.
bool RtfReader::closeGroup()
{
    flush();
    if (m_flatDepth > 0) {
        --m_flatDepth;
        return true;
    }
    const Content closed = state().content;
    if (m_states.size() == 1)
        return false;
    m_states.pop_back();
    if (closed == Content::Fonts && state().content == Content::Body) {
        m_fonts.endEntry();
        selectFont(m_defaultFont);
    }
    return true;
}

// Leaves the group that was just opened. The whole is never left, since a word out of place must
// not take the text with it.
void RtfReader::skipGroup()
{
    flush();
    if (m_states.size() == 1)
        return;
    m_tokens.skipGroup();
    m_fallbackLeft = 0;
    closeGroup();
}

void RtfReader::word(const RtfToken &token)
{
    const bool starred = std::exchange(m_starred, false);
    const RtfWord *known = findRtfWord(token.bytes);
    if (known == nullptr) {
        if (starred)
            skipGroup();
        return;
    }
    if (textWord(*known, token))
        return;
    flush();
    RtfState &now = state();
    if (!now.takeCharWord(*known, token) && !now.takeParagraphWord(*known, token) &&
        !tableWord(*known, token) && !headerWord(*known, token))
        groupWord(*known);
}

bool RtfReader::textWord(const RtfWord &word, const RtfToken &token)
{
    switch (word.action) {
    case RtfAction::Character:
        m_text.addCharacter(QChar(word.value), page());
        return true;
    case RtfAction::Unicode:
        unicode(token.number);
        return true;
    case RtfAction::FallbackLength:
        state().fallback = std::max(0, token.number);
        return true;
    case RtfAction::ParagraphEnd:
        flush();
        endParagraph();
        return true;
    case RtfAction::BreakIfText:
        flush();
        if (m_paragraphs->hasText())
            endParagraph();
        return true;
    default:
        return false;
    }
}

bool RtfReader::tableWord(const RtfWord &word, const RtfToken &token)
{
    const bool inFonts = state().content == Content::Fonts;
    switch (word.action) {
    case RtfAction::Font:
        if (inFonts)
            m_fonts.startEntry(token.number);
        else
            selectFont(token.number);
        return true;
    case RtfAction::Charset:
        if (inFonts)
            m_fonts.setPage(CodePage::fromFontCharset(token.number));
        return true;
    case RtfAction::FontPage:
        if (inFonts && token.number > 0)
            m_fonts.setPage(token.number);
        return true;
    case RtfAction::Plain:
        state().chars = CharState();
        state().deleted = false;
        selectFont(m_defaultFont);
        return true;
    case RtfAction::Colour:
        state().chars.colour = m_colours.colour(token.number);
        return true;
    case RtfAction::BulletLevel:
    case RtfAction::NumberLevel:
        // The definition stands in a group of its own and counts for the text around it.
        if (state().content == Content::OldList && m_states.size() > 1)
            m_states[m_states.size() - 2].paragraph.bullet = word.action == RtfAction::BulletLevel;
        return true;
    default:
        return false;
    }
}

bool RtfReader::headerWord(const RtfWord &word, const RtfToken &token)
{
    switch (word.action) {
    case RtfAction::Red:
        m_colours.setRed(token.number);
        return true;
    case RtfAction::Green:
        m_colours.setGreen(token.number);
        return true;
    case RtfAction::Blue:
        m_colours.setBlue(token.number);
        return true;
    case RtfAction::AnsiPage:
        m_documentPage = word.value;
        return true;
    case RtfAction::AnsiPageNumber:
        if (token.number > 0)
            m_documentPage = token.number;
        return true;
    case RtfAction::DefaultFont:
        m_defaultFont = token.number;
        return true;
    default:
        return false;
    }
}

void RtfReader::groupWord(const RtfWord &word)
{
    switch (word.action) {
    case RtfAction::Skip:
        skipGroup();
        break;
    case RtfAction::FontTable:
        enter(Content::Fonts);
        break;
    case RtfAction::ColourTable:
        enter(Content::Colours);
        break;
    case RtfAction::OldList:
        enter(Content::OldList);
        break;
    case RtfAction::UnicodePair:
        enter(Content::PlainPair);
        break;
    case RtfAction::UnicodeText:
        enter(Content::Body);
        break;
    case RtfAction::ListLabel:
        listLabel();
        break;
    default:
        break;
    }
}

// A group too deep for a state of its own cannot hold another kind of content, so it is left out.
void RtfReader::enter(Content content)
{
    if (m_flatDepth > 0)
        skipGroup();
    else if (m_states.size() > 1)
        state().content = content;
}

// Labels within a label that is kept are not looked at again: each look goes to the end of a group.
void RtfReader::listLabel()
{
    if (m_states.size() == 1 || state().inLabel)
        return;
    state().inLabel = true;
    const RtfListLabel label = rtfListLabel(m_tokens);
    m_paragraphs->addLabel(label);
    if (label == RtfListLabel::Bullet)
        skipGroup();
}

void RtfReader::symbol(char c)
{
    switch (c) {
    case '*':
        m_starred = true;
        break;
    case '~':
        m_text.addCharacter(QChar(0x00a0), page());
        break;
    case '-':
        m_text.addCharacter(QChar(0x00ad), page());
        break;
    case '_':
        m_text.addCharacter(QChar(0x2011), page());
        break;
    case '\\':
    case '{':
    case '}':
        text(QByteArrayView(&c, 1));
        break;
    case '\t':
        m_text.addCharacter(QChar(u'\t'), page());
        break;
    default:
        break;
    }
}

void RtfReader::text(QByteArrayView bytes)
{
    m_starred = false;
    if (state().content == Content::Body)
        m_text.addBytes(bytes);
    else
        tableText(bytes);
}

// The semicolon ends the entries of both tables.
void RtfReader::tableText(QByteArrayView bytes)
{
    const Content content = state().content;
    if (content != Content::Fonts && content != Content::Colours)
        return;
    for (const char c : bytes) {
        if (c != ';') {
            m_text.addByte(c);
            continue;
        }
        flush();
        if (content == Content::Fonts)
            m_fonts.endEntry();
        else
            m_colours.endEntry();
    }
}

void RtfReader::selectFont(int number)
{
    const RtfFont font = m_fonts.font(number);
    state().chars.family = font.name;
    state().page = font.page;
}

// The code page of the bytes that come here.
int RtfReader::page() const
{
    const bool inFonts = m_states.back().content == Content::Fonts;
    const int page = inFonts ? m_fonts.page() : m_states.back().page;
    return page != 0 ? page : m_documentPage;
}

void RtfReader::unicode(int code)
{
    // The number is a signed 16-bit one.
    const int unit = code < 0 ? code + 0x10000 : code;
    const bool valid = unit >= 0 && unit <= 0xffff;
    m_text.addCharacter(valid ? QChar(unit) : QChar(QChar::ReplacementCharacter), page());
    m_fallbackLeft = state().fallback;
}

// Hands on what was collected, before the formatting changes.
void RtfReader::flush()
{
    const QString text = m_text.take(page());
    if (text.isEmpty())
        return;
    if (state().content == Content::Fonts)
        m_fonts.addToName(text);
    else if (state().content == Content::Body && !state().deleted)
        m_paragraphs->addText(text, state());
}

void RtfReader::endParagraph()
{
    if (state().content != Content::Body || state().deleted)
        return;
    m_paragraphs->addText(m_text.takeLast(), state());
    m_paragraphs->end(state());
}
