// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/filetypesetup.h"

#include "core/filetypestore.h"
#include "files/privateprofile.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr qsizetype longestExtension = 100;

bool isExtension(const QString &text)
{
    const auto isForbidden = [](QChar c) { return c.category() == QChar::Other_Control || u"/\\*?[]"_s.contains(c); };
    return !text.isEmpty() && text.size() <= longestExtension && !text.startsWith(u'.') && text.trimmed() == text
        && text.isValidUtf16() && std::ranges::none_of(text, isForbidden);
}

} // namespace

QString actionKey(const QString &action)
{
    return QString(action).replace(u' ', u'_');
}

Result<void> CreateFileType(FileTypeStore &store, const FileTypeSetup &type, std::vector<ProfileEntry> *backup)
{
    if (!isExtension(type.extension)) {
        return Error{
            Error::Code::Refused,
            u"\"%1\" can't be an extension. Please enter one without a period, such as htm."_s.arg(type.extension)};
    }
    const QString extensionKey = u'.' + type.extension;
    const QString typeKey = type.extension + u"file"_s;
    const QString action = actionKey(type.action);

    if (backup) {
        const auto save = [&](const QString &what, const QString &value) {
            backup->push_back({savedHandlers.toString(), type.extension + what, value});
        };
        save(u"exe"_s, store.readValue(typeKey + u"\\Shell\\"_s + action, u"command"_s, {}));
        save(u"ico"_s, store.readValue(typeKey, u"DefaultIcon"_s, {}));
        save(u"act"_s, store.readValue(typeKey, u"shell"_s, {}));
    }

    const QString shellKey = typeKey + u"\\shell"_s;
    const QString openKey = shellKey + u'\\' + action;
    store.createKey(extensionKey);
    store.createKey(typeKey);
    store.createKey(typeKey, u"DefaultIcon"_s);
    store.createKey(shellKey);
    store.createKey(openKey);
    store.createKey(openKey, u"command"_s);

    store.setValue(extensionKey, {}, {}, typeKey);
    store.setValue(typeKey, {}, {}, type.description);
    store.setValue(typeKey, u"DefaultIcon"_s, {}, type.icon);
    store.setValue(shellKey, {}, {}, action);
    store.setValue(openKey, {}, {}, u'&' + type.action);
    store.setValue(openKey, u"command"_s, {}, type.command);

    if (type.shellNew == true)
        store.setValue(extensionKey, u"ShellNew"_s, u"NullFile"_s, {});
    else if (type.shellNew == false)
        store.deleteKey(extensionKey + u"\\ShellNew"_s);

    if (type.quickView == true)
        store.setValue(typeKey, u"QuickView"_s, {}, u"*"_s);
    else if (type.quickView == false)
        store.deleteKey(typeKey + u"\\QuickView"_s);
    return {};
}

} // namespace zephira
