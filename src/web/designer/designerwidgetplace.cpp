// SPDX-License-Identifier: GPL-3.0-or-later
// Where in the page's source the caret is.
#include "web/designer/designerpage.h"
#include "web/designer/designerwidget.h"
#include "web/designer/pageplace.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// In larger pages it would take too long to find a place.
constexpr qsizetype largestPlaced = 4'000'000;

QVariantMap forPage(const PagePlace &place)
{
    return {
        {u"anchor"_s, place.anchor},         {u"number"_s, place.number},
        {u"characters"_s, place.characters}, {u"isBehindTags"_s, place.isBehindTags},
        {u"parent"_s, place.parent},         {u"following"_s, place.following},
    };
}

PagePlace fromPage(const QVariantMap &place)
{
    return {
        place.value(u"anchor"_s).toString(),
        static_cast<qsizetype>(place.value(u"number"_s).toLongLong()),
        static_cast<qsizetype>(place.value(u"characters"_s).toLongLong()),
        place.value(u"isBehindTags"_s).toBool(),
        place.value(u"parent"_s).toString(),
        place.value(u"following"_s).toString(),
    };
}

/// Line ends count as one character in the page, and as two in the source.
qsizetype withoutCr(QStringView text, qsizetype position)
{
    return position - text.first(position).count(u"\r\n");
}

qsizetype withCr(QStringView text, qsizetype place)
{
    qsizetype position = 0;
    for (; place > 0 && position < text.size(); --place)
        position += text.sliced(position).startsWith(u"\r\n") ? 2 : 1;
    return position;
}

} // namespace

/// The arguments for the page's function.
QVariantList DesignerWidget::placeForPage(qsizetype position, DesignerPlace what) const
{
    PagePlace place;
    if (m_text.isPlain())
        place.characters = withoutCr(m_text.source(), std::clamp<qsizetype>(position, 0, m_text.source().size()));
    else
        place = pagePlace(m_text.source(), position);
    return {forPage(place), what == DesignerPlace::Element};
}

bool DesignerWidget::showPlace(qsizetype position, DesignerPlace what)
{
    if (m_text.source().size() > largestPlaced)
        return false;
    if (!m_isComplete) {
        m_placeToShow = {position, what};
        return true;
    }
    return ask(u"showPlace"_s, placeForPage(position, what)).toBool();
}

/// The page shows the place when it is complete.
void DesignerWidget::sendPlace()
{
    if (const auto place = std::exchange(m_placeToShow, {}))
        m_page->call(u"showPlace"_s, placeForPage(place->first, place->second), [](const QVariant &) {});
}

std::optional<qsizetype> DesignerWidget::caretPlace()
{
    const QString &text = m_state.isDirty && m_written.pageChanges >= 0 ? m_written.text : m_text.source();
    if (!m_isComplete || text.size() > largestPlaced)
        return {};
    const QVariant place = ask(u"caretPlace"_s);
    if (place.typeId() != QMetaType::QVariantMap)
        return {};
    const PagePlace found = fromPage(place.toMap());
    return m_text.isPlain() ? withCr(text, found.characters) : positionOf(text, found);
}

} // namespace zephira
