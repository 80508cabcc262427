#pragma once

#include "convert/html/HtmlText.h"
#include "store/Variables.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <array>
#include <string>

// What stands before and behind the four digits in a link's opening tag.
struct LinkForm {
    QByteArray start;
    QByteArray end;
};

// The second pass from RTF to HTML: puts links around the numbers that stand behind the target
// phrase and are listed as references, each as often as it is listed: required, a second listing
// wraps the number again.
//
// The phrase is compared with the bytes of the HTML without its tags, so an entity counts as its
// characters and a phrase with "é" matches none. A tag is whatever lies between a ">" and the "<"
// before it; a ">" without any hides all that is before it.
//
// Numbers in the tags of the links are never taken for references, whatever the phrase and the file
// names are.
//
// One walk forwards does for all numbers, since the text before a number is kept as the walk goes
// on; its time grows as the HTML that goes in and comes out.
class HtmlLinks
{
public:
    // phrase: not empty. numbers: within 0..2000, repeats kept.
    HtmlLinks(const QByteArray &phrase, const QList<int> &numbers, const LinkForm &form);

    // Call once. Throws LimitError when the HTML grows too large.
    QByteArray apply(QByteArrayView html);

private:
    void takeText(QByteArrayView text);
    void takeDigits(QByteArrayView digits);
    int timesListed(QByteArrayView number) const;
    bool isBehindPhrase() const;

    std::string m_phrase;
    ParagraphArray<int, Variables::LastParagraph + 1> m_times; // how often each number is listed
    LinkForm m_form;
    HtmlText m_html;
    std::string m_visible;       // what has been taken, without its tags
    std::size_t m_beforeTag = 0; // its length before the last "<" of m_html
};
