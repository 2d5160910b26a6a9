// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/designermenus.h"

#include "commands/menutable.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// How the entries of a menu look, by what their commands do.
class EntryLooks
{
public:
    EntryLooks(Designer &designer, const QStringList &blockFormats) : m_designer(designer), m_blockFormats(blockFormats)
    {}

    std::optional<DesignerMenuEntry> of(const MenuItem &item)
    {
        return std::visit([&](const auto &effect) { return look(item, effect); }, item.command.effect);
    }

private:
    std::optional<DesignerMenuEntry> look(const MenuItem &item, DesignerCommand command) const
    {
        const int status = m_designer.queryStatus(command);
        const bool isOn = status == DesignerStatus::On;
        const std::optional<bool> checked = item.kind == MenuItem::Kind::Check ? std::optional(isOn) : std::nullopt;
        if (command == DesignerCommand::AbsolutePosition)
            return DesignerMenuEntry{item.name.toString(), isOn || status == DesignerStatus::Enabled, checked,
                                     isOn ? u"Set Position Attribute To 1D"_s
                                          : u"Set Position Attribute To Absolute"_s};
        return DesignerMenuEntry{item.name.toString(), status >= DesignerStatus::Enabled, checked};
    }

    std::optional<DesignerMenuEntry> look(const MenuItem &item, const TurnsSwitch &effect) const
    {
        return DesignerMenuEntry{item.name.toString(), std::nullopt, (m_designer.*effect.get)()};
    }

    std::optional<DesignerMenuEntry> look(const MenuItem &item, const SetsBlockFormat &effect)
    {
        if (effect.number >= m_blockFormats.size())
            return std::nullopt;
        const bool isOpen = isAvailable(DesignerCommand::GetBlockFormat);
        return DesignerMenuEntry{item.name.toString(), isOpen,
                                 isOpen && m_blockFormats[effect.number] == currentFormat()};
    }

    /// A form or a function that writes into the page.
    std::optional<DesignerMenuEntry> look(const MenuItem &item, const auto &) const
    {
        const bool isText = item.need != Need::PageText || m_designer.selectionType() != u"Control";
        const bool isOpen = item.asks == DesignerCommand::None || isAvailable(item.asks);
        return DesignerMenuEntry{item.name.toString(), isText && isOpen};
    }

    bool isAvailable(DesignerCommand command) const
    {
        return m_designer.queryStatus(command) >= DesignerStatus::Enabled;
    }

    /// Asked for once, however many formats there are.
    const QString &currentFormat()
    {
        if (!m_currentFormat) {
            m_currentFormat =
                m_designer.execCommand(DesignerCommand::GetBlockFormat, DesignerPrompting::DontPromptUser).toString();
        }
        return *m_currentFormat;
    }

    Designer &m_designer;
    const QStringList &m_blockFormats;
    std::optional<QString> m_currentFormat;
};

} // namespace

QList<DesignerMenuEntry> designerMenuEntries(const MenuItem &menu, Designer &designer, const QStringList &blockFormats)
{
    EntryLooks looks(designer, blockFormats);
    QList<DesignerMenuEntry> entries;
    for (const MenuItem &item : menu.children) {
        if (item.kind == MenuItem::Kind::Divider)
            continue;
        if (const std::optional<DesignerMenuEntry> entry = looks.of(item))
            entries.append(*entry);
    }
    return entries;
}

} // namespace zephira
