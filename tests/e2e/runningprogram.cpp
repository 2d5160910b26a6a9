// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/runningprogram.h"

#include <QDebug>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <algorithm>
#include <optional>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int patience = 20000;
constexpr int step = 50;
/// Between two looks at something that comes to pass only once.
constexpr int shortStep = 20;

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
        QTest::qWait(shortStep);
    }
    return true;
}

struct ShownWindow {
    QString id;
    QString title;
};

/// What the tool prints, or nothing if it couldn't finish: a window that goes while it walks over all windows, be it
/// another program's, ends it with a complaint. That it found none is no complaint.
std::optional<QByteArray> completeAnswer(const QStringList &arguments)
{
    QProcess tool;
    tool.start(u"xdotool"_s, arguments);
    if (!tool.waitForFinished(patience) || !tool.readAllStandardError().isEmpty())
        return {};
    return tool.readAllStandardOutput().trimmed();
}

/// The visible windows of a process, or nothing if windows went meanwhile.
std::optional<QList<ShownWindow>> windowsNow(qint64 pid)
{
    const std::optional<QByteArray> found = completeAnswer(
        {u"search"_s, u"--all"_s, u"--onlyvisible"_s, u"--pid"_s, QString::number(pid), u"--name"_s, u"."_s});
    if (!found)
        return {};
    if (found->isEmpty())
        return QList<ShownWindow>();
    const QStringList ids = QString::fromLatin1(*found).split(u'\n');
    // One run of the tool asks for all titles, and takes no longer than for one.
    QStringList questions;
    for (const QString &id : ids)
        questions += {u"getwindowname"_s, id};
    const std::optional<QByteArray> names = completeAnswer(questions);
    if (!names)
        return {};
    const QStringList titles = QString::fromUtf8(*names).split(u'\n');
    // A title with a line end makes it unknown which line is whose.
    const bool areLines = titles.size() == ids.size();
    QList<ShownWindow> windows;
    for (qsizetype i = 0; i < ids.size(); ++i) {
        const QString title = areLines ? titles[i] : QString::fromUtf8(xdotool({u"getwindowname"_s, ids[i]}));
        windows.append({ids[i], title.trimmed()});
    }
    return windows;
}

/// The visible windows of a process.
QList<ShownWindow> shownWindows(qint64 pid)
{
    std::optional<QList<ShownWindow>> windows;
    waitFor([&] {
        windows = windowsNow(pid);
        return windows.has_value();
    });
    return windows.value_or(QList<ShownWindow>());
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
    const QList<ShownWindow> all = shownWindows(pid());
    for (const ShownWindow &window : all)
        titles.append(window.title);
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
    const QList<ShownWindow> all = shownWindows(pid());
    const auto window = std::ranges::find(all, title, &ShownWindow::title);
    return window == all.end() ? QString() : window->id;
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
