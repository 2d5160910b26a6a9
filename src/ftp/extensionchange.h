// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/paths.h"
#include "core/prompts.h"

namespace zephira {

/// The extensions of a file's old and new name. Both panes compare them, case-sensitively, before they rename a file.
class ExtensionChange
{
public:
    ExtensionChange(const QString &oldName, const QString &newName)
        : m_old(extensionOf(oldName)), m_new(extensionOf(newName))
    {}

    bool isNone() const { return m_old == m_new; }
    /// The question to ask when they differ; any answer but Yes cancels the renaming.
    Question question() const
    {
        return {QStringLiteral("Are you sure to exchange the file extension from: \"") + m_old
                    + QStringLiteral("\" to: \"") + m_new + u'"',
                {},
                Question::Icon::Question,
                Question::Buttons::YesNo};
    }

private:
    QString m_old;
    QString m_new;
};

} // namespace zephira
