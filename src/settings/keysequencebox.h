// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeySequenceEdit>

namespace zephira {

/// A box that takes the keys that are pressed in it: one key with its modifiers, at once; pressing others replaces them.
/// Escape, Return and Tab without modifiers keep their meaning in a dialog.
class KeySequenceBox final : public QKeySequenceEdit
{
    Q_OBJECT

public:
    explicit KeySequenceBox(QWidget *parent = nullptr) : QKeySequenceEdit(parent) {}

    /// The keys as in QKeySequence::PortableText.
    QString keys() const { return keySequence().toString(QKeySequence::PortableText); }

Q_SIGNALS:
    /// Return was pressed.
    void confirmed();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace zephira
