// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>

#include <array>
#include <optional>
#include <vector>

namespace zephira {

/// How the source of a page is read.
enum class MarkupRules {
    Html, ///< names in any case; some elements have no end tag, and others end where another one begins
    Xml,  ///< names as they are written; each element has an end tag
};

/// The start tag of an element. Positions are 0-based bytes of the text; `tagEnd` is exclusive.
struct ElementTag {
    qsizetype begin = 0;
    qsizetype tagEnd = 0;
    QByteArray name; ///< in lower case by the rules of HTML

    friend bool operator==(const ElementTag &, const ElementTag &) = default;
};

/// Tells the elements around a position of a text, in which server code and half-typed tags may be anywhere. The text is
/// read from its beginning, as there is no other way to tell what a tag belongs to; but what was read is remembered at
/// intervals, so that a change or another position costs little, and the first reading may be done in portions.
class OpenElements
{
public:
    /// UTF-8 in two pieces that follow one another.
    using Text = std::array<QByteArrayView, 2>;

    explicit OpenElements(MarkupRules rules = MarkupRules::Html) : m_rules(rules) {}

    /// The text has changed from this position on.
    void changedFrom(qsizetype position);

    /// The elements around a position, the outermost first. A position in a tag is within its element. Reads at most
    /// about `budget` bytes; returns nothing if that wasn't enough, and goes on there with the next call.
    std::optional<std::vector<ElementTag>> around(const Text &text, qsizetype position, qsizetype budget);

    /// The position behind an element that around() has told: behind its end tag, or where it ends without one.
    qsizetype endOf(const Text &text, const ElementTag &element);

    MarkupRules rules() const { return m_rules; }

private:
    struct Node {
        qsizetype begin = 0;
        qsizetype tagEnd = 0;
        int parent = -1;
        int name = 0;
    };
    /// What was known at a place between two tags.
    struct Mark {
        qsizetype at = 0;
        int top = -1;
        qsizetype nodes = 0;
    };
    struct Tag {
        qsizetype begin = 0;
        qsizetype end = 0;
        QByteArray name;
        bool isEnd = false;
        /// The element has neither content nor an end tag.
        bool isEmpty = false;
    };

    void goBackTo(qsizetype position);
    std::optional<Tag> nextTag(const Text &text, qsizetype limit);
    void readTag(const Text &text, Tag &tag) const;
    void enter(const Text &text, const Tag &tag);
    void leave(const Tag &tag);
    void endImplied(const QByteArray &name);
    void popTo(int node);
    void rememberPlace();
    int numberOf(const QByteArray &name);
    ElementTag describe(int node) const;

    MarkupRules m_rules;
    qsizetype m_at = 0;
    int m_top = -1;
    /// Every element that was entered; those around a place are linked by their parents.
    std::vector<Node> m_nodes;
    std::vector<Mark> m_marks;
    QHash<QByteArray, int> m_numbers;
    std::vector<QByteArray> m_names;
    /// How many elements of each name are open.
    std::vector<int> m_open;
    /// The element that the last tag ended, or -1, and the outermost place that it led to.
    int m_ended = -1;
    int m_lowest = -1;
};

} // namespace zephira
