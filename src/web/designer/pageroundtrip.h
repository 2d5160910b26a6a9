// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "web/designer/documentkind.h"
#include "web/designer/entityhabits.h"
#include "web/designer/pagescan.h"
#include "web/designer/servermarks.h"

#include <QString>

#include <vector>

namespace zephira {

/// A page on its way into the engine and back. What stands in front of the root element and behind the body stays here
/// and comes back to the letter, as do server code, comments and malformed declarations; the engine's text is tidied:
/// lower-case names, double quotes, CR LF, references where the author wrote some, lone words for attributes without a
/// value, and a line of its own for each paragraph, heading, list, table and row. A page that says that it is XML stays
/// well-formed. A source without the tags of root, head and body stays one, and so does a table without a group of rows.
///
/// A document that is plain text goes to the engine as it stands, with LF, and comes back as it stands there, with CR LF.
class PageRoundTrip
{
public:
    /// A page without a word of text.
    PageRoundTrip() : PageRoundTrip(QString(), QStringLiteral("zs")) {}
    /// The prefix is one of freshMarkPrefix().
    PageRoundTrip(QString source, const QString &markPrefix, DocumentKind kind = DocumentKind::Markup);

    const QString &source() const { return m_source; }
    bool isPlain() const { return m_kind == DocumentKind::PlainText; }
    const QString &markPrefix() const { return m_marks.prefix(); }

    /// What the engine is to read.
    const QString &forEngine() const { return m_forEngine; }
    /// The page from the root element as the engine writes it; of plain text, that text.
    QString fromEngine(const QString &rootElement) const;

    /// The same for markup that the user puts into the page or takes from it.
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
    /// A comment or a block of server code at the end of the page that nobody closed.
    QString m_openEnd;
    bool m_isFragment = false;
    bool m_isXml = false;
    bool m_tailEndsBody = false;
    bool m_tailEndsRoot = false;
};

/// The name of the element that shows a mark between tags; its attribute "mark" holds the mark.
constexpr QStringView markElement = u"zephira-mark";

} // namespace zephira
