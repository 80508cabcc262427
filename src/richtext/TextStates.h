#pragma once

#include <QColor>
#include <QFont>
#include <QList>
#include <QString>
#include <QTextBlock>
#include <QTextCharFormat>
#include <optional>

// The formatting that texts have, apart from how a QTextDocument stores it. Two equal states look
// the same and are written the same.

struct CharState {
    static constexpr int DefaultHalfPoints = 24;
    static constexpr int MaxHalfPoints = 3276;

    // What the format says, completed from the base font.
    static CharState of(const QTextCharFormat &format, const QFont &base);
    // The base font without any style.
    static CharState plain(const QFont &base);

    // A format that names everything itself except the automatic colour, which follows the palette.
    QTextCharFormat toFormat(const QFont &base) const;

    bool operator==(const CharState &) const = default;

    QString family; // empty: the base font's
    int halfPoints = DefaultHalfPoints;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;
    std::optional<QRgb> colour; // empty: automatic, and black is automatic
};

// An opaque colour, or the automatic one for black.
std::optional<QRgb> colourOrAutomatic(QRgb colour);

struct ParagraphState {
    // Distances are kept to the twip; further out than this no program lays out text.
    static constexpr int MaxTwips = 31680;
    static constexpr int MaxTabs = 64;
    // How far the text of a bullet stands behind the bullet.
    static constexpr int BulletTwips = 360;
    // Between the tab stops behind the last one that was set.
    static constexpr int DefaultTabTwips = 720;

    static ParagraphState of(const QTextBlock &block);

    // The format alone; the list to which a bullet belongs is the document's.
    //
    // Tab stops are counted from the margin of the page, but a document counts them from where a
    // line starts, so that its positions depend on the indents and the bullet: whoever changes one
    // of these sets the whole format. The document gets further stops, which are not ours: a
    // hanging first line has one at the left indent, and where the document's own distance would
    // be counted from an indent, there are stops at that distance from the margin. Where the first
    // line has an indent of its own, the positions are true for the first line alone.
    QTextBlockFormat toFormat() const;

    // Takes a position only when it is sensible, new and there is room; keeps ascending order.
    void addTab(int twips);

    // A bullet stands where the first line begins and its text a fixed distance behind it, so that
    // in these paragraphs the first-line indent is part of the left indent.
    void settleBullet();

    bool operator==(const ParagraphState &) const = default;

    // Where the first line starts.
    int start() const { return left + first + (bullet ? BulletTwips : 0); }

    Qt::Alignment alignment = Qt::AlignLeft; // left, right or horizontally centred
    int left = 0;                            // twips, like all distances
    int first = 0;
    int right = 0;
    QList<int> tabs;
    bool bullet = false;
};

// Twips to Qt's pixels and back, fractions kept: what is read is written again to the twip.
double pixelsOfTwips(int twips);
int twipsOfPixels(double pixels);
