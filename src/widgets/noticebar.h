// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QList>
#include <QString>

#include <functional>

class QGridLayout;

namespace zephira {

/// A line of a NoticeBar: what it tells, and the buttons that answer it.
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

/// Tells something beside what the user works on, and stays until it is answered. It takes the keyboard only from the tab
/// key, never by itself or by a click.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    NoticeBar(const QString &name, const QString &accessibleName, QWidget *parent);

    /// The lines that stand from now on; without one the bar is hidden.
    void setLines(const QList<NoticeLine> &lines);

private:
    void addLine(int number, const NoticeLine &line);

    QGridLayout *m_layout;
};

} // namespace zephira
