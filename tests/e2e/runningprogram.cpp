// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/runningprogram.h"

#include <QDebug>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int patience = 20000;
constexpr int step = 50;

constexpr int keyDelay = 40;

QByteArray outputOf(const QString &command, const QStringList &arguments)
{
    QProcess tool;
    tool.start(command, arguments);
    tool.waitForFinished(patience);
    return tool.readAllStandardOutput().trimmed();
}

QByteArray xdotool(const QStringList &arguments)
{
    return outputOf(u"xdotool"_s, arguments);
}

template<typename Condition>
bool waitFor(Condition condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > patience)
            return false;
        QTest::qWait(step);
    }
    return true;
}

/// What the system tells of the processor time of each thread, and whether each sleeps.
struct ThreadTimes {
    QByteArray times;
    bool asleep = true;
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

ThreadTimes threadTimes(qint64 pid)
{
    ThreadTimes all;
    const QDir tasks(u"/proc/%1/task"_s.arg(pid));
    const QStringList names = tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        all.times += contentOf(tasks.filePath(name + u"/schedstat"_s));
        // The state is the letter behind the name in brackets.
        const QByteArray state = contentOf(tasks.filePath(name + u"/stat"_s));
        all.asleep = all.asleep && state.mid(state.lastIndexOf(')') + 2, 1) == "S";
    }
    return all;
}

} // namespace

RunningProgram::RunningProgram(const ProgramFolder &folder, const QStringList &arguments, const QStringList &wrapper)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, folder.home());
    environment.insert(u"XDG_CONFIG_HOME"_s, folder.home() + u"/.config"_s);
    environment.insert(u"XDG_DATA_HOME"_s, folder.home() + u"/.local/share"_s);
    environment.insert(u"XDG_CACHE_HOME"_s, folder.home() + u"/.cache"_s);
    environment.insert(u"PATH"_s, folder.tools() + u':' + environment.value(u"PATH"_s));
    // No test may reach a printer of the machine.
    environment.insert(u"CUPS_SERVER"_s, folder.home() + u"/no-printers"_s);
    m_process.setProcessEnvironment(environment);
    QStringList command = wrapper + QStringList(folder.executable()) + arguments;
    const QString first = command.takeFirst();
    m_process.start(first, command);
    QVERIFY2(m_process.waitForStarted(patience), qPrintable(m_process.errorString()));
}

RunningProgram::~RunningProgram()
{
    kill();
}

QStringList RunningProgram::boundByPermissions()
{
    if (geteuid() != 0)
        return {};
    return {u"setpriv"_s, u"--bounding-set=-dac_override,-dac_read_search"_s};
}

QStringList RunningProgram::withoutSizeSignal()
{
    return {u"env"_s, u"--ignore-signal=XFSZ"_s};
}

QStringList RunningProgram::windows() const
{
    QStringList titles;
    const QByteArray ids =
        xdotool({u"search"_s, u"--all"_s, u"--onlyvisible"_s, u"--pid"_s, QString::number(pid()), u"--name"_s, u"."_s});
    const QList<QByteArray> all = ids.split('\n');
    for (const QByteArray &id : all) {
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
        // A state must hold for a while; otherwise a window that opens late would be missed.
        steady = seen == wanted ? steady + 1 : 0;
        QTest::qWait(step);
    }
    return seen;
}

bool RunningProgram::waitForWindow(const QString &title) const
{
    return waitFor([&] { return !windowId(title).isEmpty(); });
}

bool RunningProgram::waitUntilGone(const QString &title) const
{
    return waitFor([&] { return windowId(title).isEmpty(); });
}

QString RunningProgram::windowId(const QString &title) const
{
    const QByteArray ids =
        xdotool({u"search"_s, u"--all"_s, u"--onlyvisible"_s, u"--pid"_s, QString::number(pid()), u"--name"_s, u"."_s});
    const QList<QByteArray> all = ids.split('\n');
    for (const QByteArray &id : all) {
        const QString window = QString::fromLatin1(id);
        if (!id.isEmpty() && QString::fromUtf8(xdotool({u"getwindowname"_s, window})) == title)
            return window;
    }
    return {};
}

