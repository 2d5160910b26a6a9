// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/pageroundtrip.h"

#include <QRegularExpression>

#include <algorithm>
#include <optional>
#include <span>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView lineEnd = u"\r\n";
constexpr QStringView bodyEnd = u"</body>";
constexpr QStringView rootEnd = u"</html>";

constexpr QStringView lonelyAttributes[] = {
    u"allowfullscreen", u"async",    u"autofocus", u"autoplay", u"checked",  u"compact",    u"controls", u"declare",
    u"default",         u"defer",    u"disabled",  u"hidden",   u"ismap",    u"itemscope",  u"loop",     u"multiple",
    u"muted",           u"nohref",   u"nomodule",  u"noresize", u"noshade",  u"novalidate", u"nowrap",   u"open",
    u"playsinline",     u"readonly", u"required",  u"reversed", u"selected",
};

/// Elements that begin on a line of their own after one of them has ended. Blocks that style sheets often lay out side
/// by side aren't included, because a line end would put a gap between them.
constexpr QStringView blocks[] = {
    u"address", u"blockquote", u"dd", u"dl", u"dt", u"h1",  u"h2",    u"h3", u"h4",
    u"h5",      u"h6",         u"hr", u"ol", u"p",  u"pre", u"table", u"tr", u"ul",
};

/// Elements without an end tag.
constexpr QStringView voidElements[] = {
    u"area", u"base",  u"basefont", u"br",   u"col",   u"embed",  u"frame", u"hr",
    u"img",  u"input", u"link",     u"meta", u"param", u"source", u"track", u"wbr",
};

constexpr QStringView rootElements[] = {u"html", u"head", u"body", u"frameset"};

/// Elements in which browsers ignore a line end right after the start tag.
constexpr QStringView linedElements[] = {u"pre", u"textarea", u"listing"};

bool isOneOf(QStringView name, std::span<const QStringView> names)
{
    return std::ranges::find(names, name) != names.end();
}

bool isBlankText(QStringView text)
{
    return std::ranges::all_of(text, [](QChar c) { return QStringView(u" \t\n\r\f").contains(c); });
}

bool isOutside(const PagePiece &piece, QStringView source)
{
    switch (piece.kind) {
    case PieceKind::Comment:
    case PieceKind::Doctype:
    case PieceKind::ServerText:
        return true;
    case PieceKind::Text: {
        const QStringView text = piece.in(source);
        return isBlankText(piece.begin == 0 && text.startsWith(QChar::ByteOrderMark) ? text.sliced(1) : text);
    }
    default:
        return false;
    }
}

/// Whether the piece is unclosed and therefore extends to the end of the page.
bool isLeftOpen(const PagePiece &piece, QStringView source)
{
    const bool canBeOpen = piece.kind == PieceKind::Comment || piece.kind == PieceKind::ServerText;
    return canBeOpen && piece.end == source.size() && !piece.in(source).endsWith(u'>');
}

/// The root without the end tags that the engine writes after an element that has no end, of whose text they become
/// part.
QStringView withoutEndsOfPlainText(QStringView root)
{
    constexpr QStringView plainTextEnd = u"</plaintext>";
    const qsizetype end = root.lastIndexOf(plainTextEnd);
    if (end < 0)
        return root;
    static const QRegularExpression endTags(u"^(?:</[a-z0-9:-]+>)+$"_s);
    return endTags.match(root.sliced(end).toString()).hasMatch() ? root.first(end) : root;
}

/// The lower-case name of the tag that a piece begins, if it is one of the root elements.
QString rootTag(const PagePiece &piece, QStringView source, bool *isEnd = nullptr)
{
    if (piece.kind != PieceKind::Markup)
        return {};
    const QString name = tagNameOf(piece.in(source), isEnd).toString().toLower();
    return isOneOf(name, rootElements) ? name : QString();
}

/// Whether the piece is an end tag of the body or the root.
bool isRootEnd(const PagePiece &piece, QStringView source)
{
    bool isEnd = false;
    const QString name = rootTag(piece, source, &isEnd);
    return isEnd && (name == u"body" || name == u"html");
}

/// The engine's text without the tags that it added to a page that had none of them. If such a tag has attributes, they
/// must not be lost; then the result is empty.
std::optional<QString> withoutRootTags(QStringView root)
{
    QString text;
    for (const PagePiece &piece : scanPage(root)) {
        const bool isRootTag = !rootTag(piece, root).isEmpty();
        if (isRootTag && !piece.in(root).endsWith(u'>'))
            return {};
        if (!isRootTag)
            text += piece.in(root);
    }
    return text;
}

