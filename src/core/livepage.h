// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace zephira {

/// The colours that a page is asked for.
enum class ColourScheme {
    Desktop, ///< those that the engine asks for by itself
    Light,
    Dark,
};

/// What a live page tells its host. Places are 0-based positions in the text that was shown last, in UTF-16 code units.
/// Empty handlers are skipped.
struct LivePageEvents {
    /// The page shows the text that was given last.
    std::function<void()> shown = {};
    /// The user clicked on the element whose start tag is at this place. `isUsed` tells that the click also did something in
    /// the page, as one into a field does.
    std::function<void(qsizetype place, bool isUsed)> clicked = {};
    /// The user scrolled: this place is at the top now, or the page's end is in sight.
    std::function<void(qsizetype place, bool isAtEnd)> scrolled = {};
    /// The files of the style sheets that the page uses, as full paths.
    std::function<void(const QStringList &files)> sheetsChanged = {};
    /// The page didn't answer, so that its process was ended. The next text is shown again.
    std::function<void()> lost = {};
    /// The hosts that the page wanted to load from and may not; none when another page comes.
    std::function<void(const QStringList &hosts)> remoteRefused = {};
};

/// A page that follows its source while one types. All operations return at once.
class LivePage
{
public:
    virtual ~LivePage() = default;

    /// Shows a page, given as text without a limit of its size. The same document as before is changed in place, so that
    /// scroll position and forms are kept; it is loaded anew only where the change asks for that. While one text is being
    /// shown, of further ones only the last counts.
    /// @param html  the page
    /// @param file  full path of the file that relative addresses are resolved against, or empty
    virtual void show(const QString &html, const QString &file) = 0;
    /// Loads the text that was shown last anew.
    virtual void reload() = 0;

    /// Outlines the first of these elements that is in the page, given by the places of their start tags.
    virtual void showCaret(const std::vector<qsizetype> &places, bool bringsIntoSight) = 0;
    /// Scrolls so that what stands at a place of the text is at the top; or to the end.
    virtual void follow(qsizetype place, bool toEnd) = 0;
    /// A file was saved that may be a style sheet of the page.
    virtual void sheetSaved(const QString &file) = 0;

    virtual void setColourScheme(ColourScheme scheme) = 0;
    /// How large the page is shown; 1 is its own size.
    virtual void setZoom(qreal factor) = 0;

    /// See Browser.
    virtual void setProjectFolder(const QString &folder) = 0;
    virtual void setRemoteAllowed(bool allowed) = 0;

    virtual void setEvents(LivePageEvents events) = 0;
};

} // namespace zephira
