// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/errorstyles.h"
#include "web/designer/designerclipboard.h"
#include "web/designer/designerpage.h"
#include "web/designer/designerwidget.h"
#include "web/designer/insertedtable.h"

#include <QPointer>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

InsertTableParam tableFrom(const QVariant &argument)
{
    if (argument.canConvert<InsertTableParam>())
        return argument.value<InsertTableParam>();
    const QVariantMap map = argument.toMap();
    const InsertTableParam standard;
    return {map.value(u"NumRows"_s, standard.rows).toInt(), map.value(u"NumCols"_s, standard.columns).toInt(),
            map.value(u"TableAttrs"_s, standard.tableAttributes).toString(),
            map.value(u"CellAttrs"_s, standard.cellAttributes).toString(),
            map.value(u"Caption"_s, standard.caption).toString()};
}

QVariantMap fontMap(const FontChoice &font)
{
    return {{u"name"_s, font.name},     {u"size"_s, font.size},           {u"bold"_s, font.bold},
            {u"italic"_s, font.italic}, {u"underline"_s, font.underline}, {u"strikethrough"_s, font.strikethrough}};
}

FontChoice fontChoice(const QVariantMap &font)
{
    return {font.value(u"name"_s).toString(),        font.value(u"size"_s).toDouble(),
            font.value(u"bold"_s).toBool(),          font.value(u"italic"_s).toBool(),
            font.value(u"strikethrough"_s).toBool(), font.value(u"underline"_s).toBool()};
}

} // namespace

/// Commands that need more than a call to the page. All others are run there by their number.
const DesignerWidget::Road DesignerWidget::roads[] = {
    {DesignerCommand::Copy, &DesignerWidget::copy},
    {DesignerCommand::Cut, &DesignerWidget::cut},
    {DesignerCommand::FindText, &DesignerWidget::find},
    {DesignerCommand::Font, &DesignerWidget::chooseFont},
    {DesignerCommand::Hyperlink, &DesignerWidget::askLink},
    {DesignerCommand::Image, &DesignerWidget::askPicture},
    {DesignerCommand::InsertTable, &DesignerWidget::insertTable},
    {DesignerCommand::Paste, &DesignerWidget::paste},
};

QVariant DesignerWidget::ExecCommand(int command, int prompting, const QVariant &argument)
{
    return execCommand(DesignerCommand{command}, DesignerPrompting{prompting}, argument);
}

void DesignerWidget::LoadDocument(const QString &path)
{
    endingQuietly([&] { loadDocument(path); });
}

void DesignerWidget::SetContextMenu(const QStringList &entries, const QVariantList &states)
{
    QList<DesignerMenuState> list;
    std::ranges::transform(states, std::back_inserter(list),
                           [](const QVariant &state) { return DesignerMenuState{state.toInt()}; });
    setContextMenu(entries, list);
}

QVariant DesignerWidget::execCommand(DesignerCommand command, DesignerPrompting prompting, const QVariant &argument)
{
    // These values are already known; the host reads them whenever the caret moves.
    switch (command) {
    case DesignerCommand::GetFontName:
        return m_state.fontName;
    case DesignerCommand::GetFontSize:
        return m_state.fontSize;
    case DesignerCommand::GetBlockFormat:
        return m_state.blockFormat;
    default:
        break;
    }
    if (!waitUntilComplete())
        return {};
    ask(u"state"_s);
    if (queryStatus(command) < DesignerStatus::Enabled)
        return {};
    const QPointer<DesignerWidget> self(this);
    const auto road = std::ranges::find(roads, command, &Road::command);
    const QVariant result =
        road == std::end(roads) ? runWith(command, argument) : (this->*road->run)(prompting, argument);
    // The window may have been closed while the user was asked.
    if (self)
        announceDisplay();
    return result;
}

QVariant DesignerWidget::runWith(DesignerCommand command, const QVariant &argument)
{
    return ask(u"run"_s, {static_cast<int>(command), argument});
}

QVariant DesignerWidget::insertTable(DesignerPrompting, const QVariant &argument)
{
    const QString markup = insertedTableMarkup(tableFrom(argument));
    return markup.isEmpty() ? QVariant() : runWith(DesignerCommand::InsertTable, m_text.fragmentForEngine(markup));
}

QVariant DesignerWidget::copy(DesignerPrompting, const QVariant &)
{
    copyToClipboard(m_text, runWith(DesignerCommand::Copy, {}).toString());
    return {};
}

QVariant DesignerWidget::cut(DesignerPrompting, const QVariant &)
{
    copyToClipboard(m_text, runWith(DesignerCommand::Cut, {}).toString());
    return {};
}

QVariant DesignerWidget::paste(DesignerPrompting, const QVariant &)
{
    const ClipboardMarkup content = clipboardMarkup(m_text);
    // Comments from other programs are dropped, so they need no marks.
    const QString markup = content.isForeign ? content.markup : m_text.fragmentForEngine(content.markup);
    ask(u"insert"_s, {markup, content.isForeign});
    return {};
}

/// The report's page may have been replaced, and a page may only request the commands that have keys.
void DesignerWidget::runFromPage(const QVariantMap &report)
{
    static constexpr DesignerCommand commandsOfKeys[] = {DesignerCommand::Copy, DesignerCommand::Cut,
                                                         DesignerCommand::Paste};
    const DesignerCommand command{report.value(u"command"_s).toInt()};
    if (DesignerStamp::fromPage(report).isOf(m_text.markPrefix())
        && std::ranges::find(commandsOfKeys, command) != std::end(commandsOfKeys))
        execCommand(command, DesignerPrompting::Default, {});
}

/// The argument if there is one, else the user's answer if prompting is allowed.
template<typename Asking>
static std::optional<QString> argumentOr(const QVariant &argument, DesignerPrompting prompting, Asking asking)
{
    if (argument.isValid() && prompting != DesignerPrompting::PromptUser)
        return argument.toString();
    return prompting == DesignerPrompting::DontPromptUser ? std::nullopt : asking();
}

QVariant DesignerWidget::askPicture(DesignerPrompting prompting, const QVariant &argument)
{
    const QPointer<DesignerWidget> self(this);
    const auto address = argumentOr(argument, prompting, [this] { return m_questions.picture(m_baseFile); });
    return self && address ? runWith(DesignerCommand::Image, *address) : QVariant();
}

QVariant DesignerWidget::askLink(DesignerPrompting prompting, const QVariant &argument)
{
    const QPointer<DesignerWidget> self(this);
    const QString current = ask(u"link"_s).toString();
    const auto address = argumentOr(argument, prompting, [&] { return m_questions.link(current); });
    return self && address ? runWith(DesignerCommand::Hyperlink, *address) : QVariant();
}

QVariant DesignerWidget::find(DesignerPrompting prompting, const QVariant &argument)
{
    const QPointer<DesignerWidget> self(this);
    const auto text = argumentOr(argument, prompting, [this] { return m_questions.searchText(); });
    if (!self || !text)
        return {};
    const QVariant found = runWith(DesignerCommand::FindText, *text);
    if (self && !found.toBool() && prompting != DesignerPrompting::DontPromptUser)
        m_questions.tellNotFound(*text);
    return found;
}

QVariant DesignerWidget::chooseFont(DesignerPrompting prompting, const QVariant &)
{
    if (prompting == DesignerPrompting::DontPromptUser)
        return {};
    const QPointer<DesignerWidget> self(this);
    const auto font = m_questions.font(fontChoice(ask(u"font"_s).toMap()));
    return self && font ? runWith(DesignerCommand::Font, fontMap(*font)) : QVariant();
}

} // namespace zephira
