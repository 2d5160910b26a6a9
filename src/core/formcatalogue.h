// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <map>

class QWidget;

namespace zephira {

/// All forms of the program by name. Each folder adds its forms in registerForms(); the program, the form tests and the
/// screenshots create forms from this list.
class FormCatalogue
{
public:
    using Factory = std::function<QWidget *(const AppContext &, QWidget *owner)>;

    /// Adds a form. Its name is its objectName; adding a name twice is a programming error.
    void add(const QString &name, Factory factory);
    /// The usual case: a form whose constructor takes the context and the owner.
    template<typename Form>
    void add(const QString &name)
    {
        add(name, [](const AppContext &context, QWidget *owner) -> QWidget * { return new Form(context, owner); });
    }

    /// Whether the form can be created.
    bool contains(const QString &name) const;
    /// All forms in alphabetical order.
    QStringList names() const;
    /// Creates a form with `owner` as its parent. Returns nullptr for a name that isn't in the catalogue.
    QWidget *make(const QString &name, const AppContext &context, QWidget *owner) const;

private:
    std::map<QString, Factory> m_factories;
};

} // namespace zephira
