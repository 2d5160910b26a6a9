// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/fileassociations.h"

#include "core/filetypestore.h"
#include "files/iniconfiguration.h"
#include "settings/filetypesetup.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView edit = u"Edit with Zephira";

constexpr CategoryType html[] = {
    {u"htm", u"HTML Document", edit, u"htm", u"HTML Document", u"htmico", u"htmexe", u"htmact"},
    {u"html", u"HTML Document", edit, u"html", u"HTML Document", u"htmlico", u"htmlexe", u"htmlact"},
};
constexpr CategoryType text[] = {
    {u"txt", u"Text Document", u"Open", u"txt", u"Text Document", u"txtico", u"txtexe", u"txtact"},
};
constexpr CategoryType basic[] = {
    {u"bas", u"Basic Document", u"Open", u"bas", u"Basic Document", u"basico", u"basexe", u"basact"},
    {u"frm", u"Basic Document", u"Open", u"frm", u"Basic Document", u"frmico", u"frmexe", u"frmact"},
    {u"vbp", u"Basic Document", u"Open", u"vbp", u"Basic Document", u"vbpico", u"vbpexe", u"vbpact"},
};
constexpr CategoryType cgi[] = {
    {u"pl", u"CGI Document", u"Open", u"pl", u"CGI Document", u"plico", u"plexe", u"plact"},
    {u"cgi", u"CGI Document", u"Open", u"cgi", u"CGI Document", u"cgiico", u"cgiexe", u"cgiact"},
};
constexpr CategoryType xml[] = {
    {u"xml", u"XML Document", u"Edit With Zephira.", u"xml", u"XML Document", u"xmlico", u"xmlexe", u"xmlact"},
};
constexpr CategoryType pascal[] = {
    {u"pas", u"Pascal Files", u"Open", u"pas", u"Pascal Files", u"pasico", u"pasexe", u"pasact"},
};
// What was saved for "cpp" goes to "c", so that "cpp" stays with this program.
constexpr CategoryType cAndCpp[] = {
    {u"c", u"C Document", u"open", u"c", u"C/C++ Document", u"cico", u"cexe", u"cact"},
    {u"cpp", u"C++ Document", u"Open", u"c", u"C/C++ Document", u"cppico", u"cppexe", u"cppact"},
    {u"h", u"Header Document", u"Open", u"h", u"C/C++ Document", u"hico", u"hexe", u"hact"},
};
// The action of "js" is saved as "jsact" and looked for as "jact"; "java" isn't given back.
constexpr CategoryType java[] = {
    {u"js", u"Java Script Document", u"Open", u"js", u"Java Script Document", u"jsico", u"jsexe", u"jact"},
    {u"java", u"Java App Document", u"Open", u"", u"", u"", u"", u""},
};

constexpr std::array<FileCategory, fileCategoryCount> categories = {{
    {u"HTML Files", html},
    {u"Text Files", text},
    {u"Basic Files", basic},
    {u"CGI Files", cgi},
    {u"XML Files", xml},
    {u"Pascal Files", pascal},
    {u"C/C++ Files", cAndCpp},
    {u"Java / Script Files", java},
}};

/// The section of reg.ini that tells which categories are bound.
const QString boundSection = u"regdata"_s;

QString regIni(const ProgramPlace &program)
{
    return program.folder + QDir::separator() + u"reg.ini"_s;
}

/// Values of reg.ini; "" for what is missing, and for all if there is no such file.
Result<QStringList> readRegIni(const QString &section, const QStringList &keys, const ProgramPlace &program)
{
    Result<QStringList> values = readIniValues(section, keys, regIni(program));
    if (!values && values.error().code == Error::Code::NotFound)
        return QStringList(keys.size());
    return values;
}

Result<QStringList> readBound(const ProgramPlace &program)
{
    QStringList keys;
    for (const FileCategory &category : categories)
        keys.append(categoryKey(category));
    return readRegIni(boundSection, keys, program);
}

using Entries = std::vector<ProfileEntry>;

Entries boundEntries(const QStringList &values)
{
    Entries entries;
    for (std::size_t i = 0; i < categories.size(); ++i)
        entries.push_back({boundSection, categoryKey(categories[i]), values[static_cast<qsizetype>(i)]});
    return entries;
}

