// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/formcatalogue.h"

namespace zephira {

void FormCatalogue::add(const QString &name, Factory factory)
{
    Q_ASSERT_X(!contains(name), "FormCatalogue", "form registered twice");
    m_factories[name] = std::move(factory);
}

bool FormCatalogue::contains(const QString &name) const
{
    return m_factories.contains(name);
}

QStringList FormCatalogue::names() const
{
    QStringList names;
    for (const auto &[name, factory] : m_factories)
        names.append(name);
    return names;
}

QWidget *FormCatalogue::make(const QString &name, const AppContext &context, QWidget *owner) const
{
    return contains(name) ? m_factories.at(name)(context, owner) : nullptr;
}

} // namespace zephira
