// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/extensionscan.h"

#include "core/errorstyles.h"
#include "core/prompts.h"
#include "plugins/extensionfolder.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Runs the step for each file until one fails; returns why it did.
QString lookThrough(const QStringList &files, const std::function<void(const QString &file)> &step)
{
    QString reason;
    for (const QString &file : files) {
        const auto failed = [&](const QString &description) {
            reason = u"The search ended at %1. %2"_s.arg(file, description);
        };
        if (!endingWith(failed, [&] { step(file); }))
            break;
    }
    return reason;
}

} // namespace

QString scanPlugins(ExtensionFolder &folder, const QStringList &files,
                    const std::function<void(const QString &caption, const QString &tag)> &add,
                    const std::function<void(const QString &text)> &describe)
{
    const ExtensionKind &kind = folder.kind();
    return lookThrough(files, [&](const QString &file) {
        const QString name = ExtensionFolder::objectName(file);
        const std::shared_ptr<LateBound> object = folder.create(name);
        add(object->text(kind.title), name);
        // The entry is there already: a plug-in without these members has it, and those behind it don't.
        const QString title = object->text(kind.title);
        const QString version = object->text(kind.version);
        describe(title + u" - "_s + version + u" - "_s + object->text(kind.description));
    });
}

QString scanWizards(ExtensionFolder &folder, const QStringList &files, Prompts &prompts,
                    const std::function<void(const QString &key, const QString &text)> &insertAtTop)
{
    return lookThrough(files, [&](const QString &file) {
        const std::shared_ptr<LateBound> object = folder.create(ExtensionFolder::objectName(file));
        const QString text = object->text(folder.kind().title);
        insertAtTop(wizardBaseName(file, prompts), text);
    });
}

QString wizardBaseName(const QString &fileName, Prompts &prompts)
{
    if (fileName == u"*.html") {
        prompts.tell(u"Insert Template"_s, {}, Question::Icon::None);
        return {};
    }
    return fileName.section(u'.', 0, 0);
}

} // namespace zephira
