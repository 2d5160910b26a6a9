// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

namespace zephira {

/// Shows forms by name. Folders show each other's forms only through this interface.
class FormOpener
{
public:
    virtual ~FormOpener() = default;
    /// Whether a form of that name can be opened.
    virtual bool isAvailable(const QString &form) const = 0;
    /// Creates the form, shows it modally over `owner` (nullptr: the main window), and destroys it when it is closed.
    /// Does nothing if the form isn't available.
    virtual void openModal(const QString &form, QWidget *owner) = 0;
    void openModal(const QString &form) { openModal(form, nullptr); }
    /// The same for a form of several pages: it opens on the page of that number, its property "page", which counts from
    /// 0.
    virtual void openModalOnPage(const QString &form, int page) = 0;
    /// Shows the form as a modeless window, or raises it if it is already open.
    virtual void openModeless(const QString &form) = 0;
};

} // namespace zephira
