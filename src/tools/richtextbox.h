// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextEdit>

namespace zephira {

/// A rich text box that also takes the struck-out text of office programs, which is marked with an element that the text
/// engine doesn't know.
class RichTextBox final : public QTextEdit
{
    Q_OBJECT

public:
    using QTextEdit::QTextEdit;

protected:
    void insertFromMimeData(const QMimeData *source) override;
};

} // namespace zephira
