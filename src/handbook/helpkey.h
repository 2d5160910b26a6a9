// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace zephira {

struct AppContext;

/// F1, in whichever window of the program: it opens the handbook at the page about what has the focus. A window keeps
/// the key if one of its own commands has it; only the menu entry of the handbook gives way, because it opens the
/// contents.
class HelpKey final : public QObject
{
    Q_OBJECT

public:
    /// Watches the application's keys until it is destroyed. The context must outlive it.
    explicit HelpKey(const AppContext &context, QObject *parent = nullptr);
    ~HelpKey() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const AppContext &m_context;
};

/// The name of the page about a control: that of the part of its window, of the window, or of the window's owner.
QString helpPageOf(const QWidget &control);

} // namespace zephira
