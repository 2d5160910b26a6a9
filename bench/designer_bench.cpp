// SPDX-License-Identifier: GPL-3.0-or-later
// designer_bench PAGE: entering and leaving the visual designer with PAGE; the time from a key press to the state that
// the toolbar shows, in a page of one paragraph and in PAGE; and the same after all of PAGE has been selected.
#include "bench/noprompts.h"
#include "files/diskfilestore.h"
#include "web/designer/designerwidget.h"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QTimer>
#include <QWebEngineView>

#include <chrono>
#include <functional>

#include <benchmark/benchmark.h>
#include <unistd.h>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

/// Seconds from the action to the signal that it leads to.
template<typename Signal>
double secondsUntil(DesignerWidget &designer, Signal signal, const std::function<void()> &action)
{
    QEventLoop loop;
    QObject::connect(&designer, signal, &loop, &QEventLoop::quit);
    const auto begin = std::chrono::steady_clock::now();
    action();
    loop.exec();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

void show(DesignerWidget &designer, const std::function<void()> &load)
{
    secondsUntil(designer, &DesignerWidget::DocumentComplete, load);
}

void enter(benchmark::State &state, DesignerWidget &designer, const QString &page)
{
    for (auto _ : state) {
        show(designer, [&] { designer.setDocumentHtml(u"<p>a</p>"_s); });
        state.SetIterationTime(
            secondsUntil(designer, &DesignerWidget::DocumentComplete, [&] { designer.loadDocument(page); }));
    }
}

/// An unchanged page is given back without asking the engine, so it is changed first.
void leave(benchmark::State &state, DesignerWidget &designer, const QString &page)
{
    show(designer, [&] { designer.loadDocument(page); });
    for (auto _ : state) {
        designer.pasteHtml(u"<p>b</p>"_s);
        const auto begin = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(designer.documentHtml());
        state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
    }
}

void key(benchmark::State &state, DesignerWidget &designer, const std::function<void()> &load)
{
    show(designer, load);
    designer.view().setFocus();
    for (auto _ : state) {
        state.SetIterationTime(secondsUntil(designer, &DesignerWidget::DisplayChanged, [&] {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_B, Qt::NoModifier, u"b"_s);
            QCoreApplication::sendEvent(designer.view().focusProxy(), &press);
        }));
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_B, Qt::NoModifier, u"b"_s);
        QCoreApplication::sendEvent(designer.view().focusProxy(), &release);
        // The caret's own report follows the letter's, and must not be taken for the report of the next letter.
        QEventLoop rest;
        QTimer::singleShot(30, &rest, &QEventLoop::quit);
        rest.exec();
    }
}

/// The selection covers everything that the states depend on.
void selectAll(benchmark::State &state, DesignerWidget &designer, const QString &page)
{
    show(designer, [&] { designer.loadDocument(page); });
    for (auto _ : state) {
        state.SetIterationTime(secondsUntil(designer, &DesignerWidget::DisplayChanged, [&] {
            designer.execCommand(DesignerCommand::SelectAll, DesignerPrompting::Default, {});
        }));
    }
}

} // namespace

int main(int argc, char **argv)
{
    // As in the program: the engine paints in software, and its sandbox is disabled only where it has to be.
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    qputenv("QT_QUICK_BACKEND", "software");
    if (geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    benchmark::Initialize(&argc, argv);
    QApplication application(argc, argv);
    if (argc != 2)
        qFatal("usage: designer_bench PAGE");
    const QString page = QString::fromLocal8Bit(argv[1]);
    NoPrompts prompts;
    const DiskFileStore files;
    DesignerWidget designer(files, prompts);
    designer.resize(800, 600);
    designer.show();
    const auto add = [](const char *name, auto run, int iterations) {
        benchmark::RegisterBenchmark(name, run)->Iterations(iterations)->UseManualTime()->Unit(benchmark::kMillisecond);
    };
    add(
        "enter", [&](benchmark::State &state) { enter(state, designer, page); }, 1);
    add(
        "leave", [&](benchmark::State &state) { leave(state, designer, page); }, 1);
    const auto loadOne = [&] { designer.setDocumentHtml(u"<p>a</p>"_s); };
    const auto loadPage = [&] { designer.loadDocument(page); };
    add(
        "key", [&](benchmark::State &state) { key(state, designer, loadOne); }, 50);
    add(
        "key in the page", [&](benchmark::State &state) { key(state, designer, loadPage); }, 20);
    add(
        "select all", [&](benchmark::State &state) { selectAll(state, designer, page); }, 1);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
