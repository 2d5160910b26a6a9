// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/formcatalogue.h"

#include <QWidget>

namespace zephira {

void FormCatalogue::add(const QString &name, Factory factory)
{
    [[maybe_unused]] const bool added = m_factories.emplace(name, std::move(factory)).second;
    Q_ASSERT_X(added, "FormCatalogue", "a form is registered twice");
}

bool FormCatalogue::contains(const QString &name) const
{
    return m_factories.contains(name);
}

QStringList FormCatalogue::names() const
{
    QStringList names;
    for (const auto &entry : m_factories)
        names.append(entry.first);
    return names;
}

QWidget *FormCatalogue::make(const QString &name, const AppContext &context, QWidget *owner) const
{
    const auto entry = m_factories.find(name);
    return entry == m_factories.end() ? nullptr : entry->second(context, owner);
}

} // namespace zephira
