// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/formopener.h"

#include <QPointer>
#include <QWidget>

#include <vector>

namespace zephira {

struct AppContext;
class FormCatalogue;

/// Opens the forms of a catalogue. A form that is open already is brought to the front instead of being made twice.
/// Nothing can be opened until a context is given.
class ModalFormOpener final : public FormOpener
{
public:
    /// Forms without another modal form above them belong to `owner`. The catalogue outlives the opener.
    ModalFormOpener(const FormCatalogue &catalogue, QWidget *owner);

    /// The context must outlive the opener; it holds a reference to the opener itself, and so comes after it.
    void setContext(const AppContext &context) { m_context = &context; }

    bool isAvailable(const QString &form) const override;
    using FormOpener::openModal;
    /// While a modal form is up, the new one belongs to that.
    void openModal(const QString &form, QWidget *owner) override;
    void openModeless(const QString &form) override;

    /// As openModal(), over a second form that is made but not shown. The next openModal() shows that one.
    void openModalOver(const QString &form, const QString &hiddenForm);

    /// The form of that name that is open, a modeless one also while it is hidden, or nullptr.
    QWidget *openForm(const QString &form) const;
    /// Closes every form that is open, the newest first.
    void closeAll();

private:
    QWidget *make(const QString &form, QWidget *owner);
    QWidget *modalOwner(QWidget *wanted) const;
    void run(const QString &form, QWidget *owner);

    const FormCatalogue &m_catalogue;
    QPointer<QWidget> m_owner;
    const AppContext *m_context = nullptr;
    std::vector<QPointer<QWidget>> m_open;
    /// Made by openModalOver() and waiting to be shown.
    QPointer<QWidget> m_waiting;
};

} // namespace zephira