Result<void> bind(const FileCategory &category, FileTypeStore &store, const ProgramPlace &program, Entries &backup)
{
    for (const CategoryType &type : category.types) {
        const Result<void> created = CreateFileType(store,
                                                    {.extension = type.extension.toString(),
                                                     .description = type.description.toString(),
                                                     .icon = program.icon(),
                                                     .action = type.action.toString(),
                                                     .command = program.command(),
                                                     .shellNew = false,
                                                     .quickView = true},
                                                    &backup);
        if (!created)
            return created;
    }
    // Pages go on being opened by the browser, and edited by this program.
    if (category.types.data() == html)
        store.setValue(u"htmlfile"_s, u"shell"_s, {}, u"opennew"_s);
    return {};
}

Result<void> giveBack(const FileCategory &category, FileTypeStore &store, const ProgramPlace &program)
{
    for (const CategoryType &type : category.types) {
        if (type.restoredExtension.isEmpty())
            continue;
        const Result<QStringList> saved =
            readRegIni(savedHandlers.toString(),
                       {type.savedIcon.toString(), type.savedCommand.toString(), type.savedAction.toString()}, program);
        if (!saved)
            return saved.error();
        const Result<void> created = CreateFileType(store,
                                                    {.extension = type.restoredExtension.toString(),
                                                     .description = type.restoredDescription.toString(),
                                                     .icon = saved.value()[0],
                                                     .action = saved.value()[2],
                                                     .command = saved.value()[1],
                                                     .shellNew = false,
                                                     .quickView = true});
        if (!created)
            return created;
    }
    return {};
}

} // namespace

const std::array<FileCategory, fileCategoryCount> &fileCategories()
{
    return categories;
}

QString categoryKey(const FileCategory &category)
{
    return category.caption.toString().replace(u' ', u'_');
}

QString ProgramPlace::icon() const
{
    return folder + QDir::separator() + u"zephira.ico"_s;
}

QString ProgramPlace::command() const
{
    return executable + u" %1"_s;
}

Result<CategoryFlags> boundCategories(const ProgramPlace &program)
{
    const Result<QStringList> values = readBound(program);
    if (!values)
        return values.error();
    CategoryFlags flags;
    std::ranges::transform(values.value(), flags.begin(),
                           [](const QString &value) { return value.trimmed().toDouble() == 1; });
    return flags;
}

Result<void> applyCategories(const CategoryFlags &ticked, const CategoryFlags &bound, const CategoryFlags &toRestore,
                             FileTypeStore &store, const ProgramPlace &program)
{
    if (Result<void> current = store.refresh(); !current)
        return current;
    const Result<QStringList> before = readBound(program);
    if (!before)
        return before.error();

    Entries entries;
    QStringList now;
    for (std::size_t i = 0; i < categories.size(); ++i) {
        Result<void> done;
        if (ticked[i] && !bound[i])
            done = bind(categories[i], store, program, entries);
        if (done && toRestore[i])
            done = giveBack(categories[i], store, program);
        if (!done)
            return done;
        now.append(ticked[i] ? u"1"_s : u"0"_s);
    }
    const Entries flags = boundEntries(now);
    entries.insert(entries.end(), flags.begin(), flags.end());

    // What was there before is on the disk before anything replaces it. If the store fails afterwards, only the flags
    // must go back: what was saved is what the store still holds.
    if (Result<void> saved = writeIniValues(entries, regIni(program)); !saved)
        return saved;
    Result<void> kept = store.commit();
    if (!kept) {
        // The store's error is the one to tell; a flag too many does no harm, because giving back writes what was saved.
        const Result<void> undone = writeIniValues(boundEntries(before.value()), regIni(program));
        Q_UNUSED(undone)
    }
    return kept;
}

Result<void> makeCustomType(const CustomType &type, FileTypeStore &store, const ProgramPlace &program)
{
    if (Result<void> current = store.refresh(); !current)
        return current;
    const QString typeKey = type.extension + u"file"_s;
    const QString kept = store.readValue(typeKey, u"Shell"_s, {});
    Result<void> created = CreateFileType(store,
                                          {.extension = type.extension,
                                           .description = type.description,
                                           .icon = type.icon,
                                           .action = type.action,
                                           .command = program.command(),
                                           .shellNew = true,
                                           .quickView = false});
    if (!created)
        return created;
    // An action without a key of its own would open nothing.
    if (type.action.isEmpty() || type.action.contains(u'\\'))
        return Error{Error::Code::Refused, u"\"%1\" can't be the name of an action."_s.arg(type.action)};
    if (!type.isDefault)
        store.setValue(typeKey, u"shell"_s, {}, kept);
    return store.commit();
}

} // namespace zephira
