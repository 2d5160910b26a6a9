// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QEventLoop>
#include <QStringList>
#include <QTimer>
#include <QVariant>

namespace citizen {

/// A module that is the plug-in itself.
class Lonely : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.zephira.tests.Lonely")
    Q_PROPERTY(QString pluginId MEMBER m_title)
    Q_PROPERTY(QString pluginversion MEMBER m_title)
    Q_PROPERTY(QString plugindescription MEMBER m_title)
    Q_PROPERTY(QString strReturn READ text)
    Q_PROPERTY(int Pluginlang MEMBER m_language)

public:
    /// How often this object was started.
    QString text() const { return QStringLiteral("[lonely %1]").arg(m_starts); }
    Q_INVOKABLE int PluginStart()
    {
        ++m_starts;
        QEventLoop loop;
        QTimer::singleShot(20, &loop, &QEventLoop::quit);
        loop.exec();
        return 0;
    }

private:
    QString m_title = QStringLiteral("lonely");
    int m_language = 2;
    int m_starts = 0;
};

} // namespace citizen
