// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/formcatalogue.h"

namespace zephira {

void FormCatalogue::add(const QString &name, Factory factory)
{
    Q_ASSERT_X(!contains(name), "FormCatalogue", "form registered twice");
    m_factories[name] = std::move(factory);
}

void FormCatalogue::announce(const QString &name)
{
    m_factories.try_emplace(name);
}

bool FormCatalogue::contains(const QString &name) const
{
    const auto entry = m_factories.find(name);
    return entry != m_factories.end() && entry->second;
}

bool FormCatalogue::isAnnounced(const QString &name) const
{
    const auto entry = m_factories.find(name);
    return entry != m_factories.end() && !entry->second;
}

QStringList FormCatalogue::names() const
{
    QStringList names;
    for (const auto &[name, factory] : m_factories) {
        if (factory)
            names.append(name);
    }
    return names;
}

QWidget *FormCatalogue::make(const QString &name, const AppContext &context, QWidget *owner) const
{
    return contains(name) ? m_factories.at(name)(context, owner) : nullptr;
}

} // namespace zephira
