// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QList>
#include <QString>

#include <functional>

class QGridLayout;

namespace zephira {

/// A line of a NoticeBar: its message, and the buttons that answer it.
struct NoticeLine {
    struct Button {
        QString name;
        QString caption;
        QString tip;
        QString accessibleName;
        std::function<void()> pressed;
    };

    QString name;
    QString text;
    QString tip;
    QList<Button> buttons;
};

/// Shows messages next to what the user is working on until they are answered. It gets the keyboard focus only through
/// the Tab key, never by itself or by a click.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    NoticeBar(const QString &name, const QString &accessibleName, QWidget *parent);

    /// Replaces the lines; without any, the bar is hidden.
    void setLines(const QList<NoticeLine> &lines);

private:
    void addLine(int number, const NoticeLine &line);

    QGridLayout *m_layout;
};

} // namespace zephira
