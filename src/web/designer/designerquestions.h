// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/prompts.h"

#include <QString>

#include <optional>

namespace zephira {

/// What the designer asks the user when a command needs something. Nothing means that the user cancelled.
class DesignerQuestions
{
public:
    /// The prompts outlive this.
    explicit DesignerQuestions(Prompts &prompts) : m_prompts(prompts) {}

    /// The address of a picture, relative to the page where both lie in one tree. `baseFile` is the page's full path, or
    /// empty.
    std::optional<QString> picture(const QString &baseFile);
    /// The address of a link, starting with the one that is there; an empty one takes the link away.
    std::optional<QString> link(const QString &address);
    /// The text to look for, starting with the last one.
    std::optional<QString> searchText();
    void tellNotFound(const QString &text);
    std::optional<FontChoice> font(const FontChoice &font);

private:
    Prompts &m_prompts;
    QString m_searchText;
};

/// The address of a file in a page: relative to the page's folder, with what has a meaning in addresses encoded; a page
/// without a file gets the file's full address.
///
///     fileAddress("/site/a/page.html", "/site/my pics/1.gif") == "../my%20pics/1.gif"
QString fileAddress(const QString &baseFile, const QString &file);

} // namespace zephira
