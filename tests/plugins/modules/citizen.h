// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QEventLoop>
#include <QStringList>
#include <QTimer>
#include <QVariant>

#include <stdexcept>

// A module whose objects behave well or badly, according to the name under which the module was copied: "b-throwstext"
// makes an object whose text throws. What is read is noted in the application's property "log".

namespace citizen {

inline void note(const QString &line)
{
    if (!qApp)
        return; // An object of the module's own, at the very end.
    QStringList log = qApp->property("log").toStringList();
    log.append(line);
    qApp->setProperty("log", log);
}

[[noreturn]] inline void fail()
{
    throw std::runtime_error("a bad citizen");
}

/// Has all members of plug-ins and wizards.
class Citizen : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString pluginId READ title)
    Q_PROPERTY(QString pluginversion READ version)
    Q_PROPERTY(QString plugindescription READ description)
    Q_PROPERTY(QString strReturn READ text)
    Q_PROPERTY(QVariant Pluginlang READ language)
    Q_PROPERTY(QString wizardid READ title)
    Q_PROPERTY(QVariant wizardlang READ language)

public:
    explicit Citizen(const QString &base) : m_base(base), m_kind(base.section(u'-', -1))
    {
        note(QStringLiteral("new ") + m_base);
        if (m_kind == QStringLiteral("throwsnew"))
            fail();
    }
    ~Citizen() override { note(QStringLiteral("delete ") + m_base); }

    QString title() const { return read("title", m_base); }
    QString version() const { return read("version", QStringLiteral("1.0")); }
    QString description() const { return read("description", QStringLiteral("A citizen")); }
    QString text() const { return read("text", m_kind == QStringLiteral("silent") ? QString() : u'[' + m_base + u']'); }
    QVariant language() const
    {
        read("language", {});
        if (m_kind == QStringLiteral("farlanguage"))
            return 99;
        if (m_kind == QStringLiteral("minuslanguage"))
            return -1;
        if (m_kind == QStringLiteral("wordlanguage"))
            return QStringLiteral("Perl");
        return 8;
    }

    Q_INVOKABLE int PluginStart() { return start(); }
    Q_INVOKABLE int WizardStart() { return start(); }

private:
    QString read(const char *member, const QString &value) const
    {
        note(m_base + u'.' + QLatin1StringView(member));
        if (m_kind == QStringLiteral("throws") + QLatin1StringView(member))
            fail();
        return value;
    }

    int start()
    {
        read("start", {});
        ++m_starts;
        if (m_kind == QStringLiteral("endless"))
            return 1;
        if (m_kind == QStringLiteral("works"))
            return m_starts <= 3;
        if (m_kind == QStringLiteral("two"))
            return 2;
        if (m_kind == QStringLiteral("vanishes")) {
            delete this;
            return 1;
        }
        if (m_kind == QStringLiteral("vanisheslater")) {
            deleteLater();
            return 1;
        }
        if (m_kind == QStringLiteral("throwsevent")) {
            if (m_starts == 1)
                QTimer::singleShot(0, this, [] { fail(); });
            return 1;
        }
        if (m_kind == QStringLiteral("waits")) {
            QEventLoop loop;
            QTimer::singleShot(20, &loop, &QEventLoop::quit);
            loop.exec();
        }
        return 0;
    }

    const QString m_base;
    const QString m_kind;
    int m_starts = 0;
};

/// A plug-in without a version.
class Versionless : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString pluginId READ title)
    Q_PROPERTY(QString plugindescription READ title)
    Q_PROPERTY(QString strReturn READ title)
    Q_PROPERTY(int Pluginlang READ number)

public:
    QString title() const { return QStringLiteral("versionless"); }
    int number() const { return 1; }
    Q_INVOKABLE int PluginStart() { return 0; }
};

/// A plug-in whose members are all functions.
class Functions : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE QString pluginId() { return QStringLiteral("functions"); }
    Q_INVOKABLE QString pluginversion() { return QStringLiteral("2"); }
    Q_INVOKABLE QVariant plugindescription() { return QStringLiteral("Only functions"); }
    Q_INVOKABLE void PluginStart() { note(QStringLiteral("functions.start")); }
    Q_INVOKABLE QString strReturn() { return QStringLiteral("[functions]"); }
    Q_INVOKABLE short Pluginlang() { return 3; }
};

class Module : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.zephira.tests.Citizen")

public:
    Q_INVOKABLE QObject *create(const QString &name)
    {
        const QString base = name.section(u'.', 0, 0);
        const QString kind = base.section(u'-', -1);
        if (name != base + QStringLiteral(".Main") || kind == QStringLiteral("unknown"))
            return nullptr;
        if (kind == QStringLiteral("throwscreate"))
            fail();
        if (kind == QStringLiteral("versionless"))
            return new Versionless;
        if (kind == QStringLiteral("functions"))
            return new Functions;
        if (kind == QStringLiteral("owned")) {
            auto *object = new Citizen(base);
            object->setParent(this);
            return object;
        }
        return new Citizen(base);
    }
};

} // namespace citizen
