// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/designertools.h"

#include "core/errorstyles.h"
#include "core/prompts.h"
#include "views/designerbarstate.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int smallestSize = 1;
constexpr int largestSize = 7;

} // namespace

QString markupColour(quint32 number)
{
    const QString digits = u"%1"_s.arg(number & 0xffffff, 6, 16, QLatin1Char('0')).toUpper();
    return u'#' + digits.last(2) + digits.mid(2, 2) + digits.first(2);
}

bool DesignerTools::documentComplete()
{
    if (m_designerReady)
        return false;
    endingQuietly([&] {
        const QVariant names =
            m_context.designer.execCommand(DesignerCommand::GetBlockFormatNames, DesignerPrompting::DontPromptUser);
        m_blockFormats = names.toStringList().mid(0, mostBlockFormats);
    });
    m_designerReady = true;
    return true;
}

void DesignerTools::run(DesignerCommand command, const QVariant &argument, DesignerPrompting prompting)
{
    endingQuietly([&] { m_context.designer.execCommand(command, prompting, argument); });
}

void DesignerTools::runIfReady(DesignerCommand command, const QVariant &argument)
{
    if (m_designerReady && m_context.designer.queryStatus(command) >= DesignerStatus::Enabled)
        run(command, argument);
}

void DesignerTools::click(DesignerCommand command)
{
    if (command == DesignerCommand::SetForeColor)
        chooseColour();
    else
        run(command);
}

void DesignerTools::chooseColour()
{
    const std::optional<quint32> chosen = m_context.prompts.colour(m_colour);
    if (!chosen)
        return;
    m_colour = *chosen;
    run(DesignerCommand::SetForeColor, markupColour(m_colour));
}

void DesignerTools::chooseFont(const QString &name)
{
    runIfReady(DesignerCommand::SetFontName, name);
}

void DesignerTools::chooseFontSize(int size)
{
    runIfReady(DesignerCommand::SetFontSize, size);
}

std::optional<QString> DesignerTools::enterFontSize(const QString &text)
{
    bool isNumber = false;
    const double size = text.toDouble(&isNumber);
    // The text may be "nan", for which every comparison is false.
    const bool isSize = isNumber && size >= smallestSize && size <= largestSize;
    if (!isSize)
        return currentFontSize(m_context.designer);
    runIfReady(DesignerCommand::SetFontSize, text);
    return std::nullopt;
}

} // namespace zephira
