// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/linkedsheets.h"

#include "core/paths.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr qsizetype mostFiles = 40;
constexpr qsizetype mostOfOne = 2 * 1024 * 1024;
constexpr qsizetype mostOfAll = 6 * 1024 * 1024;
/// More than these are of documents that were left long ago.
constexpr qsizetype mostKept = 200;

} // namespace

QString linkedPath(const QByteArray &address, const QString &folder, const QString &root)
{
    const auto end = std::ranges::find_if(address, [](char c) { return c == '?' || c == '#'; });
    const QByteArray path = address.first(end - address.begin());
    const qsizetype colon = path.indexOf(':');
    const qsizetype slash = path.indexOf('/');
    const bool hasScheme = colon >= 0 && (slash < 0 || colon < slash);
    if (path.isEmpty() || hasScheme || path.startsWith("//"))
        return {};
    const QString &base = slash == 0 ? root : folder;
    if (base.isEmpty())
        return {};
    return QDir::cleanPath(withSlash(base) + QString::fromUtf8(QByteArray::fromPercentEncoding(path)));
}

const DocumentNames *LinkedSheets::read(const QString &path, qsizetype &allowance)
{
    const FileSignature signature = m_files.signature(path);
    if (!signature.exists)
        return nullptr;
    const auto known = m_sheets.constFind(path);
    if (known != m_sheets.cend() && known->signature == signature)
        return &known->names;
    const Result<FileView> content = m_files.view(path);
    if (!content)
        return nullptr;
    const QByteArray &bytes = content.value().bytes;
    const qsizetype size = std::min({bytes.size(), mostOfOne, allowance});
    allowance -= size;
    if (m_sheets.size() >= mostKept)
        m_sheets.clear();
    return &m_sheets.insert(path, {signature, styleNames(QByteArrayView(bytes).first(size))})->names;
}

DocumentNames LinkedSheets::names(const QByteArrayList &sheets, const QString &folder, const QString &root)
{
    DocumentNames all;
    QStringList paths;
    const auto add = [&](const QByteArrayList &addresses, const QString &from) {
        for (const QByteArray &address : addresses) {
            const QString path = linkedPath(address, from, root);
            if (!path.isEmpty() && paths.size() < mostFiles && !paths.contains(path))
                paths.append(path);
        }
    };
    add(sheets, folder);
    qsizetype allowance = mostOfAll;
    for (qsizetype i = 0; i < paths.size() && allowance > 0; ++i) {
        const QString path = paths[i];
        if (const DocumentNames *found = read(path, allowance)) {
            const QByteArrayList imported = found->sheets;
            all.add(*found);
            add(imported, folderOf(path));
        }
    }
    all.sheets.clear();
    return all;
}

} // namespace zephira
