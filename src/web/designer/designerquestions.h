// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/prompts.h"

#include <QString>

#include <optional>

namespace zephira {

/// The designer's questions to the user for its commands. An empty result means that the user cancelled.
class DesignerQuestions
{
public:
    /// `prompts` must outlive this object.
    explicit DesignerQuestions(Prompts &prompts) : m_prompts(prompts) {}

    /// The address of a picture, relative to the page if both are in the same tree. `baseFile` is the page's full path,
    /// or empty.
    std::optional<QString> picture(const QString &baseFile);
    /// The address of a link, preset to the current one; an empty one removes the link.
    std::optional<QString> link(const QString &address);
    /// The text to find, preset to the last one.
    std::optional<QString> searchText();
    void tellNotFound(const QString &text);
    std::optional<FontChoice> font(const FontChoice &font);

private:
    Prompts &m_prompts;
    QString m_searchText;
};

/// The address of a file for use in a page: relative to the page's folder, with special characters encoded; in a page
/// without a file, the file's full address.
///
///     fileAddress("/site/a/page.html", "/site/my pics/1.gif") == "../my%20pics/1.gif"
QString fileAddress(const QString &baseFile, const QString &file);

} // namespace zephira
