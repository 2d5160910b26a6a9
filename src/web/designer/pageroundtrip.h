// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/textchange.h"
#include "web/designer/documentkind.h"
#include "web/designer/entityhabits.h"
#include "web/designer/pagescan.h"
#include "web/designer/servermarks.h"

#include <QString>

#include <optional>
#include <vector>

namespace zephira {

/// A page on its way into the engine and back. Everything before the root element and after the body is kept here and
/// restored exactly, and so are server code, comments and malformed declarations. The engine's text is tidied:
/// lower-case names, double quotes, CR LF, references where the author used them, bare names for attributes without a
/// value, and a line for each paragraph, heading, list, table and row. A page that declares itself as XML stays
/// well-formed. A source without html, head and body tags stays without them, and a table without tbody does too.
///
/// A plain-text document goes to the engine unchanged, with LF, and comes back unchanged, with CR LF.
class PageRoundTrip
{
public:
    /// An empty page.
    PageRoundTrip() : PageRoundTrip(QString(), QStringLiteral("zs")) {}
    /// The prefix must come from freshMarkPrefix().
    PageRoundTrip(QString source, const QString &markPrefix, DocumentKind kind = DocumentKind::Markup);

    const QString &source() const { return m_source; }
    bool isPlain() const { return m_kind == DocumentKind::PlainText; }
    const QString &markPrefix() const { return m_marks.prefix(); }

    /// The text for the engine.
    const QString &forEngine() const { return m_forEngine; }
    /// The page, given the root element as serialised by the engine; for plain text, given that text.
    QString fromEngine(const QString &rootElement) const;

    /// forEngine() without its doctype: the part of the source that can be edited, with marks.
    QStringView masked() const { return QStringView(m_forEngine).sliced(m_doctypeLength); }
    /// A piece of the engine's markup as it belongs into masked(): like the whole page, but without lines of its own for
    /// blocks, with LF if the source has no CR LF, and without root elements if the source has none.
    QString spelled(QStringView markup) const;
    /// The changes of the source that make these changes of masked(). Nothing if the source then would be read as another
    /// page than masked() with its changes, for example because a text has become server code.
    std::optional<TextChanges> changesOfSource(const TextChanges &changes) const;

    /// The same for markup that is inserted into the page or taken from it.
    QString fragmentForEngine(const QString &markup);
    QString fragmentFromEngine(const QString &markup) const;

private:
    void splitEnds(std::vector<PagePiece> &pieces);
    void learn(const std::vector<PagePiece> &pieces);
    QString tidied(QStringView markup) const;

    QString m_source;
    DocumentKind m_kind;
    ServerMarks m_marks;
    EntityHabits m_textHabits{EntityHabits::Place::Text};
    EntityHabits m_valueHabits{EntityHabits::Place::Value};
    QString m_prolog;
    QString m_tail;
    QString m_forEngine;
    qsizetype m_doctypeLength = 0;
    /// An unclosed comment or block of server code at the end of the page.
    QString m_openEnd;
    bool m_isFragment = false;
    bool m_isXml = false;
    /// Whether all tags of elements without an end tag are written with a slash.
    bool m_closesVoids = false;
    bool m_tailEndsBody = false;
    bool m_tailEndsRoot = false;
};

/// The name of the element that represents a mark between tags; its attribute "mark" has the mark.
constexpr QStringView markElement = u"zephira-mark";

} // namespace zephira
