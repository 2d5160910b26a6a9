// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <span>

namespace zephira {

/// A page of the handbook, and the window or the parts of a window that it is about.
struct HelpPage {
    /// The page's name, which is its file's name without the extension.
    QStringView name;
    /// The window's object name, which is also its name in the form catalogue; empty if the page is about no window.
    QStringView window = {};
    /// Object names inside the window, separated by blanks; empty if the page is about the whole window.
    QStringView parts = {};
};

struct HelpChapter {
    QStringView title;
    std::span<const HelpPage> pages;
};

/// The pages of the handbook in the order of its contents, which are a page themselves and not in this table.
std::span<const HelpChapter> helpChapters();

/// The page of the contents.
inline constexpr QStringView contentsPage = u"index";

/// The name of a page's file.
QString helpFile(QStringView page);

/// The page for what has the focus. Each element of `windows` is a window, the one in front first and its owners after
/// it: the object names from the control that has the focus to the window itself. The innermost name that has a page
/// wins; without any it is the page of the contents.
QStringView helpPageFor(std::span<const QStringList> windows);

} // namespace zephira
