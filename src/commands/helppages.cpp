// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/helppages.h"

#include "core/errorstyles.h"
#include "core/filestore.h"
#include "core/prompts.h"
#include "core/shell.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView websiteAddress = u"https://zephira.example/";

void openOrTell(const AppContext &context, const QString &pathOrUrl)
{
    if (const Result<void> opened = context.shell.open(pathOrUrl); !opened)
        tellError(context.prompts, opened.error());
}

} // namespace

void openHelp(const AppContext &context)
{
    openHelpPage(context, u"index.html"_s);
}

void openHelpPage(const AppContext &context, const QString &file)
{
    const QString folder = context.appPath + u"/help/"_s;
    openOrTell(context, folder + (context.files.FileExists(folder + file) ? file : u"index.html"_s));
}

void openWebsite(const AppContext &context)
{
    openOrTell(context, websiteAddress.toString());
}

} // namespace zephira
