// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/leftcopies.h"

#include <QFrame>

class QGridLayout;

namespace zephira {

/// Tells of texts that were not saved when the program ended, a line each, and stays until each is answered. It never
/// takes the keyboard by itself.
class RecoveryBar final : public QFrame
{
    Q_OBJECT

public:
    /// Lines that stand at a time; the others follow as these are answered.
    static constexpr int lines = 4;

    explicit RecoveryBar(QWidget *parent = nullptr);

    /// The copies to ask about; without one the bar is hidden.
    void setCopies(const QList<LeftCopy> &copies);
    const QList<LeftCopy> &copies() const { return m_copies; }
    /// The copy was answered: its line goes.
    void answered(const LeftCopy &copy);

Q_SIGNALS:
    /// The copy is to be shown; its line stays.
    void showWanted(const zephira::LeftCopy &copy);
    /// The copy is to stay in its folder, and not be asked about again.
    void keepWanted(const zephira::LeftCopy &copy);
    void deleteWanted(const zephira::LeftCopy &copy);

private:
    void fill();

    QList<LeftCopy> m_copies;
    QGridLayout *m_layout;
};

} // namespace zephira
