// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/formopener.h"

#include <QPointer>
#include <QWidget>

#include <optional>
#include <vector>

namespace zephira {

struct AppContext;
class FormCatalogue;

/// Opens the forms of a catalogue. A form that is already open is brought to the front instead of being made twice.
/// Nothing can be opened until setContext() was called.
class ModalFormOpener final : public FormOpener
{
public:
    /// Forms are owned by `owner` unless another modal form is open. The catalogue must outlive the opener.
    ModalFormOpener(const FormCatalogue &catalogue, QWidget *owner);

    /// The context must outlive the opener. It refers to the opener itself, so it can only be set later.
    void setContext(const AppContext &context) { m_context = &context; }

    bool isAvailable(const QString &form) const override;
    using FormOpener::openModal;
    /// While a modal form is open, it owns the new one.
    void openModal(const QString &form, QWidget *owner) override;
    void openModalOnPage(const QString &form, int page) override;
    void openModeless(const QString &form) override;

    /// Like openModal(), on top of a second form that is made but not shown. The next openModal() shows that one.
    void openModalOver(const QString &form, const QString &hiddenForm);

    /// The open form of that name, or nullptr; a modeless form counts as open while it is hidden.
    QWidget *openForm(const QString &form) const;
    /// Closes every open form, the newest first.
    void closeAll();

private:
    QWidget *make(const QString &form, QWidget *owner);
    QWidget *modalOwner(QWidget *wanted) const;
    void open(const QString &form, QWidget *owner, std::optional<int> page);
    void run(const QString &form, QWidget *owner, std::optional<int> page = {});

    const FormCatalogue &m_catalogue;
    QPointer<QWidget> m_owner;
    const AppContext *m_context = nullptr;
    std::vector<QPointer<QWidget>> m_open;
    /// Made by openModalOver() and waiting to be shown.
    QPointer<QWidget> m_waiting;
};

} // namespace zephira
