// SPDX-License-Identifier: GPL-3.0-or-later
// How the page's text gets back: what was touched is written into the source, if that is right and is found in time.
#include "web/designer/designerpage.h"
#include "web/designer/designerwidget.h"
#include "web/designer/mergeladder.h"
#include "web/designer/xmlpage.h"

#include <QElapsedTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// How often to request the text of a page that keeps changing.
constexpr int mostTries = 5;
/// In larger pages a single check would exceed the time limit by far.
constexpr qsizetype largestMerge = 4'000'000;

QVariantList forPage(const TextChange &change, qsizetype offset)
{
    return {change.begin + offset, change.end + offset, change.text};
}

QVariantList forPage(const TextChanges &changes, qsizetype offset)
{
    QVariantList list;
    for (const TextChange &change : changes)
        list.append(QVariant(forPage(change, offset)));
    return list;
}

TextChanges allOf(const QString &source, const QString &text)
{
    if (source == text)
        return {};
    return {withoutSameEnds(source, {0, source.size(), text})};
}

} // namespace

QString DesignerWidget::documentHtml()
{
    if (m_isComplete)
        awaitKeys();
    const bool isAsLoaded = !m_isComplete || !m_state.isDirty;
    if (!isAsLoaded) {
        // The page may change while its text is on the way.
        int tries = 0;
        do {
            takeCopy(DesignerCopy::fromPage(ask(u"text"_s).toMap()));
        } while (m_isComplete && m_copy.changes < m_state.changes && ++tries < mostTries);
    }
    if (isAsLoaded || !m_copy.isThere() || !m_state.isDirty) {
        m_written = {};
        return m_text.source();
    }
    if (m_written.pageChanges != m_copy.changes)
        takeWritten(m_copy);
    return m_written.text;
}

/// While the page is asked, its process may be lost, which replaces the text.
void DesignerWidget::takeWritten(const DesignerCopy &copy)
{
    const PageRoundTrip page = m_text;
    const bool isTooLarge = !page.isPlain() && std::max(page.source().size(), copy.text.size()) > largestMerge;
    const std::optional<TextChanges> changes = isTooLarge ? std::nullopt : mergedChanges(copy);
    const QString text = changes ? withChanges(page.source(), *changes) : page.fromEngine(copy.text);
    const bool isStillThere = m_text.markPrefix() == page.markPrefix();
    const WholePage whole = changes || page.isPlain() ? WholePage::No
        : isTooLarge                                  ? WholePage::TooLarge
                                                      : WholePage::NotFound;
    m_written = {isStillThere ? copy.changes : -1, text, changes ? *changes : allOf(page.source(), text), whole};
}

/// The page as it was loaded is asked for once.
bool DesignerWidget::awaitAlignment()
{
    if (m_alignment)
        return true;
    const QString page = m_text.markPrefix();
    const QString loaded = ask(u"loaded"_s).toString();
    if (loaded.isEmpty() || m_text.markPrefix() != page)
        return false;
    m_alignment = std::make_shared<PageAlignment>(m_text.masked().toString(), loaded);
    return true;
}

/// The changes of the source that make the copy's page, if such are found in time.
std::optional<TextChanges> DesignerWidget::mergedChanges(const DesignerCopy &copy)
{
    if (m_mergePatience == 0 || m_text.isPlain())
        return {};
    QElapsedTimer time;
    time.start();
    if (!awaitAlignment())
        return {};
    // Both are needed after a loss of the page, too.
    const PageRoundTrip page = m_text;
    const std::shared_ptr<PageAlignment> alignment = m_alignment;
    const qsizetype doctype = page.forEngine().size() - page.masked().size();
    const PageMerge merge(*alignment, copy.text, [&page](QStringView markup) { return page.spelled(markup); });
    std::optional<TextChanges> right;
    // The engine reads every text as HTML, in which a lone end tag may stand for an element.
    std::optional<bool> isXml;
    const auto staysXml = [&] {
        if (!isXml)
            isXml = isXmlPage(page.source());
        return !*isXml || isXmlPage(withChanges(page.source(), *right));
    };
    const auto check = [&](const MergeTry &attempt) {
        if (time.hasExpired(m_mergePatience))
            return MergeVerdict::Stop;
        if (!attempt.target) {
            right = page.changesOfSource(attempt.changes);
            if (!right)
                return MergeVerdict::Wrong;
        }
        const QVariant target = attempt.target ? QVariant(forPage(*attempt.target, 0)) : QVariant();
        const QVariant fits = ask(u"fits"_s, {QVariant(forPage(attempt.changes, doctype)), target, copy.changes});
        if (fits.typeId() != QMetaType::Bool || m_text.markPrefix() != page.markPrefix())
            return MergeVerdict::Stop;
        if (!fits.toBool())
            return MergeVerdict::Wrong;
        return attempt.target || staysXml() ? MergeVerdict::Right : MergeVerdict::Wrong;
    };
    const std::optional<TextChanges> changes = mergedByLadder(merge, check);
    if (!changes)
        return {};
    return changes->empty() ? TextChanges() : right;
}

} // namespace zephira
