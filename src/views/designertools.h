// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "core/designer.h"

#include <QStringList>

#include <optional>

namespace zephira {

/// What the designer's toolbar does, and what its menus show. Errors end a command without a word.
class DesignerTools
{
public:
    explicit DesignerTools(const AppContext &context) : m_context(context) {}

    /// Learns the names of the block formats when the first document is complete, and does nothing at later ones. From
    /// then on fonts and sizes can be chosen. Returns whether it was the first.
    bool documentComplete();
    /// Whether there has been a complete document; it never turns back.
    bool designerReady() const { return m_designerReady; }
    /// The formats of the menu Format, in its order; no more than it has entries.
    const QStringList &blockFormats() const { return m_blockFormats; }

    /// A button of the toolbar, by key.
    void clickButton(const QString &key);
    void chooseFont(const QString &name);
    /// 1 to 7.
    void chooseFontSize(int size);
    /// A size that was typed. What is no size from 1 to 7 changes nothing, and comes back as the text that the box is to
    /// show instead.
    std::optional<QString> enterFontSize(const QString &text);

private:
    void run(DesignerCommand command, const QVariant &argument = {},
             DesignerPrompting prompting = DesignerPrompting::Default);
    void runIfReady(DesignerCommand command, const QVariant &argument);
    void chooseColour();

    const AppContext m_context;
    bool m_designerReady = false;
    QStringList m_blockFormats;
    /// The dialog opens at the colour that was chosen last.
    quint32 m_colour = 0;
};

/// A colour number, red in the lowest byte, as markup writes it.
///
///     markupColour(0x0080FF) == "#FF8000"
QString markupColour(quint32 number);

} // namespace zephira
