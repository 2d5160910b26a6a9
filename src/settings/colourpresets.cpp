// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/colourpresets.h"

#include "core/editingcontrol.h"

namespace zephira {

namespace {

/// The colours of a preset as they are usually written, red in the highest byte. Backgrounds that aren't named are those
/// of the window.
struct Scheme {
    quint32 window;
    quint32 leftMargin;
    quint32 highlightedLine;
    /// Of both kinds: saving gives the horizontal ones the colour of the vertical ones.
    quint32 dividers;
    quint32 lineNumber;
    quint32 bookmark;
    quint32 bookmarkBack;
    quint32 text;
    quint32 comment;
    quint32 keyword;
    quint32 scopeKeyword;
    quint32 number;
    quint32 operators;
    quint32 string;
    quint32 tagElement;
    quint32 tagAttribute;
    quint32 tagEntity;
};

constexpr Scheme light{
    .window = 0xfdfcf8,
    .leftMargin = 0xf3f1ea,
    .highlightedLine = 0xf4f1e6,
    .dividers = 0xd8d4c8,
    .lineNumber = 0x5f6068,
    .bookmark = 0x123f73,
    .bookmarkBack = 0xcfe2f8,
    .text = 0x1f2329,
    .comment = 0x55635a,
    .keyword = 0x7a2a99,
    .scopeKeyword = 0x00606b,
    .number = 0x8a4600,
    .operators = 0x3f4652,
    .string = 0x1f6b2c,
    .tagElement = 0x0b539f,
    .tagAttribute = 0x96400d,
    .tagEntity = 0x862d78,
};

constexpr Scheme dark{
    .window = 0x1f2328,
    .leftMargin = 0x272c33,
    .highlightedLine = 0x2b323b,
    .dividers = 0x3b434e,
    .lineNumber = 0x98a2ae,
    .bookmark = 0xa8d1ff,
    .bookmarkBack = 0x1e3f66,
    .text = 0xd7dce2,
    .comment = 0x93a594,
    .keyword = 0xd8a6e8,
    .scopeKeyword = 0x7fd1c7,
    .number = 0xf0b27a,
    .operators = 0xc2c9d2,
    .string = 0xa5d38b,
    .tagElement = 0x7db8f5,
    .tagAttribute = 0xf2c078,
    .tagEntity = 0xe3a3d4,
};

constexpr Scheme darkBlue{
    .window = 0x0f1b2d,
    .leftMargin = 0x142338,
    .highlightedLine = 0x1b2f4a,
    .dividers = 0x2c4263,
    .lineNumber = 0x8ba0bd,
    .bookmark = 0xffe08a,
    .bookmarkBack = 0x3a3a12,
    .text = 0xdbe6f5,
    .comment = 0x8fa9c4,
    .keyword = 0xff9fb2,
    .scopeKeyword = 0x6fd6e0,
    .number = 0xffc48a,
    .operators = 0xb8cbe6,
    .string = 0x9fdc9a,
    .tagElement = 0x82c4ff,
    .tagAttribute = 0xf5d08a,
    .tagEntity = 0xd9b3ff,
};

constexpr Scheme darkBrown{
    .window = 0x2a211c,
    .leftMargin = 0x332923,
    .highlightedLine = 0x3b2f27,
    .dividers = 0x4f4136,
    .lineNumber = 0xb0a08f,
    .bookmark = 0xffd9a0,
    .bookmarkBack = 0x5a3a16,
    .text = 0xeee0cf,
    .comment = 0xb3a58a,
    .keyword = 0xf2a48a,
    .scopeKeyword = 0x9ccfb0,
    .number = 0xe8bd6a,
    .operators = 0xd8c8b5,
    .string = 0xbccf7a,
    .tagElement = 0xf0c05f,
    .tagAttribute = 0xe5b596,
    .tagEntity = 0xdaa9c8,
};

constexpr Scheme highContrast{
    .window = 0x000000,
    .leftMargin = 0x000000,
    .highlightedLine = 0x1a1a1a,
    .dividers = 0x808080,
    .lineNumber = 0xffffff,
    .bookmark = 0x000000,
    .bookmarkBack = 0xffff00,
    .text = 0xffffff,
    .comment = 0xb8ffb8,
    .keyword = 0xffb3ff,
    .scopeKeyword = 0x80ffff,
    .number = 0xffd080,
    .operators = 0xffffff,
    .string = 0x80ff80,
    .tagElement = 0x99ccff,
    .tagAttribute = 0xffff80,
    .tagEntity = 0xffc0e0,
};

/// A colour with red in the lowest byte, from one with red in the highest.
constexpr quint32 colourNumber(quint32 rgb)
{
    return (rgb & 0xff) << 16 | (rgb & 0xff00) | rgb >> 16;
}

constexpr EditorColours coloursFrom(const Scheme &scheme)
{
    EditorColours colours{};
    for (quint32 &colour : colours)
        colour = automaticColour;
    const auto set = [&](ColourItem item, quint32 rgb) { colours[static_cast<std::size_t>(item)] = colourNumber(rgb); };
    set(WindowColour, scheme.window);
    set(LeftMarginColour, scheme.leftMargin);
    set(HighlightedLineColour, scheme.highlightedLine);
    set(LineDividerColour, scheme.dividers);
    set(MarginDividerColour, scheme.dividers);
    set(LineNumberFore, scheme.lineNumber);
    set(LineNumberBack, scheme.leftMargin);
    set(BookmarkFore, scheme.bookmark);
    set(BookmarkBack, scheme.bookmarkBack);
    set(TextFore, scheme.text);
    set(TagTextFore, scheme.text);
    set(CommentFore, scheme.comment);
    set(KeywordFore, scheme.keyword);
    set(ScopeKeywordFore, scheme.scopeKeyword);
    set(NumberFore, scheme.number);
    set(OperatorFore, scheme.operators);
    set(StringFore, scheme.string);
    set(TagElementFore, scheme.tagElement);
    set(TagAttributeFore, scheme.tagAttribute);
    set(TagEntityFore, scheme.tagEntity);
    return colours;
}

constexpr ColourPreset presets[] = {
    {u"As the desktop", shippedColours},
    {u"Light", coloursFrom(light)},
    {u"Dark", coloursFrom(dark)},
    {u"Dark blue", coloursFrom(darkBlue)},
    {u"Dark brown", coloursFrom(darkBrown)},
    {u"High contrast", coloursFrom(highContrast)},
};

} // namespace

std::span<const ColourPreset> colourPresets()
{
    return presets;
}

EditorColours coloursOf(const EditingControl &editor)
{
    EditorColours colours{};
    for (int item = 0; item < colourItemTotal; ++item)
        colours[static_cast<std::size_t>(item)] = editor.color(item);
    return colours;
}

void setColours(EditingControl &editor, const EditorColours &colours)
{
    for (int item = 0; item < colourItemTotal; ++item)
        editor.setColor(item, colours[static_cast<std::size_t>(item)]);
}

std::optional<int> shownPreset(const EditingControl &editor)
{
    const EditorColours shown = coloursOf(editor);
    for (int i = 0; i < std::ssize(presets); ++i) {
        if (presets[i].colours == shown)
            return i;
    }
    return {};
}

void takeBackPreset(EditingControl &editor, const ColourPreset &preset, const EditorColours &before)
{
    for (int item = 0; item < colourItemTotal; ++item) {
        const auto index = static_cast<std::size_t>(item);
        if (editor.color(item) == preset.colours[index])
            editor.setColor(item, before[index]);
    }
}

} // namespace zephira
