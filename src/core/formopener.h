// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

namespace zephira {

/// Shows forms by name. The only way for one folder to show a form of another.
class FormOpener
{
public:
    virtual ~FormOpener() = default;
    /// Whether a form of that name can be opened yet.
    virtual bool isAvailable(const QString &form) const = 0;
    /// Makes the form, shows it modally over its owner, or the main window where none is given, and destroys it. Does
    /// nothing when it isn't available.
    virtual void openModal(const QString &form, QWidget *owner) = 0;
    void openModal(const QString &form) { openModal(form, nullptr); }
    /// Shows the form beside the main window; one that is showing already is raised.
    virtual void openModeless(const QString &form) = 0;
};

} // namespace zephira
