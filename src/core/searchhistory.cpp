// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/searchhistory.h"

#include "core/usersettings.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace zephira {

namespace {

UserSetting settingOf(SearchHistory::Kind kind)
{
    return kind == SearchHistory::Kind::Searches ? UserSetting::SearchHistory : UserSetting::ReplacementHistory;
}

} // namespace

QStringList SearchHistory::words(Kind kind) const
{
    const QJsonArray kept = QJsonDocument::fromJson(m_settings.GetSetting(settingOf(kind)).toUtf8()).array();
    QStringList words;
    for (const QJsonValue &word : kept) {
        if (words.size() < longest && !word.toString().isEmpty())
            words.append(word.toString());
    }
    return words;
}

void SearchHistory::add(Kind kind, const QString &text)
{
    if (text.isEmpty())
        return;
    QStringList kept = words(kind);
    if (!kept.isEmpty() && kept.front() == text)
        return;
    kept.removeOne(text);
    kept.prepend(text);
    const QStringList shortened = kept.first(std::min(kept.size(), longest));
    const QByteArray json = QJsonDocument(QJsonArray::fromStringList(shortened)).toJson(QJsonDocument::Compact);
    m_settings.SaveSetting(settingOf(kind), QString::fromUtf8(json));
}

} // namespace zephira
