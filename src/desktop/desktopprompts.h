// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/prompts.h"

#include <QPointer>
#include <QWidget>

namespace zephira {

/// Asks with the desktop's dialogs. The parent of each is the form that has the focus, or else the owner.
class DesktopPrompts final : public Prompts
{
public:
    /// Qt's own dialogs are the same on every desktop and can be driven by a test.
    enum class Dialogs { OfTheDesktop, OfQt };

    explicit DesktopPrompts(QWidget *owner, Dialogs dialogs = Dialogs::OfTheDesktop);

    /// The first button is the default one. Escape means Cancel where there is one, else No, else OK.
    Answer ask(const Question &question) override;
    std::optional<QString> input(const InputRequest &request) override;
    /// If the name to save has no dot, it gets the extension of the chosen filter. If the initial folder doesn't exist,
    /// the dialog opens in the folder where the last one was closed.
    std::optional<QString> file(const FileRequest &request) override;
    std::optional<QString> folder(const QString &title, const QString &initialFolder) override;
    std::optional<quint32> colour(quint32 initial) override;
    std::optional<FontChoice> font(const FontChoice &initial) override;

private:
    QWidget *parent() const;

    QPointer<QWidget> m_owner;
    Dialogs m_dialogs;
};

} // namespace zephira