void RunningProgram::key(const QString &title, const QString &keys) const
{
    const QString id = windowId(title);
    QVERIFY2(!id.isEmpty(), qPrintable(title + u" doesn't show, but "_s + windows().join(u", "_s)));
    xdotool(QStringList{u"windowactivate"_s, u"--sync"_s, id, u"key"_s, u"--clearmodifiers"_s, u"--delay"_s,
                        QString::number(keyDelay)}
            + keys.split(u' '));
}

std::unique_ptr<QProcess> RunningProgram::keyInBackground(const QString &title, const QString &keys, int times) const
{
    QStringList command{u"key"_s, u"--window"_s, windowId(title), u"--delay"_s, u"1"_s};
    for (int i = 0; i < times; ++i)
        command += keys.split(u' ');
    auto tool = std::make_unique<QProcess>();
    tool->start(u"xdotool"_s, command);
    return tool;
}

void RunningProgram::type(const QString &title, const QString &text) const
{
    const QString id = windowId(title);
    QVERIFY2(!id.isEmpty(), qPrintable(title + u" doesn't show, but "_s + windows().join(u", "_s)));
    QStringList command{u"windowactivate"_s, u"--sync"_s, id};
    const QStringList lines = text.split(u'\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (i > 0)
            command += {u"key"_s, u"Return"_s}; // A line feed would be typed as another key.
        if (!lines[i].isEmpty())
            command += {u"type"_s, u"--delay"_s, u"5"_s, u"--args"_s, u"1"_s, u"--"_s, lines[i]};
    }
    xdotool(command);
}

void RunningProgram::answer(const QString &dialog, const QString &keys) const
{
    waitForWindow(dialog);
    key(dialog, keys);
}

void RunningProgram::fillIn(const QString &dialog, const QString &text) const
{
    waitForWindow(dialog);
    type(dialog, text + u'\n');
}

void RunningProgram::close(const QString &title) const
{
    const QString id = windowId(title);
    QVERIFY2(!id.isEmpty(), qPrintable(title + u" doesn't show, but "_s + windows().join(u", "_s)));
    // The window manager asks the window to close, as when its button is clicked.
    outputOf(u"wmctrl"_s, {u"-i"_s, u"-c"_s, id});
}

void RunningProgram::cutFromDisplay(const QString &title) const
{
    xdotool({u"windowkill"_s, windowId(title)});
}

QString RunningProgram::middleColour(const QString &title) const
{
    const QByteArray colour =
        outputOf(u"import"_s,
                 {u"-silent"_s, u"-window"_s, windowId(title), u"-gravity"_s, u"center"_s, u"-crop"_s, u"1x1+0+0"_s,
                  u"-depth"_s, u"8"_s, u"-format"_s, u"%[hex:u.p{0,0}]"_s, u"info:"_s});
    return u'#' + QString::fromLatin1(colour.first(qMin(6, colour.size())));
}

bool RunningProgram::waitForMiddleColour(const QString &title, const QString &colour) const
{
    return waitFor([&] { return middleColour(title) == colour; });
}

bool RunningProgram::waitUntilIdle() const
{
    ThreadTimes before;
    return waitFor([&] {
        QTest::qWait(2 * step);
        const ThreadTimes now = threadTimes(pid());
        const bool idle = now.asleep && now.times == before.times;
        before = now;
        return idle;
    });
}

void RunningProgram::limitFileSize(qint64 bytes) const
{
    QCOMPARE(QProcess::execute(u"prlimit"_s, {u"--pid"_s, QString::number(pid()), u"--fsize=%1:"_s.arg(bytes)}), 0);
}

int RunningProgram::waitForEnd()
{
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(patience)) {
        qWarning() << "still running, with the windows" << windows();
        return -1;
    }
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

void RunningProgram::kill()
{
    m_process.kill();
    m_process.waitForFinished(patience);
}

} // namespace zephira