/// The engine's text without such tags that have no attributes.
QString withoutBareRootTags(QStringView markup)
{
    static const QRegularExpression tags(u"</?(?:html|head|body)>"_s);
    return markup.contains(u'<') ? markup.toString().remove(tags) : markup.toString();
}

/// Whether a page declares itself as XML: by its declaration, its doctype or its root.
bool isXmlPage(QStringView prolog, QStringView root)
{
    return prolog.contains(u"<?xml ") || prolog.contains(u"//DTD XHTML", Qt::CaseInsensitive)
        || (root.startsWith(u"<html", Qt::CaseInsensitive)
            && root.first(root.indexOf(u'>') + 1).contains(u"http://www.w3.org/1999/xhtml"));
}

QString withCrLf(QStringView text)
{
    return text.toString().replace(u'\n', u"\r\n"_s);
}

QString withLf(QString text)
{
    return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
}

/// Writes the pieces of the engine's serialised text. The engine's markup is regular: names in lower case, values in
/// double quotes.
class TidyWriter
{
public:
    /// How blocks that follow one another are laid out.
    enum class Lines { OneForEachBlock, AsTheyAre };

    TidyWriter(QStringView source, const EntityHabits &text, const EntityHabits &values, bool isXml, bool closesVoids,
               Lines lines = Lines::OneForEachBlock)
        : m_source(source)
        , m_text(text)
        , m_values(values)
        , m_isXml(isXml)
        , m_closesVoids(isXml || closesVoids)
        , m_lines(lines)
    {
        m_out.reserve(source.size());
    }

    QString write()
    {
        const std::vector<PagePiece> pieces = scanPage(m_source);
        for (const PagePiece &piece : pieces) {
            if (isSpelled(piece.kind))
                m_text.expect(readEngineText(piece.in(m_source)), m_textProgress);
            else if (piece.kind == PieceKind::Value)
                m_values.expect(readEngineText(piece.in(m_source)), m_valueProgress);
        }
        for (const PagePiece &piece : pieces) {
            const QStringView text = piece.in(m_source);
            if (m_insideMark && piece.kind == PieceKind::Value && m_isMarkValue)
                m_out += u"<!--%1-->"_s.arg(text);
            if (piece.kind == PieceKind::Markup)
                writeMarkup(text);
            else if (!m_insideMark)
                writeContent(piece.kind, text);
        }
        return std::move(m_out);
    }

private:
    static bool isSpelled(PieceKind kind) { return kind == PieceKind::Text || kind == PieceKind::PlainText; }

    /// Whether the tag belongs to a tbody that the engine has put around rows without one: those of the author and of
    /// the designer have an attribute.
    bool isAddedGroup(QStringView text, QStringView name, bool isEnd)
    {
        if (name != u"tbody")
            return false;
        if (!isEnd)
            m_addedGroups.push_back(text == u"<tbody>");
        else if (m_addedGroups.empty())
            return false;
        const bool isAdded = m_addedGroups.back();
        if (isEnd)
            m_addedGroups.pop_back();
        return isAdded;
    }

    void writeMarkup(QStringView text)
    {
        bool isEnd = false;
        const QStringView name = tagNameOf(text, &isEnd);
        if (m_insideMark || name == markElement) {
            // The piece that ends the mark is part of it.
            m_insideMark = !(name == markElement && isEnd);
            m_isMarkValue = text.endsWith(u" mark=\"");
            m_afterBlock = m_afterLined = false;
            return;
        }
        if (isAddedGroup(text, name, isEnd))
            return;
        if (!name.isEmpty()) {
            m_name = name;
            m_isEnd = isEnd;
            if (!isEnd && wantsLine(name))
                m_out += lineEnd;
        }
        m_out += m_afterLonely && text.startsWith(u'"') ? text.sliced(1) : text;
        m_afterLonely = false;
        const bool ends = text.endsWith(u'>');
        if (ends && m_closesVoids && !m_isEnd && isOneOf(m_name, voidElements)) {
            m_out.chop(1);
            m_out += u" />";
        }
        m_afterBlock = ends && (m_isEnd || m_name == u"hr") && isOneOf(m_name, blocks);
        m_afterLined = ends && !m_isEnd && isOneOf(m_name, linedElements);
    }

    bool wantsLine(QStringView name) const
    {
        if (m_lines == Lines::AsTheyAre)
            return false;
        if (name == u"head")
            return m_out.endsWith(u'>');
        if (name == u"body" || name == u"frameset")
            return m_out.endsWith(u"</head>");
        return m_afterBlock && isOneOf(name, blocks);
    }

