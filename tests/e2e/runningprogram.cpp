// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/runningprogram.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int patience = 20000;
constexpr int step = 50;

QByteArray xdotool(const QStringList &arguments)
{
    QProcess tool;
    tool.start(u"xdotool"_s, arguments);
    tool.waitForFinished(patience);
    return tool.readAllStandardOutput().trimmed();
}

} // namespace

RunningProgram::RunningProgram(const ProgramFolder &folder, const QStringList &arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, folder.home());
    environment.insert(u"XDG_CONFIG_HOME"_s, folder.home() + u"/.config"_s);
    environment.insert(u"XDG_DATA_HOME"_s, folder.home() + u"/.local/share"_s);
    environment.insert(u"XDG_CACHE_HOME"_s, folder.home() + u"/.cache"_s);
    m_process.setProcessEnvironment(environment);
    m_process.start(folder.executable(), arguments);
    QVERIFY2(m_process.waitForStarted(patience), qPrintable(m_process.errorString()));
}

RunningProgram::~RunningProgram()
{
    m_process.kill();
    m_process.waitForFinished(patience);
}

QStringList RunningProgram::windows() const
{
    QStringList titles;
    const QByteArray ids = xdotool({u"search"_s, u"--onlyvisible"_s, u"--pid"_s, QString::number(pid()), u"--name"_s, u"."_s});
    for (const QByteArray &id : ids.split('\n')) {
        if (!id.isEmpty())
            titles.append(QString::fromUtf8(xdotool({u"getwindowname"_s, QString::fromLatin1(id)})));
    }
    titles.removeDuplicates();
    return titles;
}

QStringList RunningProgram::waitForWindows(const QStringList &titles) const
{
    QStringList wanted = titles;
    wanted.sort();
    QElapsedTimer timer;
    timer.start();
    QStringList seen;
    int steady = 0;
    while (timer.elapsed() < patience && steady < 6) {
        seen = windows();
        seen.sort();
        // A state counts once it has held for a while: what comes late would otherwise be missed.
        steady = seen == wanted ? steady + 1 : 0;
        QTest::qWait(step);
    }
    return seen;
}

QString RunningProgram::windowId(const QString &title) const
{
    const QByteArray ids = xdotool({u"search"_s, u"--onlyvisible"_s, u"--pid"_s, QString::number(pid()), u"--name"_s, u"."_s});
    for (const QByteArray &id : ids.split('\n')) {
        const QString window = QString::fromLatin1(id);
        if (!id.isEmpty() && QString::fromUtf8(xdotool({u"getwindowname"_s, window})) == title)
            return window;
    }
    return {};
}

void RunningProgram::key(const QString &title, const QString &keys) const
{
    const QString id = windowId(title);
    QVERIFY2(!id.isEmpty(), qPrintable(title));
    xdotool({u"windowactivate"_s, u"--sync"_s, id, u"key"_s, u"--clearmodifiers"_s, keys});
}

void RunningProgram::type(const QString &title, const QString &text) const
{
    const QString id = windowId(title);
    QVERIFY2(!id.isEmpty(), qPrintable(title));
    xdotool({u"windowactivate"_s, u"--sync"_s, id, u"type"_s, u"--delay"_s, u"5"_s, text});
}

void RunningProgram::close(const QString &title) const
{
    key(title, u"alt+F4"_s); // The window manager turns it into a close request.
}

int RunningProgram::waitForEnd()
{
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(patience))
        return -1;
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

} // namespace zephira
