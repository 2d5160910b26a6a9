// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "core/designer.h"

#include <QStringList>

#include <optional>

namespace zephira {

/// The number of entries of the Format menu.
constexpr int mostBlockFormats = 16;

/// The actions of the designer's toolbar, and the contents of its menus. Commands that fail end silently.
class DesignerTools
{
public:
    explicit DesignerTools(const AppContext &context) : m_context(context) {}

    /// Reads the names of the block formats when the first document is complete, and enables the choice of fonts and
    /// sizes; does nothing for later documents. Returns whether it was the first.
    bool documentComplete();
    /// Whether a document has ever been complete; never reset.
    bool designerReady() const { return m_designerReady; }
    /// The formats of the Format menu in its order; at most as many as it has entries.
    const QStringList &blockFormats() const { return m_blockFormats; }

    /// Runs the command of a toolbar button. The text colour is asked for first.
    void click(DesignerCommand command);
    void chooseFont(const QString &name);
    /// Sets a size from 1 to 7.
    void chooseFontSize(int size);
    /// Sets a typed size. A text that isn't a size from 1 to 7 changes nothing; then the text that the box should show
    /// instead is returned.
    std::optional<QString> enterFontSize(const QString &text);

private:
    void run(DesignerCommand command, const QVariant &argument = {},
             DesignerPrompting prompting = DesignerPrompting::Default);
    void runIfReady(DesignerCommand command, const QVariant &argument);
    void chooseColour();

    const AppContext m_context;
    bool m_designerReady = false;
    QStringList m_blockFormats;
    /// The last chosen colour, with which the dialog opens.
    quint32 m_colour = 0;
};

/// A colour number, red in the lowest byte, in the notation of markup.
///
///     markupColour(0x0080FF) == "#FF8000"
QString markupColour(quint32 number);

} // namespace zephira