    void writeContent(PieceKind kind, QStringView text)
    {
        if (kind == PieceKind::Value) {
            if (text.isEmpty())
                makeAttributeLonely();
            m_out += m_values.write(readEngineText(text), &m_valueProgress);
            return;
        }
        if (m_afterLined && text.startsWith(u'\n'))
            m_out += lineEnd;
        m_afterBlock = m_afterLined = false;
        m_out += isSpelled(kind) ? m_text.write(readEngineText(text), &m_textProgress) : withCrLf(text);
    }

    /// An attribute with an empty value has just been begun. In XML, the value of one that needs none is its name.
    void makeAttributeLonely()
    {
        constexpr QStringView opening = u"=\"";
        const QStringView written = m_out;
        // The engine quotes all values; markup from elsewhere may not.
        if (!written.endsWith(opening))
            return;
        const QStringView name = written.chopped(opening.size()).sliced(written.lastIndexOf(u' ') + 1);
        const bool isLonely = isOneOf(name, lonelyAttributes);
        m_afterLonely = isLonely && !m_isXml;
        if (m_afterLonely)
            m_out.chop(opening.size());
        else if (isLonely)
            m_out += name.toString();
    }

    const QStringView m_source;
    const EntityHabits &m_text;
    const EntityHabits &m_values;
    const bool m_isXml;
    const bool m_closesVoids;
    const Lines m_lines;
    EntityHabits::Progress m_textProgress;
    EntityHabits::Progress m_valueProgress;
    QString m_out;
    /// For each open tbody, from the outermost to the innermost: whether the engine has added it.
    std::vector<bool> m_addedGroups;
    /// The name of the last tag that was begun.
    QStringView m_name;
    bool m_isEnd = false;
    bool m_insideMark = false;
    bool m_isMarkValue = false;
    bool m_afterBlock = false;
    bool m_afterLined = false;
    bool m_afterLonely = false;
};

} // namespace

PageRoundTrip::PageRoundTrip(QString source, const QString &markPrefix, DocumentKind kind)
    : m_source(std::move(source)), m_kind(kind), m_marks(markPrefix)
{
    if (isPlain()) {
        m_forEngine = withLf(m_source);
        return;
    }
    std::vector<PagePiece> pieces = scanPage(m_source);
    learn(pieces);
    splitEnds(pieces);
}

/// Keeps what is before the root and after the body from the engine, which needs only the doctype.
void PageRoundTrip::splitEnds(std::vector<PagePiece> &pieces)
{
    const QStringView source = m_source;
    const auto outside = [source](const PagePiece &piece) { return isOutside(piece, source); };
    const auto rootEndPiece = [source](const PagePiece &piece) { return isRootEnd(piece, source); };
    const auto root = std::ranges::find_if_not(pieces, outside);
    const auto trailing =
        std::find_if_not(pieces.rbegin(), std::make_reverse_iterator(root), [&](const PagePiece &piece) {
            return outside(piece) || rootEndPiece(piece);
        }).base();
    const auto tail = std::find_if(trailing, pieces.end(), rootEndPiece);
    m_prolog = source.first(root == pieces.end() ? source.size() : root->begin).toString();
    m_tail = source.sliced(tail == pieces.end() ? source.size() : tail->begin).toString();
    for (auto piece = tail; piece != pieces.end(); ++piece) {
        const QString name = rootTag(*piece, source);
        m_tailEndsBody = m_tailEndsBody || name == u"body";
        m_tailEndsRoot = m_tailEndsRoot || name == u"html";
    }
    m_isFragment = !isBlankText(source)
        && std::ranges::all_of(pieces, [source](const PagePiece &piece) { return rootTag(piece, source).isEmpty(); });
    if (!pieces.empty() && isLeftOpen(pieces.back(), source))
        m_openEnd = pieces.back().in(source).toString();
    // The engine drops a doctype that comes too late.
    for (auto piece = root; piece != tail; ++piece) {
        if (piece->kind == PieceKind::Doctype)
            piece->kind = PieceKind::Comment;
    }
    m_isXml = isXmlPage(m_prolog, source.sliced(m_prolog.size()));
    m_textHabits.setXml(m_isXml);
    m_valueHabits.setXml(m_isXml);
    const auto doctype =
        std::find_if(pieces.begin(), root, [](const PagePiece &piece) { return piece.kind == PieceKind::Doctype; });
    if (doctype != root)
        m_forEngine = doctype->in(source).toString();
    m_doctypeLength = m_forEngine.size();
    m_forEngine += m_marks.mask(source, {root, tail});
}

