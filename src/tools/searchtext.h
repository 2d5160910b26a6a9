// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace zephira {

/// A text that is searched but never shown, so that a page of many megabytes needn't be laid out.
class SearchText final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit SearchText(QWidget *parent = nullptr) : QWidget(parent) { hide(); }

    QString text() const { return m_text; }
    void setText(const QString &text) { m_text = text; }

private:
    QString m_text;
};

} // namespace zephira