void PageRoundTrip::learn(const std::vector<PagePiece> &pieces)
{
    bool isVoid = false;
    bool hasClosed = false;
    bool hasOpen = false;
    for (const PagePiece &piece : pieces) {
        const QStringView text = piece.in(m_source);
        if (piece.kind == PieceKind::Text || piece.kind == PieceKind::PlainText) {
            m_textHabits.learn(text);
        } else if (piece.kind == PieceKind::Value) {
            m_valueHabits.learn(text);
        } else if (piece.kind == PieceKind::Markup) {
            if (const QStringView name = tagNameOf(text); !name.isEmpty())
                isVoid = isOneOf(name.toString().toLower(), voidElements);
            const bool ends = isVoid && text.endsWith(u'>');
            hasClosed = hasClosed || (ends && text.endsWith(u"/>"));
            hasOpen = hasOpen || (ends && !text.endsWith(u"/>"));
        }
    }
    m_closesVoids = hasClosed && !hasOpen;
}

QString PageRoundTrip::tidied(QStringView markup) const
{
    return TidyWriter(markup, m_textHabits, m_valueHabits, m_isXml, m_closesVoids).write();
}

QString PageRoundTrip::spelled(QStringView whole) const
{
    const QString fragment = m_isFragment ? withoutBareRootTags(whole) : QString();
    const QStringView markup = m_isFragment ? fragment : whole;
    const QString text =
        TidyWriter(markup, m_textHabits, m_valueHabits, m_isXml, m_closesVoids, TidyWriter::Lines::AsTheyAre).write();
    return m_source.contains(lineEnd) || !m_source.contains(u'\n') ? text : withLf(text);
}

std::optional<TextChanges> PageRoundTrip::changesOfSource(const TextChanges &changes) const
{
    const QStringView source = m_source;
    // What masked() has in the place of a part of the source need not have the same length.
    qsizetype place = m_prolog.size();
    const auto pass = [&](QStringView part) {
        const QString original = m_marks.unmask(part);
        const bool isThere = source.sliced(place).startsWith(original);
        place += isThere ? original.size() : 0;
        return isThere;
    };
    TextChanges ofSource;
    qsizetype done = 0;
    for (const TextChange &change : changes) {
        if (!pass(masked().sliced(done, change.begin - done)))
            return {};
        const qsizetype begin = place;
        if (!pass(masked().sliced(change.begin, change.end - change.begin)))
            return {};
        done = change.end;
        const TextChange smaller = withoutSameEnds(source, {begin, place, m_marks.unmask(change.text)});
        if (smaller.begin < smaller.end || !smaller.text.isEmpty())
            ofSource.push_back(smaller);
    }
    const PageRoundTrip after(withChanges(source, ofSource), markPrefix());
    const QString wanted = m_forEngine.first(m_doctypeLength) + withChanges(masked(), changes);
    const bool isSame = after.m_isFragment == m_isFragment && after.m_isXml == m_isXml
        && m_marks.withoutNumbers(after.forEngine()) == m_marks.withoutNumbers(wanted);
    return isSame ? std::optional(std::move(ofSource)) : std::nullopt;
}

QString PageRoundTrip::fragmentForEngine(const QString &markup)
{
    return isPlain() ? withLf(markup) : m_marks.mask(markup);
}

QString PageRoundTrip::fragmentFromEngine(const QString &markup) const
{
    return isPlain() ? withCrLf(markup) : m_marks.unmask(tidied(markup));
}

QString PageRoundTrip::fromEngine(const QString &rootElement) const
{
    if (isPlain())
        return withCrLf(rootElement);
    QStringView root = withoutEndsOfPlainText(rootElement);
    const bool isEndless = root.size() < rootElement.size();
    if (const auto fragment = m_isFragment ? withoutRootTags(root) : std::nullopt)
        return m_prolog + m_marks.unmask(tidied(*fragment));
    if (isEndless)
        return m_prolog + m_marks.unmask(tidied(root));
    if (root.endsWith(rootEnd))
        root.chop(rootEnd.size());
    const bool hasBody = root.endsWith(bodyEnd);
    if (hasBody)
        root.chop(bodyEnd.size());
    QString text = m_prolog + m_marks.unmask(tidied(root));
    // Anything after an unclosed end would become part of it.
    if (!m_openEnd.isEmpty() && text.endsWith(m_openEnd))
        return text;
    if (m_tail.isEmpty() && !text.endsWith(lineEnd))
        text += lineEnd;
    if (hasBody && !m_tailEndsBody)
        text += m_tail.isEmpty() ? u"</body>\r\n"_s : u"</body>"_s;
    text += m_tail;
    if (!m_tailEndsRoot)
        text += u"</html>\r\n"_s;
    return text;
}

} // namespace zephira
